// The macros go in at the caret, and on the clipboard.
installer();
ajouter("Medoc", "Patients", [1, "Monsieur", "MARTIN  Paul", "20/03/1953", "72", "", "", "", "", "", ""]);
clic("FrmDepart.CmdNO");
clic("FrmOrdo.CmdCertif");
doubleClic("FrmPatient.LstPatient", "MARTIN  Paul");

clic("FrmCertif.CmdNouveau");
boites([["Ecrivez le texte dans la zone de texte située à droite.", "OK"]]);
vrai(actif("FrmCertif.CmdEnr"), "un texte vide s'enregistre");
faux(actif("FrmCertif.CmdEcrire"), "mais ne s'écrit pas");
taper("FrmCertif.TxtCert", "Nom:,fin");
caret("FrmCertif.TxtCert", 4);
clic("FrmCertif.Lblmacro(0)");
egal(texte("FrmCertif.TxtCert"), "Nom: <N>,fin", "au curseur, après un espace");
clic("FrmCertif.Lblmacro(1)");
egal(texte("FrmCertif.TxtCert"), "Nom: <N> <DN>,fin", "la suivante s'en sépare");
touche("FrmCertif.TxtCert", "Ctrl+V");
egal(texte("FrmCertif.TxtCert"), "Nom: <N> <DN> <DN>,fin", "le presse-papiers la tient");

["<N>", "<DN>", "<DJ>", "<AD>", "<DR>", "<EL>"].forEach((macro, i) => {
  saisir("FrmCertif.TxtCert", "");
  egal(texte("FrmCertif.Lblmacro(" + i + ")"), macro, "le libellé " + macro);
  clic("FrmCertif.Lblmacro(" + i + ")");
  egal(texte("FrmCertif.TxtCert"), " " + macro, "la macro " + macro);
});
egal(coche("FrmCertif.Optsp(1)"), 1, "50 espaces par défaut");
["25", "50", "75", "100"].forEach((largeur, i) => {
  saisir("FrmCertif.TxtCert", "");
  egal(texte("FrmCertif.Optsp(" + i + ")"), largeur, "le choix de " + largeur);
  clic("FrmCertif.Optsp(" + i + ")");
  clic("FrmCertif.Lblmacro(6)");
  egal(texte("FrmCertif.TxtCert"), " ".repeat(Number(largeur)), largeur + " espaces");
});

clic("FrmCertif.CmdAide");
contient(boite().texte, "4- <DJ> = date du jour", "l'aide donne les macros");
contient(boite().texte, "Le choix de faire ou non une prescription en ALD doit être fait en PREMIER.\n\n", "et prévient");
capture("certificats_aide");
repondre("OK");
clic("FrmCertif.cmdInfo");
contient(boite().texte, "Cliquer sur le libellé voulu, et ensuite sur Ctrl + v du clavier,", "l'aide de l'insertion");
repondre("OK");
clic("FrmCertif.Image1");
boites([["Formatage du texte possible, comme pour la rédaction des posologies (*,$,£)", "OK"]]);
