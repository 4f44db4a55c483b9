// attendu : controle_absent.js:4 : FrmEssai.CmdAbsent : le contrôle n'existe pas
lancer();
vrai(true, "avant");
clic("FrmEssai.CmdAbsent");
vrai(true, "jamais atteint");
