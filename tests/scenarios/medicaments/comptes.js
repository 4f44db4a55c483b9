// Le nombre de médicaments : compté par CmdOrdo seul, dans les deux listes, avec ou sans ALD.
installer();
vider("Medoc", "BddMed");
["AMLOR", "DOLIPRANE", "METFORMINE"].forEach(function (nom, i) {
    ajouter("Medoc", "BddMed", [i + 1, null, null, null, "1 matin", nom]);
});

// Le cadre du nombre : le seizième champ des réglages du médecin, relus au lancement suivant.
const reglages = valeur("CheminMedecin") + "/Options.cfg";
const champs = lire(reglages).split(",");
champs[15] = "1";
clic("FrmDepart.CmdQuitter");
ecrire(reglages, champs.join(","));
lancer();
choisir("FrmChoixBase.CboBase", 0);
clic("FrmChoixBase.CmdSuite");
egal(valeur("TotalMedicaments"), 1, "le nombre de médicaments s'imprime");
clic("FrmDepart.CmdNO");
clic("FrmOrdo.CmdPharma");

function ajoute(noeud, nom, bouton) {
    clic("FrmMedoc.TV", noeud);
    saisir("FrmMedoc.TxtMedoc", nom);
    clic("FrmMedoc." + bouton);
}

function nombrePeint() {
    const textes = feuille("FrmOrdo.PctOrdo").filter(function (item) { return item.genre === "texte"; })
        .map(function (item) { return item.texte; });
    const place = textes.indexOf("Nombre de médicaments prescrits :   ");
    return place < 0 ? null : textes[place + 1];
}

cocher("FrmMedoc.ChkALD", true);
ajoute(0, "#AMLOR", "CmdAjouter1");
ajoute(0, "#AMLOR à part#", "CmdAjouter1");
ajoute(1, "QSP 3 mois#", "CmdAjouter2");
ajoute(1, "DOLI # PRANE", "CmdAjouter2");
ajoute(2, "METFORMINE", "CmdAjouter2");
ajoute(2, "   ", "CmdAjouter2");
clic("FrmMedoc.CmdSaut");
repondre("Non");
egal([valeur("NbMedZone1"), valeur("NbMedZone2")], [0, 0], "rien n'est compté avant CmdOrdo");
clic("FrmMedoc.CmdOrdo");
aucuneBoite();
egal([valeur("NbMedZone1"), valeur("NbMedZone2")], [1, 3], "un dièse au bout ne compte pas, devant il compte");
egal(nombrePeint(), " 4 ", "la somme, un blanc devant et un derrière");

// Une ligne de plus ne change rien avant CmdOrdo ; sans ALD la seconde liste compte encore.
clic("FrmOrdo.CmdPharma");
cocher("FrmMedoc.ChkALD", false);
doubleClic("FrmMedoc.TV", 0);
egal([valeur("NbMedZone1"), valeur("NbMedZone2")], [1, 3], "pas encore");
clic("FrmMedoc.CmdOrdo");
egal([valeur("NbMedZone1"), valeur("NbMedZone2")], [2, 3], "les deux listes");
egal(nombrePeint(), " 5 ", "la somme des deux listes");
clic("FrmOrdo.CmdPharma");
clic("FrmMedoc.CmdClear");
egal([valeur("NbMedZone1"), valeur("NbMedZone2")], [0, 0], "Tout effacer remet à zéro");
egal(nombrePeint(), null, "et le cadre");
egal([valeur("NbZone1"), valeur("NbZone2")], [0, 0], "et les indices");
egal(feuille("FrmOrdo.PctOrdo"), [], "la feuille est vide");
vrai(ouverte("FrmMedoc"), "la fenêtre reste");
clic("FrmMedoc.CmdAnnule");
