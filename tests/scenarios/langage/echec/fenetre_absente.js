// attendu : fenetre_absente.js:3 : FrmAbsente.Cmd : la fenêtre n'existe pas
lancer();
texte("FrmAbsente.Cmd");
