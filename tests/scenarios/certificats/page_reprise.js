// Back to the certificate of the page, its text gone, and back to the prescription.
installer();
ajouter("Medoc", "Patients", [1, "Monsieur", "MARTIN  Paul", "20/03/1953", "0", "", "", "", "", "", ""]);
ajouter("Medoc", "Patients", [2, "Madame", "DURAND  Anne", "01/02/1980", "0", "", "", "", "", "", ""]);
const tmp = valeur("CheminTravail") + "/Certificats/Tmp.txt";
const mots = () => feuille("FrmOrdo.PctOrdo").filter(i => i.genre === "texte").map(i => i.texte);
clic("FrmDepart.CmdNO");
clic("FrmOrdo.CmdPatient");
doubleClic("FrmPatient.LstPatient", "MARTIN  Paul");
clic("FrmOrdo.CmdCertif");
egal(boite().genre, "question", "la question");
boites([["Pour le patient en cours (Monsieur  MARTIN  Paul) ?", "Oui"]]);
saisir("FrmCertif.TxtCert", "certificat de <N>");
cocher("FrmCertif.ChkP", true);
clic("FrmCertif.CmdEcrire");
egal(lire(tmp), "certificat de <N>\r\n", "le texte de la page");
egal(mots().filter(m => m === "Monsieur  MARTIN  Paul").length, 2, "le bloc du patient et la macro");

clic("FrmOrdo.CmdCertif");
boites([["Pour le patient en cours (Monsieur  MARTIN  Paul) ?", "Oui"]]);
egal(texte("FrmCertif.TxtCert").trim(), "certificat de <N>", "le texte revient");
vrai(actif("FrmCertif.CmdEcrire"), "et s'écrit de nouveau");
clic("FrmCertif.CmdEcrire");

clic("FrmOrdo.CmdPatient");
doubleClic("FrmPatient.LstPatient", "DURAND  Anne");
contient(mots(), "Madame  DURAND  Anne", "le certificat suit le patient");

clic("FrmOrdo.CmdCertif");
boites([["Pour le patient en cours (Madame  DURAND  Anne) ?", "Non"]]);
vrai(ouverte("FrmPatient"), "Non ouvre la liste");
egal(valeur("ModeApercu"), 0, "plus de certificat en main");
clic("FrmPatient.CmdAnnule");
faux(ouverte("FrmCertif"), "sans patient, pas de certificat");
vrai(actif("FrmOrdo.ChkCiv"), "la civilité revient");

clic("FrmOrdo.CmdCertif");
doubleClic("FrmPatient.LstPatient", "MARTIN  Paul");
saisir("FrmCertif.TxtCert", "autre");
clic("FrmCertif.CmdEcrire");
contient(mots(), "autre", "un certificat");
effacer(tmp);
clic("FrmOrdo.CmdDate");
repondre("01/01/2020");
egal(mots(), [], "sans texte, rien n'est peint");
clic("FrmOrdo.CmdImprime");
if (ouverte("FrmOptions")) cocher("FrmOptions.Chkimp", true);
boites([["Le texte du certificat est introuvable ou illisible. Rien n'est imprimé.", "OK"]]);
egal(travaux().length, 0, "rien n'est imprimé");

clic("FrmOrdo.CmdCertif");
boites([[/patient en cours/, "Oui"]]);
clic("FrmCertif.CmdAnn");
vrai(ouverte("FrmMedoc"), "Annuler va aux médicaments");
egal(valeur("ModeApercu"), 0, "une ordonnance");
touche("FrmMedoc", "Echap");
