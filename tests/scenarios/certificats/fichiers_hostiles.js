// Names that lead out of "Certificats" or into no list, records that make no sense, and a text of 1 MB.
installer();
const dossier = valeur("CheminTravail") + "/Certificats/";
const reglages = {Absurde: "1e30,0\r\n", Bon: "4,0\r\n", Court: "8\r\n", Loin: "-5000,0\r\n", Mots: "\"x\"\r\n", Vide: ""};
for (const nom in reglages) {
  ecrire(dossier + nom + ".txt", "texte de " + nom);
  ecrire(dossier + nom + ".cfg", reglages[nom]);
}
ecrire(dossier + "Gros.txt", "mot* gras et suite de la ligne de texte\r\n".repeat(26000));
ajouter("Medoc", "Patients", [1, "Monsieur", "MARTIN  Paul", "20/03/1953", "0", "", "", "", "", "", ""]);
clic("FrmDepart.CmdNO");
clic("FrmOrdo.CmdCertif");
doubleClic("FrmPatient.LstPatient", 0);
const liste = lignes("FrmCertif.LstCertif");

for (const nom of ["..\\x", "../x", "/tmp/scriptelle-x", "C:\\x", "CON", "Tmp.txt", ".txt", "....", "a:b", "y".repeat(300)]) {
  saisir("FrmCertif.TxtCert", "refusé");
  clic("FrmCertif.CmdEnr");
  egal(boite().valeur, "", "un nom vide est proposé");
  repondre(nom);
  boites([[/./, "OK"]]);
  egal(texte("FrmCertif.TxtCert"), "refusé", "le texte reste");
}
egal(lignes("FrmCertif.LstCertif"), liste, "aucun n'est un modèle");
egal(lister(dossier).filter(nom => /^(x|y|\.|tmp|con)/i.test(nom)), [], "ni un fichier du répertoire");
faux(existe(valeur("CheminTravail") + "/x.txt") || existe("/tmp/scriptelle-x.txt"), "ni d'un autre");

choisir("FrmCertif.LstCertif", "Bon");
egal(valeur("DecalageCertif"), 4, "des réglages entiers");
for (const nom of ["Absurde", "Loin", "Mots", "Vide"]) {
  choisir("FrmCertif.LstCertif", nom);
  egal(valeur("DecalageCertif"), 4, nom + " garde le décalage d'avant");
}
choisir("FrmCertif.LstCertif", "Court");
egal(valeur("DecalageCertif"), 8, "le champ qui est là se lit");

choisir("FrmCertif.LstCertif", "Gros");
clic("FrmCertif.CmdEcrire");
vrai(feuille("FrmOrdo.PctOrdo").length > 200000, "un texte de 1 Mo est peint");
vrai(visible("FrmOrdo.LblDeborde"), "et dépasse la feuille");
