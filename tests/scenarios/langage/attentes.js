// Time to come is virtual: what waits runs at once, in its order, before an action is over.
lancer();
const debut = Date.now();
clic("FrmEssai.CmdAttend");
egal(texte("FrmEssai.LblTrace"), "d'abord : abc", "dans l'ordre des échéances, après la procédure");
clic("FrmEssai.CmdAttendBoite");
boites([["Après 2 s", "OK"]]);
egal(texte("FrmEssai.LblTrace"), "sous la boîte", "une attente passe sous une boîte ouverte");
clic("FrmEssai.CmdHorloge");
egal(texte("FrmEssai.LblTrace"), "20/11/2026 10:00", "l'heure ne bouge pas");
clic("FrmEssai.CmdSansFin");
clic("FrmEssai.CmdArrete");
const sondes = Number(texte("FrmEssai.LblTrace"));
vrai(sondes >= 1200 && sondes < 2600, "une minute de chaque action, puis le temps véritable : " + sondes);
vrai(Date.now() - debut < 8000, "sans attendre");
clic("FrmEssai.CmdAttend");
clic("FrmEssai.CmdQuitter");
vrai(fini(), "rien ne reste en attente");
