#include "startup/PremierMedecin.h"

#include "application/Signaux.h"
#include "common/Fichiers.h"
#include "outside/Boites.h"
#include "startup/InscriptionMedecin.h"
#include "startup/MedecinIni.h"
#include "startup/messages.h"

namespace startup {

namespace {

using application::Contexte;

QString DemandeNom(outside::Boites& boites)
{
    return boites.Demande({.Invite = messages::InvitePremierMedecin(), .Valeur = QStringLiteral("Dr ")})
        .value_or(QString());
}

/// The name in its format, empty when the doctor gives up.
QString DemandeNomJuste(outside::Boites& boites)
{
    for (;;) {
        const QString saisie = DemandeNom(boites);
        if (saisie.isEmpty() || saisie == QLatin1String("Dr ")) {
            if (!boites.Question(messages::InscriptionObligatoire())) {
                boites.Stop(messages::ArretSansInscription());
                return {};
            }
            continue;
        }
        const QString nom = NomEnMajuscules(saisie);
        if (FormatMedecinJuste(nom)) {
            return nom;
        }
        if (!boites.Question(messages::MauvaisFormatContinuer())) {
            return {};
        }
    }
}

/// The installer's "Ordo.mdb", or the template when it is gone.
QString Modele(const Chemins& chemins)
{
    const QString ordo = common::Joint(chemins.CheminData, QStringLiteral("Ordo.mdb"));
    return common::FichierExiste(ordo) ? ordo : ModeleOrdo(chemins);
}

} // namespace

bool InscritPremierMedecin(Contexte& contexte)
{
    outside::Boites& boites = contexte.Dehors.Boites;
    boites.Information(messages::PremierMedecin());
    const QString saisie = DemandeNomJuste(boites);
    if (saisie.isEmpty()) {
        return false;
    }
    const QString nom = NomSansTrait(boites, saisie);
    Chemins& chemins = contexte.Chemins;
    chemins.CheminMedecin = CreeDossierMedecin(chemins, chemins.CheminData, nom, Modele(chemins));
    AjouteALaListe(contexte.Medecins, nom, contexte.Medecins.NbMedecins + 1);
    EcritListeMedecins(chemins.CheminData, contexte.Medecins);
    Q_EMIT contexte.Signaux.MedecinsChanges();
    return true;
}

} // namespace startup
