// The name with and without its civility.
const textes = () => feuille("FrmOrdo.PctOrdo").filter(i => i.genre === "texte").map(i => i.texte);

installer();
clic("FrmDepart.CmdNO");
clic("FrmOrdo.CmdPatient");
clic("FrmPatient.CmdNouveauPatient");
clic("FrmNouveauP.Opt(0)");
taper("FrmNouveauP.Txt(0)", "martin");
taper("FrmNouveauP.Txt(1)", "paul");
taper("FrmNouveauP.MEB", "20/03/1953");
clic("FrmNouveauP.CmdOK");
clic("FrmPatient.CmdOK");
contient(textes(), "Monsieur  MARTIN  Paul", "le nom avec sa civilité");
clic("FrmOrdo.ChkCiv");
contient(textes(), "MARTIN  Paul", "le nom seul");
faux(textes().includes("Monsieur  MARTIN  Paul"), "sans sa civilité");
clic("FrmOrdo.ChkCiv");
contient(textes(), "Monsieur  MARTIN  Paul", "et de nouveau avec elle");
