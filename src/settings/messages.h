#pragma once

#include <QString>

/// What the settings' procedures say to the doctor.
namespace settings::messages {

inline QString PasDeBase()
{
    return QStringLiteral("Choisissez votre base de données de pharmacie !");
}

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
        "Chaque ligne a sa propre police : placez-vous dans la ligne, puis cliquez sur « Police de la "
        "ligne ».\n\n"
        "Le dernier caractère d'une ligne\n"
        "o   *  : la ligne suivante reste sur la même ligne de papier.\n"
        "o   $  : la ligne s'imprime à la suite de la précédente terminée par *, puis le papier passe à la "
        "ligne. Sans ce signe, elle commence à son propre décalage et peut recouvrir la précédente.\n"
        "Exemple : « Tél. * » puis « 02 99 00 00 00$ » donnent une seule ligne, en deux polices.\n"
        "o   * tout seul : la ligne n'est pas imprimée. Une ligne vide laisse une ligne blanche.\n"
        "o   La dernière ligne de l'adresse règle la distance du bloc suivant : * laisse une ligne blanche, "
        "vide en laisse deux.\n"
        "Ces signes ne sont pas imprimés.\n\n"
        "Décaler une ligne vers la droite\n"
        "o   Placez le curseur au début de la ligne : chaque espace la décale d'un millimètre, la touche "
        "Retour arrière la ramène d'un millimètre.\n\n"
        "La feuille montre vos modifications telles qu'elles s'imprimeront. Rien n'est enregistré "
        "avant « Enregistrer » ; si vous quittez, vos modifications se retrouvent ici jusqu'à la fermeture "
        "de "
        "Scriptelle.");
}

inline QString RevenirAEnteteEnregistree()
{
    return QStringLiteral("Revenir à l'en-tête enregistrée ?\n\nVos modifications seront perdues.");
}

inline QString PasDeFichierLogo()
{
    return QStringLiteral("Vous n'avez pas renseigné le fichier du logo !");
}

inline QString PasDeTailleLogo()
{
    return QStringLiteral("Vous n'avez pas renseigné la taille du logo sur l'ordonnance !");
}

inline QString MesureRefusee(const QString& texte)
{
    return QStringLiteral("« %1 » n'est pas un nombre de millimètres (de -32768 à 32767).").arg(texte);
}

inline QString RechercheBase()
{
    return QStringLiteral("Recherche de la base de données ...");
}

inline QString BaseScriptelle()
{
    return QStringLiteral("La base Scriptelle sera utilisée.");
}

inline QString SansModuleAide()
{
    return QStringLiteral(
        "Le VIDAL Expert n'est pas correctement installé. La base Scriptelle sera utilisée. !");
}

inline QString BaseInstallee(const QString& nom)
{
    return QStringLiteral("La base %1 est correctement installée !").arg(nom);
}

inline QString BaseNonInstallee(const QString& nom)
{
    return QStringLiteral("La base %1 n'est pas correctement installée !").arg(nom);
}

inline QString BasePubliqueInstallee(const QString& jour)
{
    return QStringLiteral("La base publique des médicaments est correctement installée ! Données du %1.")
        .arg(jour);
}

inline QString BasePubliqueNonInstallee(const QString& cause)
{
    return QStringLiteral("La base publique des médicaments n'est pas correctement installée ! %1")
        .arg(cause);
}

inline QString SansBibliotheque()
{
    return QStringLiteral("Sa bibliothèque « scriptelle-bdp » manque à côté du programme.");
}

inline QString OuMettreAJour()
{
    return QStringLiteral("Pour la mettre à jour : menu « Outils », « Mettre à jour la base publique… ».");
}

inline QString SansFichierDeBanque()
{
    return QStringLiteral(
        "Son fichier « banque.sqlite » manque ou n'est pas lisible : menu « Outils », « Mettre "
        "à jour la base publique… ».");
}

inline QString TitreFichierLogo()
{
    return QStringLiteral("Chemin du Fichier Logo");
}

inline QString ImageRefusee(const QString& chemin)
{
    return QStringLiteral("« %1 » n'est pas une image lisible ou est trop grand.\nLe logo n'a pas changé.")
        .arg(chemin);
}

inline QString NomDImageRefuse(const QString& nom)
{
    return QStringLiteral("« %1 » ne peut pas servir de nom de fichier pour le logo. Renommez l'image.\n"
                          "Le logo n'a pas changé.")
        .arg(nom);
}

inline QString LogoNonCopie(const QString& cause)
{
    return QStringLiteral("L'image n'a pas pu être copiée dans le dossier du médecin.\n"
                          "Le logo n'a pas changé.\n%1")
        .arg(cause);
}

inline QString InviteDupli()
{
    return QStringLiteral("Pour inscrire 2 lignes, écrivez les texte de chaque ligne, séparés par une étoile "
                          "(*), sans espace.");
}

inline QString TitreDupli()
{
    return QStringLiteral("Texte pour les copies");
}

inline QString LblPolice(const QString& police, const QString& taille)
{
    return QStringLiteral("Police %1 ; Taille %2").arg(police, taille);
}

// The page layout designer and the height of the line skips.

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
