// The height of the line skips from the menus of both windows, in the designer and on the sheet in hand.
installer();
ajouter("Medoc", "Patients", [1, "Monsieur", "MARTIN  Paul", "20/03/1953", "72", "", "", "", "", "", ""]);
ajouter("Medoc", "BddMed", [5001, null, null, null, "1 matin", "ZZTEST A"]);
ajouter("Medoc", "BddMed", [5002, null, null, null, "1 soir", "ZZTEST B"]);
const chemin = valeur("CheminMedecin");
const stocke = () => [lire(chemin + "/Options.cfg").split(",")[22], lire(chemin + "/Marges.cfg").split(",")[8]];
const controles = () => [coche("FrmConfOrdo.ChKSLP"), actif("FrmConfOrdo.TxtSLP"), texte("FrmConfOrdo.TxtSLP")];
const retour = () => [actif("FrmDepart.mnuHauteurN"), actif("FrmOrdo.mnuHauteurN")];
const ecart = () => {
  const y = mot => feuille("FrmOrdo.PctOrdo").filter(item => item.texte.includes(mot))[0].y;
  return y("B") - y("A");
};
egal(retour(), [false, false], "rien à rétablir au départ");
clic("FrmDepart.mnuHauteurP");
egal([boite().genre, boite().titre, boite().valeur], ["saisie", "Hauteur des sauts de lignes", "0"], "la boîte");
repondre("3.5");
aucuneBoite();
egal(controles(), [1, true, "3,5"], "de l'accueil au concepteur");
egal(stocke(), ["1", "3.5"], "et aux fichiers");
egal(retour(), [true, true], "le retour est offert dans les deux fenêtres");

clic("FrmDepart.CmdNO");
clic("FrmOrdo.CmdNouvelle");
doubleClic("FrmPatient.LstPatient", 0);
for (const titre of ["ZZTEST A", "ZZTEST B"]) {
  clic("FrmMedoc.TV", titre);
  clic("FrmMedoc.CmdAjouter1");
}
clic("FrmMedoc.CmdOrdo");
const avec = ecart();
for (const rien of [null, ""]) {
  clic("FrmOrdo.mnuHauteurP");
  egal(boite().valeur, "3,5", "la hauteur en vigueur est proposée");
  repondre(rien);
  egal([ecart(), stocke(), controles()], [avec, ["1", "3.5"], [1, true, "3,5"]], "sans réponse rien ne change");
}
clic("FrmOrdo.mnuHauteurP");
repondre("13.5");
proche(ecart() - avec, 2 * 10, 0.001, "deux sauts de dix millimètres de plus");
clic("FrmOrdo.mnuHauteurN");
egal(controles(), [0, false, ""], "le retour vide le concepteur");
egal(stocke(), ["0", "13.5"], "la hauteur reste stockée");
egal(valeur("HauteurSaut"), 13.5, "et en mémoire");
egal(retour(), [false, false], "les deux entrées s'éteignent");
const sans = ecart();
clic("FrmOrdo.CmdAccueil");
clic("FrmDepart.mnuHauteurP");
egal(boite().valeur, "13,5", "proposée de nouveau");
repondre("7,25");
different(ecart(), sans, "la feuille en main suit depuis l'accueil");
clic("FrmDepart.mnuHauteurN");
egal(ecart(), sans, "et revient");

clic("FrmDepart.CmdOptions");
clic("FrmOptions.CmdMEP");
clic("FrmConfOrdo.ChKSLP");
repondre("2");
egal(retour(), [true, true], "la case offre le retour elle aussi");
egal(stocke()[0], "0", "sans rien écrire");
cocher("FrmConfOrdo.ChKSLP", false);
egal(retour(), [false, false], "et le retire");
