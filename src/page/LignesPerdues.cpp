#include "page/Gabarit.h"
#include "page/Peintres.h"

#include <set>

namespace page {

int LignesPerdues(const Dessin& dessin, const settings::Reglages& reglages)
{
    constexpr double parMicrometre = 1000; // words of one line share their height but for rounding
    const double limite = LimiteDuCorps(reglages);
    std::set<qint64> lignes;
    for (qsizetype rang = dessin.DebutCorps; rang < dessin.FinCorps; ++rang) {
        const auto* texte = std::get_if<ItemTexte>(&dessin.Items[rang]);
        if (texte != nullptr && texte->Y + texte->Hauteur > limite) {
            lignes.insert(qRound64(texte->Y * parMicrometre));
        }
    }
    return static_cast<int>(lignes.size());
}

} // namespace page
