#include "essai/Poignees.h"

#include <QJsonArray>
#include <QJsonObject>
#include <limits>

namespace essai {

using drugbank::Poignee;

Poignee Poignees::Ouvre(const QJsonValue& contenu)
{
    if (contenu.isUndefined() || contenu.isNull()) {
        return 0;
    }
    ouvertes_.insert(++derniere_, {contenu, {}});
    return derniere_;
}

bool Poignees::Libere(Poignee poignee)
{
    const auto place = ouvertes_.find(poignee);
    if (place == ouvertes_.end()) {
        return false;
    }
    for (QByteArray& texte : place->Textes) {
        texte.fill('X');
    }
    ouvertes_.erase(place);
    return true;
}

QJsonValue Poignees::Contenu(Poignee poignee) const
{
    const auto place = ouvertes_.constFind(poignee);
    return place == ouvertes_.constEnd() ? QJsonValue(QJsonValue::Undefined) : place->Contenu;
}

QJsonValue Poignees::Champ(Poignee poignee, const char* nom) const
{
    return Contenu(poignee).toObject().value(QLatin1String(nom));
}

drugbank::TexteBanque Poignees::Texte(Poignee poignee, const char* nom)
{
    const QJsonValue valeur = Champ(poignee, nom);
    if (!valeur.isString()) {
        return nullptr;
    }
    auto& textes = ouvertes_[poignee].Textes;
    textes.push_back(valeur.toString().toLatin1());
    return textes.back().constData();
}

double Poignees::Reel(Poignee poignee, const char* nom) const
{
    const QJsonValue valeur = Champ(poignee, nom);
    return valeur.isString() ? valeur.toString().toDouble() : valeur.toDouble();
}

drugbank::Entier Poignees::Entier(Poignee poignee, const char* nom) const
{
    const double valeur = Reel(poignee, nom);
    const bool tient = valeur >= std::numeric_limits<drugbank::Entier>::min() &&
                       valeur <= std::numeric_limits<drugbank::Entier>::max();
    return tient ? static_cast<drugbank::Entier>(valeur) : 0;
}

drugbank::Entier Poignees::Compte(Poignee poignee) const
{
    const QJsonValue contenu = Contenu(poignee);
    return contenu.isObject() ? Entier(poignee, "count")
                              : static_cast<drugbank::Entier>(contenu.toArray().size());
}

QJsonValue Poignees::Rang(Poignee poignee, drugbank::Entier rang) const
{
    if (Contenu(poignee).isObject()) {
        return Champ(poignee, "element");
    }
    const QJsonArray liste = Contenu(poignee).toArray();
    return rang >= 0 && rang < liste.size() ? liste.at(rang) : QJsonValue(QJsonValue::Undefined);
}

} // namespace essai
