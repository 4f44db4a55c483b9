// The ground of the main window: one line a pixel from the 15th on, from white to a light blue; and nothing
// but the ground without a doctor.
installer();
const traits = feuille("FrmDepart").filter(item => item.genre === "trait");
const parMm = 96 / 25.4;
const pixels = traits.length - 1; // the window's height less 15 and 18
for (const rang of [0, 1, 100, pixels - 1]) {
  const trait = traits[rang];
  proche(trait.y * parMm, 15 + rang, 0.01, "la ligne " + rang);
  proche(trait.y2, trait.y, 1e-9, "de niveau");
  egal([trait.x, trait.epaisseur], [0, 1], "depuis le bord, d'un point");
  const attendu = (de, a) => de + (a - de) * (rang + 1) / pixels;
  const couleur = [trait.couleur & 255, trait.couleur >> 8 & 255, trait.couleur >> 16 & 255];
  [[255, 222], [255, 235], [255, 250]].forEach(([de, a], i) =>
    vrai(Math.abs(couleur[i] + 0.5 - attendu(de, a)) <= 0.5 + 1e-6, "sa couleur " + i + " : " + couleur[i]));
}
const largeur = traits[0].x2;
vrai(traits.every(trait => trait.x2 === largeur), "sur toute la largeur");
