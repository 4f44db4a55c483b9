#include "medication/Commandes.h"

#include "common/Dates.h"
#include "common/Tolere.h"
#include "drugbank/Banque.h"
#include "medication/MedicamentsUtilises.h"
#include "medication/messages.h"
#include "outside/Tente.h"
#include "prescription/Apercu.h"
#include "prescription/Editeur.h"
#include "settings/FichiersReglages.h"
#include "startup/Chemins.h"
#include "storage/Bases.h"

namespace medication {

namespace {

std::optional<Zone> DemandeZone(application::Contexte& contexte, outside::Genre genre)
{
    using outside::Bouton;
    if (contexte.Ordonnance.ChkALD == 0) {
        return Zone::Un;
    }
    const Bouton reponse =
        contexte.Dehors.Boites.Montre({.Genre = genre,
                                       .Texte = messages::ZoneVoulue(),
                                       .Boutons = {Bouton::Oui, Bouton::Non, Bouton::Annuler},
                                       .Defaut = Bouton::Oui});
    if (reponse == Bouton::Annuler) {
        return std::nullopt;
    }
    return reponse == Bouton::Oui ? Zone::Un : Zone::Deux;
}

/// The CIP of the pack whose name the boxes hold; empty for any other medication.
QString PackEnMain(const Choix& choix, const Noeud* noeud)
{
    const bool dUnPack = choix.OrigineEdition == 0 && noeud && noeud->Etiquette.contains(u'/');
    return dUnPack ? noeud->Etiquette.section(u'/', 0, 0) : QString();
}

} // namespace

void ChargeMedicaments(Choix& choix, Pharmacie& pharmacie, ArbreMedicaments& arbre, const QString& recherche)
{
    choix.NoeudChoisi = kAucunNoeud;
    choix.NoeudLu = {};
    arbre.Remplit({});
    arbre.Remplit(pharmacie.Charge(recherche.trimmed()));
}

Suite Ajoute(application::Contexte& contexte, Pharmacie& pharmacie, Zone zone, const Saisie& saisie,
             const Noeud* noeud)
{
    Choix& choix = contexte.Choix;
    if (saisie.TxtMedoc.isEmpty() || choix.OrigineEdition == 2) {
        return Suite::Recherche;
    }
    // A line taken back is no longer one when its slot went with the whole document.
    const bool deCetteZone = choix.OrigineEdition == 1 && choix.ListeSource == static_cast<quint8>(zone);
    if (RepriseDe(contexte.Ordonnance, choix, zone)) {
        RemetLigne(contexte.Ordonnance, choix, zone, saisie);
    } else if (choix.OrigineEdition == 0 || deCetteZone) {
        if (zone == Zone::Un && !noeud) {
            return Suite::SansNoeud;
        }
        AjouteLigne(contexte.Ordonnance, zone, saisie, pharmacie.Identifiant(noeud));
        outside::Tente(contexte.Dehors.Boites, [&] { pharmacie.Prescrit(noeud); });
    }
    choix.NoeudChoisi = kAucunNoeud;
    return Suite::Termine;
}

bool SauteLigne(application::Contexte& contexte)
{
    const std::optional<Zone> zone = DemandeZone(contexte, outside::Genre::Question);
    if (zone) {
        AjouteSaut(contexte.Ordonnance, *zone);
    }
    return zone.has_value();
}

std::optional<Zone> ZoneDePosologie(application::Contexte& contexte)
{
    return DemandeZone(contexte, outside::Genre::Simple);
}

void EffaceTout(application::Contexte& contexte)
{
    prescription::Ordonnance& ordonnance = contexte.Ordonnance;
    for (const Zone zone : {Zone::Un, Zone::Deux}) {
        Entrees(ordonnance, zone).clear();
        Lignes(ordonnance, zone).Efface();
    }
    ordonnance.NbMedZone1 = 0;
    ordonnance.NbMedZone2 = 0;
    contexte.Choix.NoeudChoisi = kAucunNoeud;
    contexte.Banque.RapportInteractions.clear();
    prescription::EffaceApercu(contexte);
}

void PrepareOrdonnance(application::Contexte& contexte)
{
    prescription::Ordonnance& ordonnance = contexte.Ordonnance;
    if (ordonnance.LstChoix1.Vide() && ordonnance.LstChoix2.Vide()) {
        contexte.Dehors.Boites.Information(messages::AucunMedicament());
    }
    CompteMedicaments(ordonnance);
}

void MontreOrdonnance(application::Contexte& contexte)
{
    contexte.Apercu.ModeApercu = 0;
    prescription::Repeint(contexte);
}

std::optional<Saisie> ChoisitNoeud(Choix& choix, Pharmacie& pharmacie, const Noeud* noeud, int rang)
{
    if (!noeud) {
        return std::nullopt;
    }
    choix.OrigineEdition = 0;
    choix.ArbreChoisi = 1;
    choix.NoeudChoisi = rang + 1;
    if (const QStringList pack = pharmacie.InfoPack(*noeud); !pack.isEmpty()) {
        choix.InfoPack = pack;
    }
    const std::optional<Saisie> lue = pharmacie.Lit(*noeud);
    choix.NoeudLu = *noeud;
    return lue.value_or(Saisie{noeud->Texte, QString()});
}

void RemplitOffres(application::Contexte& contexte, OffresPosologie& offres, const QString& nom,
                   const Noeud* noeud)
{
    QList<Offre> lues;
    if (!nom.trimmed().isEmpty()) {
        // A hint that cannot be read is as good as none.
        common::Tolere([&] {
            lues = LitOffres(contexte.Bases.Medoc(contexte.Chemins.CheminTravail), nom,
                             PackEnMain(contexte.Choix, noeud));
        });
    }
    offres.Remplit(std::move(lues));
}

void EnregistreSaisie(application::Contexte& contexte, Pharmacie& pharmacie, ArbreMedicaments& arbre,
                      const Saisie& saisie)
{
    Choix& choix = contexte.Choix;
    const Noeud avant = choix.NoeudLu;
    pharmacie.Enregistre(choix.NoeudLu, saisie, contexte.Dehors.Boites);
    const auto rang = static_cast<int>(arbre.Noeuds().indexOf(avant));
    if (choix.NoeudLu != avant) {
        arbre.Change(rang, choix.NoeudLu);
    }
}

void Demarque(application::Contexte& contexte, ArbreMedicaments& arbre, int rang)
{
    MedicamentsUtilises(contexte.Bases.Medoc(contexte.Chemins.CheminTravail))
        .Retire(contexte.Choix.InfoPack.value(0));
    if (const Noeud* noeud = arbre.Lis(rang)) {
        arbre.Change(rang, {noeud->Texte, noeud->Etiquette, false});
    }
}

void CocheMono(application::Contexte& contexte, quint8 etat)
{
    contexte.Reglages.Options.EtatChkMono = etat;
    if (!contexte.Chemins.CheminMedecin.isEmpty()) {
        settings::EcritOptions(contexte.Reglages.Options, contexte.Chemins.CheminMedecin);
    }
}

QString Validite(const drugbank::Banque& banque, const QDate& aujourdhui)
{
    if (!drugbank::EnModeBanque(banque)) {
        return {};
    }
    const auto expiration = common::DateSaisie(banque.DateExpirationBase);
    return expiration && aujourdhui < *expiration ? messages::BaseExpire(banque.DateExpirationBase)
                                                  : messages::FinExploitation();
}

bool PresseRecherche(Choix& choix)
{
    choix.ArbreChoisi = choix.ArbreChoisi == 1 ? 0 : 1;
    return choix.ArbreChoisi == 1;
}

QString BasculeBlancs(const QString& texte)
{
    return texte.endsWith(u' ') ? texte.trimmed() : texte.trimmed() + QString(kBlancsF4, u' ');
}

bool RienEnMain(const prescription::Ordonnance& ordonnance, const Saisie& saisie)
{
    return ordonnance.LstChoix1.Vide() && ordonnance.LstChoix2.Vide() && saisie.TxtMedoc.isEmpty() &&
           saisie.TxtPoso.isEmpty();
}

} // namespace medication
