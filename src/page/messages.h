#pragma once

#include <QString>

/// What the painters say to the doctor.
namespace page::messages {

inline QString TitreAge()
{
    return QStringLiteral("Age");
}

inline QString InviteAge()
{
    return QStringLiteral("Indiquez, selon votre choix, l'âge ou la date de naissance ... ou rien.\n"
                          "Une des options 'Imprimer date de naissance' ou 'Imprimer âge' doit être cochée.");
}

} // namespace page::messages
