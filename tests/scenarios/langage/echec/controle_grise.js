// attendu : controle_grise.js:3 : FrmEssai.TxtGris : le contrôle est grisé
lancer();
taper("FrmEssai.TxtGris", "a");
