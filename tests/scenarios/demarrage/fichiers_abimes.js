// Damaged files never stop the start, and nothing of them is lost
installer();
clic("FrmDepart.CmdQuitter");
const data = utilisateur + "/DataVelmont/DataScriptelle";

function demarre(suite) {
    lancer();
    boites(suite || []);
    choisir("FrmChoixBase.CboBase", 0);
    clic("FrmChoixBase.CmdSuite");
}

for (const contenu of ["", "\u0000\u0001\u0002", '0,1,1,1,0,0,1,2,1,0,0,0,0,"ouvert', "999,1,1", "un,deux"]) {
    ecrire(data + "/Options.cfg", contenu);
    demarre();
    vrai(ouverte("FrmDepart"), "le programme démarre");
    egal(lire(data + "/Options.cfg.abime"), contenu, "le fichier abîmé est gardé");
    egal(lire(data + "/Options.cfg").split(",").length, 29, "le fichier est refait");
    effacer(data + "/Options.cfg.abime");
    clic("FrmDepart.CmdQuitter");
}
ecrire(data + "/Options.cfg", "0,1,1,1,0,0,1,2,3,0,0,0,0,\"HP, bureau\",0,0,\"\",0,0,0\r\n");
effacer(data + "/DR NEIBRE/Options.cfg");
demarre();
egal(valeur("PositionLogo"), 1, "3 est lu comme 1");
egal(valeur("Imprimante"), "HP, bureau", "une virgule reste dans son texte");
egal(lire(data + "/Options.cfg").split(",").length, 30, "29 champs, et la virgule du nom");
faux(existe(data + "/Options.cfg.abime"), "un fichier court n'est pas abîmé");
clic("FrmDepart.CmdQuitter");

ecrire(data + "/DR NEIBRE/Marges.cfg", "12.5,quoi");
demarre();
egal(valeur("MargeGaucheEntete"), 12.5, "le champ lu compte");
egal(valeur("MargeHauteEntete"), 4, "les autres restent");
egal(lire(data + "/DR NEIBRE/Marges.cfg"), "12.5,quoi", "rien n'est écrit");
clic("FrmDepart.CmdQuitter");

ecrire(programme + "/CheminBase.cfg", '9,"');
demarre();
egal(valeur("TypeStockage"), 1, "le choix se fait à la main");
egal(lire(programme + "/CheminBase.cfg.abime"), '9,"', "le choix abîmé est gardé");
clic("FrmDepart.CmdQuitter");

ecrire(data + "/Medecin.ini", " 1 \r\nSANS TRAIT\r\nDR NEIBRE-1\r\nDR LOIN-99999\r\n");
demarre();
egal(lignes("FrmDepart.CboListeMed"), ["DR NEIBRE"], "les lignes illisibles sont passées");
clic("FrmDepart.CmdMedecins");
clic("FrmMedecins.CmdNouveau");
boites([[/^Inscrire/, "Dr Deux"]]);
egal(lire(data + "/Medecin.ini"), " 2 \r\nDR NEIBRE-1\r\nDR DEUX-2\r\nSANS TRAIT\r\nDR LOIN-99999\r\n", "elles restent dans le fichier");
egal(lire(data + "/Medecin.ini.abime"), " 1 \r\nSANS TRAIT\r\nDR NEIBRE-1\r\nDR LOIN-99999\r\n", "et à côté");
clic("FrmMedecins.CmdQuitter");
clic("FrmDepart.CmdQuitter");

ecrire(data + "/DR NEIBRE/Ordo.mdb", "ceci n'est pas une base");
demarre();
contient(boite().texte, "Ordo.mdb", "la base est nommée");
repondre("OK");
egal(lire(data + "/DR NEIBRE/Ordo.mdb"), "ceci n'est pas une base", "rien n'est écrit par-dessus");
clic("FrmDepart.CmdQuitter");

ecrire(programme + "/CheminData.cfg", "\u0000");
lancer();
boites([[/Sélectionnez le répertoire où seront enregistrées/, "OK"], [/Sélectionnez uniquement/, utilisateur]]);
egal(lire(programme + "/CheminData.cfg.abime"), "\u0000", "le chemin abîmé est gardé");
clic("FrmChoixBase.CmdAnn");

effacer(data);
lancer();
egal(boite().genre, "stop", "des données disparues arrêtent le programme");
contient(boite().texte, "Le répertoire des données, que désigne le fichier « CheminData.cfg », n'existe plus ou n'est pas accessible.", "avec le fichier qui les désigne");
contient(boite().texte, "DataScriptelle", "et leur place");
repondre("OK");
vrai(fini(), "le programme est terminé");
faux(existe(data), "aucun arbre vide n'est créé");
