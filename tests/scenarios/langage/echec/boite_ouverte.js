// attendu : boite_ouverte.js:3 : une boîte est restée ouverte : « Vraiment ?\nSûr ? »
lancer();
clic("FrmEssai.CmdBoite");
