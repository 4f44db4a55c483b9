// What would be lost at the sheet's bottom is asked for, with No as default.
installer();
ajouter("Medoc", "BddMed", [5001, null, null, null, "1 matin", "ZZTEST 500 MG"]);
clic("FrmDepart.CmdNO");
clic("FrmOrdo.CmdNouvelle");
clic("FrmPatient.CmdNouveauPatient");
clic("FrmNouveauP.Opt(0)");
taper("FrmNouveauP.Txt(0)", "martin");
taper("FrmNouveauP.Txt(1)", "paul");
taper("FrmNouveauP.MEB", "20/03/1953");
clic("FrmNouveauP.CmdOK");
clic("FrmPatient.CmdOK");
for (let i = 0; i < 14; ++i) {
  clic("FrmMedoc.TV", "ZZTEST 500 MG");
  clic("FrmMedoc.CmdAjouter1");
}
clic("FrmMedoc.CmdOrdo");
vrai(visible("FrmOrdo.LblDeborde"), "l'aperçu le dit");
capture("FrmOrdo-deborde");
clic("FrmOrdo.CmdImprime");
const question = boite();
egal(question.genre, "question", "une question");
egal(question.defaut, "Non", "Non par défaut");
vrai(/^\d+ lignes de l'ordonnance dépassent/.test(question.texte), "elle compte les lignes");
repondre("Non");
egal(travaux().length, 0, "rien n'est imprimé");
clic("FrmOrdo.CmdImprime");
repondre("Oui");
egal(travaux().length, 1, "imprimé quand même");
egal(travaux()[0].pages.length, 1, "sur une seule feuille");
