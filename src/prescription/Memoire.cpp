#include "prescription/Memoire.h"

#include "application/Signaux.h"
#include "outside/Tente.h"
#include "patients/Patient.h"
#include "prescription/Apercu.h"
#include "prescription/Ordonnance.h"
#include "prescription/OrdosMemorisees.h"
#include "prescription/messages.h"
#include "startup/Chemins.h"
#include "startup/GestionMedecins.h"
#include "storage/Bases.h"

namespace prescription {

namespace {

int IdProduit(const Ligne& ligne)
{
    bool nombre = false;
    const int identifiant = IdentifiantDeLigne(ligne.Texte).toInt(&nombre);
    return nombre ? identifiant : 1;
}

/// A code of an old version becomes the product id that the bank knows for it; one that it does not know is
/// kept whole and stays a code.
LigneMemorisee LigneDe(const Ligne& rangee, const Entree& entree, int zone, const drugbank::Banque& banque)
{
    LigneMemorisee ligne{entree.Titre, entree.Posologie, zone};
    if (!drugbank::EnModeBanque(banque)) {
        return ligne;
    }
    const QString code = CodeAncien(rangee);
    const drugbank::ResolutionCip produitDuCip = banque.ProduitDuCip;
    const auto produit = code.isEmpty() || !produitDuCip ? std::nullopt : produitDuCip(code);
    if (!code.isEmpty() && !produit) {
        ligne.IdProduit = code.toLongLong();
        ligne.EstUnCode = true;
        return ligne;
    }
    ligne.IdProduit = produit.value_or(IdProduit(rangee));
    return ligne;
}

void AjouteZone(QList<LigneMemorisee>& lignes, const LignesZone& rangees, const QList<Entree>& entrees,
                int zone, const drugbank::Banque& banque)
{
    for (const Ligne& rangee : rangees.Lignes()) {
        lignes.append(LigneDe(rangee, entrees.value(rangee.Indice), zone, banque));
    }
}

/// The prescription in hand as it is stored: the second zone only where the page has two.
QList<LigneMemorisee> LignesEnMain(const application::Contexte& contexte)
{
    const Ordonnance& ordonnance = contexte.Ordonnance;
    QList<LigneMemorisee> lignes;
    AjouteZone(lignes, ordonnance.LstChoix1, ordonnance.OrdoZone1, 1, contexte.Banque);
    if (ordonnance.ChkALD == 1) {
        AjouteZone(lignes, ordonnance.LstChoix2, ordonnance.OrdoZone2, 2, contexte.Banque);
    }
    return lignes;
}

CleMemo ClePour(const QString& titre, const patients::Patient& patient)
{
    return patient.PatientCourant.isEmpty() || patient.PatientCourant == QLatin1String("*")
               ? CleMemo{titre}
               : CleMemo{titre, patient.PatientCourant, patient.DateNaissance};
}

/// Where the prescription in hand stands in the tables, as far as this patient's lists reach it.
std::optional<CleMemo> CleEnMain(const application::Contexte& contexte)
{
    const std::optional<CleMemo>& cle = contexte.Ordonnance.CleMemo;
    const bool atteinte = contexte.Ordonnance.OrdoMemorisee == 1 && cle &&
                          (cle->Generique() || *cle == CleMemo{cle->Titre, contexte.Patient.PatientCourant,
                                                               contexte.Patient.DateNaissance});
    return atteinte ? cle : std::nullopt;
}

bool EnregistreModifications(application::Contexte& contexte, storage::Base& medoc, const CleMemo& cle)
{
    const Ordonnance& ordonnance = contexte.Ordonnance;
    if (!contexte.Dehors.Boites.Question(messages::EnregistrerModifications(ordonnance.TitreMemo))) {
        return false;
    }
    RemplaceMemorisee(medoc, {cle, ordonnance.ChkALD}, LignesEnMain(contexte));
    return true;
}

bool EnregistreSousUnNom(application::Contexte& contexte, storage::Base& medoc)
{
    outside::Boites& boites = contexte.Dehors.Boites;
    Ordonnance& ordonnance = contexte.Ordonnance;
    const QString titre =
        boites.Demande({.Invite = messages::InviteNomMemo(), .Valeur = {}, .Titre = messages::TitreNomMemo()})
            .value_or(QString())
            .trimmed();
    if (titre.isEmpty()) {
        boites.Information(messages::NonMemorisee());
        return false;
    }
    const QString& patient = contexte.Patient.PatientCourant;
    const bool specifique = !patient.isEmpty() && boites.Question(messages::Specifique(patient));
    const CleMemo cle = specifique ? ClePour(titre, contexte.Patient) : CleMemo{titre};
    AjouteMemorisee(medoc, {cle, ordonnance.ChkALD}, LignesEnMain(contexte));
    ordonnance.TitreMemo = titre;
    ordonnance.CleMemo = cle;
    return true;
}

void Memorise(application::Contexte& contexte)
{
    storage::Base& medoc = contexte.Bases.Medoc(contexte.Chemins.CheminTravail);
    const std::optional<CleMemo> cle = CleEnMain(contexte);
    const bool connue = cle && EstMemorisee(medoc, *cle);
    if (connue ? EnregistreModifications(contexte, medoc, *cle) : EnregistreSousUnNom(contexte, medoc)) {
        contexte.Ordonnance.OrdoMemorisee = 1;
        Q_EMIT contexte.Signaux.MemoireChange();
    }
}

bool SupprimeLaMemorisee(application::Contexte& contexte)
{
    outside::Boites& boites = contexte.Dehors.Boites;
    Ordonnance& ordonnance = contexte.Ordonnance;
    const std::optional<CleMemo> cle = CleEnMain(contexte);
    if (boites.Question(messages::SupprimerDesMemorisees(ordonnance.TitreMemo), outside::Bouton::Non) &&
        cle) {
        SupprimeMemorisee(contexte.Bases.Medoc(contexte.Chemins.CheminTravail), *cle);
    }
    ordonnance.OrdoMemorisee = 0;
    Q_EMIT contexte.Signaux.MemoireChange();
    return boites.Question(messages::EffacerActuelle(), outside::Bouton::Non);
}

} // namespace

void MemoriseOrdonnance(application::Contexte& contexte)
{
    outside::Boites& boites = contexte.Dehors.Boites;
    const Ordonnance& ordonnance = contexte.Ordonnance;
    if (!startup::ExigeMedecin(contexte)) {
        return;
    }
    if (contexte.Apercu.ModeApercu == 1) {
        boites.Information(messages::CertificatNonMemorise());
    } else if (ordonnance.LstChoix1.Vide() && ordonnance.LstChoix2.Vide()) {
        boites.Stop(messages::RienAMemoriser());
    } else {
        outside::Tente(boites, [&] { Memorise(contexte); });
    }
}

bool SupprimeOrdonnanceMemorisee(application::Contexte& contexte)
{
    outside::Boites& boites = contexte.Dehors.Boites;
    if (!startup::ExigeMedecin(contexte)) {
        return false;
    }
    if (contexte.Apercu.ModeApercu == 1) {
        boites.Information(messages::CertificatNonSupprime());
        return false;
    }
    if (contexte.Ordonnance.OrdoMemorisee == 0) {
        boites.Information(messages::PasUneMemorisee());
        return false;
    }
    bool nouvelle = false;
    outside::Tente(boites, [&] { nouvelle = SupprimeLaMemorisee(contexte); });
    return nouvelle;
}

} // namespace prescription
