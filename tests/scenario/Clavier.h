#pragma once

#include "scenario/Controles.h"

namespace scenario {

// What a hand does with the keyboard. Each runs in the window thread and throws `Echec`.

/// Gives the focus as Tab would.
void DonneFocus(const Controle& controle);

/// Types one character, of one or two code units, at the caret: the first into the control, one that follows
/// into what has the focus.
void TapeCaractere(const Controle& controle, const QString& caractere, bool suit);

/// Replaces the whole text at once.
void Saisit(const Controle& controle, const QString& texte);

/// One key by its French name, "Entree", "Ctrl+V", "F5".
void TapeTouche(const Controle& controle, const QString& nom);

} // namespace scenario
