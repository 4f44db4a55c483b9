// To the page and back, and out without a certificate.
installer();
const dossier = valeur("CheminTravail") + "/Certificats/";
ecrire(dossier + "Arrêt.txt", "Repos");
ecrire(dossier + "Sport.txt", "Je certifie que <N> est apte");
ajouter("Medoc", "Patients", [1, "Monsieur", "MARTIN  Paul", "20/03/1953", "72", "", "", "", "", "", ""]);
const mots = () => feuille("FrmOrdo.PctOrdo").filter(i => i.genre === "texte").map(i => i.texte.trim()).join(" ");
clic("FrmDepart.CmdNO");
clic("FrmOrdo.CmdCertif");
doubleClic("FrmPatient.LstPatient", "MARTIN  Paul");

doubleClic("FrmCertif.LstCertif", "Sport");
faux(ouverte("FrmCertif"), "un double clic écrit et ferme");
egal(valeur("ModeApercu"), 1, "la page montre un certificat");
egal(valeur("IndexCertif"), 1, "celui de la deuxième rangée");
egal(lire(dossier + "Tmp.txt"), "Je certifie que <N> est apte\r\n", "le texte de la page");
contient(mots(), "Monsieur  MARTIN  Paul", "avec le nom du patient");

clic("FrmOrdo.CmdCertif");
repondre("Oui");
egal(selection("FrmCertif.LstCertif"), 1, "le modèle est encore choisi");
egal(texte("FrmCertif.TxtCert"), "Je certifie que <N> est apte\n", "le texte est celui de la page");
vrai(actif("FrmCertif.CmdEcrire"), "il peut repartir");
clic("FrmCertif.CmdDecD");
saisir("FrmCertif.TxtCert", "  Apte au judo   ");
clic("FrmCertif.CmdEcrire");
egal(lire(dossier + "Tmp.txt"), "  Apte au judo\r\n", "sans espaces à la fin");
egal(valeur("DecalageCertif"), 2, "décalé");
contient(mots(), "judo", "la page a changé");
egal(lire(dossier + "Sport.txt"), "Je certifie que <N> est apte", "le modèle non");

clic("FrmOrdo.CmdCertif");
repondre("Oui");
egal(valeur("DecalageCertif"), 2, "le décalage de la page est resté");
egal(lignes("FrmCertif.LstCertif"), ["Arrêt", "Sport"], "le fichier de travail n'est pas un modèle");
cocher("FrmCertif.ChkP", true);
egal(valeur("IdentiteCertif"), 1, "l'identité sera écrite");
clic("FrmCertif.CmdAnn");
egal(fenetreActive(), "FrmMedoc", "annuler mène aux médicaments");
egal(feuille("FrmOrdo.PctOrdo"), [], "et vide la page");
