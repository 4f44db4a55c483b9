#include "page/LignesEntete.h"

#include "storage/Jeu.h"

#include <algorithm>

namespace page {

namespace {

enum Colonne { kNumLigne, kTexte, kPolice, kTaille, kGras, kItalique, kSouligne, kEspaces };

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
    ligne.AvecTexte = !jeu.EstNull(kTexte);
    ligne.AvecEspaces = !jeu.EstNull(kEspaces);
    for (int colonne = kPolice; colonne <= kSouligne; ++colonne) {
        ligne.AvecPolice = ligne.AvecPolice && !jeu.EstNull(colonne);
    }
    return ligne;
}

} // namespace

QList<LigneEntete> LitEntete(storage::Base& ordo)
{
    QList<LigneEntete> lignes;
    for (storage::Jeu jeu = ordo.Table(QStringLiteral("Entete")); !jeu.Fin(); jeu.MoveNext()) {
        lignes.append(LitLigne(jeu));
    }
    std::ranges::stable_sort(lignes, {}, &LigneEntete::NumLigne);
    return lignes;
}

} // namespace page
