// Un transfert qui échoue le dit, et la destination reste comme elle était.
installer();
const data = valeur("CheminData");
const clef = utilisateur + "/clef/DataScriptelle";
creerDossier(clef + "/Options.cfg"); // un dossier porte le nom d'un fichier
ecrire(clef + "/Medecin.ini", "ancien");
clic("FrmDepart.mnuTransfertDonn");
boites([[/ATTENTION/, "Oui"], [/toujours/, "OK"], [/Indiquez/, "OK"]]);
repondre(data);
boites([[/Puis indiquez/, "OK"]]);
repondre(clef);
boites([["Lancer le transfert ?", "Oui"]]);
const echec = boite();
egal(echec.genre, "stop", "un arrêt");
contient(echec.texte, "Le transfert a échoué.\n\n« Options.cfg »", "le fichier en cause");
repondre("OK");
faux(fini(), "le programme continue");
egal(fenetreActive(), "FrmDepart", "sur sa fenêtre");
faux(ouverte("FrmTransfert"), "sans barre");
egal(lister(clef), ["Medecin.ini", "Options.cfg"], "la destination est intacte");
egal(lire(clef + "/Medecin.ini"), "ancien", "son contenu aussi");
clic("FrmDepart.CmdNO");
clic("FrmOrdo.CmdNouvelle");
vrai(ouverte("FrmPatient"), "et l'on travaille");
