// A drug bank that answers from the description in the file beside it, and keeps what it was called with.
#include "essai/BanqueEssai.h"

#include <algorithm>
#include <cstring>

#define EXPORTE extern "C" Q_DECL_EXPORT

using drugbank::Entier;
using drugbank::ListeCodes;
using drugbank::Poignee;
using drugbank::TexteBanque;

namespace {

const QJsonValue kAdresse = QJsonValue::Null; ///< stands in the log for a place to write to

essai::BanqueEssai& La()
{
    return essai::BanqueEssai::La();
}

/// A character for each byte.
QJsonValue Octets(TexteBanque texte)
{
    return texte ? QJsonValue(QString::fromLatin1(texte)) : QJsonValue(QJsonValue::Null);
}

QJsonArray Liste(ListeCodes codes, Entier nombre)
{
    QJsonArray liste;
    for (Entier i = 0; i < nombre; ++i) {
        liste.append(codes[i]);
    }
    return liste;
}

QByteArray Cle(ListeCodes codes, Entier nombre, Entier niveau)
{
    QByteArray cle;
    for (Entier i = 0; i < nombre; ++i) {
        cle += QByteArray::number(codes[i]) + ',';
    }
    return cle + QByteArray::number(niveau);
}

} // namespace

EXPORTE Entier DRUGBANK_APPEL VidalAPI_init(Poignee* session, Entier produit)
{
    La().Note(__func__, {kAdresse, produit});
    La().Commence(session);
    return La().Statut("retourDemarrage");
}
#ifndef SANS_DEMARRAGE_ASYNCHRONE
EXPORTE Entier DRUGBANK_APPEL VidalAPI_asyncInit(Poignee* session, Entier produit)
{
    La().Note(__func__, {kAdresse, produit});
    La().Commence(session);
    return La().Etape();
}
EXPORTE Entier DRUGBANK_APPEL VidalAPI_asyncStartResult(Poignee session, Entier un)
{
    La().Note(__func__, {session, un});
    return La().Etape();
}
#endif
EXPORTE Entier DRUGBANK_APPEL VidalAPI_getVersion(char* tampon, Entier longueur)
{
    La().Note(__func__, {kAdresse, longueur});
    const QByteArray version = La().Version().left(std::max(longueur - 1, 0));
    std::memcpy(tampon, version.constData(), static_cast<std::size_t>(version.size()) + 1);
    return La().Statut("retourVersion");
}
EXPORTE void DRUGBANK_APPEL VidalAPI_release(Poignee session)
{
    La().Note(__func__, {session});
}
EXPORTE std::int64_t DRUGBANK_APPEL DatabaseInfoService_getExpiryDate(Poignee session)
{
    La().Note(__func__, {session});
    return La().Expiration();
}

EXPORTE Entier DRUGBANK_APPEL StringLength(TexteBanque texte)
{
    La().Note(__func__, {Octets(texte)});
    return La().Longueur(texte);
}
EXPORTE void DRUGBANK_APPEL CopyString(char* tampon, TexteBanque texte)
{
    La().Note(__func__, {kAdresse, Octets(texte)});
    std::strcpy(tampon, texte);
}
#ifndef SANS_COPIE_BORNEE
EXPORTE void DRUGBANK_APPEL CopyStringN2(char* tampon, TexteBanque texte, Entier n)
{
    La().Note(__func__, {kAdresse, Octets(texte), n});
    const std::size_t longueur = std::min(std::strlen(texte), static_cast<std::size_t>(std::max(n, 0)));
    std::memcpy(tampon, texte, longueur);
}
#endif

EXPORTE Poignee DRUGBANK_APPEL PackService_searchByNameWithPagedResult(Poignee session, TexteBanque nom,
                                                                       ListeCodes codes, Entier borne,
                                                                       ListeCodes seconds, Entier seconde,
                                                                       Entier page, Entier taille)
{
    const QJsonArray arguments = {
        session, Octets(nom), Liste(codes, borne + 1), borne, Liste(seconds, seconde + 1), seconde,
        page,    taille};
    return La().Repond(__func__, arguments, "recherche", nom,
                       [&] { return La().Reponses.Recherche(nom, page, taille); });
}
EXPORTE Poignee DRUGBANK_APPEL PackService_searchByCip(Poignee session, TexteBanque cip)
{
    return La().Repond(__func__, {session, Octets(cip)}, "cip", cip, [&] { return La().Reponses.Cip(cip); });
}
EXPORTE Poignee DRUGBANK_APPEL InteractionService_searchInteractionCouplesForProductIds(Poignee session,
                                                                                        ListeCodes ids,
                                                                                        Entier nombre,
                                                                                        Entier niveau)
{
    return La().Repond(__func__, {session, Liste(ids, nombre), nombre, niveau}, "interactions",
                       Cle(ids, nombre, niveau), [&] {
                           return La().Reponses.Interactions({ids, ids + nombre}, niveau);
                       });
}

