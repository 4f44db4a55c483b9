#pragma once

#include "storage/Textes.h"

#include <QString>
#include <vector>

namespace patients {

/// Names with their keys, always in the order of a French reader: by the folded name, ties by the name
/// itself, then by the key. Made for 100 000 names: one block of text, fixed-size rows.
class Repertoire
{
public:
    /// Takes the place of what stood there. Keys beyond an int are none that the database gives.
    void Remplit(storage::Textes noms);

    int Nombre() const { return static_cast<int>(rangees_.size()); }
    int Index(int rang) const { return rangees_[size_t(rang)].Index; }
    QStringView Nom(int rang) const { return Nom(rangees_[size_t(rang)]); }

    /// The row where a name belongs.
    int Place(int index, QStringView nom) const;
    void Insere(int rang, int index, QStringView nom);
    void Retire(int rang) { rangees_.erase(rangees_.begin() + rang); }

    /// The first row whose trimmed name begins with the trimmed text, both in upper case, accents
    /// significant; -1 without one and for an empty text.
    int Cherche(QStringView texte) const;

private:
    struct Rangee
    {
        quint64 Repliee;
        quint64 Suite;
        quint64 Majuscule;
        int Index;
        quint32 Debut; // in noms_, as the length
        quint32 Longueur;
    };

    QStringView Nom(const Rangee& rangee) const
    {
        return QStringView(noms_).mid(rangee.Debut, rangee.Longueur);
    }
    static Rangee Prepare(int index, QStringView nom, quint32 debut);
    void Trie();
    bool Precede(const Rangee& a, const Rangee& b, QStringView nomDeB) const;

    QString noms_;
    std::vector<Rangee> rangees_;
};

} // namespace patients
