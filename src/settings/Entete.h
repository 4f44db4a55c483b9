#pragma once

#include "application/Contexte.h"
#include "page/LignesEntete.h"
#include "storage/Schema.h"

#include <QStringView>
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

/// The rows as every doctor's first database holds them.
RangsEntete PremiersRangs();

/// The rows over those of first use, each at its number; what a row leaves null stays.
RangsEntete RangsDe(const QList<page::LigneEntete>& lignes);

/// The rows as the painters read them.
QList<page::LigneEntete> LignesDe(const RangsEntete& rangs);

/// A margin as typed: the number that the text begins with, where a comma ends it; 0 without one.
float MargeTapee(QStringView texte);

/// The stored letterhead of the current doctor, with the margins in force. `CouleurEntete` and
/// `NomSignature` take what is stored. Throws `Erreur`; nothing has changed then.
Entete ChargeEntete(application::Contexte& contexte);

/// Stores the letterhead: the 24 rows and the colour in the doctor's database, the margins in "Marges.cfg".
/// All of it or nothing: throws `Erreur`, and files and variables are as they were. At the end the
/// variables hold it, and the face of the main window is painted again.
void EnregistreEntete(application::Contexte& contexte, const Entete& entete);

} // namespace settings
