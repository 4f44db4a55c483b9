#include "startup/Documents.h"

#include "common/Fichiers.h"
#include "outside/Boites.h"
#include "outside/Lanceur.h"
#include "prescription/Journal.h"
#include "startup/Chemins.h"
#include "startup/GestionMedecins.h"
#include "startup/Medecins.h"
#include "startup/messagesDepart.h"

namespace startup {

namespace {

void Ouvre(application::Contexte& contexte, const QString& fichier, const QString& siAbsent)
{
    if (!common::FichierExiste(fichier)) {
        contexte.Dehors.Boites.Information(siAbsent);
    } else if (!contexte.Dehors.Lanceur.Ouvre(fichier)) {
        contexte.Dehors.Boites.Information(messages::DocumentSansLecteur(common::CheminAffiche(fichier)));
    }
}

void OuvreDuProgramme(application::Contexte& contexte, const QString& nom)
{
    const QString fichier = common::Joint(contexte.Chemins.CheminProgramme, nom);
    Ouvre(contexte, fichier, messages::DocumentAbsent(common::CheminAffiche(fichier)));
}

} // namespace

void OuvreAide(application::Contexte& contexte)
{
    OuvreDuProgramme(contexte, QStringLiteral("Ordo.hlp"));
}

void OuvreNouvelleAide(application::Contexte& contexte)
{
    OuvreDuProgramme(contexte, QStringLiteral("Aide.pdf"));
}

void OuvreJournal(application::Contexte& contexte)
{
    if (ExigeMedecin(contexte)) {
        Ouvre(contexte,
              prescription::CheminJournal(contexte.Chemins.CheminMedecin,
                                          contexte.Medecins.NomMedecinSignature),
              messages::JournalVide());
    }
}

} // namespace startup
