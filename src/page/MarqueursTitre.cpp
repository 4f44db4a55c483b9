#include "page/MarqueursTitre.h"

namespace page {

QString TitreNormal(const QString& titre)
{
    return titre == QLatin1String("#") ? QStringLiteral("##") : titre;
}

TitreLu LitTitre(const QString& titre)
{
    const QString normal = TitreNormal(titre);
    const bool debut = normal.startsWith(QLatin1Char('#'));
    const bool fin = normal.endsWith(QLatin1Char('#'));
    return {.Texte = normal.sliced(debut ? 1 : 0).chopped(fin ? 1 : 0),
            .Centre = debut,
            .Compte = !normal.isEmpty() && !fin};
}

} // namespace page
