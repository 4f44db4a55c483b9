// La base des médicaments est abîmée ou disparaît : un message qui la nomme, et la pharmacie continue.
installer();
const base = valeur("CheminTravail") + "/Medoc.mdb";
const contenu = "ceci n'est pas une base de données, et de loin";
clic("FrmDepart.CmdNO");
ecrire(base, contenu);

function refus(quand) {
    const dite = boite();
    egal(dite.genre, "stop", quand);
    contient(dite.texte, "Medoc.mdb", "le fichier est nommé");
    repondre("OK");
}

clic("FrmOrdo.CmdPharma");
refus("à l'ouverture");
vrai(ouverte("FrmMedoc"), "la pharmacie s'ouvre");
egal(lignes("FrmMedoc.TV"), [], "sur un arbre vide");
touche("FrmMedoc.TxtCherche", "F2");
aucuneBoite();
clic("FrmMedoc.LblOrdoMem");
refus("les ordonnances mémorisées");
clic("FrmMedoc.CmdSaut");
touche("FrmMedoc.TxtCherche", "Entree");
refus("Entrée");
egal(lignes("FrmMedoc.LstChoix1").length, 1, "rien n'est perdu de l'ordonnance");
egal(lire(base), contenu, "rien n'est écrit par-dessus");

effacer(base);
touche("FrmMedoc.TxtCherche", "Entree");
refus("un fichier parti");
faux(existe(base), "il n'est pas refait vide");
clic("FrmMedoc.CmdOrdo");
vrai(ouverte("FrmOrdo"), "l'éditeur vient");
