// The ruler: a number at each centimetre, a mark at each half.
installer();
const chemin = valeur("CheminMedecin");
clic("FrmDepart.CmdNO");
egal(feuille("FrmOrdo.PctRegle"), [], "sans règle par défaut");
clic("FrmOrdo.CmdAccueil");
clic("FrmDepart.CmdQuitter");
const champs = lire(chemin + "/Options.cfg").trim().split(",");
champs[12] = "1";
ecrire(chemin + "/Options.cfg", champs.join(",") + "\r\n");
lancer();
clic("FrmChoixBase.CmdSuite");
clic("FrmDepart.CmdNO");
const regle = feuille("FrmOrdo.PctRegle");
egal(regle.length, 43, "vingt-deux marques et vingt et un nombres");
egal(new Set(regle.map(item => item.police + item.couleur + item.y)).size, 1, "une police, noire, une ligne");
egal(regle[0].police, "Perpetua", "sa police");
for (let i = 0; i < 21; ++i) {
  const [marque, nombre] = [regle[2 * i], regle[2 * i + 1]];
  egal([marque.texte, marque.taille, nombre.texte, nombre.taille], ["|", 6, " " + (i + 1) + " ", 8], "le pas " + (i + 1));
  proche(marque.x, 5 + 10 * i, 0.01, "la demie");
  proche(nombre.x, 10 + 10 * i - (i < 9 ? 0 : 1), 0.01, "le centimètre");
}
egal([regle[42].texte, regle[42].taille], ["|", 6], "la dernière marque");
