#pragma once

#include "common/Fichiers.h"
#include "drugbank/BanqueDeTest.h"
#include "support/Monde.h"

#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QLibrary>

namespace support {

inline const QString kEnCours =
    QStringLiteral("\n Initialisation de la pharmacie Vidal en cours ... veuillez patienter");

/// A program directory with a bank, and a doctor who has chosen it.
struct PosteBanque : Monde
{
    PosteBanque()
    {
        common::CreeDossier(Etat.Chemins.CheminProgramme);
        Banque.TypeBase = QStringLiteral("TVS");
    }

    explicit PosteBanque(const char* json) : PosteBanque() { Pose(json); }

    void Pose(const char* json)
    {
        QJsonParseError faute;
        const QJsonObject description = QJsonDocument::fromJson(json, &faute).object();
        if (faute.error != QJsonParseError::NoError || !Libs.Pose(description)) {
            qFatal("%s", json);
        }
    }

    /// The helper names that library as the bank.
    void PoseBibliotheque(const char* chemin)
    {
        Pose("{}");
        const QString place = QFileInfo(Libs.CheminBanque()).dir().filePath(QStringLiteral("nue.dll"));
        QFile aide(Chemin(QStringLiteral("programme/vidalhelper.json")));
        const QJsonObject description = {
            {QStringLiteral("journal"), Chemin(QStringLiteral("appels"))},
            {QStringLiteral("produits"), QJsonObject{{QStringLiteral("2"), true}}},
            {QStringLiteral("banque"), place}};
        if (!QFile::copy(QString::fromUtf8(chemin), place) || !aide.open(QIODevice::WriteOnly)) {
            qFatal("%s", chemin);
        }
        aide.write(QJsonDocument(description).toJson());
    }

    /// The last library laid out is the open bank beside the program instead.
    void PosePublique()
    {
        const QString publique = Chemin(QStringLiteral("programme/scriptelle-bdp"));
        const QString suffixe = QStringLiteral(".") + QFileInfo(Libs.CheminAide()).suffix();
        const QFileInfo banque(Libs.CheminBanque());
        if (!QFile::copy(banque.filePath(), publique + suffixe) ||
            !QFile::copy(banque.dir().filePath(QStringLiteral("vidalapi.json")),
                         publique + QStringLiteral(".json"))) {
            qFatal("scriptelle-bdp");
        }
        ChoisitPublique();
    }

    void ChoisitPublique()
    {
        Banque.TypeBase = QStringLiteral("BDP");
        Banque.ProduitBanque = drugbank::kProduitPublic;
    }

    void ChoisitVidal()
    {
        Banque.TypeBase = QStringLiteral("TVS");
        Banque.ProduitBanque = 2;
    }

    void Charge() { Etat.Seance.Charge(Contexte); }
    void Demarre() { Etat.Seance.Demarre(Contexte); }
    void Ferme() { Etat.Seance.Ferme(Contexte); }

    /// The whole start of a program and of its session.
    void ChargeEtDemarre(int ms)
    {
        Charge();
        Demarre();
        Horloge.Passe(ms);
    }

    int Compte(const char* nom) const { return static_cast<int>(Libs.Noms(QLatin1String(nom)).size()); }
    bool EnMemoire() const { return QLibrary(Libs.CheminBanque()).isLoaded(); }

    BanqueDeTest Libs{Chemin(QStringLiteral("programme"))};
    drugbank::Banque& Banque = Etat.Banque;
};

inline QJsonArray Arguments(const BanqueDeTest& libs, const char* nom)
{
    QJsonArray arguments;
    for (const QJsonValue& appel : libs.Appels()) {
        if (appel[QStringLiteral("nom")].toString() == QLatin1String(nom)) {
            arguments.append(appel[QStringLiteral("arguments")]);
        }
    }
    return arguments;
}

} // namespace support
