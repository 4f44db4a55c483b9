#pragma once

#include <QString>

/// Everything that the start and the list of doctors say.
namespace startup::messages {

inline QString Bienvenue()
{
    return QStringLiteral(
        "Vous utilisez ce programme pour la première fois.\n\n"
        "o   Cliquez sur le bouton 'Options' pour\n\n"
        "        - Configurer votre entête d'ordonnance\n"
        "        - Configuer la mise en page\n"
        "        - Choisir les différentes options\n\n"
        "o   Faites le choix entre un usage mono-utilisateur ou multi-utilisateurs (Options)\n\n"
        "o   Lisez attentivement le fichier d'aide");
}

inline QString DeplacementDonnees(const QString& cheminData)
{
    return QStringLiteral("Les données du programme vont être déplacées dans le répertoire\n\n\"") +
           cheminData + QLatin1Char('.');
}

// The user's directory, at the first run.

inline QString RepertoireUtilisateur()
{
    return QStringLiteral("         Sélectionnez le répertoire où seront enregistrées les données du "
                          "programme sur le disque dur "
                          "de votre ordinateur.\n\n"
                          "Ce répertoire doit être celui qui porte  \"VOTRE NOM D' UTILISATEUR\",   et dont "
                          "l'emplacement diffère "
                          "selon les versions de Windows :\n\n"
                          "- Dans \"Documents And settings\" sous XP\n"
                          "- Dans \"Utilisateurs ou Users\" pour les versions ultérieures (Seven, 8, 10)");
}

inline QString TitreRepertoireUtilisateur()
{
    return QStringLiteral("Sélectionnez uniquement le répertoire à votre NOM D'UTILISATEUR");
}

inline QString RenseignementObligatoire()
{
    return QStringLiteral("Ce renseignement est obligatoire ; voulez-vous continuer ?");
}

inline QString ArretSansRenseignement()
{
    return QStringLiteral("Lancement du programme interrompu par défaut de renseignement !");
}

inline QString CheminInenregistrable()
{
    return QStringLiteral("Le nom de ce répertoire contient des caractères que le programme ne peut pas "
                          "enregistrer.\nChoisissez un autre répertoire.");
}

inline QString CheminDataDisparu()
{
    return QStringLiteral(
        "Le répertoire des données, que désigne le fichier « CheminData.cfg », n'existe plus ou "
        "n'est pas accessible.");
}

// The first doctor.

inline QString PremierMedecin()
{
    return QStringLiteral("Vous devez renseigner le nom du MEDECIN UTILISATEUR de ce programme\n"
                          "(le seul, ou le premier, car on peut enregistrer plusieurs utilisateurs).");
}

inline QString InvitePremierMedecin()
{
    return QStringLiteral("Inscrire les nom et prénom du médecin.\n"
                          "(Ignorez la casse, le nom sera mis en majuscules.)\n\n"
                          "RESPECTEZ LE FORMAT : \"Dr/un espace/Nom Prenom (Prenom facultatif)\"");
}

inline QString InscriptionObligatoire()
{
    return QStringLiteral("Cette inscription est obligatoire ; voulez-vous continuer ?");
}

inline QString ArretSansInscription()
{
    return QStringLiteral("Lancement du programme interrompu par défaut d'inscription d'un utilisateur !");
}

inline QString MauvaisFormatContinuer()
{
    return QStringLiteral("Mauvais format d'inscription ! Voulez-vous continuer ?");
}

// The list of doctors.

inline QString InviteNouveauMedecin()
{
    return QStringLiteral("Inscrire les nom et prénom du médecin.\n"
                          "(Ignorez la casse, le nom sera mis en majuscules.)\n\n"
                          "Respectez le format\"Dr/un espace/Nom Prenom (Prenom facultatif)\"");
}

inline QString MauvaisFormat()
{
    return QStringLiteral("Mauvais format d'inscription !");
}

inline QString TraitUnion(const QString& nom)
{
    return QStringLiteral(
               "Le trait d'union du nom est remplacé par un espace : le médecin est inscrit sous le "
               "nom \"") +
           nom + QStringLiteral("\".");
}

inline QString DejaInscrit(const QString& nom)
{
    return QStringLiteral("Un médecin est déjà inscrit sous le nom \"") + nom + QStringLiteral("\".");
}

inline QString TropDeMedecins()
{
    return QStringLiteral("Le nombre maximum de médecins est atteint.");
}

inline QString CreationIncomplete(const QString& causes)
{
    return QStringLiteral("L'inscription du médecin est incomplète.\n") + causes;
}

inline QString DernierMedecin()
{
    return QStringLiteral("On ne peut supprimer le dernier médecin enregistré !");
}

inline QString SelectionnezDansLaListe()
{
    return QStringLiteral("Sélectionnez un médecin dans la liste !");
}

inline QString Supprimer(const QString& nom)
{
    return QStringLiteral("Supprimer ") + nom + QStringLiteral(" de la liste ?");
}

inline QString ParDefaut(const QString& nom)
{
    return nom + QStringLiteral(" sera le médecin sélectionné par défaut à l'ouverture du programme .");
}

inline QString SelectionnezUnMedecin()
{
    return QStringLiteral("Sélectionnez un médecin !");
}

inline QString SelectionnezUnNom()
{
    return QStringLiteral("Sélectionnez un nom de médecin.");
}

inline QString ChoisissezMedecin()
{
    return QStringLiteral("Choisissez d'abord un médecin utilisateur.");
}

// Fonts that this computer lacks.

inline QString PolicesAbsentes(const QString& remplacements)
{
    return QStringLiteral("Des polices choisies pour vos documents ne sont pas installées sur cet "
                          "ordinateur :\n\n%1\n\nLa feuille est imprimée avec les polices de remplacement.")
        .arg(remplacements);
}

inline QString PoliceRemplacee(const QString& police, const QString& remplacante)
{
    return QStringLiteral("« %1 » est remplacée par « %2 ».").arg(police, remplacante);
}

// The daily choice.

inline QString ChoixObligatoire()
{
    return QStringLiteral("Vous devez obligatoirement faire ce choix !\n\nPoursuivre ?");
}

inline QString TravailSurDisque()
{
    return QStringLiteral("Vous allez travailler avec les données enregistrées sur votre disque.");
}

// The removable support.

inline QString SupportExterne()
{
    return QStringLiteral(
        "\nVous avez choisi de travailler avec vos données enregistrées sur un support externe (par "
        "exemple : clef USB),\n\n"
        "Désignez UNIQUEMENT le LECTEUR (ou le SUPPORT) choisi.\n\n");
}

inline QString TitreLecteur()
{
    return QStringLiteral("Sélectionnez uniquement le NOM du lecteur (ou support)");
}

inline QString RefaireLecteur()
{
    return QStringLiteral(
        "Vous devez faire le choix du lecteur, ou bien vous allez travailler avec les données "
        "enregistrées sur votre disque.\n\n"
        "Voulez-vous refaire le choix du lecteur ?");
}

inline QString LecteurSeul()
{
    return QStringLiteral("Indiquez seulement le nom du lecteur !");
}

inline QString CreerRepertoire(const QString& chemin)
{
    return QStringLiteral("Le répertoire \"") + chemin +
           QStringLiteral("\" n'existe pas.\nVoulez-vous le créer ?");
}

// The server.

inline QString EnReseau()
{
    return QStringLiteral(
        "\nVous êtes en réseau et vous voulez travailler avec les données sur le serveur. \n\n"
        "Sélectionnez le répertoire (...\\...\\DataScriptelle) sur le serveur.\n");
}

inline QString CliquezAnnuler()
{
    return QStringLiteral("Si ce répertoire n'existe pas, il faut, en premier lieu, le créer.\n\n"
                          "Cliquez alors sur \"Annuler\" dans ce qui va suivre.");
}

inline QString TitreServeur()
{
    return QStringLiteral("Sélectionnez le répertoire (...\\...\\DataScriptelle) sur le serveur.");
}

inline QString PasDataScriptelle()
{
    return QStringLiteral("Le répertoire choisi n'est pas\"DataScriptelle\"");
}

inline QString AttenteNouveauChoix()
{
    return QStringLiteral("Dans l'attente de refaire votre choix, vous allez travailler avec les données "
                          "enregistrées sur votre disque.");
}

inline QString CreerMaintenant()
{
    return QStringLiteral("Si le répertoire (...\\...\\DataScriptelle) n'existe pas,\n"
                          "Voulez-vous le créer maintenant ?");
}

inline QString TitreCreationServeur()
{
    return QStringLiteral("Sélectionnez le répertoire du serveur où vous voulez créer le répertoire "
                          "(...\\...\\DataScriptelle).");
}

inline QString RefaireRepertoire()
{
    return QStringLiteral(
        "Vous devez faire le choix du répertoire, ou bien vous allez travailler avec les données "
        "enregistrées sur votre disque.\n\n"
        "Voulez-vous refaire le choix du répertoire ?");
}

// A place without data: three boxes for one just created, two for one still empty.

inline QString TransfertAFaire()
{
    return QStringLiteral(
        "Vous devrez tranfèrer le contenu du répertoire "
        "\"NOM_UTILISATEUR\\DataVelmont\\DataScriptelle\" de votre disque, dans ce répertoire "
        "nouvellement créé, puis relancer le programme pour utiliser ce support.");
}

inline QString TransfertComment()
{
    return QStringLiteral("Vous pouvez le faire \"manuellement\" ou à l'aide de la commande "
                          "\"Outils \\ Transfert de données\".");
}

inline QString TransfertPasFait()
{
    return QStringLiteral("Vous n'avez pas encore transféré le contenu du répertoire "
                          "\"NOM_UTILISATEUR\\DataVelmont\\DataScriptelle\" de votre disque.");
}

inline QString TravailEnAttente()
{
    return QStringLiteral(
        "Dans cette attente, vous allez travailler avec les données enregistrées sur votre disque.");
}

// The main window and its small windows.

inline QString DocumentAbsent(const QString& fichier)
{
    return QStringLiteral("Le fichier \"%1\" n'est pas installé.").arg(fichier);
}

inline QString DocumentSansLecteur(const QString& fichier)
{
    return QStringLiteral("Aucun programme de cet ordinateur n'ouvre le fichier \"%1\".").arg(fichier);
}

inline QString CourrierSansProgramme()
{
    return QStringLiteral("Aucun programme de courrier n'est réglé sur cet ordinateur.");
}

inline QString AideDesMedecins()
{
    return QStringLiteral(
        "Choisissez un médecin dans la liste : tout le programme travaille alors avec ses réglages.\n\n"
        "Nouveau : inscrire un autre médecin.\n"
        "Supprimer de la liste : retirer le médecin choisi, avec ses réglages.\n"
        "Par défaut à l'ouverture : le médecin choisi sera proposé à chaque lancement.\n"
        "Sélectionner / Quitter : fermer cette fenêtre. Un double clic sur un nom fait de même.");
}

} // namespace startup::messages
