// Charger alors que des lignes sont en main : elles restent, les nouvelles suivent et se voient.
installer();
ajouter("Medoc", "ListeOrdos", ["Une zone", "*", 0, "0"]);
ajouter("Medoc", "ListeOrdos", ["Deux zones", "*", 1, "0"]);
for (let i = 1; i <= 30; i++) {
    ajouter("Medoc", "OrdoEnr", ["Une zone", "MED " + i, "1 matin", 1, "*", "0", 1, 1]);
}
ajouter("Medoc", "OrdoEnr", ["Deux zones", "SANS RAPPORT", "", 2, "*", "0", 1, 1]);
ajouter("Medoc", "OrdoEnr", ["Deux zones", "AFFECTION", "", 1, "*", "0", 1, 1]);
clic("FrmDepart.CmdNO");
clic("FrmOrdo.CmdPharma");
clic("FrmMedoc.CmdSaut");
function charge(rang) {
    clic("FrmMedoc.LblOrdoMem");
    doubleClic("FrmMemo.LstMemo(0)", rang);
}
charge(1);
aucuneBoite();
egal(lignes("FrmMedoc.LstChoix1").map(l => l.trim().split("  ")[0]), ["#", "AFFECTION"], "à la suite");
egal(lignes("FrmMedoc.LstChoix2"), ["  SANS RAPPORT" + " ".repeat(300) + "1"], "l'autre zone");

// Une seule zone : la fenêtre dit ce qui disparaît de la page, sans boîte, et rien ne se perd.
faux(visible("FrmMedoc.LblHorsPage"), "les deux zones se voient");
charge(0);
aucuneBoite();
vrai(visible("FrmMedoc.LblHorsPage"), "un mot sous la liste");
egal(texte("FrmMedoc.LblHorsPage"),
    "Lignes non ALD gardées hors de l'ordonnance : cochez « Ordonnance ALD » pour les retrouver.", "ce qu'il dit");
faux(visible("FrmMedoc.LstChoix2"), "une seule liste");
egal(lignes("FrmMedoc.LstChoix1").length, 32, "les lignes suivent");
capture("suite");
clic("FrmMedoc.LstChoix1", 31);
egal(texte("FrmMedoc.TxtMedoc"), "MED 30", "la dernière");
charge(0);
aucuneBoite();
cocher("FrmMedoc.ChkALD", true);
egal(lignes("FrmMedoc.LstChoix2").length, 1, "la seconde zone revient");
faux(visible("FrmMedoc.LblHorsPage"), "le mot s'en va");
cocher("FrmMedoc.ChkALD", false);
vrai(visible("FrmMedoc.LblHorsPage"), "la case décochée le ramène");
cocher("FrmMedoc.ChkALD", true);
charge(1);
aucuneBoite();
egal(lignes("FrmMedoc.LstChoix2").length, 2, "elle aussi s'allonge");
cocher("FrmMedoc.ChkALD", false);
clic("FrmMedoc.CmdClear");
faux(visible("FrmMedoc.LblHorsPage"), "plus rien à retrouver");
clic("FrmMedoc.CmdAnnule");

// Un autre poste supprime celle que la liste montre encore.
clic("FrmOrdo.CmdPharma");
clic("FrmMedoc.LblOrdoMem");
vider("Medoc", "ListeOrdos");
vider("Medoc", "OrdoEnr");
doubleClic("FrmMemo.LstMemo(0)", 1);
egal(boite().genre, "stop", "c'est dit");
boites([[/« Deux zones » n'est plus dans la base : elle a été supprimée depuis un autre poste/, "OK"]]);
vrai(ouverte("FrmMemo"), "la liste reste");
clic("FrmMemo.CmdQuitter");
egal([lignes("FrmMedoc.LstChoix1"), lignes("FrmMedoc.LstChoix2")], [[], []], "rien n'est chargé");
