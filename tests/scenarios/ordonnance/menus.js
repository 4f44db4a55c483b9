// What the entries of the desk's two menus open.
installer();
clic("FrmDepart.CmdNO");
clic("FrmOrdo.CmdAide");
egal(lignes("FrmOrdo.MnuAideInv"), ["Aide", "Nouvelle version"], "le menu de l'aide");
clic("FrmOrdo.mnuAideNew");
egal(documents(), [programme + "/Aide.pdf"], "l'aide de la nouvelle version");
clic("FrmOrdo.mnuAideOld");
egal(documents()[1], programme + "/Ordo.hlp", "l'aide");
clic("FrmOrdo.mnuAP");
vrai(ouverte("FrmAPROPOS"), "à propos");
clic("FrmAPROPOS.Bouton_VL_XP1");
clicDroit("FrmOrdo.PctOrdo");
clic("FrmOrdo.mnuOptions");
vrai(ouverte("FrmOptions"), "les options");
touche("FrmOptions", "Echap");
faux(ouverte("FrmOptions"), "Échap les annule");

clic("FrmOrdo.CmdEnr");
egal(boite().genre, "stop", "rien à mémoriser");
boites([["Aucune ordonnance n'est à enregistrer !", "OK"]]);
clic("FrmOrdo.CmdSupp");
boites([["Ce raccourci ne peut que supprimer une ordonnance mémorisée.", "OK"]]);

clicDroit("FrmOrdo.PctOrdo");
clic("FrmOrdo.mnuQuitter");
vrai(fini(), "quitter termine le programme");
