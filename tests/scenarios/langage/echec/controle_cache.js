// attendu : controle_cache.js:3 : FrmEssai.CmdCache : le contrôle n'est pas visible
lancer();
clic("FrmEssai.CmdCache");
