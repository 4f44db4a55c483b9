#pragma once

#include "bank/InformationBanque.h"

#include <QStringList>
#include <optional>

namespace startup {
struct Chemins;
}

namespace drugbank {

/// The bank file that the open bank reads: the one that an update has left, else the one that came with the
/// program. It need not be there.
QString FichierBanquePublique(const startup::Chemins& chemins);

/// Where an update puts its bank file.
QString CheminBanqueMiseAJour(const startup::Chemins& chemins);

/// What the bank file in use says of itself; nothing without a file of ours.
std::optional<banque::InformationBanque> LitBanquePublique(const startup::Chemins& chemins);

/// What the doctor has to know before he relies on these data: an extract, no interactions, expired ones. A
/// sentence each.
QStringList Reserves(const banque::InformationBanque& information, const QDate& aujourdhui);

/// "31/03/2027", as dates are shown; "date inconnue" for none.
QString JourAffiche(const QDate& jour);

} // namespace drugbank
