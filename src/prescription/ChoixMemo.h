#pragma once

#include "application/Contexte.h"
#include "prescription/Ordonnance.h"

/// What `FrmMemo` does to the prescription in hand.
namespace prescription {

class ListeMemo;

/// What was chosen in the lists, or stands for the prescription in hand.
struct MemoEnMain
{
    QString TitreMemo;
    std::optional<prescription::CleMemo> CleMemo;
};

MemoEnMain RetientMemo(const Ordonnance& ordonnance);
/// The lists are left without a loading: a memorised prescription in hand gets its own title back.
void RendMemo(Ordonnance& ordonnance, const MemoEnMain& avant);

/// The heading of a patient's list, his civility shortened: "Ordonnances pour Mme  DURAND  Anne".
QString TitreDuPatient(QString patient);

/// A row is chosen: `TitreMemo` is its title. A row that does not exist changes nothing.
void ChoisitMemo(Ordonnance& ordonnance, const ListeMemo& liste, int rang);

/// Adds the lines of the prescription chosen behind those in hand. `ald`: the stored `ChkALD`. Throws
/// `Erreur`, also when another station has deleted it; nothing is changed then.
void ChargeMemo(application::Contexte& contexte, quint8 ald);

/// Asks and deletes the prescription chosen, then takes its row out. True when that was done. The one in
/// hand is no memorised one any more when it was that. Throws `Erreur`; the row stays then, as does one
/// beyond the 99th, whose prescription is not found.
bool SupprimeMemo(application::Contexte& contexte, ListeMemo& liste, int rang, const MemoEnMain& enMain);

} // namespace prescription
