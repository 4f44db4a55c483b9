#pragma once

#include "application/Contexte.h"
#include "page/LignesEntete.h"
#include "settings/RangsEntete.h"

#include <QStringView>

namespace settings {

/// The rows as every doctor's first database holds them.
RangsEntete PremiersRangs();

/// The rows over those of first use, each at its number; what a row leaves null stays.
RangsEntete RangsDe(const QList<page::LigneEntete>& lignes);

/// The rows as the painters read them.
QList<page::LigneEntete> LignesDe(const RangsEntete& rangs);

/// A margin as typed: the number that the text begins with, where a comma ends it; 0 without one.
float MargeTapee(QStringView texte);

/// The letterhead of first use, with the colour and the margins in force.
Entete PremiereEntete(const Reglages& reglages);

/// The stored letterhead of the current doctor, with the margins in force. `CouleurEntete` and
/// `NomSignature` take what is stored. Throws `Erreur`; nothing has changed then.
Entete ChargeEntete(application::Contexte& contexte);

/// Stores the letterhead: the 24 rows and the colour in the doctor's database, the margins in "Marges.cfg".
/// All of it or nothing: throws `Erreur`, and files and variables are as they were. At the end the
/// variables hold it, and the face of the main window is painted again.
void EnregistreEntete(application::Contexte& contexte, const Entete& entete);

/// Keeps for the rest of the run what the current doctor typed; nothing where it is what is stored.
void SuspendEntete(application::Contexte& contexte, const Entete& saisie, const Entete& stockee);

/// What `SuspendEntete` kept for the current doctor, or else what is stored.
Entete EnteteEnSuspens(const application::Contexte& contexte, const Entete& stockee);

} // namespace settings
