#include "prescription/Editeur.h"

#include "application/Signaux.h"
#include "common/Dates.h"
#include "common/Fichiers.h"
#include "common/Tolere.h"
#include "drugbank/Banque.h"
#include "outside/Horloge.h"
#include "prescription/Apercu.h"
#include "prescription/PageCertificat.h"
#include "startup/Chemins.h"
#include "storage/Bases.h"

namespace prescription {

namespace {

void OublieLePatient(application::Contexte& contexte)
{
    patients::Patient& patient = contexte.Patient;
    patient.PatientCourant.clear();
    patient.NomSeul.clear();
    patient.DateNaissance.clear();
    patient.AgePatient.clear();
    patient.PoidsPatient.clear();
    patient.AgeSaisi.clear();
    patient.DateOrdo = common::TexteDate(contexte.Dehors.Horloge.Aujourdhui());
}

void VideLesZones(Ordonnance& ordonnance)
{
    ordonnance.LstChoix1.Efface();
    ordonnance.LstChoix2.Efface();
    ordonnance.OrdoZone1.clear();
    ordonnance.OrdoZone2.clear();
    ordonnance.NbMedZone1 = 0;
    ordonnance.NbMedZone2 = 0;
    ordonnance.ChkALD = 0;
    ordonnance.OrdoMemorisee = 0;
    ordonnance.AncienFormat = false;
}

// A text that cannot be deleted is only the draft of a certificate: it keeps nobody from a new document.
void SupprimeCertificatEnMain(const QString& cheminMedecin)
{
    if (!cheminMedecin.isEmpty()) {
        const QString certificats = common::Joint(cheminMedecin, QStringLiteral("Certificats"));
        common::Tolere(
            [&] { common::SupprimeFichier(common::Joint(certificats, QStringLiteral("Tmp.txt"))); });
    }
}

std::optional<QString> TexteEnMain(const application::Contexte& contexte)
{
    return contexte.Apercu.ModeApercu == 1 ? TexteDuCertificat(contexte.Chemins) : std::nullopt;
}

void MontreApercu(application::Contexte& contexte, const page::Surface& apercu)
{
    contexte.Apercu.PctOrdo = apercu.Resultat();
    Q_EMIT contexte.Signaux.ApercuChange();
}

} // namespace

page::Modele ModelePage(application::Contexte& contexte, QList<page::LigneEntete>& entete)
{
    const QString& medecin = contexte.Chemins.CheminMedecin;
    entete.clear();
    if (!medecin.isEmpty()) {
        // A letterhead that cannot be read must not keep the prescription from being painted.
        common::Tolere([&] { entete = page::LitEntete(contexte.Bases.Ordo(medecin)); });
    }
    return {.Patient = contexte.Patient,
            .Ordonnance = contexte.Ordonnance,
            .Reglages = contexte.Reglages,
            .Entete = entete,
            .Aujourdhui = contexte.Dehors.Horloge.Aujourdhui(),
            .ModeApercu = contexte.Apercu.ModeApercu,
            .AvecTravail = !contexte.Chemins.CheminTravail.isEmpty(),
            .AvecMedecin = !medecin.isEmpty()};
}

void EffaceApercu(application::Contexte& contexte)
{
    contexte.Apercu.PctOrdo = page::Dessin();
    Q_EMIT contexte.Signaux.ApercuChange();
}

void Repeint(application::Contexte& contexte)
{
    EffaceApercu(contexte);
    QList<page::LigneEntete> entete;
    page::Modele modele = ModelePage(contexte, entete);
    page::Surface apercu(page::Cible::Apercu);
    if (contexte.Apercu.ModeApercu == 0) {
        page::PeintPatient(apercu, modele, contexte.Dehors.Boites);
        page::PeintOrdo(apercu, modele);
    } else if (const auto texte = TexteEnMain(contexte)) {
        PeintPageCertificat(apercu, modele, contexte, *texte);
    }
    MontreApercu(contexte, apercu);
}

void RepeintPatient(application::Contexte& contexte)
{
    EffaceApercu(contexte);
    QList<page::LigneEntete> entete;
    page::Modele modele = ModelePage(contexte, entete);
    page::Surface apercu(page::Cible::Apercu);
    page::PeintPatient(apercu, modele, contexte.Dehors.Boites);
    MontreApercu(contexte, apercu);
}

void VideDocument(application::Contexte& contexte)
{
    contexte.Apercu.ModeApercu = 0;
    SupprimeCertificatEnMain(contexte.Chemins.CheminMedecin);
    OublieLePatient(contexte);
    VideLesZones(contexte.Ordonnance);
    contexte.Banque.RapportInteractions.clear();
    contexte.Banque.InteractionsNonVerifiees = false;
    EffaceApercu(contexte);
    Q_EMIT contexte.Signaux.DocumentVide();
    Q_EMIT contexte.Signaux.OrdonnanceChange();
}

} // namespace prescription
