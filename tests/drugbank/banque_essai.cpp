// A drug bank that answers from the JSON description named by SCRIPTELLE_BANQUE_ESSAI. It keeps what it was
// called with, counts the handles that nobody released, and spoils the texts of a record at its release.
#include "drugbank/InterfaceBanque.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMap>
#include <cstring>
#include <list>

#define EXPORTE extern "C" Q_DECL_EXPORT

using drugbank::Entier;
using drugbank::ListeCodes;
using drugbank::Poignee;
using drugbank::TexteBanque;

namespace {

struct Objet
{
    QJsonValue Contenu;
    std::list<QByteArray> Textes;
};

QMap<Poignee, Objet> ouverts;
QByteArray journal;
Poignee derniere = 0;

QJsonObject Description()
{
    QFile fichier(qEnvironmentVariable("SCRIPTELLE_BANQUE_ESSAI"));
    return fichier.open(QIODevice::ReadOnly) ? QJsonDocument::fromJson(fichier.readAll()).object()
                                             : QJsonObject();
}

Poignee Ouvre(const QJsonValue& contenu)
{
    if (contenu.isUndefined() || contenu.isNull()) {
        return 0;
    }
    ouverts.insert(++derniere, {contenu, {}});
    return derniere;
}

void Libere(Poignee poignee)
{
    if (!ouverts.contains(poignee)) {
        journal += "faute\n";
        return;
    }
    for (QByteArray& texte : ouverts[poignee].Textes) {
        texte.fill('X');
    }
    ouverts.remove(poignee);
}

QJsonValue Champ(Poignee poignee, const char* nom)
{
    return ouverts.value(poignee).Contenu.toObject().value(QLatin1String(nom));
}

TexteBanque Texte(Poignee poignee, const char* nom)
{
    const QJsonValue valeur = Champ(poignee, nom);
    if (!valeur.isString()) {
        return nullptr;
    }
    auto& textes = ouverts[poignee].Textes;
    textes.push_back(valeur.toString().toLatin1()); // a character of the description is a byte of the bank
    return textes.back().constData();
}

Entier Compte(Poignee poignee)
{
    const QJsonValue absurde = Champ(poignee, "count");
    return absurde.isDouble() ? absurde.toInt()
                              : static_cast<Entier>(ouverts.value(poignee).Contenu.toArray().size());
}

Poignee Rang(Poignee poignee, Entier rang)
{
    const QJsonArray liste = ouverts.value(poignee).Contenu.toArray();
    return rang >= 0 && rang < liste.size() ? Ouvre(liste.at(rang)) : 0;
}

QByteArray Codes(ListeCodes codes, Entier nombre)
{
    QByteArray texte;
    for (Entier i = 0; i < nombre; ++i) {
        texte += QByteArray::number(codes[i]) + ',';
    }
    return texte;
}

/// What the description answers to a service asked with that key.
Poignee Service(const char* service, const QByteArray& cle)
{
    journal += QByteArray(service) + ' ' + cle + '\n';
    return Ouvre(Description().value(QLatin1String(service)).toObject().value(QString::fromLatin1(cle)));
}

} // namespace

EXPORTE const char* Essai_journal()
{
    return journal.constData();
}
EXPORTE int Essai_ouverts()
{
    return static_cast<int>(ouverts.size());
}
EXPORTE void Essai_remetAZero()
{
    ouverts.clear();
    journal.clear();
}

EXPORTE Entier DRUGBANK_APPEL StringLength(TexteBanque texte)
{
    return static_cast<Entier>(std::strlen(texte));
}
EXPORTE void DRUGBANK_APPEL CopyString(char* tampon, TexteBanque texte)
{
    std::strcpy(tampon, texte);
}
#ifndef SANS_FONCTIONS_FACULTATIVES
EXPORTE void DRUGBANK_APPEL CopyStringN2(char* tampon, TexteBanque texte, Entier n)
{
    std::memcpy(tampon, texte, static_cast<std::size_t>(n));
}
#endif

EXPORTE Poignee DRUGBANK_APPEL PackService_searchByNameWithPagedResult(Poignee session, TexteBanque nom,
                                                                       ListeCodes codes, Entier borne,
                                                                       ListeCodes seconds, Entier seconde,
                                                                       Entier page, Entier taille)
{
    journal += QByteArray::number(session) + ' ' + Codes(codes, borne + 1) + ' ' +
               Codes(seconds, seconde + 1) + ' ' + QByteArray::number(page) + ' ' +
               QByteArray::number(taille) + '\n';
    return Service("recherche", nom);
}
EXPORTE Poignee DRUGBANK_APPEL PackService_searchByCip(Poignee, TexteBanque cip)
{
    return Service("cip", cip);
}
EXPORTE Poignee DRUGBANK_APPEL InteractionService_searchInteractionCouplesForProductIds(Poignee,
                                                                                        ListeCodes ids,
                                                                                        Entier nombre,
                                                                                        Entier niveau)
{
    return Service("interactions", Codes(ids, nombre) + QByteArray::number(niveau));
}

#define SERVICE(fonction, nom)                                                                               \
    EXPORTE Poignee DRUGBANK_APPEL fonction(Poignee, Entier id)                                              \
    {                                                                                                        \
        return Service(nom, QByteArray::number(id));                                                         \
    }
SERVICE(PackService_searchByProductId, "packs")
SERVICE(DocumentService_getAllDocumentForPackId, "documents")
SERVICE(DocumentService_getMonoForPackId, "mono")
SERVICE(CommonNameGroupService_searchByProductId, "dci")
SERVICE(GenericGroupService_searchByProductId, "groupes")
SERVICE(ProductService_searchByGenericGroupId, "produits")

#define LIBERE(type)                                                                                         \
    EXPORTE void DRUGBANK_APPEL type##_release(Poignee poignee)                                              \
    {                                                                                                        \
        Libere(poignee);                                                                                     \
    }
#define TEXTE(fonction, nom)                                                                                 \
    EXPORTE TexteBanque DRUGBANK_APPEL fonction(Poignee poignee)                                             \
    {                                                                                                        \
        return Texte(poignee, nom);                                                                          \
    }
#define ENTIER(fonction, nom)                                                                                \
    EXPORTE Entier DRUGBANK_APPEL fonction(Poignee poignee)                                                  \
    {                                                                                                        \
        return Champ(poignee, nom).toInt();                                                                  \
    }
#define DONNE(fonction, nom)                                                                                 \
    EXPORTE Poignee DRUGBANK_APPEL fonction(Poignee poignee)                                                 \
    {                                                                                                        \
        return Ouvre(Champ(poignee, nom));                                                                   \
    }
#define LISTE(type)                                                                                          \
    LIBERE(type)                                                                                             \
    EXPORTE Entier DRUGBANK_APPEL type##_getCount(Poignee poignee)                                           \
    {                                                                                                        \
        return Compte(poignee);                                                                              \
    }                                                                                                        \
    EXPORTE Poignee DRUGBANK_APPEL type##_getItem(Poignee poignee, Entier rang)                              \
    {                                                                                                        \
        return Rang(poignee, rang);                                                                          \
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
    return Champ(poignee, "prix").toDouble();
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
ENTIER(GenericGroup_getActiveExcipientHomogeneity, "excipients")
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
