#pragma once

#include "outside/Imprimantes.h"

#include <QVariantMap>

class QColor;

namespace scenario {

/// The script's null.
inline QVariant Nul()
{
    return QVariant::fromValue(nullptr);
}

/// True for the script's null and undefined.
bool EstNul(const QVariant& valeur);
bool EstNombre(const QVariant& valeur);

/// `{nom, taille, gras, italique, souligne}`.
QVariantMap VersPoliceScript(const page::Police& police);
/// The same back; a key that is missing keeps what `depart` has.
page::Police DepuisPoliceScript(const QVariantMap& police, page::Police depart = {});

/// Red + 256 green + 65536 blue.
QVariant VersCouleurScript(const QColor& couleur);

/// The items of a drawing in order, each an object with its kind under "genre".
QVariantList VersItemsScript(const page::Dessin& dessin);

/// `{imprimante, pages: [[items], ...]}`.
QVariantMap VersTravailScript(const QString& imprimante, const outside::Travail& travail);

} // namespace scenario
