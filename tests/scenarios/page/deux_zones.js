// The two headings: from rule to rule, on the sheet's own coordinates, the second one also over an empty zone.
installer();
ajouter("Medoc", "BddMed", [5001, null, null, null, "", "ZZTEST 500 MG"]);
clic("FrmDepart.CmdNO");
clic("FrmOrdo.CmdNouvelle");
clic("FrmPatient.CmdNouveauPatient");
clic("FrmNouveauP.Opt(0)");
taper("FrmNouveauP.Txt(0)", "martin");
taper("FrmNouveauP.Txt(1)", "paul");
taper("FrmNouveauP.MEB", "20/03/1953");
clic("FrmNouveauP.CmdOK");
clic("FrmPatient.CmdOK");
clic("FrmMedoc.TV", "ZZTEST 500 MG");
saisir("FrmMedoc.TxtMedoc", "PREMIER");
saisir("FrmMedoc.TxtPoso", "un");
clic("FrmMedoc.CmdAjouter1");
clic("FrmMedoc.CmdOrdo");
const traits = () => feuille("FrmOrdo.PctOrdo").filter(item => item.genre === "trait");
const textes = () => feuille("FrmOrdo.PctOrdo").filter(item => item.genre === "texte");
const trouve = texte => textes().find(item => item.texte === texte);
egal(traits(), [], "sans ALD aucun filet");
faux(trouve("(AFFECTION EXONERANTE)"), "ni titre");

clic("FrmOrdo.CmdPharma");
cocher("FrmMedoc.ChkALD", true);
clic("FrmMedoc.CmdOrdo");
const grasse = {nom: "Arial", taille: 9, gras: true, italique: false, souligne: false};
const maigre = Object.assign({}, grasse, {gras: false});
const t = trouve("(AFFECTION EXONERANTE)").hauteur; // Arial 9
const ligne = trouve("un").hauteur;
const titre = trouve("PREMIER").hauteur;
egal(traits().length, 4, "quatre filets");
for (const trait of traits()) {
  egal([trait.x, trait.x2, trait.epaisseur, trait.couleur], [10, 200, 2, 0], "un filet noir de 10 à 200");
  proche(trait.y, trait.y2, 1e-9, "de niveau");
}
const premier = "Prescriptions relatives au traitement de l'affection de longue durée reconnue (liste ou hors liste)";
const second = "Prescriptions SANS RAPPORT avec l'affection de longue durée";
const place = (texte, police, y) => {
  proche(trouve(texte).x, 105 - mesure(texte, police) / 2, 0.01, "centré : " + texte);
  proche(trouve(texte).y, y, 0.01, "à sa hauteur : " + texte);
  egal([trouve(texte).police, trouve(texte).taille, trouve(texte).gras, trouve(texte).italique],
       ["Arial", 9, police.gras, false], "sa police : " + texte);
};
proche(traits()[0].y, 50, 0.01, "le premier filet au début du corps");
place(premier, grasse, 50 + t);
place("(AFFECTION EXONERANTE)", maigre, 50 + 2 * t);
proche(traits()[1].y, 50 + 4 * t, 0.01, "une ligne blanche, un filet");
const corps = 50 + 4 * t + t + t; // a blank line, one gap
proche(trouve("PREMIER").y, corps, 0.01, "la première zone");
proche(trouve("PREMIER").x, 20, 0.01, "au bord du corps");
// Title, posology, two gaps, the blank line behind the zone, then the heading's own gap.
const haut = corps + titre + ligne + 2 * ligne + ligne + t;
proche(traits()[2].y, haut, 0.01, "le filet de la seconde zone");
place(second, grasse, haut + t);
place("(MALADIES INTERCURRENTES)", maigre, haut + 2 * t);
proche(traits()[3].y, haut + 4 * t, 0.01, "le dernier filet");
