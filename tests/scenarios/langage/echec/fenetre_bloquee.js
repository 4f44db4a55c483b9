// attendu : fenetre_bloquee.js:4 : FrmEssai.CmdCache : fenêtre bloquée par FrmModale
lancer();
clic("FrmEssai.CmdModale");
clic("FrmEssai.CmdCache");
