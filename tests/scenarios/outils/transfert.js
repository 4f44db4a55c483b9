// Le transfert d'un répertoire de données vers un autre, message par message.
installer();
const data = valeur("CheminData");
const clef = utilisateur + "/clef/DataScriptelle";
creerDossier(clef);
ecrire(clef + "/notes.txt", "à garder");
ecrire(clef + "/Options.cfg", "anciennes");
ecrire(data + "/DR NEIBRE/Journal_Docteur NEIBRE.log", "20/11/2026*A*1*B\r\n");
ajouter("Medoc", "Patients", [1, "Monsieur", "MARTIN  Paul", "20/03/1953", "0", "", "", "", "", "", ""]);
const attention = "ATTENTION !\n\nVous avez bien conscience que les données transférées vont écraser\n" +
    "(c'est à dire remplacer) celles du répertoire de destination.\n\nContinuer ?";
const ou = 'Les répertoires "Source" et "Destination" sont toujours, sur les supports choisis, "\\...\\...\\DataScriptelle".';
const source = "Indiquez le répertoire source où se trouvent les données à tranfèrer.";
const titreSource = "Sélectionnez le répertoire source où se trouvent les données à copier.";
const destination = "Puis indiquez le répertoire de destination où seront tranfèrées les données.";
const titreDestination = "Désignez le répertoire de destination dans lequel seront transférées les données";

clic("FrmDepart.mnuTransfertDonn");
egal(boite().genre, "question", "une question d'abord");
boites([[attention, "Non"]]);
aucuneBoite();

function commence() {
    clic("FrmDepart.mnuTransfertDonn");
    boites([[attention, "Oui"]]);
    egal(boite().genre, "information", "puis des informations");
    boites([[ou, "OK"], [source, "OK"]]);
    egal([boite().genre, boite().texte], ["dossier", titreSource], "le choix de la source");
}
commence();
repondre(null);
egal(boite().genre, "stop", "renoncer arrête");
boites([["Procédure annulée !", "OK"]]);
commence();
repondre(utilisateur + "/clef");
boites([["Vous avez choisi un mauvais répertoire ; procédure annulée !", "OK"]]);
commence();
repondre(data);
boites([[destination, "OK"]]);
egal([boite().genre, boite().texte], ["dossier", titreDestination], "le choix de la destination");
repondre(null);
boites([["Procédure annulée !", "OK"]]);

function jusquA(vers) {
    commence();
    repondre(data);
    boites([[destination, "OK"]]);
    repondre(vers);
}
jusquA(utilisateur + "/clef");
boites([["Vous avez choisi un mauvais répertoire ; procédure annulée !", "OK"]]);
jusquA(data);
boites([["La source et la destination sont le même répertoire ; procédure annulée !", "OK"]]);
jusquA(data + "/Certificats");
boites([["La source et la destination sont l'une dans l'autre ; procédure annulée !", "OK"]]);
jusquA(clef);
egal(boite().genre, "question", "la dernière question");
boites([["Lancer le transfert ?", "Non"]]);
aucuneBoite();
egal(lister(clef), ["Options.cfg", "notes.txt"], "rien n'est copié");

jusquA(clef);
boites([["Lancer le transfert ?", "Oui"]]);
egal(boite().genre, "information", "le succès");
boites([["Les données ont été transférées avec succès.\n\nVous devez relancez votre programme.", "OK"]]);
vrai(fini(), "le programme s'arrête");
vrai(existe(clef + "/Medoc.mdb") && existe(clef + "/DR NEIBRE/Ordo.mdb") && existe(clef + "/Medecin.ini"), "tout est là");
egal(table(clef + "/Medoc.mdb", "Patients").length, 1, "les patients aussi");
egal(lire(clef + "/DR NEIBRE/Journal_Docteur NEIBRE.log"), "20/11/2026*A*1*B\r\n", "le journal aussi");
egal(lire(clef + "/Options.cfg"), lire(data + "/Options.cfg"), "ce qui avait le même nom est remplacé");
egal(lire(clef + "/notes.txt"), "à garder", "le reste demeure");
faux(lister(clef).some(nom => /Transfert|Sauvegardes/.test(nom)), "rien d'autre ne traîne");
vrai(existe(clef + "/Certificats"), "les dossiers vides aussi");
