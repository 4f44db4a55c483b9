// A printer that has gone is named on the window with the one that takes its place, and no box stands before
// the printing.
installer();
clic("FrmDepart.CmdNO");
faux(visible("FrmOrdo.LblImprimante"), "l'imprimante est là");
imprimantes(["Accueil"], "Accueil");
clic("FrmOrdo.CmdDate");
repondre("20/11/2026");
clic("FrmOrdo.CmdImprime");
aucuneBoite();
egal(texte("FrmOrdo.LblImprimante"), "« Bureau » n'est plus installée : impression sur « Accueil »", "l'avis");
vrai(visible("FrmOrdo.LblImprimante"), "est visible");
egal(travaux().length, 1, "le document est imprimé");
egal(travaux()[0].imprimante, "Accueil", "sur l'imprimante par défaut");
imprimantes(["Accueil", "Bureau"], "Accueil");
clic("FrmOrdo.CmdImprime");
faux(visible("FrmOrdo.LblImprimante"), "revenue, elle imprime de nouveau");
egal(travaux()[1].imprimante, "Bureau", "et le travail va chez elle");
