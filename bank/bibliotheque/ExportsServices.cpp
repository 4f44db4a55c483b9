// What is asked of a session.
#include "bank/bibliotheque/Bibliotheque.h"
#include "bank/bibliotheque/Exports.h"
#include "bank/bibliotheque/Medicaments.h"
#include "bank/bibliotheque/Verification.h"
#include "common/Texte8.h"

using namespace banque::bibliotheque;

namespace {

using drugbank::Poignee;

constexpr Entier kMono = 0;           ///< the one type of document that this bank has
constexpr Entier kProduitsMax = 1000; ///< of one prescription; a greater count is none of a list

/// A handle for what a ready session answers; 0 without one or for nothing.
template <typename Reponse> Poignee Sert(Poignee session, Reponse&& reponse)
{
    return Demande<Poignee>([&](Bibliotheque& bibliotheque) -> Poignee {
        Session* const prete = bibliotheque.Prete(session);
        return prete ? bibliotheque.Remis.Donne(reponse(*prete)) : 0;
    });
}

template <typename T> std::shared_ptr<const T> Remet(T objet)
{
    return std::make_shared<const T>(std::move(objet));
}

template <typename T> std::shared_ptr<const T> Remet(std::optional<T> objet)
{
    return objet ? std::make_shared<const T>(std::move(*objet)) : nullptr;
}

QString Texte(const char* texte)
{
    return texte ? common::DepuisWindows1252(texte) : QString();
}

/// The page of the pack's product; nothing when the bank lacks the product.
std::optional<FicheDocument> DocumentDuPack(Session& session, Entier pack)
{
    const std::optional<FicheProduit> produit = ProduitDuPack(session.Base(), pack);
    if (!produit) {
        return std::nullopt;
    }
    return FicheDocument{produit->Id, produit->Nom, kMono,
                         session.Pages().Adresse(session.Base(), produit->Id)};
}

} // namespace

namespace drugbank {

/// The codes of documents filter nothing: every product has its page.
Poignee PackService_searchByNameWithPagedResult(Poignee session, TexteBanque nom, ListeCodes, Entier,
                                                ListeCodes, Entier, Entier page, Entier taille)
{
    return Sert(session, [&](Session& banque) {
        return Remet(CherchePacks(banque.Lu().Recherche, banque.Base(), Texte(nom), page, taille));
    });
}

Poignee PackService_searchByCip(Poignee session, TexteBanque cip)
{
    return Sert(session, [&](Session& banque) { return Remet(PackDuCip(banque.Base(), Texte(cip))); });
}

Poignee PackService_searchByProductId(Poignee session, Entier produit)
{
    return Sert(session, [&](Session& banque) { return Remet(PacksDuProduit(banque.Base(), produit)); });
}

Poignee DocumentService_getAllDocumentForPackId(Poignee session, Entier pack)
{
    return Sert(session, [&](Session& banque) {
        ListeDocuments documents;
        if (std::optional<FicheDocument> document = DocumentDuPack(banque, pack)) {
            documents.push_back(std::move(*document));
        }
        return Remet(std::move(documents));
    });
}

Poignee DocumentService_getMonoForPackId(Poignee session, Entier pack)
{
    return Sert(session, [&](Session& banque) { return Remet(DocumentDuPack(banque, pack)); });
}

Poignee CommonNameGroupService_searchByProductId(Poignee session, Entier produit)
{
    return Sert(session, [&](Session& banque) { return Remet(NomCommunDuProduit(banque.Base(), produit)); });
}

Poignee GenericGroupService_searchByProductId(Poignee session, Entier produit)
{
    return Sert(session, [&](Session& banque) { return Remet(GroupesDuProduit(banque.Base(), produit)); });
}

Poignee ProductService_searchByGenericGroupId(Poignee session, Entier groupe)
{
    return Sert(session, [&](Session& banque) { return Remet(ProduitsDuGroupe(banque.Base(), groupe)); });
}

/// Answers without a session too: every product is unknown then, so that no report reads as "nothing found".
/// Only what is no list has no answer.
Poignee InteractionService_searchInteractionCouplesForProductIds(Poignee session, ListeCodes produits,
                                                                 Entier nombre, Entier niveau)
{
    return Demande<Poignee>([&](Bibliotheque& bibliotheque) -> Poignee {
        if (nombre > kProduitsMax || (nombre > 0 && !produits)) {
            return 0;
        }
        const QList<Entier> ids(produits, produits + std::max(nombre, 0));
        return bibliotheque.Remis.Donne(Remet(Verifie(bibliotheque.Prete(session), ids, niveau)));
    });
}

} // namespace drugbank
