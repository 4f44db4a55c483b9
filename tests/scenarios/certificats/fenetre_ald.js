// The two-zone sheet: it wipes the text, and what was typed comes back with Ctrl+Z.
installer();
ajouter("Medoc", "Patients", [1, "Monsieur", "MARTIN  Paul", "20/03/1953", "72", "", "", "", "", "", ""]);
clic("FrmDepart.CmdNO");
clic("FrmOrdo.CmdCertif");
doubleClic("FrmPatient.LstPatient", "MARTIN  Paul");

taper("FrmCertif.TxtCert", "Ordonnance");
clic("FrmCertif.CmdEnr");
repondre("Zones");
choisir("FrmCertif.LstCertif", "Zones");
clic("FrmCertif.CmdDecD");
egal(valeur("DecalageCertif"), 2, "un texte décalé");
cocher("FrmCertif.ChkALD", true);
const feuilleAld = (valeur("BandeauALD1") + "\r\n".repeat(5) + valeur("BandeauALD2") + "\r\n");
egal(texte("FrmCertif.TxtCert"), feuilleAld.replace(/\r\n/g, "\n"), "les deux zones, à la place du texte");
egal([valeur("CertifALD"), valeur("DecalageCertif")], [1, 0], "sans décalage");
faux(actif("FrmCertif.CmdDecG") || actif("FrmCertif.CmdDecD"), "elles ne se décalent pas");
vrai(actif("FrmCertif.CmdEcrire"), "elles s'écrivent");
capture("certificats_ald");

touche("FrmCertif.TxtCert", "Ctrl+Z");
egal(texte("FrmCertif.TxtCert"), "  Ordonnance\n", "Ctrl+Z rend le texte");
egal([valeur("CertifALD"), valeur("DecalageCertif"), coche("FrmCertif.ChkALD")], [0, 2, 0], "et ce qui va avec");

cocher("FrmCertif.ChkALD", true);
clic("FrmCertif.CmdEnr");
clic("FrmCertif.mnuEnr");
const dossier = valeur("CheminTravail") + "/Certificats/";
egal(lire(dossier + "Zones.txt"), feuilleAld, "le modèle garde les fins de ligne");
egal(lire(dossier + "Zones.cfg"), "0,1\r\n", "et son état ALD");

ecrire(dossier + "Zones.cfg", "6,1\r\n");
choisir("FrmCertif.LstCertif", "Zones");
egal(valeur("DecalageCertif"), 6, "un modèle ALD décalé");
clic("FrmCertif.CmdEcrire");
egal(valeur("DecalageCertif"), 0, "s'écrit sans décalage");
egal(valeur("ModeApercu"), 1, "sur la page");

clic("FrmOrdo.CmdCertif");
repondre("Oui");
cocher("FrmCertif.ChkALD", false);
egal(texte("FrmCertif.TxtCert"), "", "décocher efface");
egal(valeur("CertifALD"), 0, "et quitte les deux zones");
vrai(actif("FrmCertif.CmdDecG") && actif("FrmCertif.CmdDecD"), "le texte se décale de nouveau");
