#pragma once

#include "drugbank/InterfaceBanque.h"

#include <QHash>
#include <QJsonValue>
#include <list>

namespace essai {

/// The records and lists that are out. The texts of a record are spoilt at its release.
class Poignees
{
public:
    /// Handles are numbered from `depart` on.
    explicit Poignees(drugbank::Poignee depart) : derniere_(depart) {}

    /// 0 for null and for nothing.
    drugbank::Poignee Ouvre(const QJsonValue& contenu);
    /// False when it was not out.
    bool Libere(drugbank::Poignee poignee);

    QJsonValue Contenu(drugbank::Poignee poignee) const;
    QJsonValue Champ(drugbank::Poignee poignee, const char* nom) const;
    /// A character of the field is a byte of the text; null for a field that is none.
    drugbank::TexteBanque Texte(drugbank::Poignee poignee, const char* nom);
    /// Numbers may stand in texts, "nan" and "inf" too; anything else is 0.
    double Reel(drugbank::Poignee poignee, const char* nom) const;
    drugbank::Entier Entier(drugbank::Poignee poignee, const char* nom) const;
    /// An object may stand for a list: its field "count" is the length, "element" stands at every rank.
    drugbank::Entier Compte(drugbank::Poignee poignee) const;
    QJsonValue Rang(drugbank::Poignee poignee, drugbank::Entier rang) const;

private:
    struct Objet
    {
        QJsonValue Contenu;
        std::list<QByteArray> Textes;
    };

    QHash<drugbank::Poignee, Objet> ouvertes_;
    drugbank::Poignee derniere_;
};

} // namespace essai
