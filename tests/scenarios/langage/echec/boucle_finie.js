// attendu : boucle_finie.js:3 : fin inattendue du programme (code 3)
lancer();
clic("FrmEssai.CmdBoucleFinie");
texte("FrmEssai.LblTrace");
