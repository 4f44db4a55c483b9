// The shift: its blanks and its millimetres stay in step.
installer();
const dossier = valeur("CheminTravail") + "/Certificats/";
ecrire(dossier + "Arrêt.txt", "Je soussigné\r\n\r\n<DR>");
ecrire(dossier + "Mixte.txt", "    large\r\n étroit");
ajouter("Medoc", "Patients", [1, "Monsieur", "MARTIN  Paul", "20/03/1953", "72", "", "", "", "", "", ""]);
clic("FrmDepart.CmdNO");
clic("FrmOrdo.CmdCertif");
doubleClic("FrmPatient.LstPatient", "MARTIN  Paul");

choisir("FrmCertif.LstCertif", "Arrêt");
faux(actif("FrmCertif.CmdAnnule"), "rien à annuler");
clic("FrmCertif.CmdDecD");
clic("FrmCertif.CmdDecD");
egal(valeur("DecalageCertif"), 4, "deux pas de 2 mm");
egal(texte("FrmCertif.TxtCert"), "    Je soussigné\n    \n    <DR>\n", "quatre espaces devant chaque ligne");
vrai(actif("FrmCertif.CmdAnnule"), "le décalage s'annule");
clic("FrmCertif.CmdEnr");
clic("FrmCertif.mnuEnr");
egal(lire(dossier + "Arrêt.txt"), "    Je soussigné\r\n    \r\n    <DR>\r\n", "le modèle porte les espaces");
egal(lire(dossier + "Arrêt.cfg"), "4,0\r\n", "et leurs millimètres");
faux(actif("FrmCertif.CmdEnr"), "il est enregistré");

clic("FrmCertif.CmdDecG");
egal(texte("FrmCertif.TxtCert"), "  Je soussigné\n  \n  <DR>\n", "vers la gauche, deux espaces de moins");
egal(valeur("DecalageCertif"), 2, "et 2 mm");
clic("FrmCertif.CmdAnnule");
egal(texte("FrmCertif.TxtCert"), "    Je soussigné\n    \n    <DR>\n", "le texte enregistré revient");
egal(valeur("DecalageCertif"), 4, "avec son décalage");
faux(actif("FrmCertif.CmdAnnule"), "une seule fois");

choisir("FrmCertif.LstCertif", "Mixte");
clic("FrmCertif.CmdDecG");
egal(texte("FrmCertif.TxtCert"), "    large\n étroit", "une ligne sans place refuse");
egal(valeur("DecalageCertif"), 4, "et rien ne bouge");
faux(actif("FrmCertif.CmdDecG"), "le bouton se grise");
vrai(actif("FrmCertif.CmdAnnule"), "annuler le rend");
clic("FrmCertif.CmdAnnule");
vrai(actif("FrmCertif.CmdDecG"), "actif de nouveau");

clic("FrmCertif.CmdDecD");
egal(valeur("DecalageCertif"), 6, "un pas de plus");
touche("FrmCertif.TxtCert", "Ctrl+Z");
egal(texte("FrmCertif.TxtCert"), "    large\n étroit", "Ctrl+Z ôte les espaces");
egal(valeur("DecalageCertif"), 4, "et le pas avec eux");
