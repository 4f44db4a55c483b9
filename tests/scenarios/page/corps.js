// The body by hand: it starts at MargeHauteOrdo whatever MargeHauteEntete is (half of it on the preview),
// wraps at LongueurLigne, and gaps by lines or by millimetres.
installer();
ajouter("Medoc", "BddMed", [5001, null, null, null, "", "ZZTEST 500 MG"]);
const chemin = valeur("CheminMedecin");
const change = (nom, valeurs) => {
  const champs = lire(chemin + nom).trim().split(",");
  for (const rang in valeurs) champs[rang] = valeurs[rang];
  ecrire(chemin + nom, champs.join(",") + "\r\n");
};
const police = gras => ({nom: "Arial", taille: gras ? 11 : 10, gras, italique: false, souligne: false});
const largeur = (texte, gras) => mesure(texte, police(gras));
clic("FrmDepart.CmdQuitter");
// As wide as "une deux trois" and half a blank: "quatre" goes to the next line.
change("/Marges.cfg", {1: 30, 3: 25, 4: 90, 5: (largeur("une deux trois", false) + 0.4).toFixed(3)});
change("/Options.cfg", {7: 3, 9: 1, 14: 1});
lancer();
clic("FrmChoixBase.CmdSuite");
clic("FrmDepart.CmdNO");
clic("FrmOrdo.CmdNouvelle");
clic("FrmPatient.CmdNouveauPatient");
clic("FrmNouveauP.Opt(0)");
taper("FrmNouveauP.Txt(0)", "martin");
taper("FrmNouveauP.Txt(1)", "paul");
taper("FrmNouveauP.MEB", "20/03/1953");
clic("FrmNouveauP.CmdOK");
clic("FrmPatient.CmdOK");
const prescrit = (titre, posologie) => {
  clic("FrmMedoc.TV", "ZZTEST 500 MG");
  saisir("FrmMedoc.TxtMedoc", titre);
  saisir("FrmMedoc.TxtPoso", posologie);
  clic("FrmMedoc.CmdAjouter1");
};
prescrit("PREMIER", "une deux trois quatre");
prescrit("DEUXIEME", "anticonstitutionnellement");
prescrit("TROISIEME#", "un");
clic("FrmMedoc.CmdOrdo");

const corps = () => feuille("FrmOrdo.PctOrdo").filter(item => item.genre === "texte");
const trouve = texte => corps().find(item => item.texte === texte);
const titre = trouve("PREMIER").hauteur;
const ligne = trouve("deux").hauteur;
proche(trouve("1- ").x, 25, 0.01, "le numéro au bord");
proche(trouve("1- ").y, 45, 0.01, "la moitié de MargeHauteOrdo, sans MargeHauteEntete");
proche(trouve("PREMIER").x, 25 + largeur("1- ", true), 0.01, "le titre derrière son numéro");
proche(trouve("deux").x, 25 + largeur("une ", false), 0.01, "le deuxième mot");
proche(trouve("trois").y, 45 + 2 * titre, 0.01, "SautTitrePoso fait une ligne dans la police du titre");
proche(trouve("quatre").y, 45 + 2 * titre + ligne, 0.01, "le mot qui ne tient pas va à la ligne");
proche(trouve("quatre").x, 25, 0.01, "au bord du titre");
const deuxieme = 45 + 2 * titre + 2 * ligne + 3 * ligne;
proche(trouve("2- ").y, deuxieme, 0.01, "trois intervalles d'une ligne");
proche(trouve("anticonstitutionnellement").y, deuxieme + 2 * titre + ligne, 0.01, "un premier mot trop long descend");
faux(trouve("3- "), "une ligne fermée par # n'a pas de numéro");
proche(trouve("TROISIEME").x, 25, 0.01, "elle n'est pas centrée");

// A personal height moves the gaps, never the lines of a text.
clic("FrmOrdo.mnuHauteurP");
repondre("6,5");
proche(trouve("quatre").y, 45 + 2 * titre + ligne, 0.01, "les lignes restent");
proche(trouve("2- ").y, 45 + 2 * titre + 2 * ligne + 3 * 6.5, 0.01, "trois intervalles de 6,5 mm");
clic("FrmOrdo.mnuHauteurN");
proche(trouve("2- ").y, deuxieme, 0.01, "et retour");
