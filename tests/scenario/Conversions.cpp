#include "scenario/Conversions.h"

#include <QColor>

namespace scenario {

namespace {

QVariantMap Decrit(const page::ItemTexte& item)
{
    return {{QStringLiteral("genre"), QStringLiteral("texte")},
            {QStringLiteral("texte"), item.Texte},
            {QStringLiteral("x"), item.X},
            {QStringLiteral("y"), item.Y},
            {QStringLiteral("largeur"), item.Largeur},
            {QStringLiteral("hauteur"), item.Hauteur},
            {QStringLiteral("police"), item.Police.Nom},
            {QStringLiteral("taille"), item.Police.Taille},
            {QStringLiteral("gras"), item.Police.Gras},
            {QStringLiteral("italique"), item.Police.Italique},
            {QStringLiteral("souligne"), item.Police.Souligne},
            {QStringLiteral("couleur"), item.Encre}};
}

template <typename Trace> QVariantMap DecritTrace(const QString& genre, const Trace& item)
{
    return {{QStringLiteral("genre"), genre},       {QStringLiteral("x"), item.X},
            {QStringLiteral("y"), item.Y},          {QStringLiteral("x2"), item.X2},
            {QStringLiteral("y2"), item.Y2},        {QStringLiteral("epaisseur"), item.Epaisseur},
            {QStringLiteral("couleur"), item.Encre}};
}

QVariantMap Decrit(const page::ItemTrait& item)
{
    return DecritTrace(QStringLiteral("trait"), item);
}

QVariantMap Decrit(const page::ItemCadre& item)
{
    return DecritTrace(QStringLiteral("cadre"), item);
}

QVariantMap Decrit(const page::ItemImage& item)
{
    return {{QStringLiteral("genre"), QStringLiteral("image")},
            {QStringLiteral("x"), item.X},
            {QStringLiteral("y"), item.Y},
            {QStringLiteral("largeur"), item.Largeur},
            {QStringLiteral("hauteur"), item.Hauteur}};
}

} // namespace

bool EstNul(const QVariant& valeur)
{
    return !valeur.isValid() || valeur.typeId() == QMetaType::Nullptr;
}

bool EstNombre(const QVariant& valeur)
{
    return valeur.typeId() == QMetaType::Int || valeur.typeId() == QMetaType::UInt ||
           valeur.typeId() == QMetaType::Double;
}

QVariantMap VersPoliceScript(const page::Police& police)
{
    return {{QStringLiteral("nom"), police.Nom},
            {QStringLiteral("taille"), police.Taille},
            {QStringLiteral("gras"), police.Gras},
            {QStringLiteral("italique"), police.Italique},
            {QStringLiteral("souligne"), police.Souligne}};
}

page::Police DepuisPoliceScript(const QVariantMap& police, page::Police depart)
{
    return {police.value(QStringLiteral("nom"), depart.Nom).toString(),
            police.value(QStringLiteral("taille"), depart.Taille).toFloat(),
            police.value(QStringLiteral("gras"), depart.Gras).toBool(),
            police.value(QStringLiteral("italique"), depart.Italique).toBool(),
            police.value(QStringLiteral("souligne"), depart.Souligne).toBool()};
}

QVariant VersCouleurScript(const QColor& couleur)
{
    return page::Rvb(couleur.red(), couleur.green(), couleur.blue());
}

QVariantList VersItemsScript(const page::Dessin& dessin)
{
    QVariantList items;
    for (const page::Item& item : dessin.Items) {
        items.append(std::visit([](const auto& genre) { return Decrit(genre); }, item));
    }
    return items;
}

QVariantMap VersTravailScript(const QString& imprimante, const outside::Travail& travail)
{
    QVariantList pages;
    for (const page::Dessin& dessin : travail.Pages) {
        pages.append(QVariant(VersItemsScript(dessin)));
    }
    return {{QStringLiteral("imprimante"), imprimante}, {QStringLiteral("pages"), pages}};
}

} // namespace scenario
