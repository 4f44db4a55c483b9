#include "drugbank/BanqueDeTest.h"

#include "common/Texte8.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QJsonDocument>
#include <QMap>

namespace support {

namespace {

const QString kReponses = QStringLiteral("reponses");

/// What a description that leaves the field out means.
QJsonObject Complete(QJsonObject description)
{
    const QJsonObject defauts = {{QStringLiteral("aide"), true},
                                 {QStringLiteral("produits"), QJsonArray({1, 2})},
                                 {QStringLiteral("chargeable"), true},
                                 {QStringLiteral("asynchrone"), true},
                                 {QStringLiteral("copieBornee"), true},
                                 {QStringLiteral("version"), QStringLiteral("3.2")},
                                 {QStringLiteral("expiration"), QStringLiteral("2027-03-31")}};
    for (auto defaut = defauts.begin(); defaut != defauts.end(); ++defaut) {
        if (const QJsonValue valeur = description[defaut.key()]; valeur.isUndefined() || valeur.isNull()) {
            description[defaut.key()] = defaut.value();
        }
    }
    return description;
}

/// Texts become one character for each byte of Windows-1252.
QJsonValue EnOctets(const QJsonValue& valeur)
{
    if (valeur.isString()) {
        return QString::fromLatin1(common::VersWindows1252(valeur.toString()));
    }
    if (valeur.isArray()) {
        QJsonArray liste;
        for (const QJsonValue& element : valeur.toArray()) {
            liste.append(EnOctets(element));
        }
        return liste;
    }
    QJsonObject objet = valeur.toObject();
    for (auto champ = objet.begin(); champ != objet.end(); ++champ) {
        champ.value() = EnOctets(QJsonValue(champ.value()));
    }
    return valeur.isObject() ? QJsonValue(objet) : valeur;
}

QJsonValue EnTextes(const QJsonValue& valeur)
{
    return valeur.isString() ? QJsonValue(common::DepuisWindows1252(valeur.toString().toLatin1())) : valeur;
}

/// Seconds since 1970, of a number or of a date "2027-03-31" or "31/03/2027", which may have a time.
double Secondes(const QJsonValue& expiration)
{
    if (!expiration.isString()) {
        return expiration.toDouble();
    }
    const QString texte = expiration.toString().trimmed();
    for (const auto& forme : {QStringLiteral("dd/MM/yyyy"), QStringLiteral("dd/MM/yyyy hh:mm"),
                              QStringLiteral("dd/MM/yyyy hh:mm:ss"), QStringLiteral("yyyy-MM-dd hh:mm"),
                              QStringLiteral("yyyy-MM-dd hh:mm:ss")}) {
        if (const QDateTime date = QDateTime::fromString(texte, forme); date.isValid()) {
            return static_cast<double>(QDateTime(date.date(), date.time(), Qt::UTC).toSecsSinceEpoch());
        }
    }
    QDateTime date = QDateTime::fromString(texte, Qt::ISODate);
    if (date.timeSpec() == Qt::LocalTime) {
        date.setTimeSpec(Qt::UTC);
    }
    return date.isValid() ? static_cast<double>(date.toSecsSinceEpoch()) : texte.toDouble();
}

/// The installed products, named in an object or in a list, as an object.
QJsonObject Produits(const QJsonValue& produits)
{
    QJsonObject objet;
    const QJsonObject nommes = produits.toObject();
    for (auto produit = nommes.begin(); produit != nommes.end(); ++produit) {
        const QJsonValue installe = produit.value();
        objet[produit.key()] = installe.toBool() || installe.toInt() != 0;
    }
    for (const QJsonValue& produit : produits.toArray()) {
        objet[QString::number(produit.toInt())] = true;
    }
    return objet;
}

bool EcritFichier(const QString& chemin, const QByteArray& contenu)
{
    QFile fichier(chemin);
    return fichier.open(QIODevice::WriteOnly) && fichier.write(contenu) == contenu.size() && fichier.flush();
}

bool EcritJson(const QString& chemin, const QJsonObject& objet)
{
    return EcritFichier(chemin, QJsonDocument(objet).toJson());
}

bool Vrai(const QJsonObject& description, const char* champ)
{
    const QJsonValue valeur = description.value(QLatin1String(champ));
    return valeur.toBool() || valeur.toInt() != 0;
}

QString Variante(const QJsonObject& description)
{
    const bool copie = Vrai(description, "copieBornee");
    if (Vrai(description, "asynchrone")) {
        return copie ? QStringLiteral(BANQUE_ESSAI) : QStringLiteral(BANQUE_SANS_COPIE);
    }
    return copie ? QStringLiteral(BANQUE_SANS_ATTENTE) : QStringLiteral(BANQUE_ANCIENNE);
}

} // namespace

QString BanqueDeTest::CheminAide() const
{
    return QDir(dossier_).filePath(QStringLiteral("vidalhelper.") +
                                   QFileInfo(QStringLiteral(AIDE_ESSAI)).suffix());
}

QString BanqueDeTest::CheminJournal() const
{
    return QDir(dossier_).filePath(QStringLiteral("appels.jsonl"));
}

bool BanqueDeTest::Pose(const QJsonObject& description)
{
    QString dossier;
    for (int numero = 1; dossier.isEmpty() || QDir(dossier).exists(); ++numero) {
        dossier = QDir(dossier_).filePath(QStringLiteral("vidal%1").arg(numero));
    }
    banque_ = dossier + QStringLiteral("/vidalapi.dll");
    const QJsonObject complete = Complete(description);
    return QDir().mkpath(dossier) && PoseBanque(complete) && PoseAide(complete);
}

bool BanqueDeTest::PoseBanque(const QJsonObject& description) const
{
    QJsonObject octets = EnOctets(description).toObject();
    octets[kReponses] = description[kReponses]; // its texts are bytes
    octets[QStringLiteral("journal")] = CheminJournal();
    octets[QStringLiteral("expiration")] = Secondes(description[QStringLiteral("expiration")]);
    const QString decrite = QFileInfo(banque_).dir().filePath(QStringLiteral("vidalapi.json"));
    return EcritJson(decrite, octets) &&
           (Vrai(description, "chargeable") ? QFile::copy(Variante(description), banque_)
                                            : EcritFichier(banque_, "no library"));
}

bool BanqueDeTest::PoseAide(const QJsonObject& description) const
{
    const QString decrite = QDir(dossier_).filePath(QStringLiteral("vidalhelper.json"));
    if (!Vrai(description, "aide")) {
        return !QFile::exists(CheminAide()) || QFile::remove(CheminAide());
    }
    const QJsonObject aide = {{QStringLiteral("produits"), Produits(description[QStringLiteral("produits")])},
                              {QStringLiteral("banque"), banque_},
                              {QStringLiteral("journal"), CheminJournal()}};
    return EcritJson(decrite, aide) &&
           (QFile::exists(CheminAide()) || QFile::copy(QStringLiteral(AIDE_ESSAI), CheminAide()));
}

QList<QJsonObject> BanqueDeTest::Lignes() const
{
    QList<QJsonObject> lignes;
    QFile journal(CheminJournal());
    if (journal.open(QIODevice::ReadOnly)) {
        while (!journal.atEnd()) {
            lignes.append(QJsonDocument::fromJson(journal.readLine()).object());
        }
    }
    return lignes;
}

QJsonArray BanqueDeTest::Appels() const
{
    QJsonArray appels;
    for (const QJsonObject& ligne : Lignes()) {
        QJsonArray arguments;
        for (const QJsonValue& argument : ligne[QStringLiteral("arguments")].toArray()) {
            arguments.append(EnTextes(argument));
        }
        appels.append(QJsonObject{{QStringLiteral("nom"), ligne[QStringLiteral("nom")]},
                                  {QStringLiteral("arguments"), arguments}});
    }
    return appels;
}

QJsonArray BanqueDeTest::Fuites() const
{
    QMap<int, QString> sorties;
    for (const QJsonObject& ligne : Lignes()) {
        const QString nom = ligne[QStringLiteral("nom")].toString();
        if (const int poignee = ligne[QStringLiteral("poignee")].toInt(); poignee != 0) {
            sorties.insert(poignee, nom);
        } else if (nom.endsWith(QLatin1String("_release")) && !ligne.contains(QStringLiteral("faute"))) {
            sorties.remove(ligne[QStringLiteral("arguments")].toArray().first().toInt());
        }
    }
    QJsonArray fuites;
    for (auto sortie = sorties.begin(); sortie != sorties.end(); ++sortie) {
        fuites.append(QJsonObject{{QStringLiteral("poignee"), sortie.key()},
                                  {QStringLiteral("appel"), sortie.value()}});
    }
    return fuites;
}

QStringList BanqueDeTest::Noms(const QString& debut) const
{
    QStringList noms;
    for (const QJsonObject& ligne : Lignes()) {
        if (const QString nom = ligne[QStringLiteral("nom")].toString(); nom.startsWith(debut)) {
            noms.append(nom);
        }
    }
    return noms;
}

} // namespace support
