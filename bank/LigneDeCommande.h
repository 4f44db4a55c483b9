#pragma once

#include "bank/Bilan.h"
#include "bank/Importateur.h"

#include <QStringList>
#include <optional>

namespace banque {

/// How the program ends.
enum class Fin {
    Importee = 0,
    Echec = 1,        ///< the former bank stands
    Usage = 2,        ///< the arguments are not understood
    AvecRefus = 3,    ///< imported, some lines refused
    Interrompue = 130 ///< the former bank stands
};

/// What the arguments behind the program's name ask for; nothing when they are not understood.
std::optional<Demande> LitArguments(const QStringList& arguments);

/// How the program is called, in French.
QString Usage();

/// The summary in French, one line a fact, refused lines and corrections at the end.
QString TexteBilan(const Bilan& bilan);

/// One line of a progress bar of the given width, in columns.
QString Barre(const QString& fichier, qint64 faites, qint64 total, int largeur = 30);

} // namespace banque
