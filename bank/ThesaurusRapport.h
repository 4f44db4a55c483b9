#pragma once

#include "bank/Thesaurus.h"
#include "bank/ThesaurusLiens.h"

#include <QSqlDatabase>
#include <vector>

namespace banque {

/// A product of a prescription: the codes of its substances, SA and FT, and what its route adds.
struct ProduitAVerifier
{
    QList<int> Codes;
    bool Orale = false;    ///< taken by mouth: some interactions name every such medication
    bool Vaginale = false; ///< the same
};

/// An interaction between two products of the list.
struct CoupleSignale
{
    int ProduitA = 0; ///< places in the list, A before B
    int ProduitB = 0;
    int EntreeA = 0; ///< what the thesaurus knows A as; places in `Entrees`
    int EntreeB = 0;
    int Interaction = 0; ///< place in `Liste`
};

/// What can be said of a list of products. A product that is neither in a couple nor in `NonVerifies` has
/// been checked.
struct RapportInteractions
{
    QList<CoupleSignale> Couples; ///< the gravest first, then in the order of the list
    QList<int> NonVerifies;       ///< products of which the thesaurus knows no substance
    QList<int> Partiels;          ///< products of which it knows some and not all
};

/// Answers which interactions a list of products has. Made once for a bank, then read only.
class Interactions
{
public:
    Interactions(const Thesaurus& thesaurus, const LiensThesaurus& liens);

    /// Reads them from a bank's tables. Throws `common::Erreur`.
    static Interactions DepuisBase(const QSqlDatabase& base);

    /// The interactions at or above a level. Two products that share a substance have none with themselves.
    RapportInteractions Rapport(const QList<ProduitAVerifier>& produits, Niveau minimum) const;

    /// True when the thesaurus knows the substance of a code.
    bool Connait(int code) const { return entreesDeCode_.contains(code); }

    const QList<EntreeThesaurus>& Entrees() const { return entrees_; }
    const QList<Interaction>& Liste() const { return interactions_; }

private:
    /// An entry that a product falls under, by which of its codes; without a code it is its route.
    struct Appartenance
    {
        int Entree = 0;
        std::vector<int> Codes;
    };
    using Fiche = std::vector<Appartenance>;

    Fiche Prepare(const ProduitAVerifier& produit) const;
    void Croise(const std::vector<Fiche>& fiches, int a, int b, Niveau minimum,
                RapportInteractions& rapport) const;
    bool Vaut(const Interaction& interaction, const Appartenance& a, const Appartenance& b) const;
    bool MemeSubstance(int a, int b) const;
    void Trie(RapportInteractions& rapport) const;

    QList<EntreeThesaurus> entrees_;
    QList<Interaction> interactions_;
    QHash<int, std::vector<int>> entreesDeCode_;    ///< classes included
    QHash<int, std::vector<int>> substancesDeCode_; ///< without them
    std::vector<std::vector<int>> parEntree_;       ///< the interactions of an entry
    int voieOrale_ = -1;
    int voieVaginale_ = -1;
};

} // namespace banque
