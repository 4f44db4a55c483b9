#pragma once

#include "drugbank/LiaisonBanque.h"

#include <algorithm>
#include <utility>

namespace drugbank {

/// Owns one handle and releases it by the `_release` of its type. Nothing is asked of a handle of 0, and it
/// is not released. The library outlives it.
template <auto Libere> class Tenu
{
public:
    Tenu(const LiaisonBanque& banque, Poignee poignee) : banque_(&banque), poignee_(poignee) {}
    Tenu(Tenu&& autre) noexcept : banque_(autre.banque_), poignee_(std::exchange(autre.poignee_, 0)) {}
    Tenu& operator=(Tenu&& autre) noexcept
    {
        std::swap(banque_, autre.banque_);
        std::swap(poignee_, autre.poignee_);
        return *this;
    }
    ~Tenu()
    {
        if (poignee_ != 0) {
            (banque_->*Libere)(poignee_);
        }
    }

    explicit operator bool() const { return poignee_ != 0; }

    /// What a getter answers, zero for a handle of 0.
    template <typename R, typename... A>
    R Demande(Fonction<R, Poignee, A...> LiaisonBanque::*lecture, std::type_identity_t<A>... arguments) const
    {
        return poignee_ == 0 ? R() : (banque_->*lecture)(poignee_, arguments...);
    }

    /// A text, without NUL characters.
    QString Texte(Fonction<TexteBanque, Poignee> LiaisonBanque::*lecture) const
    {
        return LitTexte(*banque_, Demande(lecture));
    }

    /// A record or list that this one gives.
    template <typename Autre> Autre Donne(Fonction<Poignee, Poignee> LiaisonBanque::*lecture) const
    {
        return Autre(*banque_, Demande(lecture));
    }

protected:
    const LiaisonBanque* banque_;

private:
    Poignee poignee_;
};

using TenuPack = Tenu<&LiaisonBanque::Pack_release>;
using TenuPageDePacks = Tenu<&LiaisonBanque::PagedResultPack_release>;
using TenuProduit = Tenu<&LiaisonBanque::Product_release>;
using TenuGroupeDuProduit = Tenu<&LiaisonBanque::ProductGenericGroup_release>;
using TenuGroupe = Tenu<&LiaisonBanque::GenericGroup_release>;
using TenuNomCommun = Tenu<&LiaisonBanque::CommonNameGroup_release>;
using TenuDocument = Tenu<&LiaisonBanque::Document_release>;
using TenuInteractions = Tenu<&LiaisonBanque::InteractionResult_release>;
using TenuCouple = Tenu<&LiaisonBanque::InteractionCouple_release>;
using TenuClasse = Tenu<&LiaisonBanque::DrugInteractionClass_release>;

/// No list of a bank is longer.
constexpr Entier kElementsMax = 10'000;

/// Owns a list, and knows how it is walked.
template <typename Element, auto Libere, auto Compte, auto Rang> class TenuListe : public Tenu<Libere>
{
public:
    using Tenu<Libere>::Tenu;

    /// Calls `visite` with each element, released behind it unless the visit takes it over, at most
    /// `maximum` of them. An element of 0 is
    /// passed over, so that no count, however absurd, leads anywhere. True when each one of the count was
    /// visited.
    template <typename Visite> bool PourChacun(Visite&& visite, Entier maximum = kElementsMax) const
    {
        const Entier compte = this->Demande(Compte);
        const Entier nombre = std::min(compte, maximum);
        bool complet = compte >= 0 && compte == nombre;
        for (Entier i = 0; i < nombre; ++i) {
            if (Element element(*this->banque_, this->Demande(Rang, i)); element) {
                visite(element);
            } else {
                complet = false;
            }
        }
        return complet;
    }
};

using TenuPacks = TenuListe<TenuPack, &LiaisonBanque::PackList_release, &LiaisonBanque::PackList_getCount,
                            &LiaisonBanque::PackList_getItem>;
using TenuProduits = TenuListe<TenuProduit, &LiaisonBanque::ProductList_release,
                               &LiaisonBanque::ProductList_getCount, &LiaisonBanque::ProductList_getItem>;
using TenuGroupes = TenuListe<TenuGroupeDuProduit, &LiaisonBanque::ProductGenericGroupList_release,
                              &LiaisonBanque::ProductGenericGroupList_getCount,
                              &LiaisonBanque::ProductGenericGroupList_getItem>;
using TenuDocuments = TenuListe<TenuDocument, &LiaisonBanque::DocumentList_release,
                                &LiaisonBanque::DocumentList_getCount, &LiaisonBanque::DocumentList_getItem>;
using TenuCouples =
    TenuListe<TenuCouple, &LiaisonBanque::InteractionCoupleList_release,
              &LiaisonBanque::InteractionCoupleList_getCount, &LiaisonBanque::InteractionCoupleList_getItem>;

} // namespace drugbank
