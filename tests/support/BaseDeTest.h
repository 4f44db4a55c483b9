#pragma once

#include "common/Erreur.h"
#include "storage/Bases.h"
#include "storage/Jeu.h"

#include <QTemporaryDir>

namespace support {

/// A temporary directory with a fresh "Medoc.mdb" and "Ordo.mdb", as a first start leaves them.
class BaseDeTest
{
public:
    BaseDeTest();

    QString Dossier() const { return dossier_.path(); }
    QString Chemin(const QString& nom) const { return dossier_.filePath(nom); }
    storage::Base& Medoc() { return bases_.Medoc(Dossier()); }
    storage::Base& Ordo() { return bases_.Ordo(Dossier()); }
    storage::Bases& Bases() { return bases_; }

private:
    QTemporaryDir dossier_;
    storage::Bases bases_;
};

/// Adds one row, its fields in the order of the columns; an invalid QVariant leaves its column as it is.
void AjouteLigne(storage::Base& base, const QString& table, const QVariantList& champs);

/// All the rows of a table as texts, fields parted by '|', null as "<null>".
QStringList Lignes(storage::Base& base, const QString& table);

/// The sentence that an action fails with; empty when it succeeds.
template <typename Action> QString PhraseDEchec(Action&& action)
{
    try {
        action();
    } catch (const common::Erreur& erreur) {
        return erreur.Phrase();
    }
    return {};
}

} // namespace support
