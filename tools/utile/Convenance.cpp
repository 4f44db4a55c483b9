#include "Convenance.h"

#include <algorithm>

namespace utile {

using storage::TypeColonne;

namespace {

bool ConvientColonne(TypeColonne type, const QVariant& valeur)
{
    if (!valeur.isValid()) {
        return true;
    }
    const bool texte = valeur.typeId() == QMetaType::QString;
    switch (type) {
    case TypeColonne::Compteur:
        return false;
    case TypeColonne::Texte:
        return texte;
    case TypeColonne::OuiNon:
        return valeur.typeId() == QMetaType::LongLong && qAbs(valeur.toLongLong()) <= 1;
    default:
        return !texte && valeur.typeId() != QMetaType::QByteArray;
    }
}

/// Columns that were added to a table are missing at the end of the rows that were there.
bool ConvientAuDebut(const storage::Table& table, const Champs& champs)
{
    for (int i = 0; i < champs.Valeurs.size(); ++i) {
        if (!champs.Manquants.contains(i) && !ConvientColonne(table.Colonnes[i].Type, champs.Valeurs[i])) {
            return false;
        }
    }
    return true;
}

} // namespace

bool Convient(const storage::Table& table, const Champs& champs)
{
    return champs.Valeurs.size() == table.Colonnes.size() && ConvientAuDebut(table, champs);
}

bool PeutEtreDe(const storage::Table& table, const Champs& champs)
{
    if (champs.Valeurs.size() > std::max<qsizetype>(1, table.Colonnes.size())) {
        return false;
    }
    return table.Nom.isEmpty() || ConvientAuDebut(table, champs);
}

} // namespace utile
