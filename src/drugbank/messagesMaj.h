#pragma once

#include <QString>

/// What the update of the open bank says to the doctor.
namespace drugbank::messages {

inline QString MajATelecharger(const QString& exiges, const QString& facultatifs)
{
    return QStringLiteral(
               "Sur le site de la « Base de données publique des médicaments », page « Téléchargement », "
               "enregistrez dans un même dossier, sans changer leur nom :\n%1.\n"
               "Facultatifs, pour les avis de la Haute Autorité de Santé : %2.")
        .arg(exiges, facultatifs);
}

inline QString MajThesaurus()
{
    return QStringLiteral("Facultatif : le « Thésaurus des interactions médicamenteuses » de l'ANSM, "
                          "enregistré en texte (.txt). "
                          "Sans lui, la base ne contient aucune interaction.");
}

inline QString MajTitreDossier()
{
    return QStringLiteral("Dossier des fichiers de la base publique");
}

inline QString MajTitreThesaurus()
{
    return QStringLiteral("Texte du thésaurus des interactions");
}

inline QString MajSansDossier()
{
    return QStringLiteral("Choisissez d'abord le dossier des fichiers.");
}

inline QString MajSansThesaurus(const QString& fichier)
{
    return QStringLiteral("Le fichier du thésaurus « %1 » n'existe pas.").arg(fichier);
}

inline QString MajBaseEnPlace(const QString& date)
{
    return QStringLiteral("Base en place : données du %1.").arg(date);
}

inline QString MajAucuneBase()
{
    return QStringLiteral("Aucune base publique n'est en place.");
}

inline QString MajCommence()
{
    return QStringLiteral("Lecture des fichiers ...");
}

inline QString MajAvance(const QString& fichier, const QString& faites, const QString& total)
{
    return QStringLiteral("%1 : %2 lignes sur %3").arg(fichier, faites, total);
}

inline QString MajAvanceFichier(const QString& fichier)
{
    return QStringLiteral("Lecture de %1 ...").arg(fichier);
}

inline QString MajSArrete()
{
    return QStringLiteral("Annulation en cours ...");
}

inline QString MajTerminee(const QString& date)
{
    return QStringLiteral("La base publique est à jour : données du %1.").arg(date);
}

inline QString MajAvecRefus(const QString& date, int lignes)
{
    return QStringLiteral(
               "La base publique est à jour : données du %1. %2 ligne(s) refusée(s), nommée(s) ci-dessous, "
               "n'y sont pas.")
        .arg(date)
        .arg(lignes);
}

inline QString MajAnnulee()
{
    return QStringLiteral("Mise à jour annulée : la base d'avant reste en place.");
}

inline QString MajEchouee(const QString& cause)
{
    return QStringLiteral("%1\nLa base d'avant reste en place.").arg(cause);
}

inline QString MajErreurInterne(const QString& detail)
{
    return QStringLiteral("La mise à jour a échoué (%1).").arg(detail);
}

inline QString MajSiteNonOuvert(const QString& adresse)
{
    return QStringLiteral("Le navigateur n'a pas pu être ouvert. Adresse du site : %1").arg(adresse);
}

inline QString MajBilanCopie()
{
    return QStringLiteral("Bilan copié.");
}

inline QString MajPlusAncienne(const QString& date)
{
    return QStringLiteral("Attention, ces données sont plus anciennes que celles qu'elles remplacent, du %1.")
        .arg(date);
}

inline QString BaseSansInteraction()
{
    return QStringLiteral("Elle ne contient aucune interaction : aucune ne sera signalée.");
}

inline QString BaseExtrait(const QString& nature)
{
    return QStringLiteral("Attention, ce n'est pas la base entière : %1.").arg(nature);
}

inline QString BaseIncomplete(int specialites)
{
    return QStringLiteral("Attention, ce n'est pas la base entière : elle ne contient que %1 médicament(s), "
                          "beaucoup y manquent.")
        .arg(specialites);
}

inline QString BaseExpiree(const QString& date)
{
    return QStringLiteral("Ces données ont expiré le %1.").arg(date);
}

} // namespace drugbank::messages
