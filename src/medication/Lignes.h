#pragma once

#include "medication/Choix.h"
#include "medication/Noeud.h"
#include "prescription/Ordonnance.h"

#include <optional>

namespace medication {

/// The two lists of lines: 1 is `LstChoix1` with `OrdoZone1`, 2 the other one.
enum class Zone : quint8 { Un = 1, Deux = 2 };

constexpr Zone Autre(Zone zone)
{
    return zone == Zone::Un ? Zone::Deux : Zone::Un;
}

/// A text as a stored title: trimmed, and a lone "#" is "##", the line jump.
QString TitreStocke(const QString& texte);
using prescription::TitreMontre;

/// The rows of a zone and its array.
prescription::LignesZone& Lignes(prescription::Ordonnance& ordonnance, Zone zone);
QList<prescription::Entree>& Entrees(prescription::Ordonnance& ordonnance, Zone zone);

/// True when the boxes hold a line taken back from this zone, whose slot no row uses.
bool RepriseDe(const prescription::Ordonnance& ordonnance, const Choix& choix, Zone zone);

/// Adds a fresh line: a slot at the end of the array, a row at the end of the list.
void AjouteLigne(prescription::Ordonnance& ordonnance, Zone zone, const Saisie& saisie,
                 const QString& identifiant);
/// Writes the line taken back into its old slot and puts its row last. `OrigineEdition` becomes 0.
void RemetLigne(prescription::Ordonnance& ordonnance, Choix& choix, Zone zone, const Saisie& saisie);
/// Adds a line jump.
void AjouteSaut(prescription::Ordonnance& ordonnance, Zone zone);

/// A press on a row, -1 beside them: what the boxes show then, nothing when they stay.
std::optional<Saisie> PresseLigne(prescription::Ordonnance& ordonnance, Choix& choix, Zone zone, int rang);
/// A double click with that row selected: the line leaves its list for the boxes. -1 changes nothing.
std::optional<Saisie> ReprendLigne(prescription::Ordonnance& ordonnance, Choix& choix, Zone zone, int rang);
/// Takes a row to the end of the other zone, with what the boxes hold. False when `ListeSource` is not
/// its zone or the row does not exist.
bool PasseLigne(prescription::Ordonnance& ordonnance, const Choix& choix, Zone source, int rang,
                const Saisie& saisie);

/// Whether `ImgUp` and `ImgDown` show for a row; both false for -1.
struct Fleches
{
    bool ImgUp = false;
    bool ImgDown = false;
    bool operator==(const Fleches&) const = default;
};
Fleches FlechesDe(const prescription::LignesZone& lignes, int rang);

/// `NbMedZone1` and `NbMedZone2` from the rows: all but those whose title ends in "#".
void CompteMedicaments(prescription::Ordonnance& ordonnance);

/// Whether the second zone holds lines that the page, of one zone, leaves out.
bool ZoneHorsPage(const prescription::Ordonnance& ordonnance);

/// The two boxes of copies exclude each other: the state of one just clicked, 0 or 1.
void CocheDup(prescription::Ordonnance& ordonnance, quint8 etat);
void CocheTri(prescription::Ordonnance& ordonnance, quint8 etat);

} // namespace medication
