#pragma once

#include <QList>
#include <QString>
#include <QStringList>

namespace drugbank {

/// A presentation that can be prescribed, as a search of the bank gives it.
struct Pack
{
    QString Cip; ///< as the bank writes it, leading zeros kept
    qint32 Id = 0;
    qint32 Produit = 0; ///< id of its product
    float Prix = 0;     ///< public price in euros, 0 for none
    QString Nom;
};

/// A document that a bank has on a pack.
struct Document
{
    qint32 Id = 0;
    QString Nom;
    QString Type; ///< one of the 17 types, empty for another
};

/// True for a product id of the open bank: a CIS code, 8 digits from 6 on; an extract has some of its own
/// that begin with 9. The ids of the other banks are smaller.
constexpr bool EstProduitPublic(qint32 produit)
{
    return produit >= 60'000'000 && produit <= 99'999'999;
}

/// What is asked of an open drug bank.
class AccesBanque
{
public:
    virtual ~AccesBanque() = default;

    /// True when a product id can be one of this bank. One of another bank means another medication here.
    virtual bool EstDIci(qint32 produit) const = 0;

    /// The first page of the packs of a name, at most 50, in the order of the bank. `filtre` is the
    /// document filter, 64, 128 or 255.
    virtual QList<Pack> RecherchePacks(const QString& texte, qint32 filtre) = 0;
    /// The common names of a product, the first in capitals, with ", " between; a null text when the bank
    /// has none, an empty one when it gives no name.
    virtual QString NomDCI(qint32 produit) = 0;
    /// The documents on a pack, the first 17 of them.
    virtual QList<Document> Documents(qint32 pack) = 0;
    /// The address of the monograph of a pack; empty when it has none.
    virtual QString Monographie(qint32 pack) = 0;
    /// The rows of `LstGen`: an empty one for each generic group of the product, and behind it the packs
    /// that have a price.
    virtual QStringList Generiques(qint32 produit) = 0;
    /// `RapportInteractions` of these products at that level, 0 to 3; empty without interactions. What the
    /// bank counts and does not give is told at its end. An id of 0 is no product.
    virtual QString Interactions(const QList<qint32>& produits, qint32 niveau) = 0;
};

} // namespace drugbank
