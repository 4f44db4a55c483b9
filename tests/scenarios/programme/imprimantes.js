// The printers of a world: none, some, and others at the next start.
imprimantes([]);
installer();
egal([valeur("Imprimante"), valeur("EtatImprimante")], ["Fichier PDF", 2], "installé avec celle qui est toujours là");
clic("FrmDepart.CmdNO");
clic("FrmOrdo.CmdImprime");
egal(travaux().map(t => t.imprimante), ["Fichier PDF"], "un fichier");
contient(documents()[0], "/PDF/2026-11-20 10-00", "ouvert");
fermer("FrmOrdo");

imprimantes(["Salle 1", "Salle 2, couleur"], "Salle 2, couleur");
lancer();
clic("FrmChoixBase.CmdSuite");
clic("FrmDepart.CmdNO");
clic("FrmOrdo.CmdImprime");
egal(lignes("FrmOptions.CboPrint"), ["Salle 1", "Salle 2, couleur", "Fichier PDF"], "celles du système");
choisir("FrmOptions.TS", "Imprimantes");
choisir("FrmOptions.CboPrint", "Salle 2, couleur");
cocher("FrmOptions.Chkimp", true);
egal(travaux().map(t => t.imprimante), ["Fichier PDF", "Salle 2, couleur"], "la seconde");
contient(lire(valeur("CheminMedecin") + "/Options.cfg"), '"Salle 2, couleur"', "gardée, avec sa virgule");
