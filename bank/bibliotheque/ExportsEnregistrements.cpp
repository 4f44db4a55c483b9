// What is read of the records that were handed out. A handle of another kind reads as zero and empty.
#include "bank/bibliotheque/Bibliotheque.h"
#include "bank/bibliotheque/Enregistrements.h"
#include "bank/bibliotheque/Exports.h"

using namespace banque::bibliotheque;

namespace {

using drugbank::Poignee;
using drugbank::TexteBanque;

template <typename Fiche, typename Valeur> Valeur Nombre(Poignee fiche, Valeur Fiche::*champ)
{
    return Demande<Valeur>([&](const Bibliotheque& bibliotheque) {
        const auto lue = bibliotheque.Remis.Lis<Fiche>(fiche);
        return lue ? (*lue).*champ : Valeur();
    });
}

/// Holds as long as the record, or as the list that it came from.
template <typename Fiche> TexteBanque Texte(Poignee fiche, QByteArray Fiche::*champ)
{
    const auto texte = Demande<TexteBanque>([&](const Bibliotheque& bibliotheque) {
        const auto lue = bibliotheque.Remis.Lis<Fiche>(fiche);
        return lue ? ((*lue).*champ).constData() : nullptr;
    });
    return texte ? texte : "";
}

/// A part of a record as a record of its own, which keeps what it is part of.
template <typename Fiche, typename Valeur> Poignee Piece(Poignee fiche, Valeur Fiche::*champ)
{
    return Demande<Poignee>([&](Bibliotheque& bibliotheque) -> Poignee {
        const auto lue = bibliotheque.Remis.Lis<Fiche>(fiche);
        return lue ? bibliotheque.Remis.Donne(std::shared_ptr<const Valeur>(lue, &((*lue).*champ))) : 0;
    });
}

template <typename Liste> Entier Compte(Poignee liste)
{
    return Demande<Entier>([&](const Bibliotheque& bibliotheque) {
        const auto lue = bibliotheque.Remis.Lis<Liste>(liste);
        return lue ? static_cast<Entier>(lue->size()) : 0;
    });
}

template <typename Liste> Poignee Element(Poignee liste, Entier rang)
{
    using Fiche = typename Liste::value_type;
    return Demande<Poignee>([&](Bibliotheque& bibliotheque) -> Poignee {
        const auto lue = bibliotheque.Remis.Lis<Liste>(liste);
        if (!lue || rang < 0 || static_cast<std::size_t>(rang) >= lue->size()) {
            return 0;
        }
        return bibliotheque.Remis.Donne(
            std::shared_ptr<const Fiche>(lue, &(*lue)[static_cast<std::size_t>(rang)]));
    });
}

template <typename Fiche> void Libere(Poignee fiche)
{
    Demande<void>([&](Bibliotheque& bibliotheque) { bibliotheque.Remis.Libere<Fiche>(fiche); });
}

} // namespace

