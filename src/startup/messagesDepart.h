#pragma once

#include <QString>

/// What the main window and its small windows say.
namespace startup::messages {

inline QString DocumentAbsent(const QString& fichier)
{
    return QStringLiteral("Le fichier \"%1\" n'est pas installé.").arg(fichier);
}

inline QString DocumentSansLecteur(const QString& fichier)
{
    return QStringLiteral("Aucun programme de cet ordinateur n'ouvre le fichier \"%1\".").arg(fichier);
}

inline QString CourrierSansProgramme()
{
    return QStringLiteral("Aucun programme de courrier n'est réglé sur cet ordinateur.");
}

inline QString JournalVide()
{
    return QStringLiteral("Aucune ordonnance n'est encore inscrite dans le journal.");
}

inline QString AideDesMedecins()
{
    return QStringLiteral(
        "Choisissez un médecin dans la liste : tout le programme travaille alors avec ses réglages.\n\n"
        "Nouveau : inscrire un autre médecin.\n"
        "Supprimer de la liste : retirer le médecin choisi, avec ses réglages.\n"
        "Par défaut à l'ouverture : le médecin choisi sera proposé à chaque lancement.\n"
        "Sélectionner / Quitter : fermer cette fenêtre. Un double clic sur un nom fait de même.");
}

} // namespace startup::messages
