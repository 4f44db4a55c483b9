// The removable support
installer();
clic("FrmDepart.CmdQuitter");
const data = utilisateur + "/DataVelmont/DataScriptelle";
const clef = utilisateur + "/clef";
creerDossier(clef);
const annonce = /^\nVous avez choisi de travailler avec vos données enregistrées sur un support externe/;
const lecteur = "Sélectionnez uniquement le NOM du lecteur (ou support)";
const refaire = /^Vous devez faire le choix du lecteur, ou bien vous allez travailler .*\n\nVoulez-vous refaire/;
const surDisque = "Vous allez travailler avec les données enregistrées sur votre disque.";

function demarre(suite) {
    lancer();
    choisir("FrmChoixBase.CboBase", 1);
    clic("FrmChoixBase.CmdSuite");
    boites([[annonce, "OK"]].concat(suite));
}

demarre([[lecteur, null], [refaire, "Oui"], [lecteur, "E:\\dossier"],
    ["Indiquez seulement le nom du lecteur !", "OK"], [lecteur, null], [refaire, "Non"]]);
egal(valeur("CheminTravail"), data, "abandon : sur le disque");
egal(valeur("TypeStockage"), 2, "le choix reste");
clic("FrmDepart.CmdQuitter");

demarre([[lecteur, clef], [/^Le répertoire ".*DataScriptelle" n'existe pas\.\nVoulez-vous le créer \?$/, "Non"], [surDisque, "OK"]]);
faux(existe(clef + "/DataScriptelle"), "rien n'est créé");
clic("FrmDepart.CmdQuitter");

demarre([[lecteur, clef], [/n'existe pas\.\nVoulez-vous le créer \?$/, "Oui"],
    [/^Vous devrez tranfèrer le contenu du répertoire "NOM_UTILISATEUR\\DataVelmont\\DataScriptelle"/, "OK"],
    ['Vous pouvez le faire "manuellement" ou à l\'aide de la commande "Outils \\ Transfert de données".', "OK"],
    [/^Dans cette attente/, "OK"]]);
vrai(existe(clef + "/DataScriptelle"), "le répertoire est créé");
egal(valeur("CheminTravail"), data, "en attendant : sur le disque");
clic("FrmDepart.CmdQuitter");

demarre([[lecteur, clef], [/^Vous n'avez pas encore transféré/, "OK"], [/^Dans cette attente/, "OK"]]);
clic("FrmDepart.CmdQuitter");

copier(data, clef + "/DataScriptelle");
demarre([[lecteur, clef]]);
egal(valeur("CheminTravail"), clef + "/DataScriptelle", "sur le support");
egal(valeur("CheminMedecin"), clef + "/DataScriptelle/DR NEIBRE", "chez le médecin du support");
egal(lire(programme + "/CheminBase.cfg"), '1,"",1\r\n', "rien du support n'est retenu");
