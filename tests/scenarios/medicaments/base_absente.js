// La base des médicaments disparaît : un message qui la nomme, et la pharmacie continue.
installer();
clic("FrmDepart.CmdNO");
const base = valeur("CheminTravail") + "/Medoc.mdb";
clic("FrmOrdo.CmdPharma");
clic("FrmMedoc.TV", 0);
clic("FrmMedoc.CmdAjouter1");
clic("FrmMedoc.CmdOrdo");
ecrire(base, "ceci n'est pas une base de données, et de loin");
clic("FrmOrdo.CmdPharma");
touche("FrmMedoc.TxtCherche", "Entree");
const dite = boite();
egal(dite.genre, "stop", "un refus");
contient(dite.texte, "Medoc.mdb", "le fichier est nommé");
repondre("OK");
vrai(ouverte("FrmMedoc"), "la pharmacie reste");
egal(lignes("FrmMedoc.LstChoix1").length, 1, "rien n'est perdu de l'ordonnance");
egal(lire(base), "ceci n'est pas une base de données, et de loin", "rien n'est écrit par-dessus");
clic("FrmMedoc.CmdAnnule");
