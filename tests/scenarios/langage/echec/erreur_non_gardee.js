// attendu : erreur_non_gardee.js:3 : fin inattendue du programme : Le disque est plein. (Medoc.mdb)
lancer();
clic("FrmEssai.CmdErreur");
