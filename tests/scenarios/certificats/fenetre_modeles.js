// The templates: what the list shows, what a click reads, what a deletion takes away.
installer();
const dossier = valeur("CheminTravail") + "/Certificats/";
ecrire(dossier + "Sport.txt", "    Apte au sport\r\n    <N>");
ecrire(dossier + "Sport.cfg", "4,0\r\n");
ecrire(dossier + "Arrêt.txt", "Je soussigné\r\n");
ecrire(dossier + "tmp.TXT", "travail");
ecrire(dossier + "notes.doc", "autre");
ecrire(dossier + "Zones.txt", "deux zones");
ecrire(dossier + "Zones.cfg", "0,1\r\n");
ajouter("Medoc", "Patients", [1, "Monsieur", "MARTIN  Paul", "20/03/1953", "72", "", "", "", "", "", ""]);
clic("FrmDepart.CmdNO");
clic("FrmOrdo.CmdCertif");
doubleClic("FrmPatient.LstPatient", "MARTIN  Paul");
egal(fenetreActive(), "FrmCertif", "l'éditeur s'ouvre");

egal(lignes("FrmCertif.LstCertif"), ["Arrêt", "Sport", "Zones"], "les modèles, triés, sans le fichier de travail");
egal(selection("FrmCertif.LstCertif"), -1, "aucun n'est choisi");
for (const c of ["CmdAnnule", "CmdEcrire", "CmdDecG", "CmdDecD", "CmdEnr"]) {
  faux(actif("FrmCertif." + c), c + " attend un texte");
}
egal(texte("FrmCertif.ChkP"), "Ecrire l'identité du patient dansle document", "la case de l'identité");
egal(texte("FrmCertif.Label4"), "(Utile pour prescriptions d'examens complémentaires)", "la note de la case ALD");

choisir("FrmCertif.LstCertif", "Sport");
egal(texte("FrmCertif.TxtCert"), "    Apte au sport\n    <N>", "le texte du modèle");
egal(valeur("DecalageCertif"), 4, "et son décalage");
vrai(actif("FrmCertif.CmdDecG") && actif("FrmCertif.CmdDecD"), "il se décale");
vrai(actif("FrmCertif.CmdEnr") && actif("FrmCertif.CmdEcrire"), "s'enregistre et s'écrit");
egal(aspect("FrmCertif.CmdEcrire").couleur, 192, "la légende de CmdEcrire est rouge sombre");
capture("certificats_modele");

choisir("FrmCertif.LstCertif", "Arrêt");
egal(texte("FrmCertif.TxtCert"), "Je soussigné\n", "un modèle sans réglages se lit");
egal(valeur("DecalageCertif"), 4, "et garde le décalage d'avant");

choisir("FrmCertif.LstCertif", "Zones");
egal(coche("FrmCertif.ChkALD"), 1, "un modèle ALD coche la case");
egal(texte("FrmCertif.TxtCert"), "deux zones", "sans effacer son texte");
faux(actif("FrmCertif.CmdDecG") || actif("FrmCertif.CmdDecD"), "et ne se décale pas");
choisir("FrmCertif.LstCertif", "Arrêt");
egal(valeur("CertifALD"), 1, "sans réglages, l'état ALD reste aussi");
choisir("FrmCertif.LstCertif", "Sport");
egal(valeur("CertifALD"), 0, "avec eux, il change");
egal(coche("FrmCertif.ChkALD"), 0, "et la case avec lui");

clic("FrmCertif.CmdSupp");
egal(boite().genre, "question", "supprimer demande");
egal(boite().defaut, "Non", "non par défaut");
boites([["Supprimer Sport.txt ?", "Non"]]);
vrai(existe(dossier + "Sport.txt"), "non ne supprime rien");
clic("FrmCertif.CmdSupp");
boites([["Supprimer Sport.txt ?", "Oui"]]);
egal(lignes("FrmCertif.LstCertif"), ["Arrêt", "Zones"], "le modèle a quitté la liste");
faux(existe(dossier + "Sport.txt") || existe(dossier + "Sport.cfg"), "et le répertoire");
egal(texte("FrmCertif.TxtCert"), "", "la zone de texte est vide");
egal(selection("FrmCertif.LstCertif"), -1, "aucun autre n'est choisi");
clic("FrmCertif.CmdSupp");
boites([["Sélectionnez le modèle de certificat à supprimer.", "OK"]]);
