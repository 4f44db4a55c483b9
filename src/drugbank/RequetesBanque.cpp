#include "drugbank/RequetesBanque.h"

#include "common/Capitales.h"
#include "common/Nombres.h"
#include "common/Texte8.h"
#include "drugbank/Rapport.h"
#include "drugbank/Tenu.h"

#include <algorithm>
#include <array>

namespace drugbank {

namespace {

constexpr Entier kPage = 1;
constexpr Entier kTaillePage = 50;
constexpr Entier kDocumentsLus = 17;
constexpr int kFiltreVidal = 64;
constexpr int kFiltreSaumon = 128;

constexpr std::array<QLatin1String, 17> kTypes = {
    QLatin1String("Mono"),      QLatin1String("Iris"),       QLatin1String("Saumon"), QLatin1String("VDF"),
    QLatin1String("Mono supp"), QLatin1String("Mono thera"), QLatin1String("RCP"),    QLatin1String("VMP fr"),
    QLatin1String("VMP class"), QLatin1String("FIT"),        QLatin1String("PGR"),    QLatin1String("BUM"),
    QLatin1String("PTT"),       QLatin1String("RCP Vidal"),  QLatin1String("SNA"),    QLatin1String("IDD"),
    QLatin1String("ALD")};

/// The document codes that go with a name.
QList<Entier> CodesDuFiltre(qint32 filtre)
{
    switch (filtre) {
    case kFiltreVidal:
        return {0, 6, 0};
    case kFiltreSaumon:
        return {1, 3, 4, 5, 6, 7};
    default:
        return {0, 1, 3, 4, 5, 6, 7};
    }
}

Entier BorneHaute(const QList<Entier>& codes)
{
    return static_cast<Entier>(codes.size() - 1);
}

/// Euros; 0 for none, and for a number that is no price.
float LitPrix(const TenuPack& tenu)
{
    constexpr double kPrixMax = 1e9;
    const double prix = tenu.Demande(&LiaisonBanque::Pack_getPublicPrice);
    return prix > -kPrixMax && prix < kPrixMax ? static_cast<float>(prix) : 0.0F;
}

Pack LitPack(const TenuPack& tenu)
{
    Pack pack;
    pack.Cip = tenu.Texte(&LiaisonBanque::Pack_getCip);
    pack.Nom = tenu.Texte(&LiaisonBanque::Pack_getName);
    pack.Id = tenu.Demande(&LiaisonBanque::Pack_getId);
    pack.Produit = tenu.Demande(&LiaisonBanque::Pack_getProductId);
    pack.Prix = LitPrix(tenu);
    return pack;
}

Document LitDocument(const TenuDocument& tenu)
{
    Document document;
    document.Id = tenu.Demande(&LiaisonBanque::Document_getId);
    document.Nom = tenu.Texte(&LiaisonBanque::Document_getName);
    document.Type = TypeDeDocument(tenu.Demande(&LiaisonBanque::Document_getType));
    return document;
}

/// The id of a product's generic group, both released with it; nothing for an entry without a group.
std::optional<Entier> IdDuGroupe(const TenuGroupeDuProduit entree)
{
    const auto groupe = entree.Donne<TenuGroupe>(&LiaisonBanque::ProductGenericGroup_getGenericGroup);
    const Entier id = groupe.Demande(&LiaisonBanque::GenericGroup_getId);
    groupe.Demande(&LiaisonBanque::GenericGroup_getActiveExcipientHomogeneity); // part of the protocol
    return groupe ? std::optional(id) : std::nullopt;
}

/// A row of `LstGen`, nothing for a pack without a price.
void AjoutePack(QStringList& rangs, const TenuPack& tenu)
{
    const QString nom = tenu.Texte(&LiaisonBanque::Pack_getName);
    if (const float prix = LitPrix(tenu); prix != 0) {
        rangs.append(QStringLiteral("  ") + nom + QString(10, u' ') + common::TexteSimple(prix) +
                     QStringLiteral("  €"));
    }
}

} // namespace

QString TypeDeDocument(qint32 type)
{
    const bool connu = type >= 0 && static_cast<std::size_t>(type) < kTypes.size();
    return connu ? QString(kTypes.at(static_cast<std::size_t>(type))) : QString();
}

RequetesBanque::RequetesBanque(std::shared_ptr<const LiaisonBanque> banque, Poignee session, bool publique)
    : banque_(std::move(banque)), session_(session), publique_(publique)
{}

QList<Pack> RequetesBanque::RecherchePacks(const QString& texte, qint32 filtre)
{
    const QByteArray nom = common::VersWindows1252(texte);
    const QList<Entier> codes = CodesDuFiltre(filtre);
    const QList<Entier> secondsCodes = {0, 3, 5};
    const TenuPageDePacks page(*banque_,
                               banque_->PackService_searchByNameWithPagedResult(
                                   session_, nom.constData(), codes.constData(), BorneHaute(codes),
                                   secondsCodes.constData(), BorneHaute(secondsCodes), kPage, kTaillePage));
    page.Demande(&LiaisonBanque::PagedResultPack_getRowCount); // part of the protocol, not needed here
    QList<Pack> packs;
    page.Donne<TenuPacks>(&LiaisonBanque::PagedResultPack_getResult)
        .PourChacun([&](const TenuPack& tenu) { packs.append(LitPack(tenu)); }, kTaillePage);
    return packs;
}

QString RequetesBanque::NomDCI(qint32 produit)
{
    const TenuNomCommun groupe(*banque_,
                               banque_->CommonNameGroupService_searchByProductId(session_, produit));
    if (!groupe) {
        return {};
    }
    const QString nom = groupe.Texte(&LiaisonBanque::CommonNameGroup_getName).remove(u'*');
    if (nom.isEmpty()) {
        return QStringLiteral("");
    }
    QStringList noms = nom.split(u';');
    noms.first() = common::EnCapitales(noms.first());
    return noms.join(QStringLiteral(", "));
}

QList<Document> RequetesBanque::Documents(qint32 pack)
{
    const TenuDocuments tenus(*banque_, banque_->DocumentService_getAllDocumentForPackId(session_, pack));
    QList<Document> documents;
    tenus.PourChacun([&](const TenuDocument& tenu) { documents.append(LitDocument(tenu)); }, kDocumentsLus);
    return documents;
}

QString RequetesBanque::Monographie(qint32 pack)
{
    QString types;
    for (const Document& document : Documents(pack)) {
        types += u'*' + document.Type;
    }
    if (!types.contains(QLatin1String("Saumon")) && !types.contains(QLatin1String("Mono"))) {
        return {};
    }
    const TenuDocument document(*banque_, banque_->DocumentService_getMonoForPackId(session_, pack));
    document.Demande(&LiaisonBanque::Document_getId); // part of the protocol, not needed here
    document.Texte(&LiaisonBanque::Document_getName);
    return document.Texte(&LiaisonBanque::Document_getURL);
}

QStringList RequetesBanque::Generiques(qint32 produit)
{
    QStringList rangs;
    Entier reste = kElementsMax; // of the elements within the groups, all told: a walk that ends
    const TenuGroupes groupes(*banque_, banque_->GenericGroupService_searchByProductId(session_, produit));
    groupes.PourChacun([&](TenuGroupeDuProduit& entree) {
        rangs.append(QString());
        if (const auto groupe = IdDuGroupe(std::move(entree))) {
            AjouteGroupe(rangs, *groupe, reste);
        }
    });
    return rangs;
}

void RequetesBanque::AjouteGroupe(QStringList& rangs, qint32 groupe, Entier& reste) const
{
    const TenuProduits produits(*banque_, banque_->ProductService_searchByGenericGroupId(session_, groupe));
    const auto ajoute = [&](const TenuProduit& produit) {
        --reste;
        const Entier id = produit.Demande(&LiaisonBanque::Product_getId);
        const TenuPacks packs(*banque_, banque_->PackService_searchByProductId(session_, id));
        packs.PourChacun(
            [&](const TenuPack& pack) {
                --reste;
                AjoutePack(rangs, pack);
            },
            std::max(reste, 0));
    };
    produits.PourChacun(ajoute, std::max(reste, 0));
}

QString RequetesBanque::Interactions(const QList<qint32>& produits, qint32 niveau)
{
    const TenuInteractions resultat(
        *banque_, banque_->InteractionService_searchInteractionCouplesForProductIds(
                      session_, produits.constData(), static_cast<Entier>(produits.size()), niveau));
    return Rapport(resultat);
}

std::optional<qint32> RequetesBanque::ProduitDuCip(const QString& cip) const
{
    const QByteArray code = common::VersWindows1252(cip);
    const TenuPack pack(*banque_, banque_->PackService_searchByCip(session_, code.constData()));
    const Entier produit = pack.Demande(&LiaisonBanque::Pack_getProductId);
    return produit == 0 ? std::nullopt : std::optional<qint32>(produit);
}

} // namespace drugbank
