#pragma once

#include <QString>

/// What is said about memorised prescriptions of an old format.
namespace medication::messages {

inline QString AncienFormat()
{
    return QStringLiteral("Cette ordonnance a pu être enregistrée avant la version 2.0.0."
                          "Si vous en êtes sûr, elle peut être transformée, dans la base de données, pour "
                          "prendre en compte les interactions médicamenteuses."
                          " Continuer ?");
}

inline QString ArreterDeDemander()
{
    return QStringLiteral("Arrêter de poser la question pour cette ordonnance ?\n"
                          "___________________________________________\n"
                          "NB : savoir que, si des modifications sont enregistrées dans cette ordonnance, "
                          "la question ne sera plus posée... ce qui équivaut à OUI.");
}

inline QString Convertie()
{
    return QStringLiteral("Modifications enregistrées !"
                          "... avec quelques réserves possibles sur les interactions médicamenteuses"
                          "pour des enregistrements trop anciens.");
}

inline QString NonConvertie()
{
    return QStringLiteral("La banque de médicaments ne reconnaît aucun code de cette ordonnance.\n"
                          "Rien n'a été modifié.");
}

inline QString EditerANouveau()
{
    return QStringLiteral("Il faut éditer à nouveau cette ordonnance enregistrée pour activer la gestion des "
                          "interactions médicamenteuses."
                          "Poursuivre?");
}

} // namespace medication::messages
