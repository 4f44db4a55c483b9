// Les trois cases et leurs mots : la case, ou ses mots, au choix.
installer();
clic("FrmDepart.CmdNO");
clic("FrmOrdo.CmdPharma");

[["ChkALD", "Label7", "Ordonnance ALD"], ["ChkDup", "Label6", "Imprimer duplicata"],
    ["ChkTri", "Label9", "Imprimer triplicata"]].forEach(function (trio) {
    const caseACocher = "FrmMedoc." + trio[0], mots = "FrmMedoc." + trio[1];
    egal(texte(mots), trio[2], "les mots de " + trio[0]);
    egal(texte(caseACocher), trio[2], "la case les porte aussi");
    vrai(visible(mots), "les mots se voient");
    egal(coche(caseACocher), 0, trio[0] + " au départ");
    clic(mots);
    egal(coche(caseACocher), 1, "un clic sur les mots coche");
    clic(caseACocher);
    egal(coche(caseACocher), 0, "un clic sur la case décoche");
    clicDroit(mots);
    egal(coche(caseACocher), 0, "un clic droit ne change rien");
    clic(mots);
    clic(mots);
    egal(coche(caseACocher), 0, "deux clics reviennent");
});

cocher("FrmMedoc.ChkDup", true);
clic("FrmMedoc.Label9");
egal([coche("FrmMedoc.ChkDup"), coche("FrmMedoc.ChkTri")], [0, 1], "triplicata ôte duplicata");
cocher("FrmMedoc.ChkTri", false);
egal([valeur("ChkDup"), valeur("ChkTri")], [0, 0], "décocher ne coche pas l'autre");
clic("FrmMedoc.CmdAnnule");
