#pragma once

#include "Bilan.h"
#include "PagesSqlite.h"
#include "Tenue.h"

#include <QDateTime>
#include <QFile>

namespace utile {

class Releve;

/// The work on one database file, which stands and is none of those that `Regarde` leaves.
class Chantier
{
public:
    Chantier(Bilan& bilan, const QDateTime& moment);
    Chantier(const Chantier&) = delete;
    Chantier& operator=(const Chantier&) = delete;

    /// Throws `Erreur`; the former file stands then.
    void Execute();

    /// What the draft of the new file is called behind the file's own name.
    static QString SuffixeEbauche() { return QStringLiteral(".utile.tmp"); }

private:
    struct EtatFichier
    {
        qint64 Taille;
        QDateTime Heure;
        bool operator==(const EtatFichier&) const = default;
    };

    EtatFichier EtatDuFichier() const;
    void Laisse(const QString& etat, const QString& phrase);
    void LaisseOccupee(const QString& programme);
    void Soigne();
    bool EstLaNotre(const PagesSqlite& entete);
    bool Compacte(int version);
    void Repare(const QString& etat);
    void DitLeResultat(const PagesSqlite& pages, const Releve& releve);
    void ExigeEbauche(const QList<BilanTable>& tables) const;
    void MetEnPlace();
    void RetireCopie();
    void RetireEbauches() const;

    Bilan& bilan_;
    QDateTime moment_;
    QString ebauche_;
    /// Open as long as the file is held: closing any other opening of it would let the lock go.
    QFile fichier_;
    Tenue* tenue_ = nullptr;
    EtatFichier avant_{0, {}};
    bool journal_ = false; ///< an interrupted program left one
};

} // namespace utile
