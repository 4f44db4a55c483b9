#pragma once

#include <QString>

namespace page {

/// What the "#" at the ends of a title ask for.
struct TitreLu
{
    QString Texte;       ///< what is printed
    bool Centre = false; ///< "#" first: centred, and the posology hangs from its left edge
    bool Compte = false; ///< a medication: numbered and counted
};

/// The title as every path reads it: a lone "#" is a skip line, "##".
QString TitreNormal(const QString& titre);

TitreLu LitTitre(const QString& titre);

} // namespace page
