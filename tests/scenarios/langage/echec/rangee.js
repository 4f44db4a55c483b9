// attendu : rangee.js:3 : aucune rangée « quatre » parmi « 
lancer();
choisir("FrmEssai.Lst", "quatre");
