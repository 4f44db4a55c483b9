#pragma once

#include "scenario/Controles.h"

#include <QVariant>

namespace scenario {

enum class Geste { Clic, DoubleClic, ClicDroit };

// What a hand does with the mouse. Each runs in the window thread, on a control without `Obstacle`, and
// throws `Echec` when the mouse cannot reach it.

/// At the control's centre, or on a row of a list or tree. A menu entry is taken in its open menu, or run.
void Clique(const Controle& controle, Geste geste, const QVariant& rangee);

/// Chooses a row of a list, drop-down, tree or tab strip.
void Choisit(const Controle& controle, const QVariant& rangee);

/// Clicks the box when its state is another one.
void Coche(const Controle& controle, bool oui);

/// Places the caret with a left click at a character.
void PlaceCurseur(const Controle& controle, int caractere);

/// Drags a row onto another control.
void Glisse(const Controle& source, const QVariant& rangee, const Controle& cible);

} // namespace scenario
