#pragma once

#include "Bilan.h"

#include <QDateTime>

#include <functional>

namespace utile {

/// What can be said of a database without opening it: its size, and why it will be left alone. One that will
/// not be has no `Apres`.
Bilan Regarde(const BaseTrouvee& base);

/// Checks one database, repairs it when it is damaged, compacts it, and keeps the former file beside with
/// `moment` in its name, in "Sauvegardes" of its tree where there is one. At each moment the former file or
/// the new one stands, whole. Throws nothing: a failure is told by the result.
Bilan Soigne(const BaseTrouvee& base, const QDateTime& moment);

/// The same with all of them. `commence` is asked before each, by its rank, and false leaves it and the rest;
/// `finie` takes what became of each.
void SoigneTout(const QList<BaseTrouvee>& bases, const QDateTime& moment,
                const std::function<bool(int rang)>& commence,
                const std::function<void(int rang, const Bilan&)>& finie);

} // namespace utile
