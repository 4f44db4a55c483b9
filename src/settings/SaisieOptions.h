#pragma once

#include "application/Contexte.h"
#include "outside/Boites.h"
#include "page/Police.h"
#include "settings/Reglages.h"

#include <optional>

namespace settings {

/// What the options dialogue gives back on its cancel: twenty switches and three texts, no more.
struct Instantane
{
    settings::Options Options;
    qint32 ProduitBanque = 0;
    QString TypeBase;
    QString CheminMedecin;
};

/// Taken at the loading of the dialogue, with `BaseInitiale`; no picture is in hand then.
Instantane PrendInstantane(application::Contexte& contexte);

/// `CmdAnnule`: puts the snapshot back, the doctor of that time included, and repaints the page.
void RestaureInstantane(application::Contexte& contexte, const Instantane& instantane);

/// What the controls hold at `CmdOK`, as far as they have not acted already; boxes as typed.
struct SaisieOptions
{
    bool ReduitLancement = false;
    bool MinimiseImpression = false;
    QString Imprimante;
    bool BaseChoisie = false; ///< one of `OptB` is selected
    bool ReliefMedUtilises = false;
    bool ChkLog = false;
    bool AvecImage = false; ///< `Img` holds a picture
    QString TxtH;
    QString TxtL;
    QString TxtX;
    QString TxtY;
    bool ChkDup = false;
    QString LblDup; ///< with its star
    page::Police PoliceDupli;
    page::Couleur CouleurDupli = page::kNoir;
    QString TxtDupX;
    QString TxtDupY;
};

/// Why `CmdOK` stops, on which tab, and the control that gets the focus.
struct RefusOptions
{
    outside::Genre Genre = outside::Genre::Exclamation;
    QString Texte;
    int Onglet = 1;
    QString Controle;
};

/// The first reason against saving, in the order of the tests; nothing when all is well.
std::optional<RefusOptions> RefusDeLaSaisie(const SaisieOptions& saisie);

/// The rest of an accepted `CmdOK`: the variables take the controls' values, then "Base.cfg", "Options.cfg",
/// "Dupli.cfg" in the doctor's directory, in that order, then page and face. Another base than at loading
/// makes the picker fill its tree again. Without a doctor no file is written and no page painted.
/// Throws `Erreur`.
void EnregistreOptions(application::Contexte& contexte, const SaisieOptions& saisie);

} // namespace settings
