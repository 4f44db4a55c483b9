#include "upgrade/IndexNoms.h"

#include <algorithm>
#include <limits>

namespace upgrade {

IndexNoms::IndexNoms(const QStringList& noms)
    : noeuds_(1), premiers_(std::numeric_limits<char16_t>::max() + 1, -1)
{
    for (qsizetype rang = 0; rang < noms.size(); ++rang) {
        Insere(noms[rang], static_cast<int>(rang));
    }
    Relie();
}

int IndexNoms::Suivant(int noeud, char16_t lettre) const
{
    if (noeud == 0) {
        return premiers_[lettre];
    }
    int fils = noeuds_[noeud].Fils;
    while (fils >= 0 && noeuds_[fils].Lettre != lettre) {
        fils = noeuds_[fils].Frere;
    }
    return fils;
}

int IndexNoms::Ajoute(int noeud, char16_t lettre)
{
    const int nouveau = static_cast<int>(noeuds_.size());
    noeuds_.push_back({lettre, -1, noeuds_[noeud].Fils, 0, -1});
    noeuds_[noeud].Fils = nouveau;
    if (noeud == 0) {
        premiers_[lettre] = nouveau;
    }
    return nouveau;
}

void IndexNoms::Insere(QStringView nom, int rang)
{
    int noeud = 0;
    for (const QChar lettre : nom) {
        const int suivant = Suivant(noeud, lettre.unicode());
        noeud = suivant >= 0 ? suivant : Ajoute(noeud, lettre.unicode());
    }
    noeuds_[noeud].Dernier = rang;
}

int IndexNoms::Avance(int noeud, char16_t lettre) const
{
    for (;;) {
        const int suivant = Suivant(noeud, lettre);
        if (suivant >= 0 || noeud == 0) {
            return std::max(suivant, 0);
        }
        noeud = noeuds_[noeud].Repli;
    }
}

/// Level by level: what a beginning falls back on is shorter, and stands already.
void IndexNoms::Relie()
{
    std::vector<int> file{0};
    file.reserve(noeuds_.size());
    for (size_t i = 0; i < file.size(); ++i) {
        const int noeud = file[i];
        for (int fils = noeuds_[noeud].Fils; fils >= 0; fils = noeuds_[fils].Frere) {
            Noeud& element = noeuds_[fils];
            element.Repli = noeud == 0 ? 0 : Avance(noeuds_[noeud].Repli, element.Lettre);
            element.Dernier = std::max(element.Dernier, noeuds_[element.Repli].Dernier);
            file.push_back(fils);
        }
    }
}

int IndexNoms::DernierContenu(QStringView texte) const
{
    int dernier = -1;
    int noeud = 0;
    for (const QChar lettre : texte) {
        noeud = Avance(noeud, lettre.unicode());
        dernier = std::max(dernier, noeuds_[noeud].Dernier);
    }
    return dernier;
}

} // namespace upgrade
