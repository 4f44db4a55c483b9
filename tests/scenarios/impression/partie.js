// A printer that has gone is named, and the default one prints.
installer();
imprimantes(["Accueil"], "Accueil");
clic("FrmDepart.CmdNO");
clic("FrmOrdo.CmdDate");
repondre("20/11/2026");
clic("FrmOrdo.CmdImprime");
boites([[/« Bureau » n'est plus installée[^]*« Accueil »/, "OK"]]);
egal(travaux().length, 1, "le document est imprimé");
egal(travaux()[0].imprimante, "Accueil", "sur l'imprimante par défaut");
