#pragma once

#include <QStringList>
#include <vector>

namespace upgrade {

/// An index of names that finds, in one walk over a text, the last of them that the text contains.
class IndexNoms
{
public:
    explicit IndexNoms(const QStringList& noms);

    /// The rank of the last name that stands somewhere in the text, letter by letter; -1 when none does. The
    /// empty name stands in every text but the empty one.
    int DernierContenu(QStringView texte) const;

private:
    /// A beginning of names. Its letters are those on the way from the root, number 0.
    struct Noeud
    {
        char16_t Lettre = 0;
        int Fils = -1;
        int Frere = -1;
        int Repli = 0;    ///< the longest other beginning that ends it
        int Dernier = -1; ///< rank of the last name that ends it
    };

    int Suivant(int noeud, char16_t lettre) const;
    int Ajoute(int noeud, char16_t lettre);
    void Insere(QStringView nom, int rang);
    int Avance(int noeud, char16_t lettre) const;
    void Relie();

    std::vector<Noeud> noeuds_;
    std::vector<int> premiers_; ///< the child of the root for each letter
};

} // namespace upgrade
