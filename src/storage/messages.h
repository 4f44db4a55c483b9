#pragma once

#include <QString>

namespace storage {

inline QString BaseAbsenteMessage(const QString& nom)
{
    return QStringLiteral("La base de données « %1 » n'existe pas.").arg(nom);
}

inline QString BaseIllisibleMessage(const QString& nom)
{
    return QStringLiteral("La base de données « %1 » ne peut pas être ouverte : l'accès est refusé.")
        .arg(nom);
}

inline QString PasUneBaseMessage(const QString& nom)
{
    return QStringLiteral("Le fichier « %1 » n'est pas une base de données de Scriptelle.").arg(nom);
}

inline QString AutreGenreMessage(const QString& nom, const QString& attendu)
{
    return QStringLiteral(
               "Le fichier « %1 » contient une autre base de Scriptelle : celle de « %2 » est attendue.")
        .arg(nom, attendu);
}

inline QString BaseTropRecenteMessage(const QString& nom)
{
    return QStringLiteral("La base de données « %1 » a été créée par une version plus récente de Scriptelle.")
        .arg(nom);
}

inline QString BaseEndommageeMessage(const QString& nom)
{
    return QStringLiteral("La base de données « %1 » est endommagée. Elle n'a pas été modifiée.").arg(nom);
}

inline QString BaseVerrouilleeMessage(const QString& nom)
{
    return QStringLiteral("La base de données « %1 » est utilisée par un autre poste ou un autre programme. "
                          "Réessayez dans un instant.")
        .arg(nom);
}

inline QString LectureSeuleMessage(const QString& nom)
{
    return QStringLiteral("La base de données « %1 » est en lecture seule : rien n'a été enregistré.")
        .arg(nom);
}

inline QString DisquePleinMessage(const QString& nom)
{
    return QStringLiteral("Le disque de la base de données « %1 » est plein : rien n'a été enregistré.")
        .arg(nom);
}

inline QString DisqueEnPanneMessage(const QString& nom)
{
    return QStringLiteral("Le disque de la base de données « %1 » ne répond pas correctement.").arg(nom);
}

inline QString CleOccupeeMessage(const QString& nom)
{
    return QStringLiteral("Un autre poste vient d'ajouter une fiche dans la base de données « %1 » : "
                          "rien n'a été enregistré. Recommencez.")
        .arg(nom);
}

inline QString FicheDisparueMessage(const QString& nom)
{
    return QStringLiteral(
               "Cette fiche n'existe plus dans la base de données « %1 » : rien n'a été enregistré.")
        .arg(nom);
}

inline QString InstructionRefuseeMessage(const QString& nom)
{
    return QStringLiteral("La base de données « %1 » a refusé l'opération : rien n'a été enregistré.")
        .arg(nom);
}

} // namespace storage
