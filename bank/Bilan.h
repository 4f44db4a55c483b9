#pragma once

#include <QList>
#include <QMap>
#include <QString>
#include <functional>

namespace banque {

/// What an import has to say of one line of a file.
struct Remarque
{
    enum class Genre {
        Refusee, ///< the line is not in the bank
        Corrigee ///< the line is in the bank, one of its values is not or was put right
    };

    Genre Genre = Genre::Refusee;
    int Ligne = 0; ///< from 1
    QString Motif;
};

/// What became of one file's lines. Read = kept + refused + the sum of those set aside.
struct BilanFichier
{
    QString Nom;
    int Lues = 0; ///< blank lines do not count
    int Vides = 0;
    int Gardees = 0;
    int Refusees = 0;
    QMap<QString, int> Ecartees =
        {}; ///< lines without fault that say nothing of the bank's medications, by reason
    QList<Remarque> Remarques = {};
};

/// The summary of an import.
struct Bilan
{
    QList<BilanFichier> Fichiers;
    QStringList Avertissements; ///< files passed over or absent
    QStringList Interactions;   ///< what became of the thesaurus, in French
    QString DateDonnees;        ///< aaaa-mm-jj

    bool AUnRefus() const
    {
        return std::any_of(Fichiers.begin(), Fichiers.end(),
                           [](const BilanFichier& fichier) { return fichier.Refusees > 0; });
    }
};

/// Told of each stretch of an import: the file, its lines done and their number. False interrupts the import.
using Avancement = std::function<bool(const QString& fichier, qint64 faites, qint64 total)>;

} // namespace banque
