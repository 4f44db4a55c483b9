#pragma once

#include "outside/Boites.h"
#include "startup/ChoixBase.h"
#include "startup/Demarrage.h"
#include "support/Monde.h"

#include <QTest>

inline const char* const kBienvenue =
    "Vous utilisez ce programme pour la première fois.\n\no   Cliquez sur le "
    "bouton 'Options' pour\n\n        - "
    "Configurer votre entête d'ordonnance\n        - Configuer la mise en page\n  "
    "      - Choisir les différentes "
    "options\n\no   Faites le choix entre un usage mono-utilisateur ou "
    "multi-utilisateurs (Options)\n\no   Lisez "
    "attentivement le fichier d'aide";

inline QString T(const char* texte)
{
    return QString::fromUtf8(texte);
}

inline QString N(const char* nom)
{
    return QString::fromUtf8(nom);
}

/// A world that starts as the program does: nothing is known but the program directory.
struct MondeDemarrage : support::Monde
{
    QString Utilisateur = Chemin(N("neibre"));
    QString Data = common::Joint(Utilisateur, N("DataVelmont/DataScriptelle"));
    QStringList Ecrans_;  ///< what was shown, in order
    int RangPropose = -2; ///< row of `CboBase` when the daily choice was shown
    int RangChoisi = 0;
    bool Poursuit = true;

    MondeDemarrage()
    {
        Installe();
        common::CreeDossier(Utilisateur);
        Oublie();
    }

    /// A new run: the state is that of a program just started.
    void Oublie()
    {
        Etat.Bases.FermeOrdo();
        Etat.Bases.FermeMedoc();
        const QString programme = Chemin(N("programme"));
        Etat.Chemins = {};
        Etat.Chemins.CheminProgramme = programme;
        Etat.Chemins.CheminInstallation = programme;
        Etat.Medecins = {};
        Etat.Reglages = {};
        Etat.Banque = {};
        Ecrans_.clear();
    }

    QString Programme(const char* nom) const
    {
        return common::Joint(Etat.Chemins.CheminInstallation, N(nom));
    }
    QString Donnee(const char* nom) const { return common::Joint(Data, N(nom)); }

    bool Demarre()
    {
        startup::Ecrans ecrans;
        ecrans.MontreChoixBase = [this](int rang) {
            RangPropose = rang;
            Ecrans_ += N("ChoixBase");
            startup::ChoisitStockage(Contexte, RangChoisi);
            return Poursuit &&
                   startup::ValideChoixBase(Contexte, RangChoisi) == startup::SuiteChoix::Poursuit;
        };
        ecrans.ChargeConfOrdo = [this] { Ecrans_ += N("ConfOrdo"); };
        ecrans.Minimise = [this] { Ecrans_ += N("Minimise"); };
        ecrans.ChargeFenetres = [this] { Ecrans_ += N("Fenetres"); };
        return startup::Demarrage(Contexte, ecrans).Execute();
    }

    void AttendPremierDemarrage()
    {
        Boites.AttendContenant(outside::Genre::Information, N("VOTRE NOM D' UTILISATEUR"))
            .AttendDossier(T("Sélectionnez uniquement le répertoire à votre NOM D'UTILISATEUR"), Utilisateur)
            .AttendContenant(outside::Genre::Information, N("MEDECIN UTILISATEUR"))
            .AttendSaisie(T("Inscrire les nom et prénom du médecin.\n(Ignorez la casse, le nom sera mis en "
                            "majuscules.)\n\nRESPECTEZ LE FORMAT : \"Dr/un espace/Nom Prenom (Prenom "
                            "facultatif)\""),
                          N("dr neibre"), N("Dr "))
            .AttendInformation(T(kBienvenue));
    }

    /// Goes through a first start, then forgets it.
    void Premier()
    {
        AttendPremierDemarrage();
        QVERIFY(Demarre());
        Oublie();
    }
};
