// The logo on paper and on the main window: left of the text, or behind its longest line.
installer();
const chemin = valeur("CheminMedecin");
const ordo = chemin + "/Ordo.mdb";
const fichier = chemin + "/Logo/croix.ppm";
ecrire(fichier, "P3\n2 2\n255\n255 0 0 0 0 255\n0 0 255 255 0 0\n");
const change = (nom, valeurs) => {
  const champs = lire(chemin + nom).trim().split(",");
  for (const numero in valeurs) champs[numero] = valeurs[numero];
  ecrire(chemin + nom, champs.join(",") + "\r\n");
};
const recommence = options => {
  clic("FrmDepart.CmdQuitter");
  change("/Options.cfg", options);
  lancer();
  clic("FrmChoixBase.CmdSuite");
};
const image = surface => surface.find(item => item.genre === "image");
const place = (item, x, y, ou) => {
  proche(item.x, x, 0.01, "en largeur, " + ou);
  proche(item.y, y, 0.01, "en hauteur, " + ou);
  egal([item.largeur, item.hauteur], [25, 15], "sa taille, " + ou);
};
const papier = () => {
  clic("FrmDepart.CmdNO");
  clic("FrmOrdo.CmdDate");
  repondre("20/11/2026");
  clic("FrmOrdo.CmdImprime");
  choisir("FrmOptions.CboPrint", "Bureau");
  cocher("FrmOptions.Chkimp", true);
  clic("FrmOrdo.CmdAccueil");
  return travaux()[travaux().length - 1].pages[0];
};
const nom = "Docteur Anne NEIBRE, médecine générale";
const largeur = mesure(nom, {nom: "Arial", taille: 12, gras: false, italique: false, souligne: false});
vider(ordo, "Entete");
ajouter(ordo, "Entete", [0, nom, "Arial", 12, 0, 0, 0, 5]);
ajouter(ordo, "Entete", [1, "12 rue des Lilas", "Arial", 12, 0, 0, 0, 0]);
for (let numero = 2; numero <= 23; ++numero) ajouter(ordo, "Entete", [numero, "*", "Arial", 10, 0, 0, 0, 0]);

recommence({8: 1, 16: '"' + fichier + '"', 17: 1, 18: 15, 19: 25, 20: 2, 21: -1});
place(image(feuille("FrmDepart")), 1 + 2, 1500 / 56.7 - 1, "à gauche de la face");
proche(feuille("FrmDepart").find(item => item.texte === nom).x, 25 + 5 / 56.7, 0.01, "le texte derrière lui");
let page = papier();
place(image(page), 10 + 2, 4 - 1, "à gauche du papier");
proche(page.find(item => item.texte === nom).x, 10 + 25 + 5, 0.01, "le texte derrière lui");

recommence({8: 2});
const droiteTwips = Math.round(5 + largeur * 56.7);
place(image(feuille("FrmDepart")), (droiteTwips + 400) / 56.7 + 2, 1500 / 56.7 - 1, "à droite de la face");
proche(feuille("FrmDepart").find(item => item.texte === nom).x, 405 / 56.7, 0.01, "le texte à 400 twips");
page = papier();
place(image(page), 10 + Math.round(5 + largeur) + 2, 4 - 1, "derrière la plus longue ligne");
proche(page.find(item => item.texte === nom).x, 15, 0.01, "le texte à sa place");

// With no text the logo stands at the margin.
clic("FrmDepart.CmdQuitter");
vider(ordo, "Entete");
for (let numero = 0; numero <= 23; ++numero) ajouter(ordo, "Entete", [numero, "*", "Arial", 10, 0, 0, 0, 0]);
lancer();
clic("FrmChoixBase.CmdSuite");
place(image(papier()), 10 + 2, 4 - 1, "un en-tête vide");

recommence({17: 0});
faux(image(feuille("FrmDepart")), "un logo inactif ne se pose pas");
