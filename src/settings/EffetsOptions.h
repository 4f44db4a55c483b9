#pragma once

#include "application/Contexte.h"
#include "settings/Reglages.h"

namespace settings {

/// What the switches of the options do at once: each sets its variable and shows the effect, before anything
/// is written.

/// The page behind the dialogue: patient block and body anew; on a certificate the footer alone is added.
void RafraichitPage(application::Contexte& contexte);

/// A switch of the page: its variable, then the page.
void RegleSurLaPage(application::Contexte& contexte, quint8 Options::*commutateur, bool oui);
/// `ChkA`: `AgePatient` follows before the page.
void RegleAge(application::Contexte& contexte, bool oui);
/// `ChkL`: the start with the system.
void RegleLancement(application::Contexte& contexte, bool oui);
/// `ChkR`: the ruler of the editor.
void RegleRegle(application::Contexte& contexte, bool oui);
/// `ChkIcone`: the icon beside the clock, where the desktop has a place for it.
void RegleIcone(application::Contexte& contexte, bool oui);
/// `ChkJournal`: the journal and its menu entry.
void RegleJournal(application::Contexte& contexte, bool oui);
/// `Opt`: the menu bar of the editor, 0 or 1.
void RegleBarreMenu(application::Contexte& contexte, int barre);

/// `AgePatient` from the birth date and the switches as they are.
void RecalculeAge(application::Contexte& contexte);

} // namespace settings
