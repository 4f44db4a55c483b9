#pragma once

#include "page/Police.h"
#include "storage/Schema.h"

#include <array>

namespace settings {

constexpr int kRangSignature = 23; ///< the name shown for the electronic signature

/// One row of the letterhead as the designer holds it.
struct RangEntete
{
    QString Texte; ///< with its end marker; lines are parted by CR LF
    page::Police Police;
    qint16 EspacesLigne = 0; ///< the indentation
    bool operator==(const RangEntete&) const = default;
};

using RangsEntete = std::array<RangEntete, storage::kLignesEntete>;

/// All that `CmdEnregistrer` stores.
struct Entete
{
    RangsEntete Rangs;
    page::Couleur Couleur = page::kNoir;
    float MargeGauche = 0; ///< millimetres, as the two below
    float MargeHaute = 0;
    float MargeBas = 0;
    bool operator==(const Entete&) const = default;
};

} // namespace settings
