#include "startup/Documents.h"

#include "common/Fichiers.h"
#include "outside/Boites.h"
#include "outside/Lanceur.h"
#include "startup/Chemins.h"
#include "startup/Demarrage.h"
#include "startup/messages.h"

namespace startup {

namespace {

// The system is asked first, since it knows best what it opens.
void Ouvre(application::Contexte& contexte, const QString& fichier)
{
    if (!contexte.Dehors.Lanceur.Ouvre(fichier)) {
        const QString affiche = common::CheminAffiche(fichier);
        contexte.Dehors.Boites.Information(common::FichierExiste(fichier)
                                               ? messages::DocumentSansLecteur(affiche)
                                               : messages::DocumentAbsent(affiche));
    }
}

void OuvreDuProgramme(application::Contexte& contexte, const QString& nom)
{
    Ouvre(contexte, common::Joint(contexte.Chemins.CheminProgramme, nom));
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

void EcritUnMessage(application::Contexte& contexte)
{
    if (!contexte.Dehors.Lanceur.Ouvre(QStringLiteral("mailto:?subject=Scriptelle%20") + Version())) {
        contexte.Dehors.Boites.Information(messages::CourrierSansProgramme());
    }
}

} // namespace startup
