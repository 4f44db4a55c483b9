#pragma once

#include <QString>

/// What the settings' procedures say to the doctor.
namespace settings::messages {

inline QString PasDImprimante()
{
    return QStringLiteral("Vous n'avez pas sélectionné l'imprimamte !");
}

inline QString CouleurDeTouteLEntete()
{
    return QStringLiteral("Seule la couleur du texte de l'entête, et de toute l'entête, est prise en "
                          "considération dans cette boite de dialogue.");
}

inline QString EnteteEnregistree()
{
    return QStringLiteral("En-tête enregistrée !");
}

inline QString EnteteNonEnregistree(const QString& cause)
{
    return QStringLiteral("L'en-tête n'a pas pu être enregistrée : celle d'avant reste en place, et vos "
                          "modifications restent dans la fenêtre.\n\n%1")
        .arg(cause);
}

inline QString AideEntete()
{
    return QStringLiteral(
        "Chaque ligne a sa propre police : placez-vous dans la ligne, puis cliquez sur « Police ».\n\n"
        "Le dernier caractère d'une ligne\n"
        "o   *  : la ligne suivante s'imprime à la suite, sur la même ligne de papier.\n"
        "o   $  : la ligne s'imprime à la suite de la précédente terminée par *, puis le papier passe à la "
        "ligne.\n"
        "o   * tout seul : la ligne n'est pas imprimée. Une ligne vide laisse une ligne blanche.\n"
        "o   La dernière ligne de l'adresse règle la distance du bloc suivant : * laisse une ligne blanche, "
        "vide en laisse deux.\n"
        "Ces signes ne sont pas imprimés.\n\n"
        "Décaler une ligne vers la droite\n"
        "o   Placez le curseur au début de la ligne : chaque espace la décale d'un millimètre, la touche "
        "Retour arrière la ramène d'un millimètre.\n\n"
        "La feuille montre vos modifications telles qu'elles s'imprimeront. Rien n'est gardé avant "
        "« Enregistrer ».");
}

} // namespace settings::messages
