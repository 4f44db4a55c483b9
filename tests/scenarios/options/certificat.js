// A certificate on the sheet stays there whatever is switched, cancelled or kept.
const mots = () => feuille("FrmOrdo.PctOrdo").filter(i => i.genre === "texte").map(i => i.texte).join("|");

installer();
ajouter("Medoc", "Patients", [1, "Monsieur", "MARTIN  Paul", "20/03/1953", "72", "", "", "", "", "", ""]);
clic("FrmDepart.CmdNO");
clic("FrmOrdo.CmdPatient");
doubleClic("FrmPatient.LstPatient", 0);
clic("FrmOrdo.CmdCertif");
repondre("Oui");
saisir("FrmCertif.TxtCert", "certificat de <N>");
cocher("FrmCertif.ChkP", true);
clic("FrmCertif.CmdEcrire");
const avant = feuille("FrmOrdo.PctOrdo");

clicDroit("FrmOrdo.PctOrdo");
clic("FrmOrdo.mnuOptions");
for (const nom of ["ChkA", "ChkP", "ChkNbMed", "ChkInc", "ChkF(1)"]) {
  cocher("FrmOptions." + nom, !coche("FrmOptions." + nom));
  contient(mots(), "certificat", nom + " laisse le certificat");
  faux(mots().includes("Nombre de"), "sans compte de médicaments");
}
clic("FrmOptions.CmdAnnule");
egal(feuille("FrmOrdo.PctOrdo"), avant, "annulé, il est intact");
egal(valeur("ModeApercu"), 1, "toujours en main");

clicDroit("FrmOrdo.PctOrdo");
clic("FrmOrdo.mnuOptions");
cocher("FrmOptions.ChkDDN", false);
clic("FrmOptions.CmdOK");
contient(mots(), "certificat", "gardé, il est repeint");
faux(mots().includes("né(e)"), "selon les options nouvelles");
egal(valeur("ModeApercu"), 1, "et toujours en main");
