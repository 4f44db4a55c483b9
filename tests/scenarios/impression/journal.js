// The journal of a doctor who keeps one.
installer();
ajouter("Medoc", "Patients", [1, "Monsieur", "MARTIN  Paul", "20/03/1953", "0", "", "", "", "", "", ""]);
ajouter("Medoc", "BddMed", [5001, null, null, null, "1 matin", "ZZTEST 500 MG"]);
const chemin = valeur("CheminMedecin");
const champs = lire(chemin + "/Options.cfg").split(",");
champs[champs.length - 5] = "1";
clic("FrmDepart.CmdQuitter");
ecrire(chemin + "/Options.cfg", champs.join(","));
lancer();
clic("FrmChoixBase.CmdSuite");
clic("FrmDepart.CmdNO");
clic("FrmOrdo.CmdNouvelle");
doubleClic("FrmPatient.LstPatient", 0);
clic("FrmMedoc.TV", "ZZTEST 500 MG");
clic("FrmMedoc.CmdAjouter1");
cocher("FrmMedoc.ChkTri", true);
clic("FrmMedoc.CmdOrdo");
clic("FrmOrdo.CmdImprime");
cocher("FrmOptions.Chkimp", true);
const journal = chemin + "/Journal_Docteur NEIBRE.log";
egal(travaux().length, 1, "un travail imprimé");
egal(travaux()[0].pages.length, 3, "de trois feuilles");
egal(lire(journal), "20/11/2026*MARTIN  Paul*20/03/1953*ZZTEST500MG\n", "une seule ligne");
clic("FrmOrdo.CmdDate");
repondre("01/01/2020");
clic("FrmOrdo.CmdImprime");
egal(lire(journal).split("\n")[1], "20/11/2026*MARTIN  Paul*20/03/1953*ZZTEST500MG",
     "le jour de l'impression, pas celui du document");
