#pragma once

#include <QSqlDatabase>
#include <QTemporaryDir>
#include <memory>

namespace banque::bibliotheque {

/// The pages of a session, written when they are asked for into a directory that only this user reads and
/// that ends with this object.
class Fiches
{
public:
    /// The address of the page of a medication, all in ASCII. Throws `common::Erreur` when the bank cannot be
    /// read or the page not be written.
    QByteArray Adresse(const QSqlDatabase& base, qint64 cis);

private:
    std::unique_ptr<QTemporaryDir> dossier_;
};

} // namespace banque::bibliotheque
