#pragma once

#include "page/Police.h"
#include "storage/Base.h"

#include <QList>

namespace page {

/// One row of the table `Entete`. A null column is told apart: what needs it is left undone.
struct LigneEntete
{
    int NumLigne = 0;
    QString Texte;
    page::Police Police;
    double Espaces = 0;     ///< the row's X, in the surface's units
    bool AvecTexte = true;  ///< the column is not null, as for the two below
    bool AvecPolice = true; ///< none of the font's columns is null
    bool AvecEspaces = true;
};

/// The rows of `Entete` in the order of `NumLigne`. Throws `Erreur`.
QList<LigneEntete> LitEntete(storage::Base& ordo);

} // namespace page
