// A personal height of the gaps, and back.
const invite = "Pour personnaliser la hauteur du saut de ligne, déterminez sa\nHauteur en mm : ";

installer();
clic("FrmDepart.CmdNO");
faux(actif("FrmOrdo.mnuHauteurN"), "rien à rétablir au début");
clic("FrmOrdo.mnuHauteurP");
egal(boite().titre, "Hauteur des sauts de lignes", "le titre de la boîte");
boites([[invite, "2.5"]]);
egal(valeur("HauteurSaut"), 2.5, "la hauteur");
egal(valeur("SautPersonnalise"), 1, "elle est en vigueur");
vrai(actif("FrmOrdo.mnuHauteurN"), "le retour est offert");
vrai(actif("FrmDepart.mnuHauteurN"), "dans l'autre fenêtre aussi");
clic("FrmOrdo.mnuHauteurN");
egal(valeur("SautPersonnalise"), 0, "le saut normal est de retour");
egal(valeur("HauteurSaut"), 2.5, "la hauteur reste gardée");
faux(actif("FrmOrdo.mnuHauteurN"), "plus rien à rétablir");
clic("FrmOrdo.mnuHauteurP");
boites([[invite, ""]]);
egal(valeur("SautPersonnalise"), 0, "une réponse vide ne change rien");
