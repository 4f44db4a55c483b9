// attendu : sortie.js:3 : fin inattendue du programme (code 0)
lancer();
clic("FrmEssai.CmdSort");
