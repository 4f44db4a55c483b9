#pragma once

#include "drugbank/AccesBanque.h"

namespace support {

/// A drug bank of the packs given to it, that keeps what it was asked.
class BanqueFeinte : public drugbank::AccesBanque
{
public:
    QList<drugbank::Pack> Contenu;
    QHash<qint32, QString> NomsCommuns{{101, QStringLiteral("PARACETAMOL")}, {103, QStringLiteral("")}};
    QHash<qint32, QString> Monographies;                     ///< by pack
    QHash<qint32, QList<drugbank::Document>> ListeDocuments; ///< by pack
    QHash<qint32, QStringList> RangsGeneriques;              ///< by product
    QHash<QList<qint32>, QString> Rapports;                  ///< by the products in question
    QStringList Demandes;                                    ///< text and filter of each search
    QList<QList<qint32>> ProduitsDemandes;                   ///< of each search of interactions
    qint32 NiveauDemande = -1;                               ///< of the last one
    bool Publique = false;                                   ///< it plays the open bank

    bool EstDIci(qint32 produit) const override { return drugbank::EstProduitPublic(produit) == Publique; }
    QList<drugbank::Pack> RecherchePacks(const QString& texte, qint32 filtre) override
    {
        Demandes.append(texte + QLatin1Char('/') + QString::number(filtre));
        QList<drugbank::Pack> trouves;
        for (const drugbank::Pack& pack : Contenu) {
            if (pack.Nom.startsWith(texte, Qt::CaseInsensitive)) {
                trouves.append(pack);
            }
        }
        return trouves;
    }
    QString NomDCI(qint32 produit) override { return NomsCommuns.value(produit); }
    QList<drugbank::Document> Documents(qint32 pack) override { return ListeDocuments.value(pack); }
    QString Monographie(qint32 pack) override { return Monographies.value(pack); }
    QStringList Generiques(qint32 produit) override { return RangsGeneriques.value(produit); }
    QString Interactions(const QList<qint32>& produits, qint32 niveau) override
    {
        ProduitsDemandes.append(produits);
        NiveauDemande = niveau;
        return Rapports.value(produits);
    }
};

} // namespace support
