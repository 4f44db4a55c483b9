// The name with and without its civility.
const textes = () => feuille("FrmOrdo.PctOrdo").filter(i => i.genre === "texte").map(i => i.texte);

installer();
ajouter("Medoc", "Patients", [1, "Monsieur", "MARTIN  Paul", "20/03/1953", "0", "", "", "", "", "", ""]);
clic("FrmDepart.CmdNO");
clic("FrmOrdo.CmdPatient");
doubleClic("FrmPatient.LstPatient", 0);
contient(textes(), "Monsieur  MARTIN  Paul", "le nom avec sa civilité");
clic("FrmOrdo.ChkCiv");
contient(textes(), "MARTIN  Paul", "le nom seul");
faux(textes().includes("Monsieur  MARTIN  Paul"), "sans sa civilité");
clic("FrmOrdo.ChkCiv");
contient(textes(), "Monsieur  MARTIN  Paul", "et de nouveau avec elle");
