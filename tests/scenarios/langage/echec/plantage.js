// attendu : plantage.js:3 : fin inattendue du programme (signal 6)
lancer();
clic("FrmEssai.CmdPlante");
