// attendu : programme_termine.js:4 : le programme est terminé
lancer();
clic("FrmEssai.CmdQuitter");
clic("FrmEssai.CmdMenu");
