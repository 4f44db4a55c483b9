// What would be lost at the sheet's bottom is marked, counted and asked for, with No as default.
installer();
ajouter("Medoc", "Patients", [1, "Monsieur", "MARTIN  Paul", "20/03/1953", "0", "", "", "", "", "", ""]);
ajouter("Medoc", "BddMed", [5001, null, null, null, "1 matin", "ZZTEST 500 MG"]);
clic("FrmDepart.CmdNO");
clic("FrmOrdo.CmdNouvelle");
doubleClic("FrmPatient.LstPatient", 0);
const prescrire = nombre => {
  for (let i = 0; i < nombre; ++i) {
    clic("FrmMedoc.TV", "ZZTEST 500 MG");
    clic("FrmMedoc.CmdAjouter1");
  }
  clic("FrmMedoc.CmdOrdo");
};
prescrire(11);
faux(visible("FrmOrdo.LblDeborde"), "tout tient sur la feuille");
clic("FrmOrdo.CmdImprime");
aucuneBoite("rien à demander");
clic("FrmOrdo.CmdPharma");
faux(visible("FrmOrdo.LblDeborde"), "une feuille vide ne déborde pas");
prescrire(3);
egal(texte("FrmOrdo.LblDeborde"), "L'ordonnance dépasse le bas de la feuille", "l'aperçu le dit");
vrai(visible("FrmOrdo.LblDeborde"), "en toutes lettres");
touche("FrmOrdo", "PageBas");
capture("FrmOrdo-deborde");

clic("FrmOrdo.CmdImprime");
const question = boite();
egal(question.genre, "question", "une question");
egal(question.boutons, ["Oui", "Non"], "oui ou non");
egal(question.defaut, "Non", "Non par défaut");
repondre("Non");
egal(travaux().length, 1, "rien de plus n'est imprimé");
clic("FrmOrdo.CmdImprime");
repondre("Oui");
egal(travaux().length, 2, "imprimé quand même");
egal(travaux()[1].pages.length, 1, "sur une seule feuille");

const basDePage = 297 - valeur("MargeBasEntete") + valeur("MargeHauteEntete");
const page = travaux()[1].pages[0].filter(i => i.genre === "texte");
const corps = page.slice(page.findIndex(i => i.texte === "ZZTEST 500 MG"), -1);
const perdues = new Set(corps.filter(i => i.y + i.hauteur > basDePage).map(i => i.y.toFixed(2)));
egal(question.texte, perdues.size + " lignes de l'ordonnance dépassent le bas de la feuille " +
     "et ne seront pas imprimées.\n\nImprimer quand même ?", "elle compte les lignes");