#define SERVICE(fonction, nom, reponse)                                                                      \
    EXPORTE Poignee DRUGBANK_APPEL fonction(Poignee session, Entier id)                                      \
    {                                                                                                        \
        return La().Repond(__func__, {session, id}, nom, QByteArray::number(id),                             \
                           [&] { return La().Reponses.reponse(id); });                                       \
    }
SERVICE(PackService_searchByProductId, "packs", Packs)
SERVICE(DocumentService_getAllDocumentForPackId, "documents", Documents)
SERVICE(DocumentService_getMonoForPackId, "mono", Mono)
SERVICE(CommonNameGroupService_searchByProductId, "dci", NomCommun)
SERVICE(GenericGroupService_searchByProductId, "groupes", Groupes)
SERVICE(ProductService_searchByGenericGroupId, "produits", Produits)

#define LIBERE(type)                                                                                         \
    EXPORTE void DRUGBANK_APPEL type##_release(Poignee poignee)                                              \
    {                                                                                                        \
        La().Libere(__func__, poignee);                                                                      \
    }
#define TEXTE(fonction, nom)                                                                                 \
    EXPORTE TexteBanque DRUGBANK_APPEL fonction(Poignee poignee)                                             \
    {                                                                                                        \
        La().Note(__func__, {poignee});                                                                      \
        return La().Poignees.Texte(poignee, nom);                                                            \
    }
#define ENTIER(fonction, nom)                                                                                \
    EXPORTE Entier DRUGBANK_APPEL fonction(Poignee poignee)                                                  \
    {                                                                                                        \
        La().Note(__func__, {poignee});                                                                      \
        return La().Poignees.Entier(poignee, nom);                                                           \
    }
#define DONNE(fonction, nom)                                                                                 \
    EXPORTE Poignee DRUGBANK_APPEL fonction(Poignee poignee)                                                 \
    {                                                                                                        \
        return La().Donne(__func__, {poignee}, La().Poignees.Champ(poignee, nom));                           \
    }
#define LISTE(type)                                                                                          \
    LIBERE(type)                                                                                             \
    EXPORTE Entier DRUGBANK_APPEL type##_getCount(Poignee poignee)                                           \
    {                                                                                                        \
        La().Note(__func__, {poignee});                                                                      \
        return La().Poignees.Compte(poignee);                                                                \
    }                                                                                                        \
    EXPORTE Poignee DRUGBANK_APPEL type##_getItem(Poignee poignee, Entier rang)                              \
    {                                                                                                        \
        return La().Donne(__func__, {poignee, rang}, La().Poignees.Rang(poignee, rang));                     \
    }

LISTE(PackList)
LISTE(ProductList)
LISTE(ProductGenericGroupList)
LISTE(DocumentList)
LISTE(InteractionCoupleList)

LIBERE(Pack)
TEXTE(Pack_getCip, "cip")
TEXTE(Pack_getName, "nom")
ENTIER(Pack_getId, "id")
ENTIER(Pack_getProductId, "produit")
EXPORTE double DRUGBANK_APPEL Pack_getPublicPrice(Poignee poignee)
{
    La().Note(__func__, {poignee});
    return La().Poignees.Reel(poignee, "prix");
}
LIBERE(PagedResultPack)
ENTIER(PagedResultPack_getRowCount, "rangs")
DONNE(PagedResultPack_getResult, "packs")
LIBERE(Product)
ENTIER(Product_getId, "id")
TEXTE(Product_getName, "nom")
LIBERE(ProductGenericGroup)
DONNE(ProductGenericGroup_getGenericGroup, "groupe")
LIBERE(GenericGroup)
ENTIER(GenericGroup_getId, "id")
ENTIER(GenericGroup_getActiveExcipientHomogeneity, "homogeneite")
LIBERE(CommonNameGroup)
TEXTE(CommonNameGroup_getName, "nom")
LIBERE(Document)
ENTIER(Document_getId, "id")
TEXTE(Document_getName, "nom")
ENTIER(Document_getType, "type")
TEXTE(Document_getURL, "url")
LIBERE(InteractionResult)
DONNE(InteractionResult_getInteractionCoupleList, "couples")
DONNE(InteractionResult_getUnkownProductInteractionList, "inconnus")
LIBERE(InteractionCouple)
ENTIER(InteractionCouple_getInteractionId, "id")
ENTIER(InteractionCouple_getSeverity, "gravite")
TEXTE(InteractionCouple_getPrecautionComment, "precaution")
TEXTE(InteractionCouple_getRiskComment, "risque")
DONNE(InteractionCouple_getProductA, "a")
DONNE(InteractionCouple_getProductB, "b")
DONNE(InteractionCouple_getDrugInteractionClassA, "classeA")
DONNE(InteractionCouple_getDrugInteractionClassB, "classeB")
LIBERE(DrugInteractionClass)
ENTIER(DrugInteractionClass_getId, "id")
TEXTE(DrugInteractionClass_getName, "nom")
