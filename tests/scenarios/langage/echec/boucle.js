// attendu : boucle.js:3 : plus de 6 s
lancer();
clic("FrmEssai.CmdBoucle");
