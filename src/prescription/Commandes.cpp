#include "prescription/Commandes.h"

#include "application/Signaux.h"
#include "common/Dates.h"
#include "drugbank/Banque.h"
#include "drugbank/Seance.h"
#include "outside/Boites.h"
#include "outside/Horloge.h"
#include "page/Gabarit.h"
#include "patients/Patient.h"
#include "prescription/Apercu.h"
#include "prescription/Editeur.h"
#include "prescription/Ordonnance.h"
#include "prescription/PageCertificat.h"
#include "prescription/messages.h"
#include "startup/Chemins.h"
#include "startup/GestionMedecins.h"
#include "startup/Medecins.h"

namespace prescription {

namespace {

constexpr qsizetype kLongueurDate = 10;

bool QuitteLaSaisie(const QString& reponse)
{
    return reponse.isEmpty() || reponse == QLatin1String("0") || reponse.size() == kLongueurDate;
}

QString SaisitDate(application::Contexte& contexte, const QString& aujourdhui)
{
    for (;;) {
        const QString reponse =
            contexte.Dehors.Boites.Demande({.Invite = messages::InviteDate(), .Valeur = aujourdhui})
                .value_or(QString());
        if (QuitteLaSaisie(reponse)) {
            return reponse;
        }
        contexte.Dehors.Boites.Information(messages::FormatDate());
    }
}

} // namespace

bool CommenceOrdonnance(application::Contexte& contexte)
{
    contexte.Apercu.ModeApercu = 0;
    if (!startup::ExigeMedecin(contexte)) {
        return false;
    }
    startup::DitBaseDuMedecinAbsente(contexte);
    VideDocument(contexte);
    return true;
}

void DemandeDate(application::Contexte& contexte)
{
    const QString aujourdhui = common::TexteDate(contexte.Dehors.Horloge.Aujourdhui());
    const QString reponse = SaisitDate(contexte, aujourdhui);
    if (reponse.isEmpty()) {
        contexte.Patient.DateOrdo = aujourdhui;
        return;
    }
    contexte.Patient.DateOrdo = reponse == QLatin1String("0") ? QString() : reponse;
    Repeint(contexte);
}

void RevientAuxMedicaments(application::Contexte& contexte)
{
    EffaceApercu(contexte);
    contexte.Apercu.ModeApercu = 0;
    Q_EMIT contexte.Signaux.OrdonnanceChange();
}

void OuvreLaBanque(application::Contexte& contexte)
{
    if (drugbank::EnModeBanque(contexte.Banque)) {
        contexte.Apercu.DispositionFaite = 1;
        contexte.Seance.Demarre(contexte);
    }
}

void ChangeMedecinDeLEditeur(application::Contexte& contexte, int rang, bool editeurActif)
{
    if (rang < 0 || rang >= contexte.Medecins.Liste.size()) {
        return;
    }
    startup::ChangeMedecin(contexte, rang);
    startup::DitBaseDuMedecinAbsente(contexte);
    contexte.Medecins.IndexMedecin = static_cast<qint16>(contexte.Medecins.Liste[rang].Numero);
    if (editeurActif && drugbank::EnModeBanque(contexte.Banque)) {
        contexte.Seance.Demarre(contexte);
    }
    if (contexte.Apercu.ModeApercu != 0) {
        contexte.Apercu.ModeApercu = 1;
        Repeint(contexte);
        return;
    }
    EffaceApercu(contexte);
    Q_EMIT contexte.Signaux.FaceChange();
}

void ImprimeCivilite(application::Contexte& contexte, bool oui)
{
    contexte.Ordonnance.ChkCiv = oui ? 1 : 0;
    Repeint(contexte);
}

double BasDeLaFeuille(application::Contexte& contexte)
{
    if (contexte.Apercu.PctOrdo.Items.isEmpty()) {
        return 0;
    }
    QList<page::LigneEntete> entete;
    page::Modele modele = ModelePage(contexte, entete);
    page::Surface papier(page::Cible::Imprimante);
    if (contexte.Apercu.ModeApercu == 0) {
        page::PeintOrdo(papier, modele);
    } else if (const auto texte = TexteDuCertificat(contexte.Chemins)) {
        PeintCorpsCertificat(papier, modele, contexte, *texte);
    }
    if (page::LignesPerdues(papier.Resultat(), modele.Reglages) == 0) {
        return 0;
    }
    return page::LimiteDuCorps(modele.Reglages) - modele.Reglages.Marges.MargeHauteOrdo / 2.0;
}

} // namespace prescription
