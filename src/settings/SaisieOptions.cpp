#include "settings/SaisieOptions.h"

#include "application/Signaux.h"
#include "drugbank/Banque.h"
#include "outside/Horloge.h"
#include "page/Peintres.h"
#include "patients/Patient.h"
#include "prescription/Apercu.h"
#include "prescription/Editeur.h"
#include "settings/FichiersReglages.h"
#include "startup/Chemins.h"
#include "startup/DemarrageAuto.h"
#include "startup/GestionMedecins.h"
#include "startup/Medecins.h"

#include <QFileInfo>

namespace settings {

namespace {

constexpr quint8 Options::*kCommutateurs[] = {
    &Options::LanceDemarrage,    &Options::BarreMenu,    &Options::AfficheRegle,
    &Options::AfficheAge,        &Options::AffichePoids, &Options::IncrementeMedicaments,
    &Options::TotalMedicaments,  &Options::LogoActif,    &Options::PositionLogo,
    &Options::ReliefMedUtilises, &Options::TenirJournal, &Options::AfficheDDN,
    &Options::ImprimeDate,       &Options::SouligneNom,  &Options::FormatA4};

constexpr qint16 Options::*kMesuresLogo[] = {&Options::LogoHauteur, &Options::LogoLargeur, &Options::LogoX,
                                             &Options::LogoY};

void RendLeMedecin(application::Contexte& contexte, const QString& chemin)
{
    const QList<startup::Medecin>& liste = contexte.Medecins.Liste;
    const QString nom = QFileInfo(chemin).fileName();
    for (int rang = 0; rang < liste.size(); ++rang) {
        if (liste.at(rang).Nom == nom) {
            startup::ChangeMedecin(contexte, rang);
            return;
        }
    }
}

void RendLesOptions(Options& options, const Options& anciennes)
{
    for (const auto commutateur : kCommutateurs) {
        options.*commutateur = anciennes.*commutateur;
    }
    for (const auto mesure : kMesuresLogo) {
        options.*mesure = anciennes.*mesure;
    }
    options.FichierLogo = anciennes.FichierLogo;
}

} // namespace

Instantane PrendInstantane(const application::Contexte& contexte)
{
    return {contexte.Reglages.Options, contexte.Banque.ProduitBanque, contexte.Banque.TypeBase,
            contexte.Chemins.CheminMedecin};
}

void RestaureInstantane(application::Contexte& contexte, const Instantane& instantane)
{
    RendLesOptions(contexte.Reglages.Options, instantane.Options);
    startup::RegleDemarrageSysteme(contexte);
    contexte.Banque.ProduitBanque = instantane.ProduitBanque;
    contexte.Banque.TypeBase = instantane.TypeBase;
    patients::Patient& patient = contexte.Patient;
    if (!patient.DateNaissance.isEmpty()) {
        patient.AgePatient = page::TexteAge(patient.DateNaissance, contexte.Reglages.Options,
                                            contexte.Dehors.Horloge.Aujourdhui());
    }
    if (contexte.Chemins.CheminMedecin != instantane.CheminMedecin) {
        RendLeMedecin(contexte, instantane.CheminMedecin);
    }
    Q_EMIT contexte.Signaux.ReglagesChanges();
    prescription::Repeint(contexte);
}

void EnregistreOptions(application::Contexte& contexte)
{
    const QString& chemin = contexte.Chemins.CheminMedecin;
    const bool avecMedecin = !chemin.isEmpty();
    if (avecMedecin) {
        EcritBaseCfg(contexte.Banque, chemin);
        EcritOptions(contexte.Reglages.Options, chemin);
        EcritDupli(contexte.Reglages.Dupli, chemin);
    }
    Q_EMIT contexte.Signaux.ReglagesChanges();
    if (contexte.Apercu.ModeApercu != 0) {
        contexte.Apercu.ModeApercu = 1;
        prescription::Repeint(contexte);
        return;
    }
    if (avecMedecin) {
        prescription::Repeint(contexte);
    } else {
        prescription::EffaceApercu(contexte);
    }
    Q_EMIT contexte.Signaux.FaceChange();
}

} // namespace settings
