#pragma once

#include <QString>

/// What the page layout designer and the height of the line skips say.
namespace settings::messages {

inline QString TitreHauteur()
{
    return QStringLiteral("Hauteur des sauts de lignes");
}

inline QString InviteHauteur()
{
    return QStringLiteral("Pour personnaliser la hauteur du saut de ligne, déterminez sa\nHauteur en mm : ");
}

inline QString HauteurRefusee(const QString& reponse)
{
    return QStringLiteral("« %1 » n'est pas une hauteur en millimètres (de 0 à 297, ex. : 4,5).\n"
                          "La hauteur des sauts de lignes n'a pas changé.")
        .arg(reponse);
}

inline QString HauteurOubliee()
{
    return QStringLiteral("Vous n'avez pas fixé la hauteur du saut de ligne !");
}

inline QString MiseEnPageEnregistree()
{
    return QStringLiteral("Mise en page enregistrée !");
}

inline QString ValeurTropGrande(const QString& libelle, const QString& valeur)
{
    return QStringLiteral("« %1 » : la valeur « %2 » est trop grande (de -32768 à 32767 mm).\n"
                          "La mise en page n'est pas enregistrée.")
        .arg(libelle, valeur);
}

inline QString MiseEnPageNonEcrite(const QString& cause)
{
    return QStringLiteral("La mise en page n'a pas pu être enregistrée.\n%1").arg(cause);
}

inline QString MargesNonEcrites(const QString& cause)
{
    return QStringLiteral(
               "Les polices sont enregistrées. Les marges et les sauts de lignes n'ont pas pu l'être : "
               "ils valent jusqu'à la fermeture du programme.\n%1")
        .arg(cause);
}

inline QString SautsNonEcrits(const QString& cause)
{
    return QStringLiteral(
               "Les polices et les marges sont enregistrées. Les sauts de lignes n'ont pas pu l'être : "
               "ils valent jusqu'à la fermeture du programme.\n%1")
        .arg(cause);
}

} // namespace settings::messages
