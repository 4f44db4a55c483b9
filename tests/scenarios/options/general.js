// Tab 2: each switch acts at once, cancel gives the snapshot back and leaves what is not in it.
installer();
ajouter("Medoc", "BddMed", [1, null, null, null, "1 matin", "DOLIPRANE 1000 MG"]);
clic("FrmDepart.CmdOptions");
choisir("FrmOptions.TS", "Options générales");
const cases = {ChkP: "AffichePoids", ChkA: "AfficheAge", ChkS: "SouligneNom", ChkDDN: "AfficheDDN", ChkDate: "ImprimeDate",
               ChkInc: "IncrementeMedicaments", ChkNbMed: "TotalMedicaments", ChkR: "AfficheRegle",
               ChkJournal: "TenirJournal", ChkL: "LanceDemarrage"};
const avant = Object.values(cases).map(valeur);
for (const [nom, variable] of Object.entries(cases)) {
  const voulu = 1 - valeur(variable);
  cocher("FrmOptions." + nom, voulu === 1);
  egal(valeur(variable), voulu, nom + " agit aussitôt");
}
cocher("FrmOptions.ChkF(1)", true);
egal([coche("FrmOptions.ChkF(0)"), valeur("FormatA4")], [0, 0], "A5 décoche A4");
cocher("FrmOptions.ChkF(1)", false);
egal([coche("FrmOptions.ChkF(0)"), valeur("FormatA4")], [1, 1], "décocher A5 coche A4");
cocher("FrmOptions.ChkF(0)", false);
egal([coche("FrmOptions.ChkF(1)"), valeur("FormatA4")], [1, 0], "jamais aucun des deux");
cocher("FrmOptions.ChkML", true);
cocher("FrmOptions.ChkIcone", false);
egal([coche("FrmOptions.ChkML"), actif("FrmOptions.ChkML")], [0, false], "sans icône, pas de réduction");
egal(valeur("IconeHorloge"), 0, "l'icône est retirée");
clic("FrmOptions.CmdAnnule(1)");
egal(Object.values(cases).map(valeur), avant, "tout revient");
egal(valeur("FormatA4"), 1, "le format aussi");
egal(valeur("IconeHorloge"), 0, "l'icône reste retirée");
clic("FrmDepart.CmdOptions");
choisir("FrmOptions.TS", "Options générales");
faux(actif("FrmOptions.ChkML"), "à l'ouverture aussi");
cocher("FrmOptions.ChkMI", true);
cocher("FrmOptions.ChkF(1)", true);
clic("FrmOptions.CmdOK(1)");
const champs = lire(valeur("CheminMedecin") + "/Options.cfg").trim().split(",");
egal([champs[5], champs[6], champs[28]], ["1", "0", "0"], "enregistré");
