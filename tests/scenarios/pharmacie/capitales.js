// Un médicament saisi est stocké et montré en capitales, les cadres gardent ce qui fut tapé ; un µ reste un µ.
installer();
vider("Medoc", "BddMed");
ajouter("Medoc", "BddMed", [1, null, null, null, "1 comprimé", "ASPIRINE"]);
clic("FrmDepart.CmdNO");
clic("FrmOrdo.CmdPharma");
clic("FrmMedoc.CmdNouveau");
taper("FrmNouveauM.TxtNom", "zélapar 1,25 mg");
taper("FrmNouveauM.TxtPoso", "1 lyophilisat le matin");
clic("FrmNouveauM.CmdOK");
aucuneBoite();
egal(texte("FrmNouveauM.TxtNom"), "zélapar 1,25 mg", "le nom reste tel que tapé");
egal(texte("FrmNouveauM.TxtPoso"), "1 lyophilisat le matin", "la posologie reste");
egal(table("Medoc", "BddMed")[1], [2, null, null, null, "1 lyophilisat le matin", "ZÉLAPAR 1,25 MG"], "la ligne");

// 25 microgrammes ne se lisent jamais comme 25 milligrammes.
for (const micro of ["\u00b5", "\u03bc"]) {
    saisir("FrmNouveauM.TxtNom", "lévothyrox 25 " + micro + "g");
    saisir("FrmNouveauM.TxtPoso", "");
    clic("FrmNouveauM.CmdOK");
    const derniere = table("Medoc", "BddMed").pop();
    egal(derniere[5], "LÉVOTHYROX 25 " + micro + "G", "le signe reste");
    egal(derniere[4], "", "une posologie vide");
}
clic("FrmNouveauM.CmdAnnuler");
egal(lignes("FrmMedoc.TV").length, 4, "l'arbre les montre");
clic("FrmMedoc.TV", "ZÉLAPAR 1,25 MG");
egal(texte("FrmMedoc.TxtPoso"), "1 lyophilisat le matin", "et les relit");
