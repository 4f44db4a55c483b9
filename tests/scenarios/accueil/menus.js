// The entries of the three menus of the main window.
installer();
const parties = nom => lignes("FrmDepart." + nom).filter(texte => texte !== "" && texte !== "-");
egal(parties("mnuOutils"), ["Réparer et compacter les bases de données", "Insérer un logo",
    "Choisir la base de données de la pharmacie", "Transfert des données",
    "Mise à jour des bases de  données sur support externe (clef USB  ou serveur)", "Journal des ordonnances",
    "Mettre à jour la base publique…", "Restaurer une sauvegarde…"],
    "les outils");
clic("FrmDepart.CmdAide");
egal(parties("MnuAideInv"), ["Aide", "Nouvelle version"], "l'aide");
clic("FrmDepart.mnuAideNew");
clic("FrmDepart.CmdAide");
clic("FrmDepart.mnuAideOld");
egal(documents(), [programme + "/Aide.pdf", programme + "/Ordo.hlp"], "les documents d'aide");
clic("FrmDepart.CmdOutils");
clic("FrmDepart.mnuMAJClef");
aucuneBoite();
egal(fenetreActive(), "FrmDepart", "la mise à jour d'un support ne fait rien");
faux(actif("FrmDepart.mnuHauteurN"), "pas de hauteur personnelle à quitter");
clic("FrmDepart.CmdNO");
icone("droit");
egal(parties("mnuInvisible"), ["Ordonnance", "Minimiser", "Accueil", "Options", "Saut de ligne normal",
    "Hauteur de saut de ligne personnalisée", "Aide", "A propos", "Quitter"], "le menu de l'icône");
vrai(aspect("FrmDepart.mnuQuitter").gras, "Quitter est l'entrée par défaut");
clic("FrmDepart.mnuHauteurP");
const hauteur = boite();
egal([hauteur.genre, hauteur.titre], ["saisie", "Hauteur des sauts de lignes"], "la hauteur");
egal(hauteur.texte, "Pour personnaliser la hauteur du saut de ligne, déterminez sa\nHauteur en mm : ", "l'invite");
repondre("6.5");
proche(valeur("HauteurSaut"), 6.5, 0.001, "la hauteur est prise");
vrai(actif("FrmDepart.mnuHauteurN"), "on peut revenir à la hauteur normale");
vrai(actif("FrmOrdo.mnuHauteurN"), "de même dans l'éditeur");
