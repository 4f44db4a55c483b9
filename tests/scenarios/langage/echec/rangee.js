// attendu : rangee.js:3 : aucune rangée « cinq » parmi « 
lancer();
choisir("FrmEssai.Lst", "cinq");
