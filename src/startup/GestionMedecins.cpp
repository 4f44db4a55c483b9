#include "startup/GestionMedecins.h"

#include "application/Signaux.h"
#include "common/Fichiers.h"
#include "common/Tolere.h"
#include "outside/Tente.h"
#include "startup/Chemins.h"
#include "startup/FichiersChemins.h"
#include "startup/InscriptionMedecin.h"
#include "startup/MedecinIni.h"
#include "startup/Medecins.h"
#include "startup/messages.h"
#include "storage/Bases.h"

#include <QDir>
#include <algorithm>
#include <limits>

namespace startup {

using application::Contexte;
using common::Joint;

namespace {

/// The name typed, in its format, not yet inscribed; empty when there is nothing to do.
QString DemandeNouveauNom(Contexte& contexte)
{
    outside::Boites& boites = contexte.Dehors.Boites;
    const QString saisie =
        boites.Demande({.Invite = messages::InviteNouveauMedecin(), .Valeur = QStringLiteral("Dr ")})
            .value_or(QString());
    if (saisie.isEmpty() || saisie == QLatin1String("Dr ")) {
        return {};
    }
    if (!FormatMedecinJuste(NomEnMajuscules(saisie))) {
        boites.Stop(messages::MauvaisFormat());
        return {};
    }
    const QString nom = NomSansTrait(boites, NomEnMajuscules(saisie));
    const auto& liste = contexte.Medecins.Liste;
    if (std::ranges::find(liste, nom, &Medecin::Nom) != liste.end()) {
        boites.Stop(messages::DejaInscrit(nom));
        return {};
    }
    return nom;
}

/// A new doctor starts from the settings of the tree, unless the directory has some already.
void CopieReglages(const QString& racine, const QString& dossier)
{
    for (const QString& nom :
         {QStringLiteral("Options.cfg"), QStringLiteral("Marges.cfg"), QStringLiteral("Dupli.cfg")}) {
        if (!common::FichierExiste(Joint(dossier, nom))) {
            // A tree without root copies: the doctor keeps the settings in force.
            common::Tolere([&] { common::CopieFichier(Joint(racine, nom), Joint(dossier, nom)); });
        }
    }
}

/// Directory, files and line of the new doctor; he is in the list only when all of it stands.
void CreeMedecin(Contexte& contexte, const QString& nom, int numero)
{
    const Chemins& chemins = contexte.Chemins;
    const QString& racine = chemins.CheminTravail;
    const QString dossier = CreeDossierMedecin(chemins, racine, nom, ModeleOrdo(chemins));
    CopieReglages(racine, dossier);
    Medecins avecLui = contexte.Medecins;
    AjouteALaListe(avecLui, nom, numero);
    EcritListeMedecins(racine, avecLui);
    contexte.Medecins = avecLui;
}

void VideDossier(const QString& dossier)
{
    for (const QString& nom : QDir(dossier).entryList(QDir::Files | QDir::Hidden | QDir::System)) {
        common::SupprimeFichier(Joint(dossier, nom));
    }
}

/// Logo pictures are kept, and the directory with them; everything else of the doctor goes.
void SupprimeDonnees(const QString& cheminMedecin)
{
    if (cheminMedecin.isEmpty() || !common::DossierExiste(cheminMedecin)) {
        return;
    }
    const QString logo = Joint(cheminMedecin, QStringLiteral("Logo"));
    if (!common::DossierContientFichier(logo)) {
        QDir().rmdir(logo);
    }
    VideDossier(cheminMedecin);
    QDir().rmdir(cheminMedecin);
}

void RetireDeLaListe(Contexte& contexte, int rang)
{
    Medecins& medecins = contexte.Medecins;
    if (medecins.Liste[rang].Numero == medecins.NumMedecinDefaut) {
        medecins.NumMedecinDefaut = 1;
    }
    medecins.Liste.removeAt(rang);
    medecins.Selection = -1;
    contexte.Chemins.CheminMedecin.clear();
    Q_EMIT contexte.Signaux.MedecinsChanges();
    Q_EMIT contexte.Signaux.MedecinChange();
    Q_EMIT contexte.Signaux.FaceChange();
}

/// The guards of the deletion, then the question.
bool SuppressionVoulue(outside::Boites& boites, const Medecins& medecins)
{
    if (medecins.Liste.size() == 1) {
        boites.Information(messages::DernierMedecin());
        return false;
    }
    if (medecins.Selection < 0) {
        boites.Information(messages::SelectionnezDansLaListe());
        return false;
    }
    return boites.Question(messages::Supprimer(medecins.Liste[medecins.Selection].Nom), outside::Bouton::Non);
}

} // namespace

void InscritMedecin(Contexte& contexte)
{
    outside::Boites& boites = contexte.Dehors.Boites;
    const QString nom = DemandeNouveauNom(contexte);
    if (nom.isEmpty()) {
        return;
    }
    try {
        const int numero = DernierNumero(contexte.Chemins.CheminTravail, contexte.Medecins) + 1;
        if (numero > std::numeric_limits<qint16>::max()) {
            boites.Stop(messages::TropDeMedecins());
            return;
        }
        CreeMedecin(contexte, nom, numero);
    } catch (const common::Erreur& erreur) {
        boites.Stop(messages::CreationIncomplete(outside::messages::Panne(erreur.Phrase(), erreur.Lieu())));
        return;
    }
    Q_EMIT contexte.Signaux.MedecinsChanges();
    ChangeMedecin(contexte, static_cast<int>(contexte.Medecins.Liste.size()) - 1);
}

void SupprimeMedecin(Contexte& contexte)
{
    const int rang = contexte.Medecins.Selection;
    if (!SuppressionVoulue(contexte.Dehors.Boites, contexte.Medecins)) {
        return;
    }
    outside::Boites& boites = contexte.Dehors.Boites;
    const Medecin medecin = contexte.Medecins.Liste[rang];
    if (!outside::Tente(boites, [&] { RetireDeMedecinIni(contexte.Chemins.CheminTravail, medecin); })) {
        return;
    }
    contexte.Bases.FermeOrdo();
    outside::Tente(boites, [&] { SupprimeDonnees(contexte.Chemins.CheminMedecin); });
    RetireDeLaListe(contexte, rang);
}

void PoseMedecinParDefaut(Contexte& contexte)
{
    Medecins& medecins = contexte.Medecins;
    outside::Boites& boites = contexte.Dehors.Boites;
    if (medecins.Selection >= 0) {
        const Medecin& medecin = medecins.Liste[medecins.Selection];
        medecins.NumMedecinDefaut = static_cast<qint16>(medecin.Numero);
        boites.Information(messages::ParDefaut(medecin.Nom));
    } else {
        boites.Information(messages::SelectionnezUnMedecin());
    }
    outside::Tente(boites, [&] { EcritCheminBase(contexte.Chemins, medecins); });
}

bool QuitteMedecins(Contexte& contexte)
{
    Medecins& medecins = contexte.Medecins;
    if (medecins.Selection >= 0) {
        return true;
    }
    if (!medecins.Liste.isEmpty()) {
        contexte.Dehors.Boites.Information(messages::SelectionnezUnNom());
        return false;
    }
    contexte.Chemins.CheminMedecin.clear();
    medecins.NumMedecin = 0;
    return true;
}

} // namespace startup
