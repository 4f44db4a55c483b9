// The count box and the footer by hand, on the preview and on paper, in A4 and in A5.
installer();
ajouter("Medoc", "BddMed", [5001, null, null, null, "1 matin", "ZZTEST 500 MG"]);
const chemin = valeur("CheminMedecin");
const change = (nom, valeurs) => {
  const champs = lire(chemin + nom).trim().split(",");
  for (const rang in valeurs) champs[rang] = valeurs[rang];
  ecrire(chemin + nom, champs.join(",") + "\r\n");
};
const recommence = () => {
  lancer();
  clic("FrmChoixBase.CmdSuite");
  clic("FrmDepart.CmdNO");
  clic("FrmOrdo.CmdNouvelle");
};
const prescrit = () => {
  clic("FrmMedoc.TV", "ZZTEST 500 MG");
  saisir("FrmMedoc.TxtMedoc", "UN");
  clic("FrmMedoc.CmdAjouter1");
  saisir("FrmMedoc.TxtMedoc", "#DEUX");
  clic("FrmMedoc.CmdAjouter1");
  saisir("FrmMedoc.TxtMedoc", "QSP 3 mois#");
  clic("FrmMedoc.CmdAjouter1");
  clic("FrmMedoc.CmdOrdo");
};
const petite = {nom: "Arial", taille: 8, gras: false, italique: false, souligne: false};
const modele = mesure("Nombre de médicaments prescrits : xxxxxxxx", petite);
const bas = "Membre d'une association agréée. Règlement des honoraires par chèque accepté.";
// Pen X 0 is MargeGaucheOrdo, Y 0 is MargeHauteEntete: both shift what is placed by number.
const verifie = (surface, largeur, hauteur, ou) => {
  const texte = surface.find(item => item.texte === "Nombre de médicaments prescrits :   ");
  proche(texte.x, 30 + largeur - 30 - modele - 10, 0.01, "le texte fixé par son modèle, " + ou);
  proche(texte.y, 7 + hauteur - 15 - 10, 0.01, "à sa hauteur, " + ou);
  const nombre = surface[surface.indexOf(texte) + 1];
  egal(nombre.texte, " 2 ", "le nombre entre deux blancs, " + ou);
  proche(nombre.x, texte.x + texte.largeur, 0.01, "derrière le texte, " + ou);
  const cadre = surface.find(item => item.genre === "cadre");
  const fin = nombre.x + nombre.largeur;
  proche(cadre.x, fin - mesure("2", petite) - 2, 0.01, "le cadre, " + ou);
  proche(cadre.x2, fin + 1, 0.01, "un millimètre derrière, " + ou);
  proche(cadre.y, 7 + hauteur - 15 - 10, 0.01, "son haut, " + ou);
  proche(cadre.y2, 7 + hauteur - 15 - 6, 0.01, "son bas, " + ou);
  egal(cadre.epaisseur, 2, "son trait, " + ou);
  const pied = surface.find(item => item.texte === bas);
  proche(pied.x, 30, 0.01, "le pied au bord du corps, " + ou);
  proche(pied.y, 7 + hauteur - 15, 0.01, "le pied, " + ou);
  egal(pied.couleur, 255 + 256 * 128, "dans la couleur de l'en-tête, " + ou);
};

clic("FrmDepart.CmdQuitter");
change("/Marges.cfg", {0: 12, 1: 7, 2: 15, 3: 30});
change("/Options.cfg", {15: 1});
vider(chemin + "/Ordo.mdb", "CouleurPET");
ajouter(chemin + "/Ordo.mdb", "CouleurPET", [255 + 256 * 128]);
recommence();
clic("FrmPatient.CmdNouveauPatient");
clic("FrmNouveauP.Opt(0)");
taper("FrmNouveauP.Txt(0)", "martin");
taper("FrmNouveauP.Txt(1)", "paul");
taper("FrmNouveauP.MEB", "20/03/1953");
clic("FrmNouveauP.CmdOK");
clic("FrmPatient.CmdOK");
prescrit();
verifie(feuille("FrmOrdo.PctOrdo"), 210, 297, "aperçu A4");
clic("FrmOrdo.CmdImprime");
choisir("FrmOptions.CboPrint", "Bureau");
cocher("FrmOptions.Chkimp", true);
verifie(travaux()[0].pages[0], 210, 297, "papier A4");

clic("FrmOrdo.CmdAccueil");
clic("FrmDepart.CmdQuitter");
change("/Options.cfg", {28: 0});
recommence();
clic("FrmPatient.LstPatient", 0);
clic("FrmPatient.CmdOK");
prescrit();
verifie(feuille("FrmOrdo.PctOrdo"), 148, 210, "aperçu A5");
const centre = feuille("FrmOrdo.PctOrdo").find(item => item.texte === "DEUX");
const police = {nom: centre.police, taille: centre.taille, gras: centre.gras, italique: false, souligne: false};
proche(centre.x, 105 - mesure("#DEUX", police) / 2, 0.01, "un titre reste centré sur 105 mm");
