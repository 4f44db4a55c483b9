// "Fichier PDF" writes the sheet among the data and opens it.
horloge("20/11/2026 14:05");
installer();
ajouter("Medoc", "Patients", [1, "Monsieur", "MARTIN  Paul", "20/03/1953", "0", "", "", "", "", "", ""]);
clic("FrmDepart.CmdOptions");
choisir("FrmOptions.TS", "Imprimantes");
egal(lignes("FrmOptions.CboPrint"), ["Bureau", "Fichier PDF"], "toujours parmi les imprimantes");
choisir("FrmOptions.CboPrint", "Fichier PDF");
clic("FrmOptions.CmdOK(2)");
clic("FrmDepart.CmdNO");
clic("FrmOrdo.CmdNouvelle");
doubleClic("FrmPatient.LstPatient", 0);
clic("FrmMedoc.CmdAnnule");
clic("FrmOrdo.CmdImprime");
const dossier = valeur("CheminTravail") + "/PDF";
egal(lister(dossier), ["2026-11-20 14-05 MARTIN Paul.pdf"], "le fichier");
egal(lireOctets(dossier + "/2026-11-20 14-05 MARTIN Paul.pdf").slice(0, 8).toLowerCase(), "25504446",
     "est un PDF");
egal(documents().length, 1, "il est ouvert");
contient(documents()[0], "2026-11-20 14-05 MARTIN Paul.pdf", "lui et pas un autre");
clic("FrmOrdo.CmdImprime");
egal(lister(dossier).length, 2, "un second ne remplace pas le premier");
