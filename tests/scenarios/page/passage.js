// A passing patient's age is asked for once, by the first painting; the printing reuses the answer.
installer();
ajouter("Medoc", "BddMed", [5001, null, null, null, "1 matin", "ZZTEST 500 MG"]);
clic("FrmDepart.CmdNO");
clic("FrmOrdo.CmdNouvelle");
clic("FrmPatient.CmdPassage");
clic("FrmNouveauP.Opt(0)");
taper("FrmNouveauP.Txt(0)", "martin");
taper("FrmNouveauP.Txt(1)", "paul");
clic("FrmNouveauP.CmdOK");
const question = boite();
egal(question.titre, "Age", "le titre de la boîte");
egal(question.texte, "Indiquez, selon votre choix, l'âge ou la date de naissance ... ou rien.\n" +
     "Une des options 'Imprimer date de naissance' ou 'Imprimer âge' doit être cochée.", "l'invite");
repondre("45 ans");
egal(valeur("ModePatient"), 3, "il ne sera plus demandé");
clic("FrmMedoc.TV", "ZZTEST 500 MG");
clic("FrmMedoc.CmdAjouter1");
clic("FrmMedoc.CmdOrdo");
aucuneBoite();
const mots = surface => surface.filter(item => item.genre === "texte").map(item => item.texte);
contient(mots(feuille("FrmOrdo.PctOrdo")), "45 ans", "l'âge sur l'aperçu");
clic("FrmOrdo.CmdImprime");
contient(mots(travaux()[0].pages[0]), "45 ans", "et sur le papier, sans autre question");
egal(valeur("DateNaissance"), "", "un âge n'est pas une date de naissance");
