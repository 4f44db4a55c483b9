#include "certificates/Decalage.h"

#include "common/Lignes.h"

#include <algorithm>

namespace certificates {

namespace {

constexpr QLatin1String kDeuxBlancs("  ");
constexpr QLatin1String kFinDeLigne("\r\n");

} // namespace

QString DecaleADroite(const QString& texte)
{
    QString decale;
    for (const QString& ligne : common::LignesDeTexte(texte)) {
        decale += kDeuxBlancs + ligne + kFinDeLigne;
    }
    return decale;
}

bool PeutDecalerAGauche(const QString& texte)
{
    return std::ranges::all_of(common::LignesDeTexte(texte), [](const QString& ligne) {
        return ligne.isEmpty() || ligne.startsWith(kDeuxBlancs);
    });
}

QString DecaleAGauche(const QString& texte)
{
    QString decale;
    for (const QString& ligne : common::LignesDeTexte(texte)) {
        decale += ligne.sliced(std::min<qsizetype>(ligne.size(), kDeuxBlancs.size())) + kFinDeLigne;
    }
    return decale;
}

} // namespace certificates
