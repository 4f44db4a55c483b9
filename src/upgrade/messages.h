#pragma once

#include <QString>

/// What the upgrade of the databases says.
namespace upgrade::messages {

inline QString MajDue()
{
    return QStringLiteral(
        "Le programme doit faire la mise à jour des bases de données.\n\n"
        "Celle-ci doit se faire dans le répertoire \"DataScriptelle\" que vous utilisez pour ce programme, "
        "et "
        "qui se situe, selon votre choix :\n\n"
        "1- Sur votre disque dur (c'est le cas par défaut lors d'une première installation)\n"
        "2- Sur le serveur (en cas d'installation réseau déjà opérationnelle)\n"
        "3- Ou sur un support externe (comme une clef USB).");
}

inline QString TitreRepertoireMaJ()
{
    return QStringLiteral("Sélectionnez le répertoire \"DataScriptelle\" à mettre à jour");
}

inline QString RefaireEssai()
{
    return QStringLiteral("Ce n'est pas le bon répertoire, ou vous avez annulé.\n"
                          "Sans cette information, le programme ne peut fonctionner.\n\n"
                          "Voulez-vous refaire un essai ?");
}

inline QString ProcedureInterrompue()
{
    return QStringLiteral(" Procédure interrompue ; vous devrez relancer le programme et refaire le choix du "
                          "répertoire de votre base de travail.");
}

// The upgrade itself.

inline QString PatientezSupport()
{
    return QStringLiteral("Le programme va faire la mise à jour de vos bases de données, situées dans le "
                          "répertoire sélectionné sur votre support externe.\nPatientez ...");
}

inline QString PatientezDisque()
{
    return QStringLiteral("La nouvelle version du programme va faire la mise à jour de vos bases de données, "
                          "situées dans le répertoire sélectionné sur votre disque.\nPatientez ...");
}

inline QString NouveauParametre()
{
    return QStringLiteral("Un nouveau paramètre, le nom à afficher pour la signature électronique, est à "
                          "renseigner puis à enregistrer dans la feuille de mise en forme de l'en-tête.");
}

inline QString DatesNaissance()
{
    return QStringLiteral("Mise à jour des dates de naissance dans les ordonnances mémorisées.");
}

inline QString Terminee()
{
    return QStringLiteral("Mise à jour des bases terminée.");
}

inline QString AutreSupport()
{
    return QStringLiteral(
        "Si vous désirez utiliser un autre support pour travailler (clef, disque,serveur) , il faudra "
        "penser, en premier lieu, à tranférer les données du support utilisé vers le nouveau support. \n\n"
        "Faites cela à partir du bouton 'Outils / Transfert de données'");
}

inline QString AutreSupportApresDates()
{
    return QStringLiteral(
        "Si vous désirez utiliser un autre support pour travailler (clef, disque,serveur), il faudra "
        "penser, en premier lieu, à tranférer les données du support utilisé vers le nouveau support. \n\n"
        "Faites cela à partir du bouton 'Outils / Transfert de données'");
}

// What is being done, beside the bar.

inline QString CopieDe(const QString& fichier)
{
    return QStringLiteral("Mise à jour de « %1 »...").arg(fichier);
}

inline QString MiseEnPlace()
{
    return QStringLiteral("Mise en place des nouvelles bases...");
}

// What stops it.

inline QString Abandonnee(const QString& cause)
{
    return cause + QStringLiteral("\n\nLa mise à jour n'a pas été faite : vos bases de données sont telles "
                                  "qu'elles étaient, et vous pouvez travailler. Elle sera proposée de "
                                  "nouveau au prochain lancement.");
}

inline QString Inachevee(const QString& cause)
{
    return cause + QStringLiteral("\n\nLa mise à jour des bases de données n'est pas achevée. Rien n'est "
                                  "perdu : elle sera reprise au prochain lancement.");
}

inline QString EnCoursAilleurs()
{
    return QStringLiteral("Un autre poste fait en ce moment la mise à jour de ces bases de données. "
                          "Réessayez dans quelques minutes.");
}

inline QString ArbreEnLectureSeule()
{
    return QStringLiteral(
        "Le répertoire des bases de données ne peut pas être modifié : l'accès est refusé.");
}

inline QString ChangeePendant(const QString& nom)
{
    return QStringLiteral("La base de données « %1 » a été modifiée par un autre poste pendant la mise à "
                          "jour. Fermez Scriptelle sur les autres postes.")
        .arg(nom);
}

inline QString ModeleAbsent(const QString& nom)
{
    return QStringLiteral("Le modèle « %1 » du répertoire « BasesInstal » manque.").arg(nom);
}

inline QString Redemarrage()
{
    return QStringLiteral("Le programme doit redémarrer après la mise à jour.");
}

} // namespace upgrade::messages
