#pragma once

#include "Arbres.h"

namespace utile {

/// What ends the program without a window.
enum Code {
    kBon = 0,        ///< every database is sound, or will be converted
    kAttention = 1,  ///< something was lost, left alone or not there
    kSansDonnees = 2 ///< no tree is known
};

/// A size as it is read: "312 Ko", "4,2 Mo".
QString Taille(qint64 octets);

/// What became of one database, a paragraph without its name.
QString Detail(const Bilan& bilan);

/// The line of a tree.
QString LigneArbre(const Arbre& arbre);

/// All of it as text.
QString Rapport(const QList<Arbre>& arbres, const QList<Bilan>& bilans);

/// The exit code that goes with it.
Code CodeDe(const QList<Arbre>& arbres, const QList<Bilan>& bilans);

} // namespace utile
