// Une ligne montrée ou reprise se compose aussi ; elle ne s'enregistre pas à la place d'un autre médicament.
installer();
vider("Medoc", "BddMed");
ajouter("Medoc", "BddMed", [1, null, null, null, "1 le matin", "DOLIPRANE"]);
ajouter("Medoc", "BddMed", [2, null, null, null, null, "ZYLORIC"]);
clic("FrmDepart.CmdNO");
clic("FrmOrdo.CmdPharma");
doubleClic("FrmMedoc.TV", "ZYLORIC");
clic("FrmMedoc.TV", "DOLIPRANE");
clic("FrmMedoc.LstChoix1", 0);
egal(valeur("NoeudChoisi"), 1, "le nœud reste choisi");
clic("FrmMedoc.LblPoso");
egal(texte("FrmPoso.LblNomMed"), "ZYLORIC", "la ligne montrée");
faux(actif("FrmPoso.CmdEnregistrer"), "elle ne s'enregistre pas");
choisir("FrmPoso.CboP(0)", "lyo");
choisir("FrmPoso.CboP(1)", "1");
clic("FrmPoso.CmdAjouter");
egal(lignes("FrmMedoc.LstChoix1").length, 1, "une ligne montrée ne s'ajoute pas deux fois");
egal(texte("FrmMedoc.TxtPoso"), "1  lyo  le matin", "sa phrase reste à l'écran");

doubleClic("FrmMedoc.LstChoix1", 0);
clic("FrmMedoc.LblPoso");
faux(actif("FrmPoso.CmdEnregistrer"), "une ligne reprise non plus");
choisir("FrmPoso.CboP(0)", "lyo");
choisir("FrmPoso.CboP(3)", "3");
clic("FrmPoso.CmdAjouter");
egal(valeur("OrdoZone1"), [{Posologie: "3  lyo  le soir", Titre: "ZYLORIC"}], "la ligne reprise est réécrite");
egal(table("Medoc", "BddMed"), [[1, null, null, null, "1 le matin", "DOLIPRANE"],
    [2, null, null, null, null, "ZYLORIC"]], "la pharmacie est intacte");

// Un nom tapé sans nœud.
saisir("FrmMedoc.TxtMedoc", "A LA MAIN");
clic("FrmMedoc.LblPoso");
faux(actif("FrmPoso.CmdEnregistrer"), "sans nœud rien ne s'enregistre");
clic("FrmPoso.CmdAnnule");
