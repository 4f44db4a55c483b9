// The desk minimised, without an icon beside the clock and without a place for one.
const champs = chemin => lire(chemin + "/Options.cfg").split(",");

installer();
const chemin = valeur("CheminMedecin");
const sansIcone = champs(chemin);
sansIcone[6] = "0";
clic("FrmDepart.CmdQuitter");
ecrire(chemin + "/Options.cfg", sansIcone.join(","));
lancer();
clic("FrmChoixBase.CmdSuite");
egal(valeur("IconeHorloge"), 0, "pas d'icône");
clic("FrmDepart.CmdNO");
clic("FrmOrdo.mnuMinimiser");
egal(etat("FrmOrdo"), "agrandie", "réduit, le bureau revient agrandi");
clic("FrmOrdo.CmdFermer");

const avecIcone = champs(chemin);
avecIcone[6] = "1";
ecrire(chemin + "/Options.cfg", avecIcone.join(","));
plateau(false);
lancer();
clic("FrmChoixBase.CmdSuite");
clic("FrmDepart.CmdNO");
clic("FrmOrdo.mnuMinimiser");
egal(etat("FrmOrdo"), "reduite", "sans place pour l'icône il reste à portée de main");
restaurer("FrmOrdo");
clic("FrmOrdo.CmdFermer");
vrai(fini(), "et se ferme");
