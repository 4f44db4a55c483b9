#pragma once

#include <QHash>
#include <QList>
#include <QSqlDatabase>
#include <QString>
#include <optional>

namespace banque {

/// A pack on the market, as the search finds it.
struct PackTrouve
{
    qint32 Id = 0;
    qint32 Cis = 0;
    QString Cip7;
    QString Cip13;
    QString Nom;                ///< the medication's name and the pack's label
    std::optional<double> Prix; ///< in euros, fee included; none when it is free
    std::optional<int> Taux;    ///< in percent
    bool Homeopathie = false;
};

/// A stretch of what a search found.
struct PageTrouvee
{
    QList<PackTrouve> Packs;
    int Total = 0; ///< of all pages
};

/// The search over the packs of a bank that are on the market. Every word of the question begins a word of
/// the medication's name, accents and case folded. The words are read once, at the opening.
class Recherche
{
public:
    /// Reads the words of an open bank. Throws `Erreur` when it cannot be read.
    explicit Recherche(const QSqlDatabase& base);

    /// A page of what was found, best first: names that begin with the question, whole words, words in front,
    /// then the names in their order and the packs by size. `page` counts from 0. Nothing is found for a
    /// question without a word. `base` is the same bank, on any connection. Throws `Erreur` when it cannot
    /// be read.
    PageTrouvee Cherche(const QSqlDatabase& base, const QString& question, int page = 0,
                        int parPage = 50) const;

private:
    struct Mot
    {
        QString Texte;
        QList<quint32> Places;
    };
    struct Nom
    {
        QList<quint32> Packs;
    };
    struct Trouve
    {
        quint32 Note = 0; ///< the smaller, the better
        quint32 Rang = 0;
    };

    QList<Trouve> Noms(const QStringList& mots) const;
    void Note(const QString& debut, bool premier, QList<quint32>& notes) const;

    QList<Mot> mots_; ///< sorted
    QList<Nom> noms_; ///< by rank
};

} // namespace banque
