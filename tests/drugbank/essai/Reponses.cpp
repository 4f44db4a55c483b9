#include "essai/Reponses.h"

#include "common/Texte8.h"

#include <QRegularExpression>
#include <array>

namespace essai {

using drugbank::Entier;

namespace {

constexpr int kGraviteMax = 3;

QString Plie(const QString& texte)
{
    static const QRegularExpression accents(QStringLiteral("\\p{Mn}"));
    return texte.normalized(QString::NormalizationForm_KD).remove(accents).toCaseFolded().trimmed();
}

QString Plie(const QJsonValue& octets)
{
    return Plie(common::DepuisWindows1252(octets.toString().toLatin1()));
}

QByteArray SansZeros(QByteArray cip)
{
    cip = cip.trimmed();
    while (cip.startsWith('0')) {
        cip.remove(0, 1);
    }
    return cip;
}

QJsonValue Ou(const QJsonObject& objet, const char* champ, const QJsonValue& sinon)
{
    const QJsonValue valeur = objet.value(QLatin1String(champ));
    return valeur.isUndefined() ? sinon : valeur;
}

/// A pack without an id bears its rank, one without a product stands for a product of its own id.
QJsonArray Complete(const QJsonArray& packs)
{
    QJsonArray complets;
    for (const QJsonValue& element : packs) {
        QJsonObject pack = element.toObject();
        pack[QStringLiteral("id")] = Ou(pack, "id", complets.size() + 1);
        pack[QStringLiteral("produit")] = Ou(pack, "produit", pack[QStringLiteral("id")]);
        if (const QJsonValue cip = pack[QStringLiteral("cip")]; cip.isDouble()) {
            pack[QStringLiteral("cip")] = QString::number(cip.toDouble(), 'f', 0);
        }
        complets.append(pack);
    }
    return complets;
}

QJsonObject Classe(const QJsonValue& classe, int id)
{
    return classe.isObject() ? classe.toObject()
                             : QJsonObject{{QStringLiteral("id"), id}, {QStringLiteral("nom"), classe}};
}

bool Retenue(int gravite, Entier niveau)
{
    return gravite < 0 || gravite > kGraviteMax || gravite >= niveau;
}

} // namespace

Reponses::Reponses(const QJsonObject& description) : description_(description)
{
    description_[QStringLiteral("packs")] = Complete(description_[QStringLiteral("packs")].toArray());
}

QJsonArray Reponses::Choisit(const char* liste, const char* champ, Entier valeur) const
{
    QJsonArray choisis;
    for (const QJsonValue& element : description_.value(QLatin1String(liste)).toArray()) {
        if (element.toObject().value(QLatin1String(champ)).toInt() == valeur) {
            choisis.append(element);
        }
    }
    return choisis;
}

QJsonValue Reponses::Recherche(const QByteArray& nom, int page, int taille) const
{
    const QString cherche = Plie(common::DepuisWindows1252(nom));
    QJsonArray trouves;
    int rangs = 0;
    for (const QJsonValue& pack : description_.value(QLatin1String("packs")).toArray()) {
        if (Plie(pack.toObject().value(QLatin1String("nom"))).contains(cherche)) {
            const int rang = rangs++;
            if (rang >= (page - 1) * taille && rang < page * taille) {
                trouves.append(pack);
            }
        }
    }
    return QJsonObject{{QStringLiteral("rangs"), rangs}, {QStringLiteral("packs"), trouves}};
}

QJsonValue Reponses::Cip(const QByteArray& cip) const
{
    for (const QJsonValue& pack : description_.value(QLatin1String("packs")).toArray()) {
        const QByteArray sien = pack.toObject().value(QLatin1String("cip")).toString().toLatin1();
        if (!sien.isEmpty() && SansZeros(sien) == SansZeros(cip)) {
            return pack;
        }
    }
    return QJsonValue::Null;
}

QJsonValue Reponses::Packs(Entier produit) const
{
    return Choisit("packs", "produit", produit);
}

QJsonValue Reponses::Documents(Entier pack) const
{
    return Choisit("documents", "pack", pack);
}

QJsonValue Reponses::Mono(Entier pack) const
{
    constexpr std::array<int, 4> types = {0, 4, 5, 2};
    const QJsonArray documents = Choisit("documents", "pack", pack);
    for (const int type : types) {
        for (const QJsonValue& document : documents) {
            if (document.toObject().value(QLatin1String("type")).toInt() == type) {
                return document;
            }
        }
    }
    return QJsonValue::Null;
}

QJsonObject Reponses::Produit(Entier id) const
{
    const QJsonArray connus = Choisit("produitsBanque", "id", id);
    if (!connus.isEmpty()) {
        return connus.first().toObject();
    }
    const QJsonObject pack = Choisit("packs", "produit", id).first().toObject();
    return {{QStringLiteral("id"), id}, {QStringLiteral("nom"), Ou(pack, "nom", QString())}};
}

QJsonValue Reponses::NomCommun(Entier produit) const
{
    const QJsonValue dci = Produit(produit).value(QLatin1String("dci"));
    return dci.isString() ? QJsonValue(QJsonObject{{QStringLiteral("nom"), dci}}) : QJsonValue::Null;
}

QJsonValue Reponses::Groupes(Entier produit) const
{
    QJsonArray siens;
    for (const QJsonValue& groupe : description_.value(QLatin1String("groupes")).toArray()) {
        if (groupe.toObject().value(QLatin1String("produits")).toArray().contains(produit)) {
            siens.append(QJsonObject{{QStringLiteral("groupe"), groupe}});
        }
    }
    return siens;
}

QJsonValue Reponses::Produits(Entier groupe) const
{
    QJsonArray produits;
    const QJsonObject trouve = Choisit("groupes", "id", groupe).first().toObject();
    for (const QJsonValue& id : trouve.value(QLatin1String("produits")).toArray()) {
        produits.append(Produit(id.toInt()));
    }
    return produits;
}

QJsonValue Reponses::Interactions(const QList<Entier>& produits, Entier niveau) const
{
    return QJsonObject{{QStringLiteral("couples"), Couples(produits, niveau)},
                       {QStringLiteral("inconnus"), Inconnus(produits)}};
}

QJsonArray Reponses::Couples(const QList<Entier>& produits, Entier niveau) const
{
    QJsonArray couples;
    int rang = 0;
    for (const QJsonValue& element : description_.value(QLatin1String("interactions")).toArray()) {
        QJsonObject couple = element.toObject();
        ++rang;
        const int a = couple[QStringLiteral("a")].toInt();
        const int b = couple[QStringLiteral("b")].toInt();
        if (a == 0 || b == 0 || !produits.contains(a) || !produits.contains(b) ||
            !Retenue(couple[QStringLiteral("gravite")].toInt(), niveau)) {
            continue;
        }
        couple[QStringLiteral("id")] = Ou(couple, "id", rang);
        couple[QStringLiteral("a")] = Produit(a);
        couple[QStringLiteral("b")] = Produit(b);
        couple[QStringLiteral("classeA")] = Classe(Ou(couple, "classeA", QString()), 2 * rang - 1);
        couple[QStringLiteral("classeB")] = Classe(Ou(couple, "classeB", QString()), 2 * rang);
        couples.append(couple);
    }
    return couples;
}

QJsonArray Reponses::Inconnus(const QList<Entier>& produits) const
{
    QJsonArray inconnus;
    for (const QJsonValue& element : description_.value(QLatin1String("inconnus")).toArray()) {
        const Entier id =
            element.isObject() ? element.toObject().value(QLatin1String("id")).toInt() : element.toInt();
        if (id != 0 && produits.contains(id)) {
            inconnus.append(element.isObject() ? element.toObject() : Produit(id));
        }
    }
    return inconnus;
}

} // namespace essai
