#include "scenario/Conversions.h"
#include "scenario/Echec.h"
#include "scenario/Langage.h"

#include <QFile>
#include <cmath>

namespace scenario {

namespace {

constexpr qsizetype kLongueurChemin = 254; // of a path that the helper library can tell

/// A number that is none as its name, since JSON has no other place for it.
QJsonValue VersJson(const QVariant& valeur)
{
    if (EstNul(valeur)) {
        return QJsonValue::Null;
    }
    if (valeur.typeId() == QMetaType::Double && !std::isfinite(valeur.toDouble())) {
        return QString::number(valeur.toDouble());
    }
    if (valeur.typeId() == QMetaType::QVariantList) {
        QJsonArray liste;
        for (const QVariant& element : valeur.toList()) {
            liste.append(VersJson(element));
        }
        return liste;
    }
    if (valeur.typeId() == QMetaType::QVariantMap) {
        const QVariantMap champs = valeur.toMap();
        QJsonObject objet;
        for (auto champ = champs.begin(); champ != champs.end(); ++champ) {
            objet[champ.key()] = VersJson(champ.value());
        }
        return objet;
    }
    return QJsonValue::fromVariant(valeur);
}

QJsonObject Description(const Valeurs& valeurs)
{
    const QVariant description = valeurs.Brute(0);
    if (!valeurs.Absente(0) && description.typeId() != QMetaType::QVariantMap) {
        throw Echec{QStringLiteral("banque : une description {...} est attendue")};
    }
    return VersJson(description).toObject();
}

} // namespace

void Langage::PoseBanque()
{
    if (!banque_.Pose(description_)) {
        throw Echec{QStringLiteral("banque : ses fichiers ne peuvent pas être écrits dans « %1 »")
                        .arg(session_.Monde.Programme())};
    }
    if (QFile::encodeName(banque_.CheminBanque()).size() > kLongueurChemin) {
        throw Echec{QStringLiteral("banque : le chemin « %1 » est trop long").arg(banque_.CheminBanque())};
    }
}

void Langage::AjouteBanque()
{
    const auto reponses = QStringLiteral("reponses");
    Ajoute(QStringLiteral("banque"), 0, 1, [this, reponses](const Valeurs& valeurs) {
        description_ = Description(valeurs);
        description_.remove(reponses);
        PoseBanque();
        return QVariant();
    });
    // For the tests of this system alone: what the bank of the last description answers instead, key by key.
    Ajoute(QStringLiteral("__reponsesBanque"), 1, 1, [this, reponses](const Valeurs& valeurs) {
        description_[reponses] = Description(valeurs);
        PoseBanque();
        return QVariant();
    });
    Ajoute(QStringLiteral("appels"), 0, 0,
           [this](const Valeurs&) { return QVariant(banque_.Appels().toVariantList()); });
    Ajoute(QStringLiteral("fuites"), 0, 0,
           [this](const Valeurs&) { return QVariant(banque_.Fuites().toVariantList()); });
}

} // namespace scenario
