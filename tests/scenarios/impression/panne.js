// What fails at printing is said; nothing is lost and the desk goes on.
installer();
ajouter("Medoc", "Patients", [1, "Monsieur", "D'ARC %1  \"Jo\" Łukasz/..", "20/03/1953", "72", "", "", "", "", "", ""]);
const champs = lire(valeur("CheminMedecin") + "/Options.cfg").split(",");
champs[24] = "1";
ecrire(valeur("CheminMedecin") + "/Options.cfg", champs.join(","));
clic("FrmDepart.CmdMedecins");
clic("FrmMedecins.CmdNouveau");
repondre("Dr durand");
choisir("FrmMedecins.LstMed", 0);
clic("FrmMedecins.CmdQuitter");
clic("FrmDepart.CmdOptions");
choisir("FrmOptions.TS", "Imprimantes");
choisir("FrmOptions.CboPrint", "Fichier PDF");
clic("FrmOptions.CmdOK(2)");
clic("FrmDepart.CmdNO");
clic("FrmOrdo.CmdNouvelle");
doubleClic("FrmPatient.LstPatient", 0);
clic("FrmMedoc.CmdAnnule");

const pdf = valeur("CheminTravail") + "/PDF";
const journal = valeur("CheminMedecin") + "/Journal_Docteur NEIBRE.log";
ecrire(pdf, "un fichier à la place du dossier");
clic("FrmOrdo.CmdImprime");
egal(boite().genre, "stop", "une impression qui échoue");
boites([[/^L'impression sur « Fichier PDF » a échoué\./, "OK"]]);
faux(existe(journal), "ce qui n'est pas imprimé n'est pas au journal");
effacer(pdf);

creerDossier(journal);
clic("FrmOrdo.CmdImprime");
boites([[/^L'ordonnance est imprimée, mais elle n'a pas pu être inscrite au journal\./, "OK"]]);
egal(lister(pdf), ["2026-11-20 10-00 D'ARC %1 Jo Łukasz.pdf"], "un nom de patient fait un nom de fichier");
effacer(journal);

clic("FrmOrdo.CmdImprime");
aucuneBoite("le journal est de nouveau possible");
egal(lire(journal), "20/11/2026*D'ARC %1  \"Jo\" ?ukasz/..*20/03/1953\n", "les lettres inconnues y sont des ?");
clic("FrmOrdo.CmdImprime");
egal(lire(journal).split("\n").length, 3, "une ligne par impression");
