#pragma once

#include "bank/ThesaurusLiens.h"

#include <QSqlDatabase>

namespace banque {

/// How far the thesaurus reaches into the public files.
struct ChiffresThesaurus
{
    int Lues = 0;         ///< interactions read, as printed
    int SansNiveau = 0;   ///< printed, and not read
    int Interactions = 0; ///< pairs in the bank
    int Liees = 0;        ///< pairs with a public substance on both sides
    int Specialites = 0;  ///< marketed specialities, without what is registered or made for homeopathy
    int Verifiables = 0;  ///< those with a linked substance
    QStringList Desaccords;
    QStringList Uniques;

    /// The lines that an import prints, in French.
    QStringList Lignes() const;
};

/// The substances of a bank with all their spellings. Throws `common::Erreur`.
QList<SubstancePublique> ChargeSubstances(const QSqlDatabase& base);

/// The active substances and fractions that one line of a composition pairs. Throws `common::Erreur`.
QList<Fraction> ChargeFractions(const QSqlDatabase& base);

/// Writes entries, classes, links, interactions, source and edition into the tables of a bank. The caller's
/// transaction holds it. Throws `common::Erreur`.
void EcritThesaurus(const QSqlDatabase& base, const Thesaurus& thesaurus, const LiensThesaurus& liens);

/// Reads the thesaurus, links it to the substances of the bank, whose public files are already written, and
/// writes it there. Throws `common::Erreur` when a table refuses, or the text holds no interaction or is not
/// whole.
ChiffresThesaurus ImporteThesaurus(const QSqlDatabase& base, QByteArrayView texte);

} // namespace banque
