#pragma once

#include <QString>

/// What the certificate editor says to the doctor.
namespace certificates::messages {

inline QString EcrivezLeTexte()
{
    return QStringLiteral("Ecrivez le texte dans la zone de texte située à droite.");
}

inline QString TitreEnregistrement()
{
    return QStringLiteral("Enregistrez votre modèle de certificat.");
}

inline QString SelectionnezLeModele()
{
    return QStringLiteral("Sélectionnez le modèle de certificat à supprimer.");
}

inline QString Supprimer(const QString& nom)
{
    return QStringLiteral("Supprimer ") + nom + QStringLiteral(".txt ?");
}

inline QString SelectionCopiee()
{
    return QStringLiteral("Sélection copiée dans Presse-pappiers !");
}

inline QString PasDeSelection()
{
    return QStringLiteral("Pas de texte sélectionné !");
}

inline QString SansMedecin()
{
    return QStringLiteral("Vous ne pouvez actuellement qu'enregistrer des modèles de certificats.\n"
                          "Choisissez d'abord un médecin utilisateur.\n"
                          "'Annuler' pour sortir du module certificats.");
}

inline QString SurvolMacro()
{
    return QStringLiteral(" Un click pour mettre la macro dans le texte. ");
}

inline QString CoinSuperieurGauche()
{
    return QStringLiteral("Le coin supérieur gauche correspond aux marges haute et gauche des prescriptions");
}

inline QString Aide()
{
    return QStringLiteral(
        "1- <N> = nom patient\n"
        "2- <DN> = sa date de naissance\n"
        "3- <AD> = son adresse\n"
        "4- <DJ> = date du jour\n"
        "5- <DR> = nom du médecin\n"
        "6- <EL> =\"(signature électronique)\"\n"
        "7- <NBsp> : déplace le curseur d'un nombre d'espaces défini par les boutons d'option.\n\n"
        "Le choix de faire ou non une prescription en ALD doit être fait en PREMIER.\n\n"
        "En effet, toute action sur la case à cocher effacera le texte précédemment inscit.\n"
        "Si vous désirez inscrire en ALD une prescription enregistrée : \n"
        "1 - click sur la prescription choisie, puis copier le texte (ctll + C)\n"
        "2 - click sur la case à cocher ALD\n"
        "3 - puis coller (ctrl + V) à l'endroit désiré.");
}

inline QString InsertionDesMacros()
{
    return QStringLiteral(
        "Un click sur le libellé d'une macro vient l'inscrire dans la zone de texte, à l'endroit où est "
        "placé le curseur ... \n"
        "Si deux macros se suivent, toujours laisser un espace entre elles (ce qui se fait par défaut).\n"
        "Pour insérer une macro si la procédure ne fonctionne pas, il existe 3 solutions :\n"
        "1- Taper le texte de la macro à la main,\n"
        "2- Cliquer sur le libellé voulu, et ensuite sur Ctrl + v du clavier,\n"
        "3- Cliquer sur le libellé voulu, et ensuite click droit dans la zone de texte, et choisir COLLER .\n"
        "Dans les 2 derniers cas, le texte de la macro s'inscrira à la position du curseur.");
}

inline QString Formatage()
{
    return QStringLiteral("Formatage du texte possible, comme pour la rédaction des posologies (*,$,£)");
}

inline QString HorsDuDossier(const QString& dossier)
{
    return QStringLiteral("Un modèle de certificat ne s'enregistre que dans le répertoire\n%1\n"
                          "Rien n'a été enregistré.")
        .arg(dossier);
}

inline QString NomReserve(const QString& nom)
{
    return QStringLiteral("Le nom « %1 » est celui du fichier de travail du programme.\n"
                          "Choisissez un autre nom : rien n'a été enregistré.")
        .arg(nom);
}

inline QString NomRefuse(const QString& nom)
{
    return QStringLiteral("« %1 » ne peut pas servir de nom de fichier.\n"
                          "Choisissez un autre nom : rien n'a été enregistré.")
        .arg(nom);
}

inline QString PoliceSansMedecin()
{
    return QStringLiteral("Aucun médecin n'est choisi : cette police vaut jusqu'à la fermeture du programme, "
                          "ou jusqu'au choix d'un médecin, mais elle n'est pas enregistrée.");
}

} // namespace certificates::messages
