#pragma once

#include "storage/Genre.h"

#include <QList>
#include <QString>

namespace utile {

/// A database of a tree.
struct BaseTrouvee
{
    QString Chemin;
    storage::GenreBase Genre = storage::GenreBase::Medoc;
    QString Arbre;
};

/// How the work on a database ended.
enum class Issue {
    Saine,   ///< nothing was lost, whatever was repaired
    Attente, ///< left alone, and nothing needs to be done
    Laissee, ///< left alone: somebody must do something
    Pertes   ///< repaired, with rows or texts that could not be read
};

/// The rows of a table after a repair.
struct BilanTable
{
    QString Nom;
    qint64 Gardees = 0;
    qint64 Perdues = 0;
    bool AuPlus = false;  ///< `Perdues` is the most that it can be
    bool Inconnu = false; ///< rows are lost and nothing tells how many
    qint64 Incompletes = 0;

    bool Entiere() const { return !Perdues && !Inconnu && !Incompletes; }
};

/// What became of one database.
struct Bilan
{
    BaseTrouvee Base;
    utile::Issue Issue = Issue::Laissee;
    QString Avant;
    QString Apres;
    QString Phrase; ///< what the doctor should know besides; may be empty
    qint64 TailleAvant = 0;
    qint64 TailleApres = 0;
    QString Copie; ///< the path of the former file, empty when nothing was changed
    QList<BilanTable> Tables;
};

} // namespace utile
