#pragma once

#include <QHash>
#include <QList>
#include <QPair>
#include <QString>
#include <QStringList>

namespace banque {

/// How strongly an interaction binds, as the bank stores it.
enum class Niveau { APrendreEnCompte = 0, PrecautionDEmploi = 1, Deconseillee = 2, ContreIndication = 3 };

/// A substance or class of the thesaurus. Its number is its place in the list.
struct EntreeThesaurus
{
    QString Nom; ///< as the document writes it first
    QString Cle; ///< `CleDeNom` of the name
    bool Classe = false;
};

/// A pair of entries with its texts, told once although the document prints it under both.
struct Interaction
{
    int A = 0; ///< places in `Thesaurus::Entrees`
    int B = 0;
    banque::Niveau Niveau = banque::Niveau::APrendreEnCompte; ///< the highest, when it depends on conditions
    bool Autre = false;          ///< needs two different substances: "AUTRES X" under X
    bool Conditionnelle = false; ///< the advice begins with the levels and tells which holds when
    QString Risque;
    QString Precaution;
};

/// What the reading and its check against itself have found.
struct BilanThesaurus
{
    int Lues = 0;           ///< interactions printed under a heading and read with a level
    int SansNiveau = 0;     ///< printed, but no level could be read: not in the bank
    QStringList Uniques;    ///< pairs printed under one of their sides only
    QStringList Desaccords; ///< pairs whose two printings differ, or names that lead nowhere
};

/// The whole document.
struct Thesaurus
{
    QString Edition;      ///< "septembre 2023"; empty when the document does not say
    QString VoiesLocales; ///< what the document says of local routes as a whole; empty when it says nothing
    QList<EntreeThesaurus> Entrees;
    QHash<QString, int> ParCle;
    QList<QPair<int, int>> Appartenances; ///< class, member; each pair once
    QList<Interaction> Interactions;
    BilanThesaurus Bilan;

    /// The place of an entry by its name, -1 when there is none.
    int Place(const QString& nom) const;
};

/// Reads the text of the thesaurus: UTF-8 or Windows-1252, page layout kept, pages parted by form feeds.
/// Never fails: what is not understood is told in the summary.
Thesaurus LitThesaurus(QByteArrayView texte);

} // namespace banque
