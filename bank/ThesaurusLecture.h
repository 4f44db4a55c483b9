#pragma once

#include <QByteArrayView>
#include <QList>
#include <QString>
#include <QStringList>

namespace banque {

/// An interaction as it is printed under a heading: "+ X", the mechanism, the level, the advice.
struct CoteImprime
{
    QString Nom;
    QString Niveaux; ///< empty when none could be read
    QString Risque;
    QString Precaution;
    int Ligne = 0; ///< from 1
};

/// A heading with what stands below it.
struct TitreImprime
{
    QString Nom;
    QStringList Membres;
    QStringList VoirAussi;
    QString Introduction; ///< what the document says of the class as a whole
    QList<CoteImprime> Cotes;
};

/// The document as it is printed.
struct DocumentImprime
{
    QString Edition;
    QString VoiesLocales; ///< what the cover says of local routes; empty when it says nothing
    QList<TitreImprime> Titres;
    int CotesSansTitre = 0; ///< interactions before the first heading
};

/// Reads the printed document; see `LitThesaurus`.
DocumentImprime LitDocument(QByteArrayView texte);

} // namespace banque
