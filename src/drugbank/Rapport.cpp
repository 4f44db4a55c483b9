#include "drugbank/Rapport.h"

#include "drugbank/messagesInteractions.h"

#include <array>

namespace drugbank {

namespace {

constexpr QLatin1String kFin("\r\n");
constexpr QLatin1String kDeuxFins("\r\n\r\n");
constexpr QLatin1String kTroisFins("\r\n\r\n\r\n");
constexpr QLatin1String kRetrait("        ");

QString Gravite(Entier gravite)
{
    static const std::array<QString, 4> textes = {
        QStringLiteral("A prendre en compte"), QStringLiteral("Précaution d'emploi"),
        QStringLiteral("Association déconseillée"), QStringLiteral(" Association contre-indiquée")};
    if (gravite < 0 || gravite >= static_cast<Entier>(textes.size())) {
        return QStringLiteral("Niveau d'interaction : - ") + kDeuxFins;
    }
    return QStringLiteral("Niveau d'interaction : ") + textes.at(static_cast<std::size_t>(gravite)) + kFin +
           QStringLiteral("----------------------------") + kDeuxFins;
}

/// Line feeds on their own become line ends, and a line end follows each point.
QString CommentairePrecaution(QString texte)
{
    texte.replace(kFin, QLatin1String("\n")).replace(u'\n', kFin);
    return texte.replace(u'.', QLatin1String(".\r\n"));
}

using LectureProduit = Fonction<Poignee, Poignee> LiaisonBanque::*;

/// The name of a product or class; its id is part of the protocol, not needed here.
template <typename Tenu, typename LectureId, typename LectureNom>
QString Nom(const Tenu& tenu, LectureId id, LectureNom nom)
{
    tenu.Demande(id);
    return tenu.Texte(nom);
}

QString NomDuProduit(const TenuProduit& produit)
{
    return Nom(produit, &LiaisonBanque::Product_getId, &LiaisonBanque::Product_getName);
}

/// One of both products with its class.
QString Membre(const TenuCouple& couple, int numero, LectureProduit produit, LectureProduit classe)
{
    const QString nom = NomDuProduit(couple.Donne<TenuProduit>(produit));
    const QString nomClasse =
        Nom(couple.Donne<TenuClasse>(classe), &LiaisonBanque::DrugInteractionClass_getId,
            &LiaisonBanque::DrugInteractionClass_getName);
    return kRetrait + QString::number(numero) + QStringLiteral("- : ") + nom + kFin + kRetrait + nomClasse +
           kDeuxFins;
}

QString Precaution(const QString& commentaire)
{
    if (commentaire.isEmpty()) {
        return {};
    }
    return QStringLiteral("Commentaires sur les précautions: ") + kFin +
           QStringLiteral("-----------------------------------------------") + kFin + commentaire;
}

QString Bloc(const TenuCouple& couple)
{
    couple.Demande(&LiaisonBanque::InteractionCouple_getInteractionId); // part of the protocol
    const QString precaution =
        CommentairePrecaution(couple.Texte(&LiaisonBanque::InteractionCouple_getPrecautionComment));
    const QString risque = couple.Texte(&LiaisonBanque::InteractionCouple_getRiskComment);
    // The order in which the bank is asked: one statement each.
    QString bloc = Membre(couple, 1, &LiaisonBanque::InteractionCouple_getProductA,
                          &LiaisonBanque::InteractionCouple_getDrugInteractionClassA);
    bloc += Membre(couple, 2, &LiaisonBanque::InteractionCouple_getProductB,
                   &LiaisonBanque::InteractionCouple_getDrugInteractionClassB);
    bloc += Gravite(couple.Demande(&LiaisonBanque::InteractionCouple_getSeverity));
    return bloc + QStringLiteral("Type de risque :   ") + kFin + QStringLiteral("---------------------") +
           kFin + risque + kDeuxFins + Precaution(precaution) + kDeuxFins +
           QStringLiteral("<<<<<  -----------------------------------------------------"
                          "-----------------------------------------------------  >>>>>") +
           kTroisFins;
}

QString Inconnu(const TenuProduit& produit)
{
    return QStringLiteral("unknown product interactions:") + kDeuxFins + QStringLiteral(" product name: ") +
           NomDuProduit(produit) + kFin;
}

} // namespace

QString Rapport(const TenuInteractions& resultat)
{
    if (!resultat) {
        return messages::InteractionsIncompletes();
    }
    QString rapport;
    bool complet = true;
    {
        const auto couples =
            resultat.Donne<TenuCouples>(&LiaisonBanque::InteractionResult_getInteractionCoupleList);
        complet = couples.PourChacun([&](const TenuCouple& couple) { rapport += Bloc(couple); });
    }
    const auto inconnus =
        resultat.Donne<TenuProduits>(&LiaisonBanque::InteractionResult_getUnkownProductInteractionList);
    complet =
        inconnus.PourChacun([&](const TenuProduit& produit) { rapport += Inconnu(produit); }) && complet;
    return complet ? rapport : rapport + messages::InteractionsIncompletes();
}

QList<qint32> ProduitsPrescrits(const QStringList& identifiants)
{
    QList<qint32> produits = {0};
    qsizetype nombre = 0;
    for (const QString& identifiant : identifiants) {
        produits.resize(nombre + 1);
        bool entier = false;
        const qint32 produit = identifiant.trimmed().toInt(&entier);
        if (entier && produit != 1) {
            produits[nombre++] = produit;
        }
    }
    return produits;
}

} // namespace drugbank
