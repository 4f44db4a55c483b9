#pragma once

#include <QString>

namespace drugbank::messages {

inline QString DocumentAbsent(const QString& nom)
{
    return QStringLiteral("Le document « %1 » est introuvable.").arg(nom);
}

inline QString DocumentIllisible(const QString& nom)
{
    return QStringLiteral("Le document « %1 » ne peut pas être lu.").arg(nom);
}

inline QString DocumentTropGrand(const QString& nom)
{
    return QStringLiteral("Le document « %1 » est trop grand pour être montré ici.").arg(nom);
}

inline QString DocumentSansReponse(const QString& serveur)
{
    return QStringLiteral("Le document n'a pas pu être obtenu de %1.").arg(serveur);
}

inline QString DocumentTropLent(const QString& serveur)
{
    return QStringLiteral("%1 n'a pas donné le document à temps.").arg(serveur);
}

inline QString DocumentRenvoye(const QString& serveur)
{
    return QStringLiteral("Le document renvoie hors de ce poste, à %1 : il n'a pas été chargé.").arg(serveur);
}

inline QString DocumentSansTexte()
{
    return QStringLiteral("Ce document n'est pas une page qui puisse être montrée ici.");
}

inline QString DocumentDehors(const QString& adresse)
{
    return QStringLiteral("Ce document est hors de ce poste : %1. Le bouton « Navigateur » l'ouvre.")
        .arg(adresse);
}

inline QString AdresseRefusee()
{
    return QStringLiteral("L'adresse de ce document n'est pas de celles qui peuvent être ouvertes.");
}

inline QString Chargement()
{
    return QStringLiteral("Chargement du document…");
}

inline QString LienDehors(const QString& serveur)
{
    return QStringLiteral("Lien hors de ce poste (%1) : le bouton « Navigateur » l'ouvre.").arg(serveur);
}

inline QString LienRefuse()
{
    return QStringLiteral("Ce lien n'est pas de ceux qui peuvent être suivis.");
}

inline QString NavigateurAbsent()
{
    return QStringLiteral("Aucun navigateur n'a ouvert cette adresse.");
}

} // namespace drugbank::messages
