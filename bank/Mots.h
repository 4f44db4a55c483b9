#pragma once

#include <QList>
#include <QString>
#include <QStringList>

namespace banque {

/// The words of a name as the search knows them: folded (upper case, no accents), letters and digits parted
/// ("B12" is "B", "12"), a decimal comma or point inside its number ("2,5").
QStringList Mots(const QString& nom);

/// A word and its place in the name, from 0.
struct MotPlace
{
    QString Mot;
    int Place = 0;
};

/// The words of a name to be found. Numbers in groups of three digits stand as one too ("1 000" is "1", "000"
/// and "1000"), and grams as milligrams ("1 g" is "1", "G" and "1000").
QList<MotPlace> MotsATrouver(const QString& nom);

/// How the words of a question can be meant, most likely first: grams as milligrams, groups of three digits
/// as one number, all neighbouring numbers as one being typed, every word by itself, "cp" and "µg" as whole
/// words.
QList<QStringList> Lectures(const QString& question);

/// A key that sorts names as a reader does, numbers by their size.
QString CleNaturelle(const QString& nom);

} // namespace banque
