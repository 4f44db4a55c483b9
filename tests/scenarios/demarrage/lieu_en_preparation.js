// A place of work without databases yet: the start says nothing of it, the first prescription does
installer();
clic("FrmDepart.CmdQuitter");
const clef = utilisateur + "/clef";
creerDossier(clef + "/DataScriptelle");
ecrire(clef + "/DataScriptelle/note.txt", "en cours de transfert");
lancer();
choisir("FrmChoixBase.CboBase", 1);
clic("FrmChoixBase.CmdSuite");
boites([[/^\nVous avez choisi de travailler/, "OK"], [/^Sélectionnez uniquement le NOM du lecteur/, clef]]);
aucuneBoite();
vrai(ouverte("FrmDepart"), "le programme démarre");
egal(valeur("CheminTravail"), clef + "/DataScriptelle", "sur le support");
egal(lister(clef + "/DataScriptelle"), ["note.txt"], "rien n'y est créé");
clic("FrmDepart.CmdNO");
clic("FrmOrdo.CmdNouvelle");
boites([[/^La base de données « Ordo\.mdb » n'existe pas\./, "OK"], [/^La base de données « Medoc\.mdb » n'existe pas\./, "OK"]]);
clic("FrmPatient.CmdAnnule");
fermer("FrmOrdo");

// a doctor of the list without a directory: chosen without a word
const data = utilisateur + "/DataVelmont/DataScriptelle";
ecrire(data + "/Medecin.ini", " 2 \r\nDR NEIBRE-1\r\nDR MARTIN-DURAND PAUL-2\r\n");
lancer();
egal(lignes("FrmMedecins.LstMed"), ["DR NEIBRE", "DR MARTIN"], "lu avant d'être montré");
choisir("FrmChoixBase.CboBase", 0);
clic("FrmChoixBase.CmdSuite");
choisir("FrmDepart.CboListeMed", 1);
aucuneBoite();
egal(selection("FrmOrdo.CboMed"), 1, "l'éditeur suit avant d'être montré");
egal(texte("FrmMedecins.LblMed"), "DR MARTIN", "la fenêtre des médecins aussi");
faux(ouverte("FrmMedecins") || ouverte("FrmOrdo"), "lire n'ouvre rien");
faux(existe(data + "/DR MARTIN"), "aucun dossier n'est créé");
clic("FrmDepart.CmdNO");
choisir("FrmOrdo.CboMed", 0);
choisir("FrmOrdo.CboMed", 1);
boites([[/^La base de données « Ordo\.mdb » n'existe pas\./, "OK"]]);
