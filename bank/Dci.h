#pragma once

#include "bank/Fiches.h"

#include <QHash>
#include <QList>
#include <QMap>
#include <QSet>

namespace banque {

/// The substances of the public compositions: every spelling of each code, and the common name (DCI) of a
/// medication's composition.
class Dci
{
public:
    /// To be given every component before anything is asked.
    void Apprend(const Composant& composant);

    /// The spellings of each code.
    const QMap<int, QMap<QString, int>>& Noms() const { return noms_; }
    /// The spelling of a code that is met most often; of several, the one without brackets.
    QString Nom(int code) const;

    /// What a doctor writes when prescribing by common name: for each substance of the composition, in the
    /// order of their link numbers, its therapeutic fraction ("AMLODIPINE", not "BÉSILATE D'AMLODIPINE"),
    /// else the active substance without water, and without its salt where the data know the substance alone.
    /// A fraction that is a mere element ("CALCIUM") gives way to the substance ("CARBONATE DE CALCIUM").
    /// Joined by ';', each once.
    QString De(const QList<Composant>& composition) const;

private:
    QStringList NomsDuLien(const QList<const Composant*>& lien) const;
    QString NomPrescrit(int code) const;
    QString SansSel(const QString& nom) const;
    bool Connue(const QString& nom) const;

    QMap<int, QMap<QString, int>> noms_;
    QSet<QString> seules_;                  ///< the names, folded
    mutable QHash<int, QString> prescrits_; ///< what was asked before
};

/// A substance's name in the order of speech: "TRAMADOL (CHLORHYDRATE DE)" is "CHLORHYDRATE DE TRAMADOL".
QString OrdreParle(const QString& nom);

} // namespace banque