namespace drugbank {

TexteBanque Pack_getCip(Poignee fiche)
{
    return Texte(fiche, &FichePack::Cip);
}

TexteBanque Pack_getName(Poignee fiche)
{
    return Texte(fiche, &FichePack::Nom);
}

Entier Pack_getId(Poignee fiche)
{
    return Nombre(fiche, &FichePack::Id);
}

Entier Pack_getProductId(Poignee fiche)
{
    return Nombre(fiche, &FichePack::Produit);
}

double Pack_getPublicPrice(Poignee fiche)
{
    return Nombre(fiche, &FichePack::Prix);
}

void Pack_release(Poignee fiche)
{
    Libere<FichePack>(fiche);
}

Entier PackList_getCount(Poignee liste)
{
    return Compte<ListePacks>(liste);
}

Poignee PackList_getItem(Poignee liste, Entier rang)
{
    return Element<ListePacks>(liste, rang);
}

void PackList_release(Poignee fiche)
{
    Libere<ListePacks>(fiche);
}

Entier PagedResultPack_getRowCount(Poignee fiche)
{
    return Nombre(fiche, &PageDePacks::Total);
}

Poignee PagedResultPack_getResult(Poignee fiche)
{
    return Piece(fiche, &PageDePacks::Packs);
}

void PagedResultPack_release(Poignee fiche)
{
    Libere<PageDePacks>(fiche);
}

Entier Product_getId(Poignee fiche)
{
    return Nombre(fiche, &FicheProduit::Id);
}

TexteBanque Product_getName(Poignee fiche)
{
    return Texte(fiche, &FicheProduit::Nom);
}

void Product_release(Poignee fiche)
{
    Libere<FicheProduit>(fiche);
}

Entier ProductList_getCount(Poignee liste)
{
    return Compte<ListeProduits>(liste);
}

Poignee ProductList_getItem(Poignee liste, Entier rang)
{
    return Element<ListeProduits>(liste, rang);
}

void ProductList_release(Poignee fiche)
{
    Libere<ListeProduits>(fiche);
}

Poignee ProductGenericGroup_getGenericGroup(Poignee fiche)
{
    return Piece(fiche, &EntreeGroupe::Groupe);
}

void ProductGenericGroup_release(Poignee fiche)
{
    Libere<EntreeGroupe>(fiche);
}

Entier ProductGenericGroupList_getCount(Poignee liste)
{
    return Compte<ListeGroupes>(liste);
}

Poignee ProductGenericGroupList_getItem(Poignee liste, Entier rang)
{
    return Element<ListeGroupes>(liste, rang);
}

void ProductGenericGroupList_release(Poignee fiche)
{
    Libere<ListeGroupes>(fiche);
}

Entier GenericGroup_getId(Poignee fiche)
{
    return Nombre(fiche, &FicheGroupe::Id);
}

/// The public files do not tell: the answer that promises least, "Different active excipients".
Entier GenericGroup_getActiveExcipientHomogeneity(Poignee fiche)
{
    return Nombre(fiche, &FicheGroupe::Id) == 0 ? 0 : 2;
}

void GenericGroup_release(Poignee fiche)
{
    Libere<FicheGroupe>(fiche);
}

TexteBanque CommonNameGroup_getName(Poignee fiche)
{
    return Texte(fiche, &NomCommun::Nom);
}

void CommonNameGroup_release(Poignee fiche)
{
    Libere<NomCommun>(fiche);
}

Entier Document_getId(Poignee fiche)
{
    return Nombre(fiche, &FicheDocument::Id);
}

TexteBanque Document_getName(Poignee fiche)
{
    return Texte(fiche, &FicheDocument::Nom);
}

Entier Document_getType(Poignee fiche)
{
    return Nombre(fiche, &FicheDocument::Type);
}

TexteBanque Document_getURL(Poignee fiche)
{
    return Texte(fiche, &FicheDocument::Adresse);
}

void Document_release(Poignee fiche)
{
    Libere<FicheDocument>(fiche);
}

Entier DocumentList_getCount(Poignee liste)
{
    return Compte<ListeDocuments>(liste);
}

Poignee DocumentList_getItem(Poignee liste, Entier rang)
{
    return Element<ListeDocuments>(liste, rang);
}

void DocumentList_release(Poignee fiche)
{
    Libere<ListeDocuments>(fiche);
}

Poignee InteractionResult_getInteractionCoupleList(Poignee fiche)
{
    return Piece(fiche, &ResultatInteractions::Couples);
}

Poignee InteractionResult_getUnkownProductInteractionList(Poignee fiche)
{
    return Piece(fiche, &ResultatInteractions::Inconnus);
}

void InteractionResult_release(Poignee fiche)
{
    Libere<ResultatInteractions>(fiche);
}

Entier InteractionCoupleList_getCount(Poignee liste)
{
    return Compte<ListeCouples>(liste);
}

Poignee InteractionCoupleList_getItem(Poignee liste, Entier rang)
{
    return Element<ListeCouples>(liste, rang);
}

void InteractionCoupleList_release(Poignee fiche)
{
    Libere<ListeCouples>(fiche);
}

Entier InteractionCouple_getInteractionId(Poignee fiche)
{
    return Nombre(fiche, &Couple::Id);
}

Entier InteractionCouple_getSeverity(Poignee fiche)
{
    return Nombre(fiche, &Couple::Gravite);
}

TexteBanque InteractionCouple_getPrecautionComment(Poignee fiche)
{
    return Texte(fiche, &Couple::Precaution);
}

TexteBanque InteractionCouple_getRiskComment(Poignee fiche)
{
    return Texte(fiche, &Couple::Risque);
}

Poignee InteractionCouple_getProductA(Poignee fiche)
{
    return Piece(fiche, &Couple::ProduitA);
}

Poignee InteractionCouple_getProductB(Poignee fiche)
{
    return Piece(fiche, &Couple::ProduitB);
}

Poignee InteractionCouple_getDrugInteractionClassA(Poignee fiche)
{
    return Piece(fiche, &Couple::ClasseA);
}

Poignee InteractionCouple_getDrugInteractionClassB(Poignee fiche)
{
    return Piece(fiche, &Couple::ClasseB);
}

void InteractionCouple_release(Poignee fiche)
{
    Libere<Couple>(fiche);
}

Entier DrugInteractionClass_getId(Poignee fiche)
{
    return Nombre(fiche, &ClasseInteraction::Id);
}

TexteBanque DrugInteractionClass_getName(Poignee fiche)
{
    return Texte(fiche, &ClasseInteraction::Nom);
}

void DrugInteractionClass_release(Poignee fiche)
{
    Libere<ClasseInteraction>(fiche);
}

} // namespace drugbank
