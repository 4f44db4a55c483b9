// The sample: gaps, blank line, half margin, and what repaints it.
installer();
clic("FrmDepart.CmdOptions");
clic("FrmOptions.CmdMEP");
const y = rang => feuille("FrmConfOrdo.PctMeP")[rang].y;
const hauteurs = () => feuille("FrmConfOrdo.PctMeP").map(item => item.hauteur);
const [titre, poso] = hauteurs();
proche(y(0), titre, 0.001, "une ligne vide au-dessus");
proche(y(1), 2 * titre, 0.001, "la posologie sous le titre");
for (let sauts = 1; sauts <= 4; ++sauts) {
  choisir("FrmConfOrdo.CboInt", String(sauts));
  proche(y(2) - y(1), poso + sauts * poso + titre, 0.001, sauts + " saut(s)");
}
egal(valeur("SautsPrescription"), 2, "le réglage attend l'enregistrement");
cocher("FrmConfOrdo.ChkS", true);
proche(y(1) - y(0), 2 * titre, 0.001, "un saut entre titre et posologie");
egal(valeur("SautTitrePoso"), 0, "lui aussi attend");
cocher("FrmConfOrdo.ChkS", false);

egal(feuille("FrmConfOrdo.PctMeP")[0].x, 10, "la moitié de la marge gauche");
saisir("FrmConfOrdo.TxtM", "25,8");
egal(feuille("FrmConfOrdo.PctMeP")[0].x, 10, "pas avant de quitter la case");
focus("FrmConfOrdo.TxtL");
egal(feuille("FrmConfOrdo.PctMeP")[0].x, 12.5, "les chiffres avant la virgule");
saisir("FrmConfOrdo.TxtM", "abc");
focus("FrmConfOrdo.TxtL");
egal(feuille("FrmConfOrdo.PctMeP")[0].x, 0, "sans chiffre, zéro");

choisir("FrmConfOrdo.CboM", "130");
egal(valeur("MargeHauteOrdo"), 130, "la marge haute change aussitôt");
vrai(visible("FrmConfOrdo.LblModifie"), "mais n'est pas enregistrée");

clic("FrmConfOrdo.Txt(1)");
egal(valeur("TxtCourant"), 1, "la police de la posologie");
clic("FrmConfOrdo.CmdPolice");
egal(boite().genre, "police", "la boîte des polices");
repondre(null);
egal(texte("FrmConfOrdo.LblMed(1)"), "Arial()", "annuler ne change rien");
clic("FrmConfOrdo.CmdPolice");
repondre({nom: "Times New Roman", taille: 12, gras: true, italique: false, souligne: true});
egal(texte("FrmConfOrdo.LblMed(1)"), "Times New Roman  (12  G    U)", "la police décrite");
egal(aspect("FrmConfOrdo.Txt(1)").police, "Times New Roman", "l'exemple la porte");
egal(feuille("FrmConfOrdo.PctMeP").map(item => item.police), ["Arial", "Times New Roman", "Arial", "Times New Roman"], "l'échantillon aussi");
egal(valeur("PolicePoso"), "Arial", "le réglage attend");
