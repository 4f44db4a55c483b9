#include "startup/PolicesAbsentes.h"

#include "common/Tolere.h"
#include "outside/Boites.h"
#include "page/LignesEntete.h"
#include "page/Remplacement.h"
#include "settings/Reglages.h"
#include "startup/Chemins.h"
#include "startup/Medecins.h"
#include "startup/messages.h"
#include "storage/Bases.h"

namespace startup {

namespace {

void Ajoute(QStringList& polices, const QString& nom)
{
    if (!nom.isEmpty() && !polices.contains(nom, Qt::CaseInsensitive)) {
        polices.append(nom);
    }
}

void AjoutePolicesEntete(QStringList& polices, application::Contexte& contexte)
{
    const QString& medecin = contexte.Chemins.CheminMedecin;
    if (!storage::Bases::OrdoExiste(medecin)) {
        return;
    }
    QList<page::LigneEntete> lignes;
    // A letterhead that cannot be read has been told of with the doctor's look.
    common::Tolere([&] { lignes = page::LitEntete(contexte.Bases.Ordo(medecin)); });
    for (const page::LigneEntete& ligne : std::as_const(lignes)) {
        if (ligne.NumLigne <= page::kBasDePage) { // the signature's name has no font of its own
            Ajoute(polices, ligne.Police.Nom);
        }
    }
}

} // namespace

QStringList PolicesDesDocuments(application::Contexte& contexte)
{
    QStringList polices;
    AjoutePolicesEntete(polices, contexte);
    const settings::Look& look = contexte.Reglages.Look;
    for (const page::Police& police : {look.Titre, look.Poso, look.Certif}) {
        Ajoute(polices, police.Nom);
    }
    if (contexte.Reglages.Dupli.DupliActif == 1) {
        Ajoute(polices, contexte.Reglages.Dupli.DupliPolice);
    }
    return polices;
}

void SignalePolices(application::Contexte& contexte)
{
    QStringList& signalees = contexte.Medecins.PolicesSignalees;
    const QString& medecin = contexte.Chemins.CheminMedecin;
    if (signalees.contains(medecin)) {
        return;
    }
    QStringList remplacements;
    for (const QString& police : PolicesDesDocuments(contexte)) {
        const QString remplacante = page::PoliceDeRemplacement(police);
        if (!remplacante.isEmpty()) {
            remplacements.append(messages::PoliceRemplacee(police, remplacante));
        }
    }
    signalees.append(medecin);
    if (!remplacements.isEmpty()) {
        contexte.Dehors.Boites.Information(messages::PolicesAbsentes(remplacements.join(QLatin1Char('\n'))));
    }
}

} // namespace startup
