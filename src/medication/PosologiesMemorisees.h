#pragma once

#include <QString>

namespace storage {
class Base;
}

namespace medication {

/// The posology that the doctor keeps for a pack of the bank, by CIP: the table `Vidal`. The bank's own
/// posology is not read. Whatever fails throws `Erreur`.
class PosologiesMemorisees
{
public:
    explicit PosologiesMemorisees(storage::Base& medoc) : medoc_(medoc) {}

    /// Empty for a pack without one.
    QString Lis(const QString& cip);
    /// Replaces the posology of a pack, or adds one.
    void Enregistre(const QString& cip, const QString& posologie);

private:
    storage::Base& medoc_;
};

} // namespace medication
