#pragma once

#include <QString>

/// What a database says of itself.
namespace storage::messages {

inline QString BaseAbsente(const QString& nom)
{
    return QStringLiteral("La base de données « %1 » n'existe pas.").arg(nom);
}

inline QString BaseIllisible(const QString& nom)
{
    return QStringLiteral("La base de données « %1 » ne peut pas être ouverte : l'accès est refusé.")
        .arg(nom);
}

inline QString PasUneBase(const QString& nom)
{
    return QStringLiteral("Le fichier « %1 » n'est pas une base de données de Scriptelle.").arg(nom);
}

inline QString AutreGenre(const QString& nom, const QString& attendu)
{
    return QStringLiteral(
               "Le fichier « %1 » contient une autre base de Scriptelle : celle de « %2 » est attendue.")
        .arg(nom, attendu);
}

inline QString BaseTropRecente(const QString& nom)
{
    return QStringLiteral("La base de données « %1 » a été créée par une version plus récente de Scriptelle.")
        .arg(nom);
}

inline QString BaseEndommagee(const QString& nom)
{
    return QStringLiteral("La base de données « %1 » est endommagée. Elle n'a pas été modifiée.").arg(nom);
}

inline QString BaseVerrouillee(const QString& nom)
{
    return QStringLiteral("La base de données « %1 » est utilisée par un autre poste ou un autre programme. "
                          "Réessayez dans un instant.")
        .arg(nom);
}

inline QString LectureSeule(const QString& nom)
{
    return QStringLiteral("La base de données « %1 » est en lecture seule : rien n'a été enregistré.")
        .arg(nom);
}

inline QString DisquePlein(const QString& nom)
{
    return QStringLiteral("Le disque de la base de données « %1 » est plein : rien n'a été enregistré.")
        .arg(nom);
}

inline QString DisqueEnPanne(const QString& nom)
{
    return QStringLiteral("Le disque de la base de données « %1 » ne répond pas correctement.").arg(nom);
}

inline QString CleOccupee(const QString& nom)
{
    return QStringLiteral("Un autre poste vient d'ajouter une fiche dans la base de données « %1 » : "
                          "rien n'a été enregistré. Recommencez.")
        .arg(nom);
}

inline QString FicheDisparue(const QString& nom)
{
    return QStringLiteral(
               "Cette fiche n'existe plus dans la base de données « %1 » : rien n'a été enregistré.")
        .arg(nom);
}

inline QString InstructionRefusee(const QString& nom)
{
    return QStringLiteral("La base de données « %1 » a refusé l'opération : rien n'a été enregistré.")
        .arg(nom);
}

inline QString JetNonConvertie(const QString& nom)
{
    return QStringLiteral("La base de données « %1 » est au format Access (Jet) et n'a pas encore été "
                          "convertie. Elle n'a pas été modifiée.")
        .arg(nom);
}

inline QString JetProtegee(const QString& nom)
{
    return QStringLiteral("La base de données « %1 » est une base Access protégée par un mot de passe ou "
                          "chiffrée : elle ne peut pas être lue. Retirez la protection dans Access, puis "
                          "recommencez. Elle n'a pas été modifiée.")
        .arg(nom);
}

inline QString JetTropRecente(const QString& nom)
{
    return QStringLiteral(
               "La base de données « %1 » est dans un format Access trop récent : seules les bases "
               "d'Access 97 à 2003 sont lues. Elle n'a pas été modifiée.")
        .arg(nom);
}

inline QString JetEndommagee(const QString& nom)
{
    return QStringLiteral(
               "La base Access « %1 » est endommagée : elle n'a pas pu être lue en entier. Elle n'a "
               "pas été modifiée.")
        .arg(nom);
}

inline QString JetSansFin(const QString& nom)
{
    return QStringLiteral("La lecture de la base Access « %1 » ne se termine pas : elle est sans doute "
                          "endommagée. Elle n'a pas été modifiée.")
        .arg(nom);
}

inline QString JetSansTable(const QString& nom)
{
    return QStringLiteral("La base Access « %1 » ne contient aucune des tables de Scriptelle attendues ici. "
                          "Elle n'a pas été modifiée.")
        .arg(nom);
}

inline QString JetEnLectureSeule(const QString& nom)
{
    return QStringLiteral("La base de données « %1 » est au format Access (Jet) et doit être convertie, mais "
                          "son dossier est en lecture seule. Elle n'a pas été modifiée.")
        .arg(nom);
}

inline QString JetOuverte(const QString& nom, const QString& verrou)
{
    return QStringLiteral(
               "La base de données « %1 » semble ouverte dans l'ancien programme : le fichier « %2 » "
               "est à côté d'elle. Quittez l'ancien programme sur tous les postes, puis recommencez ; "
               "s'il n'est ouvert nulle part, supprimez « %2 ». Elle n'a pas été modifiée.")
        .arg(nom, verrou);
}

inline QString LecteurAbsent(const QString& nom)
{
    return QStringLiteral("La base de données « %1 » est au format Access (Jet), et le programme qui la "
                          "convertit, « scriptelle-jet », manque à côté de Scriptelle : réinstallez "
                          "Scriptelle. La base n'a pas été modifiée.")
        .arg(nom);
}

inline QString ConversionAilleurs(const QString& nom)
{
    return QStringLiteral(
               "La base de données « %1 » est en cours de conversion sur un autre poste. Réessayez "
               "dans un instant.")
        .arg(nom);
}

inline QString ConversionEnCours(const QString& nom)
{
    return QStringLiteral("La base de données « %1 » ne peut pas être ouverte pendant une conversion. "
                          "Réessayez dans un instant.")
        .arg(nom);
}

inline QString ConversionAbandonnee(const QString& nom)
{
    return QStringLiteral(
               "La conversion de la base Access « %1 » a été abandonnée. Elle n'a pas été modifiée ; "
               "la conversion sera proposée au prochain démarrage.")
        .arg(nom);
}

/// What the progress window says.
inline QString ConversionDe(const QString& nom)
{
    return QStringLiteral("Conversion de la base Access « %1 »").arg(nom);
}

inline QString LaConversionGarde()
{
    return QStringLiteral("Le fichier d'origine reste à côté, intact.");
}

inline QString LignesLues(const QString& table, qint64 lignes, qint64 sur)
{
    return QStringLiteral("%1 : %2 lignes sur %3").arg(table).arg(lignes).arg(sur);
}

inline QString AttendAutrePoste()
{
    return QStringLiteral("Un autre poste convertit cette base : Scriptelle attend qu'il ait fini.");
}

} // namespace storage::messages
