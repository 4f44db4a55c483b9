// A file that cannot be written: what is stored and what is not is said, and nothing else is announced.
installer();
const chemin = valeur("CheminMedecin");
clic("FrmDepart.CmdOptions");
clic("FrmOptions.CmdMEP");
saisir("FrmConfOrdo.TxtM", "5");
choisir("FrmConfOrdo.CboInt", "3");
effacer(chemin + "/Options.cfg");
creerDossier(chemin + "/Options.cfg/dedans");
clic("FrmConfOrdo.CmdEnregistrer");
egal(boite().genre, "stop", "un arrêt");
boites([[/^Les polices et les marges sont enregistrées\. Les sauts de lignes n'ont pas pu l'être/, "OK"]]);
aucuneBoite();
egal(lire(chemin + "/Marges.cfg").split(",")[3], "5", "les marges sont enregistrées");
effacer(chemin + "/Options.cfg");
clic("FrmConfOrdo.CmdEnregistrer");
boites([["Mise en page enregistrée !", "OK"]]);
egal(lire(chemin + "/Options.cfg").split(",")[7], "3", "tout est enregistré");
faux(visible("FrmConfOrdo.LblModifie"), "plus rien à enregistrer");
