// attendu : clic_sous_boite.js:5 : FrmEssai.CmdModale : une boîte est ouverte : « Vraiment ?
lancer();
clic("FrmEssai.CmdBoite");
try {
    clic("FrmEssai.CmdModale");
} finally { repondre("Non"); repondre(null); }
