// A personal height of the gaps: the box, its dialogue, the height's own text, the menus.
installer();
const chemin = valeur("CheminMedecin");
const invite = "Pour personnaliser la hauteur du saut de ligne, déterminez sa\nHauteur en mm : ";
const etat = () => [coche("FrmConfOrdo.ChKSLP"), actif("FrmConfOrdo.TxtSLP"), texte("FrmConfOrdo.TxtSLP"), valeur("SautPersonnalise")];
const fichiers = () => ["Options.cfg", "Marges.cfg"].map(nom => lire(chemin + "/" + nom));
clic("FrmDepart.CmdOptions");
clic("FrmOptions.CmdMEP");
const avant = fichiers();
for (const reponse of ["", null]) {
  clic("FrmConfOrdo.ChKSLP");
  egal(boite().titre, "Hauteur des sauts de lignes", "le titre");
  egal(boite().valeur, "0", "la hauteur en vigueur");
  boites([[invite, reponse]]);
  egal(etat(), [0, false, "", 0], "sans réponse, la case est vidée");
}
clic("FrmConfOrdo.ChKSLP");
boites([[invite, "trois"], [/« trois » n'est pas une hauteur/, "OK"]]);
egal(etat(), [0, false, "", 0], "ce qui n'est pas un nombre est refusé");
faux(actif("FrmOrdo.mnuHauteurN") || actif("FrmDepart.mnuHauteurN"), "rien à rétablir");

clic("FrmConfOrdo.ChKSLP");
boites([[invite, "3.5"]]);
egal(etat(), [1, true, "3,5", 1], "un point vaut une virgule");
egal(valeur("HauteurSaut"), 3.5, "la hauteur");
vrai(actif("FrmOrdo.mnuHauteurN") && actif("FrmDepart.mnuHauteurN"), "le retour est offert");
const items = feuille("FrmConfOrdo.PctMeP");
proche(items[2].y - items[1].y, items[1].hauteur + 2 * 3.5 + items[0].hauteur, 0.001, "l'échantillon saute de 3,5 mm");
egal(fichiers(), avant, "aucun fichier n'est écrit");

for (const suite of ["FrmConfOrdo.TxtM", "FrmConfOrdo.CboInt"]) {
  saisir("FrmConfOrdo.TxtSLP", "");
  focus(suite);
  egal(boite().genre, "exclamation", "un avertissement");
  boites([["Vous n'avez pas fixé la hauteur du saut de ligne !", "OK"]]);
  taper("FrmConfOrdo.TxtSLP", "4.5");
  focus("FrmConfOrdo.TxtL");
  aucuneBoite();
  egal(texte("FrmConfOrdo.TxtSLP"), "4,5", "le point devient une virgule");
  egal(valeur("HauteurSaut"), 4.5, "la nouvelle hauteur");
}
saisir("FrmConfOrdo.TxtSLP", "");
clic("FrmConfOrdo.CmdEnregistrer");
boites([["Vous n'avez pas fixé la hauteur du saut de ligne !", "OK"]]);
aucuneBoite();
egal(fichiers(), avant, "rien n'est enregistré sans hauteur");
saisir("FrmConfOrdo.TxtSLP", "x");
focus("FrmConfOrdo.TxtM");
boites([[/« x » n'est pas une hauteur/, "OK"]]);
egal(texte("FrmConfOrdo.TxtSLP"), "4,5", "la hauteur d'avant revient");

cocher("FrmConfOrdo.ChKSLP", false);
egal(etat(), [0, false, "", 0], "décochée");
egal(valeur("HauteurSaut"), 4.5, "la hauteur reste");
faux(actif("FrmOrdo.mnuHauteurN"), "plus rien à rétablir");
clic("FrmConfOrdo.CmdRetour");
clic("FrmOptions.CmdAnnule");

// The menus set the same controls.
clic("FrmDepart.CmdNO");
clic("FrmOrdo.mnuHauteurP");
boites([[invite, "2.5"]]);
egal(etat(), [1, true, "2,5", 1], "le menu coche et remplit");
vrai(lire(chemin + "/Marges.cfg") !== avant[1], "et écrit");
clic("FrmOrdo.mnuHauteurN");
egal(etat(), [0, false, "", 0], "le retour vide");
