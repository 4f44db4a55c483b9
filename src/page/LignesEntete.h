#pragma once

#include "page/Police.h"
#include "storage/Base.h"

#include <QList>

namespace page {

/// One row of the table `Entete`. A null column is recorded as missing: what needs it is left undone.
struct LigneEntete
{
    int NumLigne = 0;
    QString Texte;
    page::Police Police;
    double Espaces = 0; ///< the row's X, in the surface's units
    bool Complete = true; ///< no column was null
};

/// The rows of `Entete` in the order of `NumLigne`. Throws `Erreur`.
QList<LigneEntete> LitEntete(storage::Base& ordo);

} // namespace page
