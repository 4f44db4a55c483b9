// Another patient under the lines in hand, and back to the medications.
const textes = () => feuille("FrmOrdo.PctOrdo").filter(i => i.genre === "texte").map(i => i.texte);

installer();
ajouter("Medoc", "Patients", [1, "Monsieur", "MARTIN  Paul", "20/03/1953", "72", "", "", "", "", "", ""]);
ajouter("Medoc", "Patients", [2, "Madame", "BRUN  Anne", "01/02/1960", "0", "", "", "", "", "", ""]);
ajouter("Medoc", "BddMed", [5001, null, null, null, "1 matin", "ZZTEST 500 MG"]);
clic("FrmDepart.CmdNO");
clic("FrmOrdo.CmdNouvelle");
doubleClic("FrmPatient.LstPatient", "MARTIN  Paul");
clic("FrmMedoc.TV", "ZZTEST 500 MG");
clic("FrmMedoc.CmdAjouter1");
clic("FrmMedoc.CmdOrdo");
contient(textes(), "Monsieur  MARTIN  Paul", "le premier patient");

clic("FrmOrdo.CmdPatient");
doubleClic("FrmPatient.LstPatient", "BRUN  Anne");
egal(fenetreActive(), "FrmOrdo", "sans passer par les médicaments");
contient(textes(), "Madame  BRUN  Anne", "l'autre patiente");
faux(textes().some(t => t.includes("MARTIN")), "à la place du premier");
contient(textes(), "ZZTEST 500 MG", "les médicaments restent");

clic("FrmOrdo.CmdPharma");
egal(feuille("FrmOrdo.PctOrdo"), [], "la feuille attend les médicaments");
egal(lignes("FrmMedoc.LstChoix1").length, 1, "ils sont toujours là");
egal(texte("FrmMedoc.TxtMedoc") + texte("FrmMedoc.TxtPoso"), "", "les boîtes sont vides");
clic("FrmMedoc.CmdOrdo");
contient(textes(), "ZZTEST 500 MG", "et reviennent sur la feuille");

clic("FrmOrdo.CmdPatient");
clic("FrmPatient.CmdAnnule");
faux(textes().some(t => t.includes("BRUN")), "annuler ne garde aucun patient");
contient(textes(), "ZZTEST 500 MG", "mais garde les médicaments");
