#pragma once

#include "drugbank/InterfaceBanque.h"

#include <QByteArray>
#include <QJsonArray>
#include <QJsonObject>

namespace essai {

/// What a bank answers from its description, in records that bear the names of the description's fields. A
/// character of a text is a byte of Windows-1252. Without a record the answer is null.
class Reponses
{
public:
    explicit Reponses(const QJsonObject& description);

    /// The packs whose name holds that text, without regard to case and accents.
    QJsonValue Recherche(const QByteArray& nom, int page, int taille) const;
    /// Leading zeros do not count.
    QJsonValue Cip(const QByteArray& cip) const;
    QJsonValue Packs(drugbank::Entier produit) const;
    QJsonValue Documents(drugbank::Entier pack) const;
    /// The document of a pack that a monograph is closest to, in the order Mono, Mono supp, Mono thera,
    /// Saumon.
    QJsonValue Mono(drugbank::Entier pack) const;
    QJsonValue NomCommun(drugbank::Entier produit) const;
    QJsonValue Groupes(drugbank::Entier produit) const;
    QJsonValue Produits(drugbank::Entier groupe) const;
    /// The couples of these products whose severity is not below that level; one out of range always counts.
    QJsonValue Interactions(const QList<drugbank::Entier>& produits, drugbank::Entier niveau) const;

private:
    QJsonArray Choisit(const char* liste, const char* champ, drugbank::Entier valeur) const;
    QJsonObject Produit(drugbank::Entier id) const;
    QJsonArray Couples(const QList<drugbank::Entier>& produits, drugbank::Entier niveau) const;
    QJsonArray Inconnus(const QList<drugbank::Entier>& produits) const;

    QJsonObject description_;
};

} // namespace essai
