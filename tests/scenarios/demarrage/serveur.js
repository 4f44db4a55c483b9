// The server
installer();
clic("FrmDepart.CmdQuitter");
const data = utilisateur + "/DataVelmont/DataScriptelle";
const serveur = utilisateur + "/serveur";
creerDossier(serveur);
const sep = programme.includes("\\") ? "\\" : "/";
const annonce = [[/^\nVous êtes en réseau et vous voulez travailler/, "OK"],
    [/^Si ce répertoire n'existe pas, il faut, en premier lieu, le créer\.\n\nCliquez alors sur "Annuler"/, "OK"]];
const choix = "Sélectionnez le répertoire (...\\...\\DataScriptelle) sur le serveur.";
const creer = "Si le répertoire (...\\...\\DataScriptelle) n'existe pas,\nVoulez-vous le créer maintenant ?";
const ou = "Sélectionnez le répertoire du serveur où vous voulez créer le répertoire (...\\...\\DataScriptelle).";
const surDisque = "Vous allez travailler avec les données enregistrées sur votre disque.";

function demarre(suite) {
    lancer();
    choisir("FrmChoixBase.CboBase", 2);
    clic("FrmChoixBase.CmdSuite");
    boites(suite);
    vrai(ouverte("FrmDepart"), "le programme est prêt");
}

demarre(annonce.concat([[choix, serveur], ['Le répertoire choisi n\'est pas"DataScriptelle"', "OK"],
    [/^Dans l'attente de refaire votre choix/, "OK"]]));
egal(valeur("CheminTravail"), data, "mauvais répertoire : sur le disque");
egal(valeur("CheminBase"), "", "rien n'est retenu");
clic("FrmDepart.CmdQuitter");

demarre(annonce.concat([[choix, null], [creer, "Non"], [surDisque, "OK"]]));
clic("FrmDepart.CmdQuitter");

demarre(annonce.concat([[choix, null], [creer, "Oui"], [ou, null],
    [/^Vous devez faire le choix du répertoire, ou bien/, "Non"], [surDisque, "OK"]]));
clic("FrmDepart.CmdQuitter");

demarre(annonce.concat([[choix, null], [creer, "Oui"], [ou, null], [/^Vous devez faire le choix du répertoire/, "Oui"],
    [ou, serveur], [/^Vous devrez tranfèrer/, "OK"], [/^Vous pouvez le faire/, "OK"], [/^Dans cette attente/, "OK"]]));
const arbre = serveur + "/DataScriptelle";
egal(valeur("CheminTravail"), data, "en attendant : sur le disque");
egal(lire(programme + "/CheminBase.cfg"), '2,"' + arbre.split("/").join(sep) + '",1\r\n', "le serveur est retenu");
clic("FrmDepart.CmdQuitter");

demarre([[/^Vous n'avez pas encore transféré/, "OK"], [/^Dans cette attente/, "OK"]]);
clic("FrmDepart.CmdQuitter");

creerDossier(arbre + "/DR NEIBRE");
demarre([[/^Vous n'avez pas encore transféré/, "OK"], [/^Dans cette attente/, "OK"]]);
clic("FrmDepart.CmdQuitter");

effacer(arbre);
copier(data, arbre);
demarre([]);
egal(valeur("CheminTravail"), arbre, "sur le serveur, sans question");
clic("FrmDepart.CmdQuitter");

effacer(arbre);
copier(data, serveur + "/autre/DataScriptelle");
demarre(annonce.concat([[choix, serveur + "/autre/DataScriptelle"]]));
egal(valeur("CheminTravail"), serveur + "/autre/DataScriptelle", "un serveur disparu est demandé de nouveau");
