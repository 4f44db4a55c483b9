#pragma once

#include "upgrade/MajBases.h"

namespace upgrade {

/// What became of an upgrade that the start found due.
enum class SuiteMaj { PasDue, Faite, Renonce, Abandonnee };

/// Finishes or undoes what an upgrade cut short left in a tree, before anything else is read there. A tree
/// without such a thing is not touched. Throws `Erreur`.
void ReprendMaj(const application::Contexte& contexte, const QString& arbre, Suivi suivi = {});

/// When "Copie de Medoc.mdb" stands in `CheminData`: lays out the templates, asks for the tree and upgrades
/// it. `Renonce` when the doctor names none and the program ends; `Abandonnee` when it was given up, which
/// has been told: the work goes on with the databases as they were, and the upgrade stays due. Throws
/// `Erreur` when a tree is half way, for the next start to finish.
SuiteMaj FaitMajDue(application::Contexte& contexte, const EcransMaj& ecrans);

/// After an upgrade: closes the databases, removes the tray icon, says that the program starts anew and
/// starts it; this one is to end then.
void Redemarre(application::Contexte& contexte);

} // namespace upgrade
