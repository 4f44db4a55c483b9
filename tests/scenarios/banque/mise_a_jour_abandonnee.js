// Whatever stops an update leaves the former bank: cancel, close box, damaged folder, another update under way.
function attendFin() {
    while (!actif("FrmMajBanque.CmdLance")) {}
}

installer();
const banque = programme + "/banque.sqlite";
const avant = lireOctets(banque);
const sources = utilisateur + "/sources";
copier(extrait, sources);
const conditions = lire(sources + "/CIS_CPD_bdpm.txt");
const intacte = (quoi) => egal([lireOctets(banque) === avant, lister(programme).filter(n => n.startsWith("banque.sqlite"))],
                               [true, ["banque.sqlite"]], "la base d'avant est intacte : " + quoi);

ecrire(sources + "/CIS_CPD_bdpm.txt", conditions + "90000017\tliste I\r\n".repeat(1500000));
clic("FrmDepart.mnuMajBanque");
saisir("FrmMajBanque.TxtDossier", sources);
clic("FrmMajBanque.CmdLance");
faux(actif("FrmMajBanque.CmdLance"), "une seule à la fois");
clic("FrmMajBanque.CmdAnnule");
attendFin();
egal(texte("FrmMajBanque.LblAvertissement"), "Mise à jour annulée : la base d'avant reste en place.", "annulée");
contient(texte("FrmMajBanque.LblEtat"), "Base en place : données du ", "celle d'avant");
intacte("annulée");

clic("FrmMajBanque.CmdLance");
fermer("FrmMajBanque");
while (ouverte("FrmMajBanque")) {}
intacte("fenêtre fermée");

ecrire(sources + "/CIS_CPD_bdpm.txt", conditions);
ecrire(sources + "/CIS_bdpm.txt", "pas\tdu\ttout\r\n".repeat(40));
clic("FrmDepart.mnuMajBanque");
saisir("FrmMajBanque.TxtDossier", sources);
clic("FrmMajBanque.CmdLance");
attendFin();
contient(texte("FrmMajBanque.LblAvertissement"), "Le fichier « CIS_bdpm.txt » n'a pas la forme attendue", "un fichier abîmé");
contient(texte("FrmMajBanque.LblAvertissement"), "La base d'avant reste en place.", "et ce qui reste");
intacte("fichier abîmé");
capture("maj_banque_echec");

effacer(sources + "/CIS_CIP_bdpm.txt");
clic("FrmMajBanque.CmdLance");
attendFin();
contient(texte("FrmMajBanque.LblAvertissement"), "« CIS_CIP_bdpm.txt » manque", "un fichier manque");
saisir("FrmMajBanque.TxtDossier", utilisateur + "/nulle part");
clic("FrmMajBanque.CmdLance");
attendFin();
contient(texte("FrmMajBanque.LblAvertissement"), "n'existe pas", "un dossier manque");
intacte("dossier absent");
clic("FrmMajBanque.CmdFerme");
aucuneBoite();
