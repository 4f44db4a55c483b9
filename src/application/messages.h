#pragma once

#include <QString>

/// What the program says about itself.
namespace application::messages {

inline QString ArretSurErreur(const QString& phrase, const QString& lieu)
{
    QString texte = QStringLiteral("Une erreur oblige Scriptelle à s'arrêter.\n\n") + phrase;
    if (!lieu.isEmpty()) {
        texte += QLatin1Char('\n') + lieu;
    }
    return texte;
}

inline QString OrdonnanceSauvee(const QString& fichier)
{
    return QStringLiteral("\n\nL'ordonnance en cours est conservée dans le fichier\n") + fichier;
}

inline QString OrdonnanceNonSauvee(const QString& phrase)
{
    return QStringLiteral("\n\nL'ordonnance en cours n'a pas pu être conservée : ") + phrase;
}

inline QString ErreurInterne(const QString& detail)
{
    return QStringLiteral("Erreur interne : ") + detail;
}

inline QString RedemarrageImpossible()
{
    return QStringLiteral("Scriptelle n'a pas pu être relancé. Relancez le programme vous-même.");
}

} // namespace application::messages
