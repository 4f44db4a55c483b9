// Saving: the table, the two files, what a text is read as, what stops it, and the sheet afterwards.
installer();
ajouter("Medoc", "Patients", [1, "Monsieur", "MARTIN  Paul", "20/03/1953", "72", "", "", "", "", "", ""]);
ajouter("Medoc", "BddMed", [5001, null, null, null, "1 matin", "ZZTEST 500 MG"]);
const chemin = valeur("CheminMedecin");
const marges = () => lire(chemin + "/Marges.cfg");
const options = () => lire(chemin + "/Options.cfg").split(",");
const ouvre = () => { clic("FrmDepart.CmdOptions"); clic("FrmOptions.CmdMEP"); };
const ferme = () => { clic("FrmConfOrdo.CmdRetour"); clic("FrmOptions.CmdAnnule"); };
const enregistre = () => {
  clic("FrmConfOrdo.CmdEnregistrer");
  egal(boite().genre, "information", "c'est dit");
  boites([["Mise en page enregistrée !", "OK"]]);
  vrai(ouverte("FrmConfOrdo"), "la fenêtre reste");
};
ouvre();
enregistre();
enregistre();
egal(table("Ordo", "Misenpage"), [[0, "Arial", 11, 1, 0, 0], [1, "Arial", 10, 0, 0, 0]], "deux rangées, pas une de plus");
egal(marges(), "10,4,10,20,100,170,70,100,0,0,0,0,0\r\n", "les marges telles quelles");

const saisies = {TxtM: "12.5", TxtL: "150,9", TxtE: "70.6", TxtG: "90", TxtHD: "5", TxtGD: "6", TxtHddn: "7", TxtGddn: "abc"};
for (const nom in saisies) saisir("FrmConfOrdo." + nom, saisies[nom]);
choisir("FrmConfOrdo.CboM", "110");
choisir("FrmConfOrdo.CboInt", "4");
cocher("FrmConfOrdo.ChkS", true);
clic("FrmConfOrdo.Txt(0)");
clic("FrmConfOrdo.CmdPolice");
repondre({nom: "Courier New", taille: 9.5, gras: false, italique: true, souligne: false});
vrai(visible("FrmConfOrdo.LblModifie"), "à enregistrer");
enregistre();
egal(marges(), "10,4,10,12.5,110,150,71,90,0,5,6,7,0\r\n", "le préfixe numérique, à l'entier le plus proche");
egal([options()[7], options()[9]], ["4", "1"], "les sauts");
egal(table("Ordo", "Misenpage")[0], [0, "Courier New", 9.5, 0, 1, 0], "la police");
egal([valeur("PoliceTitre"), valeur("TailleTitre")], ["Courier New", 9.5], "en vigueur");
egal(["TxtM", "TxtL", "TxtE", "TxtGddn"].map(nom => texte("FrmConfOrdo." + nom)), ["12,5", "150", "71", "0"], "les cases montrent ce qui est enregistré");
faux(visible("FrmConfOrdo.LblModifie"), "plus rien à enregistrer");
enregistre();
egal(marges().split(",")[3], "12.5", "la décimale montrée à la française n'est pas perdue");

// An over-large value
for (const valeurTropGrande of ["40000", "-40000", "99999999999"]) {
  saisir("FrmConfOrdo.TxtL", "111");
  saisir("FrmConfOrdo.TxtHD", valeurTropGrande);
  clic("FrmConfOrdo.CmdEnregistrer");
  boites([[/« Marge haute impression date du jour ».*est trop grande.*\nLa mise en page n'est pas enregistrée/, "OK"]]);
  aucuneBoite();
}
egal(marges(), "10,4,10,12.5,110,150,71,90,0,5,6,7,0\r\n", "rien n'a été écrit");
vrai(visible("FrmConfOrdo.LblModifie"), "et on le voit");
ferme();

// The date and the birth date: at 0 under the name, else at their own place.
clic("FrmDepart.CmdNO");
clic("FrmOrdo.CmdNouvelle");
doubleClic("FrmPatient.LstPatient", 0);
clic("FrmMedoc.TV", "ZZTEST 500 MG");
clic("FrmMedoc.CmdAjouter1");
clic("FrmMedoc.CmdOrdo");
const date = () => feuille("FrmOrdo.PctOrdo").filter(item => /2026/.test(item.texte))[0];
const nom = () => feuille("FrmOrdo.PctOrdo").filter(item => /MARTIN/.test(item.texte))[0];
proche(date().x, 6, 0.01, "la date à sa marge");
clic("FrmOrdo.CmdAccueil");
ouvre();
saisir("FrmConfOrdo.TxtHddn", "0");
saisir("FrmConfOrdo.TxtHD", "0");
saisir("FrmConfOrdo.TxtGD", "0");
enregistre();
ferme();
proche(date().x, nom().x, 0.01, "à 0, la date sous le nom");
vrai(date().y > nom().y, "plus bas que lui");
