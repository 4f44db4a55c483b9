#pragma once

#include <QList>
#include <QString>

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

/// What the picker asks of an open drug bank.
class AccesBanque
{
public:
    virtual ~AccesBanque() = default;

    /// The first page of the packs of a name, at most 50, in the order of the bank. `filtre` is the
    /// document filter, 64, 128 or 255.
    virtual QList<Pack> RecherchePacks(const QString& texte, qint32 filtre) = 0;
    /// The common name of a product; empty when the bank has none.
    virtual QString NomDCI(qint32 produit) = 0;
};

} // namespace drugbank
