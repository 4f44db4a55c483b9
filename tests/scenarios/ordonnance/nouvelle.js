// A new document: what is emptied, what stays, and a patient who is not chosen after all.
installer();
ajouter("Medoc", "Patients", [1, "Monsieur", "MARTIN  Paul", "20/03/1953", "72", "", "", "", "", "", ""]);
ajouter("Medoc", "BddMed", [5001, null, null, null, "1 matin", "ZZTEST 500 MG"]);
const certificats = valeur("CheminMedecin") + "/Certificats";
creerDossier(certificats);
ecrire(certificats + "/Tmp.txt", "Je certifie");
ecrire(certificats + "/Sport.txt", "Apte");
clic("FrmDepart.CmdNO");
clic("FrmOrdo.CmdNouvelle");
egal(fenetreActive(), "FrmPatient", "le patient d'abord");
egal(lister(certificats), ["Sport.txt"], "le certificat en main est jeté, les modèles restent");
doubleClic("FrmPatient.LstPatient", 0);
egal(fenetreActive(), "FrmMedoc", "puis ses médicaments");
cocher("FrmMedoc.ChkALD", true);
cocher("FrmMedoc.ChkTri", true);
clic("FrmMedoc.TV", "ZZTEST 500 MG");
clic("FrmMedoc.CmdAjouter1");
clic("FrmMedoc.TV", "ZZTEST 500 MG");
clic("FrmMedoc.CmdAjouter2");
clic("FrmMedoc.CmdOrdo");
egal([valeur("NbMedZone1"), valeur("NbMedZone2")], [1, 1], "deux médicaments comptés");
clic("FrmOrdo.CmdDate");
repondre("01/02/2026");

clic("FrmOrdo.CmdNouvelle");
egal(feuille("FrmOrdo.PctOrdo"), [], "la feuille est vide");
egal([valeur("PatientCourant"), valeur("DateNaissance"), valeur("AgePatient"), valeur("PoidsPatient")],
     ["", "", "", ""], "plus de patient");
egal(valeur("DateOrdo"), "20/11/2026", "la date d'aujourd'hui");
egal([valeur("NbZone1"), valeur("NbZone2"), valeur("NbMedZone1"), valeur("NbMedZone2")], [0, 0, 0, 0],
     "plus de médicaments");
egal(valeur("OrdoMemorisee"), 0, "aucune ordonnance mémorisée en main");
clic("FrmPatient.CmdAnnule");
egal(fenetreActive(), "FrmOrdo", "sans patient, pas de médicaments");
egal(feuille("FrmOrdo.PctOrdo"), [], "et toujours rien sur la feuille");

clic("FrmOrdo.CmdPharma");
egal(lignes("FrmMedoc.LstChoix1"), [], "la première liste est vide");
egal(coche("FrmMedoc.ChkALD"), 0, "une seule zone");
egal(coche("FrmMedoc.ChkTri"), 1, "le nombre de copies reste");
egal(texte("FrmMedoc.TxtMedoc") + texte("FrmMedoc.TxtPoso") + texte("FrmMedoc.TxtCherche"), "",
     "les boîtes sont vides");
