#include "page/LignesEntete.h"

#include "storage/Jeu.h"

#include <algorithm>

namespace page {

namespace {

LigneEntete LitLigne(const storage::Jeu& jeu)
{
    LigneEntete ligne;
    ligne.NumLigne = jeu.Champ(kNumLigne).toInt();
    ligne.Texte = jeu.Texte(kTexte);
    ligne.Police = {.Nom = jeu.Texte(kPolice),
                    .Taille = jeu.Champ(kTaille).toFloat(),
                    .Gras = jeu.Champ(kGras).toBool(),
                    .Italique = jeu.Champ(kItalique).toBool(),
                    .Souligne = jeu.Champ(kSouligne).toBool()};
    ligne.Espaces = jeu.Champ(kEspaces).toDouble();
    for (int colonne = kNumLigne; colonne < kNbColonnesEntete; ++colonne) {
        ligne.Nulles.set(colonne, jeu.EstNull(colonne));
    }
    return ligne;
}

} // namespace

page::Police LigneEntete::PoliceApres(const page::Police& avant) const
{
    return {.Nom = Nulles[kPolice] ? avant.Nom : Police.Nom,
            .Taille = Nulles[kTaille] ? avant.Taille : Police.Taille,
            .Gras = Nulles[kGras] ? avant.Gras : Police.Gras,
            .Italique = Nulles[kItalique] ? avant.Italique : Police.Italique,
            .Souligne = Nulles[kSouligne] ? avant.Souligne : Police.Souligne};
}

QList<LigneEntete> LitEntete(storage::Base& ordo)
{
    QList<LigneEntete> lignes;
    for (storage::Jeu jeu = ordo.Table(QStringLiteral("Entete")); !jeu.Fin(); jeu.MoveNext()) {
        lignes.append(LitLigne(jeu));
    }
    std::ranges::stable_sort(lignes, {}, &LigneEntete::NumLigne);
    return lignes;
}

const LigneEntete* LigneBasDePage(const QList<LigneEntete>& lignes)
{
    const auto ligne = std::ranges::find(lignes.rbegin(), lignes.rend(), kBasDePage, &LigneEntete::NumLigne);
    return ligne == lignes.rend() ? nullptr : &*ligne;
}

} // namespace page
