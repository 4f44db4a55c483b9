// Without a current doctor no command works on a document; certificates do nothing at all.
const message = "Choisissez d'abord un médecin utilisateur.";

installer();
clic("FrmDepart.CmdMedecins");
clic("FrmMedecins.CmdNouveau");
repondre("Dr durand");
clic("FrmMedecins.CmdQuitter");
clic("FrmDepart.mnuHauteurP");
repondre("3");
clic("FrmDepart.CmdMedecins");
clic("FrmMedecins.CmdSupprime");
repondre("Oui");
fermer("FrmMedecins");
egal(valeur("CheminMedecin"), "", "personne ne travaille");
clic("FrmDepart.CmdNO");
egal(selection("FrmOrdo.CboMed"), -1, "aucun médecin n'est choisi");
vrai(actif("FrmOrdo.mnuHauteurN"), "une hauteur personnelle est restée en vigueur");
const feuilleAvant = feuille("FrmOrdo.PctOrdo");

for (const commande of ["CmdNouvelle", "CmdPatient", "CmdPharma", "CmdDate", "CmdEnr", "CmdSupp", "CmdImprime",
                        "mnuHauteurN", "mnuHauteurP"]) {
  clic("FrmOrdo." + commande);
  egal(boite().genre, "information", commande + " : une information");
  boites([[message, "OK"]]);
  egal(fenetreActive(), "FrmOrdo", commande + " n'ouvre rien");
}
clic("FrmOrdo.CmdCertif");
aucuneBoite("les certificats se taisent");
egal(valeur("ModeApercu"), 0, "la feuille reste celle d'une ordonnance");
egal(feuille("FrmOrdo.PctOrdo"), feuilleAvant, "et n'a pas changé");
egal(valeur("SautPersonnalise"), 1, "la hauteur des sauts non plus");
egal(travaux(), [], "rien n'est imprimé");

clic("FrmOrdo.mnuOptions");
vrai(ouverte("FrmOptions"), "les options s'ouvrent");
const avant = [lister(valeur("CheminTravail")), lire(valeur("CheminTravail") + "/Options.cfg")];
choisir("FrmOptions.TS", "Imprimantes");
choisir("FrmOptions.CboPrint", "Bureau");
clic("FrmOptions.CmdOK(2)");
faux(ouverte("FrmOptions"), "et se ferment");
egal([lister(valeur("CheminTravail")), lire(valeur("CheminTravail") + "/Options.cfg")], avant,
     "sans écrire nulle part");
egal(feuille("FrmOrdo.PctOrdo"), [], "et la feuille est vide");

choisir("FrmOrdo.CboMed", 0);
clic("FrmOrdo.CmdDate");
repondre("01/02/2026");
egal(valeur("DateOrdo"), "01/02/2026", "un médecin choisi, tout revient");
