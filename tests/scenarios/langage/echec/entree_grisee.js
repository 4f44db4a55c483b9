// attendu : entree_grisee.js:4 : FrmEssai.mnuGrise : l'entrée est grisée
lancer();
clic("FrmEssai.CmdMenu");
clic("FrmEssai.mnuGrise");
