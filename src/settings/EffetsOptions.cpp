#include "settings/EffetsOptions.h"

#include "application/Signaux.h"
#include "outside/Horloge.h"
#include "outside/Plateau.h"
#include "page/Peintres.h"
#include "patients/Patient.h"
#include "prescription/Apercu.h"
#include "prescription/Editeur.h"
#include "startup/DemarrageAuto.h"

#include <algorithm>

namespace settings {

namespace {

bool MemeTexte(const page::Item& a, const page::Item& b)
{
    const auto* texteA = std::get_if<page::ItemTexte>(&a);
    const auto* texteB = std::get_if<page::ItemTexte>(&b);
    return texteA && texteB && texteA->Texte == texteB->Texte && texteA->X == texteB->X &&
           texteA->Y == texteB->Y;
}

// What stands on the certificate already is not printed over itself.
void AjouteLePied(application::Contexte& contexte)
{
    QList<page::LigneEntete> entete;
    page::Modele modele = prescription::ModelePage(contexte, entete);
    page::Surface pied(page::Cible::Apercu);
    page::PeintOrdo(pied, modele);
    QList<page::Item>& feuille = contexte.Apercu.PctOrdo.Items;
    for (const page::Item& item : pied.Resultat().Items) {
        const auto meme = [&item](const page::Item& autre) { return MemeTexte(autre, item); };
        if (std::ranges::none_of(feuille, meme)) {
            feuille.append(item);
        }
    }
    Q_EMIT contexte.Signaux.ApercuChange();
}

void Regle(application::Contexte& contexte, quint8 Options::*commutateur, bool oui)
{
    contexte.Reglages.Options.*commutateur = oui ? 1 : 0;
}

} // namespace

void RafraichitPage(application::Contexte& contexte)
{
    if (contexte.Apercu.ModeApercu == 1) {
        AjouteLePied(contexte);
    } else {
        prescription::Repeint(contexte);
    }
}

void RegleSurLaPage(application::Contexte& contexte, quint8 Options::*commutateur, bool oui)
{
    Regle(contexte, commutateur, oui);
    RafraichitPage(contexte);
}

void RegleAge(application::Contexte& contexte, bool oui)
{
    Regle(contexte, &Options::AfficheAge, oui);
    RecalculeAge(contexte);
    RafraichitPage(contexte);
}

void RegleLancement(application::Contexte& contexte, bool oui)
{
    Regle(contexte, &Options::LanceDemarrage, oui);
    startup::RegleDemarrageSysteme(contexte);
}

void RegleRegle(application::Contexte& contexte, bool oui)
{
    Regle(contexte, &Options::AfficheRegle, oui);
    Q_EMIT contexte.Signaux.ReglagesChanges();
}

void RegleIcone(application::Contexte& contexte, bool oui)
{
    Regle(contexte, &Options::IconeHorloge, oui);
    outside::Plateau& plateau = contexte.Dehors.Plateau;
    if (!oui) {
        plateau.Retire();
    } else if (plateau.Present()) {
        plateau.Ajoute(QStringLiteral("Scriptelle"));
    }
}

void RegleJournal(application::Contexte& contexte, bool oui)
{
    Regle(contexte, &Options::TenirJournal, oui);
    Q_EMIT contexte.Signaux.ReglagesChanges();
}

void RegleBarreMenu(application::Contexte& contexte, int barre)
{
    contexte.Reglages.Options.BarreMenu = static_cast<quint8>(barre);
    Q_EMIT contexte.Signaux.ReglagesChanges();
}

void RecalculeAge(application::Contexte& contexte)
{
    patients::Patient& patient = contexte.Patient;
    patient.AgePatient = page::TexteAge(patient.DateNaissance, contexte.Reglages.Options,
                                        contexte.Dehors.Horloge.Aujourdhui());
}

} // namespace settings
