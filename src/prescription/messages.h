#pragma once

#include <QString>

/// What the prescription's procedures say to the doctor.
namespace prescription::messages {

inline QString InviteDate()
{
    return QStringLiteral("Date de l'ordonnance :\nformat : jj/mm/aaaa");
}

inline QString FormatDate()
{
    return QStringLiteral("Indiquez la date de l'ordonnance\nau format jj/mm/aaaa (ex.: 07/01/2010) !");
}

inline QString ImprimanteIntrouvable(const QString& choisie, const QString& utilisee)
{
    return QStringLiteral("L'imprimante « %1 » n'est plus installée sur cet ordinateur.\n"
                          "Le document sera imprimé sur « %2 ».")
        .arg(choisie, utilisee);
}

inline QString LignesHorsDeLaFeuille(int nombre)
{
    const QString debut = nombre == 1
                              ? QStringLiteral("Une ligne de l'ordonnance dépasse le bas de la feuille "
                                               "et ne sera pas imprimée.")
                              : QStringLiteral("%1 lignes de l'ordonnance dépassent le bas de la feuille "
                                               "et ne seront pas imprimées.")
                                    .arg(nombre);
    return debut + QStringLiteral("\n\nImprimer quand même ?");
}

inline QString ImpressionEchouee(const QString& imprimante, const QString& cause)
{
    return QStringLiteral("L'impression sur « %1 » a échoué.\n%2").arg(imprimante, cause);
}

inline QString JournalNonEcrit(const QString& cause)
{
    return QStringLiteral("L'ordonnance est imprimée, mais elle n'a pas pu être inscrite au journal.\n%1")
        .arg(cause);
}

inline QString AideIntrouvable(const QString& fichier)
{
    return QStringLiteral("Le fichier d'aide ne peut pas être ouvert.\n%1").arg(fichier);
}

inline QString NomDeJournalRefuse(const QString& nom)
{
    return QStringLiteral("« %1 » ne peut pas servir de nom de fichier.").arg(nom);
}

} // namespace prescription::messages
