// Quitter la liste sans rien charger, de chaque manière : rien n'est ajouté, et celle en main garde son titre.
installer();
ajouter("Medoc", "ListeOrdos", ["Grippe", "*", 1, "0"]);
ajouter("Medoc", "OrdoEnr", ["Grippe", "DE GRIPPE", "", 1, "*", "0", 1, 1]);
clic("FrmDepart.CmdNO");
clic("FrmOrdo.CmdPharma");
clic("FrmMedoc.CmdSaut");
clic("FrmMedoc.CmdOrdo");
clic("FrmOrdo.CmdEnr");
boites([["Donnez un nom à cette ordonnance mémorisée :", "Saut"]]);
clic("FrmOrdo.CmdPharma");
[() => clic("FrmMemo.CmdQuitter"), () => touche("FrmMemo", "Echap"), () => fermer("FrmMemo"),
    () => clicDroit("FrmMemo.LstMemo(0)", 1), () => clicDroit("FrmMemo.LstMemo(1)")].forEach(function (quitte) {
    clic("FrmMedoc.LblOrdoMem");
    clic("FrmMemo.LstMemo(0)", "1- Grippe");
    egal(valeur("TitreMemo"), "Grippe", "une autre est choisie");
    quitte();
    faux(ouverte("FrmMemo"), "la fenêtre se ferme");
    egal([valeur("OrdoMemorisee"), valeur("TitreMemo")], [1, "Saut"], "celle en main garde son titre");
    egal([lignes("FrmMedoc.LstChoix1").length, coche("FrmMedoc.ChkALD")], [1, 0], "rien n'est chargé");
});
clic("FrmMedoc.CmdOrdo");
clic("FrmOrdo.CmdEnr");
boites([["Enregistrer les modifications de Saut ?", "Oui"]]);
egal(table("Medoc", "OrdoEnr").map(l => [l[0], l[1]]), [["Grippe", "DE GRIPPE"], ["Saut", "##"]], "l'autre est intacte");
