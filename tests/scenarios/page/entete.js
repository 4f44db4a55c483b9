// The letterhead by hand, on paper in millimetres and on the main window in twips: markers, block order,
// the distance that row 9 sets.
installer();
const chemin = valeur("CheminMedecin");
const ordo = chemin + "/Ordo.mdb";
const rang = (numero, texte, taille, espaces, gras) =>
  ajouter(ordo, "Entete", [numero, texte, "Arial", taille, gras ? 1 : 0, 0, 0, espaces]);
const change = (nom, valeurs) => {
  const champs = lire(chemin + nom).trim().split(",");
  for (const numero in valeurs) champs[numero] = valeurs[numero];
  ecrire(chemin + nom, champs.join(",") + "\r\n");
};
const recommence = () => {
  lancer();
  clic("FrmChoixBase.CmdSuite");
};
const trouve = (surface, texte) => surface.find(item => item.texte === texte);
const police = (taille, gras) => ({nom: "Arial", taille, gras, italique: false, souligne: false});

clic("FrmDepart.CmdQuitter");
vider(ordo, "Entete");
vider(ordo, "CouleurPET");
ajouter(ordo, "CouleurPET", [128 * 65536]);
rang(0, "Docteur *", 12, 40, true);        // stays on its line and sets no place
rang(1, "Anne NEIBRE$", 10, 40, false);    // goes on behind it and closes the line
rang(2, "12 rue des Lilas", 10, 15, false);
rang(3, "Tél.*", 10, 15, false);
rang(4, "02 99 00 00 00", 10, 60, false);  // the same line, at its own place
for (let numero = 5; numero <= 8; ++numero) rang(numero, "*", 10, 0, false);
rang(9, "", 10, 0, false);                 // two lines
rang(10, "Médecine générale", 10, 0, false);
for (let numero = 11; numero <= 21; ++numero) rang(numero, "*", 10, 0, false);
rang(22, "pied", 8, 0, false);
rang(23, "signature", 10, 0, false);
change("/Marges.cfg", {0: 13, 1: 6});
recommence();

// On the main window: 400 twips from the left edge, 1200 from the top, 56.7 twips to the millimetre.
const face = feuille("FrmDepart").filter(item => item.genre === "texte");
egal(face.map(item => item.texte),
     ["Docteur ", "Anne NEIBRE", "12 rue des Lilas", "Tél.", "02 99 00 00 00", "Médecine générale"], "les rangs");
const h = face[1].hauteur;
proche(face[0].x, 400 / 56.7, 0.01, "à 400 twips");
proche(face[0].y, 1200 / 56.7, 0.01, "à 1200 twips");
proche(face[1].x, 400 / 56.7 + mesure("Docteur ", police(12, true)), 0.01, "le $ suit l'étoile");
proche(face[1].y, face[0].y, 0.01, "sur sa ligne");
proche(face[2].x, 415 / 56.7, 0.01, "15 twips plus loin");
proche(face[2].y, 1200 / 56.7 + h, 0.01, "une ligne de la police du $");
proche(face[4].x, 460 / 56.7, 0.01, "le rang simple prend sa place");
proche(face[4].y, face[3].y, 0.01, "sur la ligne ouverte");
proche(face[5].y, 1200 / 56.7 + 5 * h, 0.01, "le rang 9 vide fait deux lignes");
egal(face[0].couleur, 64 * 65536, "en bleu sombre");

// On paper: the margins of the letterhead, in its colour
const imprime = () => {
  clic("FrmDepart.CmdNO");
  clic("FrmOrdo.CmdDate");
  repondre("20/11/2026");
  clic("FrmOrdo.CmdImprime");
  choisir("FrmOptions.CboPrint", "Bureau");
  cocher("FrmOptions.Chkimp", true);
  return travaux()[travaux().length - 1].pages[0].filter(item => item.genre === "texte");
};
let page = imprime();
proche(page[0].x, 13, 0.01, "à la marge gauche");
proche(page[0].y, 6, 0.01, "à la marge haute, sans les lignes du début");
proche(trouve(page, "12 rue des Lilas").x, 28, 0.01, "15 mm plus loin");
proche(trouve(page, "02 99 00 00 00").x, 73, 0.01, "60 mm plus loin");
proche(trouve(page, "Médecine générale").y, 6 + 5 * h, 0.01, "la sixième ligne");
egal(page[0].couleur, 128 * 65536, "dans la couleur de l'en-tête");
faux(trouve(page, "signature"), "la signature ne se peint pas");
faux(trouve(feuille("FrmOrdo.PctOrdo"), "Docteur "), "l'aperçu n'a pas d'en-tête");

// The practitioner first: a line, a blank line, then the address; any other order paints no row.
clic("FrmOrdo.CmdAccueil");
clic("FrmDepart.CmdQuitter");
change("/Options.cfg", {11: 1});
recommence();
page = imprime();
egal(page[0].texte, "Médecine générale", "le praticien avant l'adresse");
proche(page[0].y, 6, 0.01, "en haut");
proche(trouve(page, "Docteur ").y, 6 + 2 * h, 0.01, "une ligne blanche entre les deux");
clic("FrmOrdo.CmdAccueil");
clic("FrmDepart.CmdQuitter");
change("/Options.cfg", {11: 2});
recommence();
egal(feuille("FrmDepart").filter(item => item.genre === "texte"), [], "un autre ordre ne peint aucun rang");
