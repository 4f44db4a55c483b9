// Saving: under the name that is chosen, or under another one.
installer();
const dossier = valeur("CheminTravail") + "/Certificats/";
ecrire(dossier + "Sport.txt", "Apte");
ajouter("Medoc", "Patients", [1, "Monsieur", "MARTIN  Paul", "20/03/1953", "72", "", "", "", "", "", ""]);
clic("FrmDepart.CmdNO");
clic("FrmOrdo.CmdCertif");
doubleClic("FrmPatient.LstPatient", "MARTIN  Paul");

taper("FrmCertif.TxtCert", "Repos\"été");
touche("FrmCertif.TxtCert", "Entree");
taper("FrmCertif.TxtCert", "3 jours");
clic("FrmCertif.CmdEnr");
egal(boite().genre, "enregistrer", "sans modèle choisi, le nom est demandé");
egal(boite().titre, "Enregistrez votre modèle de certificat.", "sous ce titre");
contient(boite().depart, "Certificats", "dans le répertoire des certificats");
repondre(null);
egal(lignes("FrmCertif.LstCertif"), ["Sport"], "annuler n'enregistre rien");
clic("FrmCertif.CmdEnr");
repondre(dossier + "Repos.txt");
egal(lire(dossier + "Repos.txt"), "Repos\"été\r\n3 jours", "le texte, sans rien de plus");
egal(lire(dossier + "Repos.cfg"), "0,0\r\n", "ses réglages");
faux(existe(dossier + "Repos.txt.txt"), "une seule extension");
egal(lignes("FrmCertif.LstCertif"), ["Repos", "Sport"], "le modèle est dans la liste");
faux(actif("FrmCertif.CmdEnr") || actif("FrmCertif.CmdEcrire"), "la fenêtre recommence");

choisir("FrmCertif.LstCertif", "Sport");
saisir("FrmCertif.TxtCert", "Apte au judo");
clic("FrmCertif.CmdEnr");
egal(texte("FrmCertif.mnuEnr"), "Enregistrer", "le premier choix");
egal(texte("FrmCertif.mnuEnrSous"), "Enregister sous ...", "le second");
clic("FrmCertif.mnuEnr");
egal(lire(dossier + "Sport.txt"), "Apte au judo", "le modèle est écrit sur l'ancien");
aucuneBoite();

saisir("FrmCertif.TxtCert", "Apte au tir");
clic("FrmCertif.CmdEnr");
clic("FrmCertif.mnuEnrSous");
repondre(dossier + "Repos");
aucuneBoite();
egal(lire(dossier + "Repos.txt"), "Apte au tir", "la réponse du dialogue est écrite");
choisir("FrmCertif.LstCertif", "Sport");
saisir("FrmCertif.TxtCert", "Apte au tir");
clic("FrmCertif.CmdEnr");
clic("FrmCertif.mnuEnrSous");
repondre(dossier + "Tir");
egal(lire(dossier + "Tir.txt"), "Apte au tir", "l'extension s'ajoute");
egal(lire(dossier + "Sport.txt"), "Apte au judo", "le modèle d'avant reste");

for (const [reponse, morceau] of [[dossier + "tmp", /tmp/], [utilisateur + "/Ailleurs.txt", /Certificats/], [dossier + "con.txt", /con/]]) {
  saisir("FrmCertif.TxtCert", "Refusé");
  clic("FrmCertif.CmdEnr");
  repondre(reponse);
  boites([[morceau, "OK"]]);
}
egal(lignes("FrmCertif.LstCertif"), ["Repos", "Sport", "Tir"], "aucun nom refusé n'est écrit");
faux(existe(utilisateur + "/Ailleurs.txt"), "ni ailleurs");
egal(texte("FrmCertif.TxtCert"), "Refusé", "le texte reste");
