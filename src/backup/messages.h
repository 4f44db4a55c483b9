#pragma once

#include "common/Fichiers.h"

#include <QString>

/// What the safety copies say to the doctor.
namespace backup::messages {

inline QString Illisible(const QString& chemin)
{
    return QStringLiteral("« %1 » n'a pas pu être lu pour la sauvegarde.").arg(common::CheminAffiche(chemin));
}

inline QString TropGrand(const QString& chemin)
{
    return QStringLiteral("« %1 » est trop grand pour la sauvegarde : retirez-le du répertoire des données.")
        .arg(common::CheminAffiche(chemin));
}

inline QString ArbreOccupe(const QString& dossier)
{
    return QStringLiteral(
               "Un autre poste ou un autre programme transfère, sauvegarde ou restaure des données "
               "dans « %1 ». Attendez qu'il ait fini.")
        .arg(common::CheminAffiche(dossier));
}

inline QString DossierRefuse(const QString& dossier)
{
    return QStringLiteral("La sauvegarde n'a pas pu être écrite dans « %1 ».")
        .arg(common::CheminAffiche(dossier));
}

inline QString CopieEtrangere(const QString& chemin)
{
    return QStringLiteral("« %1 » n'est pas une sauvegarde de Scriptelle.")
        .arg(common::CheminAffiche(chemin));
}

inline QString SauvegardeEchouee(const QString& phrase)
{
    return QStringLiteral("La sauvegarde du jour n'a pas pu être faite. ") + phrase;
}

inline QString LigneDuJour(const QString& jour)
{
    return QStringLiteral("Sauvegarde du %1").arg(jour);
}

inline QString LigneAvant(const QString& moment)
{
    return QStringLiteral("Avant la restauration du %1").arg(moment);
}

inline QString DemandeRestauration(const QString& ligne, const QString& arbre)
{
    return QStringLiteral(
               "%1\n\nVoulez-vous remettre les données de cette sauvegarde dans « %2 » ?\n\nTout ce "
               "qui a été enregistré depuis sera remplacé. L'état actuel est d'abord sauvegardé : "
               "vous pourrez y revenir de la même façon.")
        .arg(ligne, common::CheminAffiche(arbre));
}

inline QString Restauree(const QString& ligne)
{
    return ligne + QStringLiteral(" : les données sont restaurées.\n\nLe programme va redémarrer.");
}

inline QString RestaurationInterrompue(const QString& phrase)
{
    return phrase + QStringLiteral("\n\nLa restauration a été interrompue : elle sera reprise au prochain "
                                   "démarrage. Le programme va redémarrer.");
}

inline QString RestaurationRefusee(const QString& phrase)
{
    return phrase + QStringLiteral("\n\nRien n'a été changé.");
}

inline QString Lieu(const QString& arbre, const QString& dossier)
{
    return QStringLiteral("Données : %1\nSauvegardes : %2")
        .arg(common::CheminAffiche(arbre), common::CheminAffiche(dossier));
}

inline QString AucuneSauvegarde()
{
    return QStringLiteral(
        "Il n'y a pas encore de sauvegarde de ces données.\nElle se fait au premier démarrage "
        "de chaque jour.");
}

} // namespace backup::messages
