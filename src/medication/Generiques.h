#pragma once

#include "application/Contexte.h"

#include <QString>

/// The generics of the pack last clicked, which `FrmGEN` shows.
namespace medication {

struct Choix;

/// `RechercheGeneriques`: fills `LstGen` with the generic groups of the product of `InfoPack`. True when it
/// has rows.
bool RechercheGeneriques(application::Contexte& contexte);

/// The message where there is nothing to choose from.
QString SansGenerique(const application::Contexte& contexte);

/// The caption of the window: the medication in hand and the price of the pack last clicked.
QString TitreGeneriques(const Choix& choix, const QString& nom);

/// What the name in hand becomes by a row of the list: its text without the price, 30 blanks behind it.
QString NomDuGenerique(const QString& rang);

} // namespace medication
