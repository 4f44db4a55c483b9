#pragma once

#include "drugbank/AccesBanque.h"
#include "drugbank/LiaisonBanque.h"

#include <functional>
#include <memory>
#include <optional>

namespace drugbank {

/// The 17 types of document, by `Document_getType`; an empty text for any other number.
QString TypeDeDocument(qint32 type);

/// What is asked of a session of the bank. A failed session, 0 too, is asked like any other.
class RequetesBanque : public AccesBanque
{
public:
    /// `publique`: it is the open bank.
    RequetesBanque(std::shared_ptr<const LiaisonBanque> banque, Poignee session, bool publique = false);

    bool EstDIci(qint32 produit) const override { return EstProduitPublic(produit) == publique_; }

    QList<Pack> RecherchePacks(const QString& texte, qint32 filtre) override;
    QString NomDCI(qint32 produit) override;
    QList<Document> Documents(qint32 pack) override;
    QString Monographie(qint32 pack) override;
    QStringList Generiques(qint32 produit) override;
    QString Interactions(const QList<qint32>& produits, qint32 niveau) override;

    /// The product of a CIP code; nothing when the bank does not know it.
    std::optional<qint32> ProduitDuCip(const QString& cip) const;

private:
    void AjouteGroupe(QStringList& rangs, qint32 groupe, Entier& reste) const;

    std::shared_ptr<const LiaisonBanque> banque_;
    Poignee session_;
    bool publique_;
};

} // namespace drugbank
