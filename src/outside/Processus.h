#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <functional>

namespace outside {

/// A program that runs beside ours and hands over on its standard output what it finds.
struct Tache
{
    QString Programme;
    QStringList Arguments;
    QString Dossier;            ///< where it runs; a file's bare name then serves as its argument
    int SilenceMax = 30 * 1000; ///< milliseconds without a word before it is ended
};

enum class FinTache {
    Bonne,       ///< it ended by itself, with 0
    NonLancee,   ///< it is missing or may not be run
    Mauvaise,    ///< it crashed, was killed or ended with another number
    Muette,      ///< it was silent for too long and was ended
    Interrompue, ///< `recoit` or `poursuit` said so and it was ended
};

struct IssueTache
{
    FinTache Fin = FinTache::NonLancee;
    int Code = 0; ///< the number it ended with, of `Mauvaise`; 0 of a crash
};

/// Runs a program to its end; events are delivered meanwhile, so that windows go on painting. `recoit` gets
/// each piece of its output and `poursuit` is asked several times a second: false ends the program, and so
/// does what they throw, which is thrown on then.
IssueTache SuitTache(const Tache& tache, const std::function<bool(const QByteArray&)>& recoit,
                     const std::function<bool()>& poursuit);

} // namespace outside
