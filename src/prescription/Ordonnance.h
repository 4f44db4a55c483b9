#pragma once

#include "prescription/CleMemo.h"
#include "prescription/LignesZone.h"

#include <optional>

namespace prescription {

/// A medication line and the text under it, with their markers.
struct Entree
{
    QString Titre;
    QString Posologie;
    bool operator==(const Entree&) const = default;
};

/// The prescription in hand. The arrays are the store, with dead slots; the rows give the order.
struct Ordonnance
{
    QList<Entree> OrdoZone1;
    QList<Entree> OrdoZone2;
    LignesZone LstChoix1;
    LignesZone LstChoix2;
    quint8 NbMedZone1 = 0; ///< counted by `CmdOrdo` only
    quint8 NbMedZone2 = 0;
    quint8 ChkALD = 0; ///< 1: two zones
    quint8 ChkDup = 0;
    quint8 ChkTri = 0;
    quint8 ChkCiv = 1; ///< 1: the name is printed with its civility
    quint8 OrdoMemorisee = 0;
    QString TitreMemo;
    /// Where `TitreMemo` stands in the tables; nothing when its row stood beyond the 99th of its list.
    std::optional<prescription::CleMemo> CleMemo;
    bool AncienFormat = false; ///< a row of the last loading may date from before product ids were stored
    QString LigneJournal;      ///< of the last painting
};

} // namespace prescription
