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

} // namespace storage::messages
