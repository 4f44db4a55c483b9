#pragma once

#include "startup/Chemins.h"
#include "startup/Medecins.h"

#include <QString>

namespace outside {
class Boites;
}

namespace startup {

/// The text as typed, trimmed and in capitals.
QString NomEnMajuscules(const QString& saisie);

/// True when the name begins with "DR " and can name a directory and stand in the list of doctors.
bool FormatMedecinJuste(const QString& nom);

/// The name without its hyphens, which the list cannot hold; says so when there was one.
QString NomSansTrait(outside::Boites& boites, const QString& nom);

/// Creates the doctor's directory below `racine` with "Logo" and, from `modele`, "Ordo.mdb". What stands
/// there already is kept. Gives the directory. Throws `Erreur`.
QString CreeDossierMedecin(const Chemins& chemins, const QString& racine, const QString& nom,
                           const QString& modele);

/// "BasesInstal\Ordo.mdb", the empty database of a doctor.
QString ModeleOrdo(const Chemins& chemins);

/// The row of a new doctor in the list.
void AjouteALaListe(Medecins& medecins, const QString& nom, int numero);

} // namespace startup
