#pragma once

#include "bank/Bilan.h"
#include "common/Erreur.h"

#include <QDate>

namespace banque {

/// What to import and where to.
struct Demande
{
    QString Dossier;           ///< of the public files, under their published names
    QString Vers;              ///< the bank file
    QString Interactions = {}; ///< the text of the thesaurus of interactions; without it the bank has none
    QDate DateDonnees = {};    ///< the day the files were published; else the newest date that they hold
    QString Nature = {};       ///< what the data are when they are not the whole public base, in French
    /// Called when the new bank is whole, right before it takes the place of the former one: whoever has that
    /// one open closes it here. What it throws leaves the former one.
    std::function<void()> AvantRemplacement = {};
};

/// The import was interrupted by its caller.
class Interruption : public common::Erreur
{
    using common::Erreur::Erreur;
};

/// Reads the public files of a directory into a new bank that takes the place of the former one when it is
/// whole. Lines that cannot be read are refused one by one, and said; a file that is missing or holds
/// something else fails the import. Throws `Erreur`, `Interruption` when `avancement` answers false: the
/// former bank stands then.
Bilan Importe(const Demande& demande, const Avancement& avancement = {});

} // namespace banque
