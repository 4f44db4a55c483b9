#pragma once

#include "page/Police.h"
#include "storage/Base.h"

#include <QList>
#include <bitset>

namespace page {

enum ColonneEntete {
    kNumLigne,
    kTexte,
    kPolice,
    kTaille,
    kGras,
    kItalique,
    kSouligne,
    kEspaces,
    kNbColonnesEntete
};

constexpr int kBasDePage = 22; ///< number of the row printed at the foot of the page

/// One row of the table `Entete`.
struct LigneEntete
{
    int NumLigne = 0;
    QString Texte;
    page::Police Police;
    double Espaces = 0; ///< the row's X, in the surface's units
    std::bitset<kNbColonnesEntete> Nulles =
        {}; ///< the columns that are null: what one of them would set is left undone

    /// The row's font; what the row leaves null stays as in the font before.
    page::Police PoliceApres(const page::Police& avant) const;
};

/// The rows of `Entete` in the order of `NumLigne`. Throws `Erreur`.
QList<LigneEntete> LitEntete(storage::Base& ordo);

/// The row of the foot of the page, the last one when a table holds it twice; null without one.
const LigneEntete* LigneBasDePage(const QList<LigneEntete>& lignes);

} // namespace page
