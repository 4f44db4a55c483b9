// The printer is asked for until it is confirmed; without any the PDF file prints.
installer();
clic("FrmDepart.CmdQuitter");
imprimantes([], "");
lancer();
clic("FrmChoixBase.CmdSuite");
clic("FrmDepart.CmdNO");
clic("FrmOrdo.CmdDate");
repondre("0");

clic("FrmOrdo.CmdImprime");
egal(lignes("FrmOptions.CboPrint"), ["Fichier PDF"], "il reste le fichier PDF");
egal(selection("FrmOptions.CboPrint"), -1, "l'imprimante d'avant n'est plus là");
clic("FrmOptions.CmdOK(2)");
egal(boite().genre, "stop", "il faut en choisir une");
boites([["Vous n'avez pas sélectionné l'imprimamte !", "OK"]]);
vrai(ouverte("FrmOptions"), "la fenêtre reste");
touche("FrmOptions", "Echap");
vrai(ouverte("FrmOptions"), "Échap n'en sort pas");
choisir("FrmOptions.CboPrint", 0);
clic("FrmOptions.CmdOK(2)");
egal(valeur("EtatImprimante"), 0, "choisie sans être confirmée");
egal(travaux().length, 1, "la feuille est imprimée");
egal(travauxAbandonnes().length, 0, "sans abandon");
egal(documents().length, 1, "et montrée");

clic("FrmOrdo.CmdImprime");
vrai(ouverte("FrmOptions"), "la question revient");
egal(texte("FrmOptions.CboPrint"), "Fichier PDF", "avec l'imprimante choisie");
cocher("FrmOptions.Chkimp", true);
egal(valeur("EtatImprimante"), 2, "confirmée");
egal([travaux().length, travauxAbandonnes().length], [2, 1], "peinte deux fois, imprimée une fois");
doubleClic("FrmOrdo.CmdImprime");
egal(travaux().length, 3, "un double clic n'imprime pas deux fois");
