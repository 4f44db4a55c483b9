// The second tool bar and the ruler of a doctor who wants them.
installer();
const chemin = valeur("CheminMedecin");
const champs = lire(chemin + "/Options.cfg").split(",");
champs[10] = "1";
champs[12] = "1";
clic("FrmDepart.CmdQuitter");
ecrire(chemin + "/Options.cfg", champs.join(","));
lancer();
clic("FrmChoixBase.CmdSuite");
clic("FrmDepart.CmdNO");
vrai(visible("FrmOrdo.PctMenu2"), "la seconde barre");
faux(visible("FrmOrdo.PctMenu1"), "sans la première");
vrai(visible("FrmOrdo.CmdNouvelle"), "ses boutons portent les mêmes noms");
const regle = feuille("FrmOrdo.PctRegle").map(i => i.texte);
egal(regle.filter(t => t === "|").length, 22, "vingt-deux traits");
vrai(regle.some(t => t.trim() === "21"), "jusqu'à vingt et un");
capture("FrmOrdo-barre2");
