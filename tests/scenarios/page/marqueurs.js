// The markers of titles and words, on the preview and on paper: the same words on the same lines.
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

function prescrit(titre, posologie) {
  clic("FrmMedoc.TV", "ZZTEST 500 MG");
  saisir("FrmMedoc.TxtMedoc", titre);
  saisir("FrmMedoc.TxtPoso", posologie);
  clic("FrmMedoc.CmdAjouter1");
}
const longue = "un comprimé le matin à jeun avec un grand verre d'eau puis un second le soir au milieu du repas ".repeat(3);
prescrit("GAUCHE 500 MG", "gras* souligne$ italique£ tous*$£ mot, mo*t mot** fin");
prescrit("#CENTRE 75 MG", longue.trim());
prescrit("#A renouveler 2 fois#", "");
clic("FrmMedoc.CmdOrdo");
egal(valeur("NbMedZone1"), 2, "la ligne fermée par # ne compte pas");

const textes = surface => surface.filter(item => item.genre === "texte");
const mots = surface => textes(surface).map(item => item.texte);
const apercu = textes(feuille("FrmOrdo.PctOrdo"));
const trouve = (liste, texte) => liste.find(item => item.texte === texte);
egal(trouve(apercu, "gras").gras, true, "* met en gras");
egal(trouve(apercu, "souligne").souligne, true, "$ souligne");
egal(trouve(apercu, "italique").italique, true, "£ met en italique");
const tous = trouve(apercu, "tous");
vrai(tous.gras && tous.souligne && tous.italique, "les trois ensemble");
faux(trouve(apercu, "mot,").gras, "un mot sans marque reste maigre");
egal(mots(apercu).filter(mot => mot.startsWith("mo*") || mot === "mot*"), ["mo*", "mot*"], "la coupe suit la règle");
faux(trouve(apercu, "fin").gras, "le style finit avec son mot");

const police = {nom: apercu[0].police, taille: trouve(apercu, "CENTRE 75 MG").taille,
                gras: trouve(apercu, "CENTRE 75 MG").gras};
proche(trouve(apercu, "CENTRE 75 MG").x, 105 - mesure("#CENTRE 75 MG", police) / 2, 0.01, "centré avec son #");
const sous = apercu.slice(apercu.findIndex(item => item.texte === "CENTRE 75 MG") + 1,
                          apercu.findIndex(item => item.texte === "A renouveler 2 fois"));
const bords = new Set(sous.filter((item, i) => i === 0 || item.y > sous[i - 1].y).map(item => item.x.toFixed(2)));
egal([...bords], [trouve(apercu, "CENTRE 75 MG").x.toFixed(2)], "la posologie pend au bord du titre");

clic("FrmOrdo.CmdImprime");
const papier = textes(travaux()[0].pages[0]);
const debut = liste => liste.findIndex(item => item.texte === "GAUCHE 500 MG");
const corps = liste => liste.slice(debut(liste), debut(liste) + 40);
egal(corps(papier).map(item => item.texte), corps(apercu).map(item => item.texte), "les mêmes mots sur papier");
vrai(corps(papier).every((item, i) => Math.abs(item.x - corps(apercu)[i].x) < 1e-6 &&
                         Math.abs(item.y - corps(apercu)[i].y - 50) < 1e-6), "50 mm plus bas, au même x");
proche(corps(papier)[0].y, 100, 1e-6, "la première ligne à MargeHauteOrdo");
