#pragma once

#include "drugbank/LiaisonAide.h"
#include "drugbank/LiaisonBanque.h"

#include <QDateTime>
#include <memory>

namespace startup {
struct Chemins;
}

namespace drugbank {

/// The helper library, of the program's directory first, then by its name alone; null when there is none.
std::shared_ptr<LiaisonAide> ChargeAide(const startup::Chemins& chemins);

/// The library of that path; null when it cannot be loaded.
std::shared_ptr<LiaisonBanque> ChargeBanque(const QString& chemin);

/// The library of the open bank beside the program, without the suffix of the system's libraries.
QString CheminBanquePublique(const startup::Chemins& chemins);

/// Tells the open bank which bank file to read.
void ChoisitFichierPublic(const LiaisonBanque& banque, const startup::Chemins& chemins);

/// True when a library of the open bank lies beside the program, loadable or not.
bool BanquePubliquePresente(const startup::Chemins& chemins);

/// 1970-01-01 plus that many seconds, of no time zone.
QDateTime DateUnix(qint32 secondes);

/// The expiry date of the data, "31/03/2027"; empty when the library does not tell it.
QString DateExpiration(const LiaisonBanque& banque, Poignee session);

/// The version of the library in `version`; its status, 0 when all is well. A library without the function
/// fails.
Entier LitVersion(const LiaisonBanque& banque, QString& version);

/// The status of a start that the library has not ended.
inline constexpr Entier kStatutEnCours = 14;

/// The status of a function that the library lacks.
inline constexpr Entier kSansFonction = -1;

} // namespace drugbank
