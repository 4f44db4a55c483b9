#pragma once

#include <QString>

namespace scenario {

/// The directories of one world.
class Monde
{
public:
    /// A fresh world in `racine`, whose former one is removed; `installation` is copied into the program
    /// directory. Throws `Echec` when it cannot be made.
    static Monde Cree(const QString& racine, const QString& installation);
    /// The world that stands in `racine`.
    explicit Monde(const QString& racine) : racine_(racine) {}

    const QString& Racine() const { return racine_; }
    QString Programme() const { return racine_ + QStringLiteral("/programme"); }
    QString Utilisateur() const { return racine_ + QStringLiteral("/utilisateur"); }
    /// The account's home: what the program would write outside of its own directories lands here.
    QString Maison() const { return racine_ + QStringLiteral("/maison"); }
    /// True for a path inside the world.
    bool Contient(const QString& chemin) const;

private:
    QString racine_;
};

} // namespace scenario
