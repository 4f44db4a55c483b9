// The age line of passing patients: a date as answer is a birth date, no answer leaves the line blank; and
// the age of a child is told in months and days.
horloge("01/02/2026");
installer();
clic("FrmDepart.CmdNO");
const passe = nom => {
  clic("FrmOrdo.CmdNouvelle");
  clic("FrmPatient.CmdPassage");
  clic("FrmNouveauP.Opt(0)");
  taper("FrmNouveauP.Txt(0)", nom);
  taper("FrmNouveauP.Txt(1)", "paul");
  clic("FrmNouveauP.CmdOK");
};
const textes = () => feuille("FrmOrdo.PctOrdo").filter(item => item.genre === "texte" && item.y < 45);
const mots = () => textes().map(item => item.texte);

passe("un");
repondre("31/01/2026");
egal(valeur("DateNaissance"), "31/01/2026", "une date est une date de naissance");
egal(valeur("AgeSaisi"), "né(e) le 31/01/2026   (1 jours)", "l'âge qui en vient");
contient(mots(), "né(e) le 31/01/2026   (1 jours)", "un mois de plus, un jour d'âge");
clic("FrmMedoc.CmdAnnule");

passe("deux");
repondre(null);
egal([valeur("AgeSaisi"), valeur("ModePatient")], ["", 3], "sans réponse, il ne sera plus demandé");
const [nom, date] = textes();
proche(date.y, nom.y + nom.hauteur + 2 * date.hauteur, 0.01, "la ligne de l'âge reste blanche");
clic("FrmMedoc.CmdAnnule");

passe("trois");
repondre("15/11/2024");
contient(mots(), "né(e) le 15/11/2024   (1 an et 3 mois)", "un an");
clic("FrmMedoc.CmdAnnule");

passe("quatre");
repondre("31/12/2025");
contient(mots(), "né(e) le 31/12/2025   (1 mois et 2 jours)", "des mois de trente jours");
clic("FrmMedoc.CmdAnnule");
egal(travaux().length, 0, "rien d'imprimé");
