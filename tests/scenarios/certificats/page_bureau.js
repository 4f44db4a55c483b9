// The commands of the desk that repaint a certificate: line height, date, doctor.
installer();
ajouter("Medoc", "Patients", [1, "Monsieur", "MARTIN  Paul", "20/03/1953", "0", "", "", "", "", "", ""]);
clic("FrmDepart.CmdMedecins");
clic("FrmMedecins.CmdNouveau");
repondre("Dr durand");
clic("FrmMedecins.CmdQuitter");
clic("FrmDepart.CmdNO");
const items = () => feuille("FrmOrdo.PctOrdo").filter(i => i.genre === "texte");
const item = mot => items().find(i => i.texte.trim() === mot);
const ecart = () => item("deux").y - item("un").y;
clic("FrmOrdo.CmdCertif");
doubleClic("FrmPatient.LstPatient", 0);
saisir("FrmCertif.TxtCert", "un\ndeux\n<DJ>");
clic("FrmCertif.CmdEcrire");
const normal = ecart();
proche(normal, 2 * item("un").hauteur + 1, 0.01, "deux lignes et 1 mm");

clic("FrmOrdo.mnuHauteurP");
repondre("5.5");
proche(ecart(), normal + 4.5, 0.01, "la hauteur personnelle");
clic("FrmOrdo.mnuHauteurP");
repondre("10");
proche(ecart(), normal, 0.01, "comparée comme un texte");
clic("FrmOrdo.mnuHauteurN");
proche(ecart(), normal, 0.01, "la hauteur normale");

vrai(item("20/11/2026") !== undefined, "la date du jour");
clic("FrmOrdo.CmdDate");
repondre("01/02/2027");
vrai(item("01/02/2027") !== undefined, "suit CmdDate");
clic("FrmOrdo.CmdEnr");
boites([["On ne peut pas enregistrer un certificat \ndans cette fenêtre.", "OK"]]);
clic("FrmOrdo.CmdSupp");
boites([["On ne peut pas supprimer un certificat \ndans cette fenêtre.", "OK"]]);

choisir("FrmOrdo.CboMed", lignes("FrmOrdo.CboMed").findIndex(nom => nom !== texte("FrmOrdo.CboMed")));
egal(valeur("ModeApercu"), 1, "un autre médecin garde le certificat");
vrai(item("deux") !== undefined, "repeint sur la page");
