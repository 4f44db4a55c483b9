// The desk at its opening, its two menus, and the way back to the main window.
installer();
clic("FrmDepart.CmdNO");
vrai(ouverte("FrmOrdo"), "le bureau s'ouvre");
egal(etat("FrmDepart"), "cachee", "la fenêtre d'accueil se range à côté de l'horloge");
egal(feuille("FrmOrdo.PctOrdo"), [], "la feuille est vide");
vrai(visible("FrmOrdo.PctMenu1"), "la première barre est montrée");
faux(visible("FrmOrdo.PctMenu2"), "la seconde ne l'est pas");
egal(coche("FrmOrdo.ChkCiv"), 1, "la civilité est imprimée");
egal(texte("FrmOrdo.CboMed"), "DR NEIBRE", "le médecin courant");
egal(donnees("FrmOrdo.CboMed"), [1], "le numéro du médecin");
faux(actif("FrmOrdo.mnuHauteurN"), "pas de hauteur personnelle à quitter");
capture("FrmOrdo-vide");

clicDroit("FrmOrdo.PctOrdo");
contient(lignes("FrmOrdo.mnuInvisible"), "Saut de ligne normal", "le menu de la feuille");
vrai(aspect("FrmOrdo.mnuQuitter").gras, "Quitter est l'entrée par défaut");
clic("FrmOrdo.mnuMinimiser");
egal(etat("FrmOrdo"), "cachee", "le bureau se range à côté de l'horloge");
icone("gauche");
egal(etat("FrmOrdo"), "agrandie", "et revient agrandi");

clic("FrmOrdo.CmdAccueil");
egal(etat("FrmOrdo"), "cachee", "le bureau se cache");
vrai(ouverte("FrmDepart"), "la fenêtre d'accueil revient");
egal(etat("FrmDepart"), "normale", "à sa taille normale");

clic("FrmDepart.CmdNO");
clic("FrmOrdo.CmdFermer");
vrai(fini(), "fermer le bureau termine le programme");
