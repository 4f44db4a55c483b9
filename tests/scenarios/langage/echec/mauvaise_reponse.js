// attendu : mauvaise_reponse.js:5 : la boîte « Vraiment ?\nSûr ? » ne prend pas la réponse « Annuler »
lancer();
clic("FrmEssai.CmdBoite");
try {
    repondre("Annuler");
} finally { repondre("Non"); repondre(null); }
