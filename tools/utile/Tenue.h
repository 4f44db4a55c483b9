#pragma once

#include <QSqlDatabase>
#include <QString>

namespace utile {

/// A database file that nobody else can open while this object lives. A journal that an interrupted program
/// left is played by the opening, as by any other.
class Tenue
{
public:
    enum class Etat {
        Tenue,
        Occupee,  ///< somebody reads or writes it
        Illisible ///< the engine cannot read it: nothing is held
    };

    explicit Tenue(const QString& chemin);
    ~Tenue();
    Tenue(const Tenue&) = delete;
    Tenue& operator=(const Tenue&) = delete;

    Etat EtatActuel() const { return etat_; }
    /// Whether the engine finds nothing wrong in the whole file.
    bool EstIntegre();
    /// A number that a pragma gives; 0 when it fails.
    qint64 Nombre(const QString& pragma);
    /// The number of rows of each table, by name and number. Throws `Erreur`.
    QList<std::pair<QString, qint64>> Lignes();
    /// Writes all of it, compact, into a new file. Throws `Erreur`.
    void CompacteVers(const QString& ebauche);
    void Libere();

private:
    QString chemin_;
    QString connexion_;
    QSqlDatabase base_;
    Etat etat_ = Etat::Illisible;
};

/// The name of the program of this computer that has the file open; empty when none is known to.
QString ProgrammeQuiTient(const QString& chemin);

} // namespace utile
