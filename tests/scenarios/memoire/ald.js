// Deux zones : elles reviennent avec leurs sauts de ligne ; sans ALD la seconde se perd.
installer();
vider("Medoc", "BddMed");
["AMLOR", "DOLIPRANE", "METFORMINE"].forEach(function (nom, i) {
    ajouter("Medoc", "BddMed", [i + 1, null, null, null, "1 matin", nom]);
});
ajouter("Medoc", "Patients", [1, "Monsieur", "MARTIN  Paul", "20/03/1953", "0", null, null, null, null, null, null]);
ajouter("Medoc", "Patients", [2, "Madame", "DURAND  Anne", "01/02/1960", "0", null, null, null, null, null, null]);
clic("FrmDepart.CmdNO");
function nouvelle(patient) {
    clic("FrmOrdo.CmdNouvelle");
    choisir("FrmPatient.LstPatient", patient);
    clic("FrmPatient.CmdOK");
}
nouvelle("MARTIN  Paul");
cocher("FrmMedoc.ChkALD", true);
clic("FrmMedoc.TV", 0);
clic("FrmMedoc.CmdAjouter1");
clic("FrmMedoc.CmdSaut");
repondre("Oui");
clic("FrmMedoc.TV", 1);
clic("FrmMedoc.CmdAjouter2");
clic("FrmMedoc.CmdSaut");
repondre("Non");
clic("FrmMedoc.TV", 2);
clic("FrmMedoc.CmdAjouter2");
clic("FrmMedoc.CmdOrdo");
clic("FrmOrdo.CmdEnr");
boites([["Donnez un nom à cette ordonnance mémorisée :", "ALD"], [/spécifique/, "Non"]]);
egal(table("Medoc", "ListeOrdos"), [["ALD", "*", 1, "0"]], "avec deux zones");
egal(table("Medoc", "OrdoEnr").map(l => [l[1], l[3]]),
    [["AMLOR", 1], ["##", 1], ["DOLIPRANE", 2], ["##", 2], ["METFORMINE", 2]], "les zones, dans l'ordre des listes");

nouvelle("DURAND  Anne");
egal(coche("FrmMedoc.ChkALD"), 0, "une nouvelle ordonnance n'a qu'une zone");
clic("FrmMedoc.LblOrdoMem");
egal(donnees("FrmMemo.LstMemo(0)"), [1], "la donnée de la ligne");
doubleClic("FrmMemo.LstMemo(0)", 0);
egal(coche("FrmMedoc.ChkALD"), 1, "la case est cochée");
vrai(visible("FrmMedoc.LstChoix2"), "les deux listes sont là");
egal(lignes("FrmMedoc.LstChoix1").map(l => l.trim().split(" ")[0]), ["AMLOR", "#"], "la zone ALD");
egal(lignes("FrmMedoc.LstChoix2").map(l => l.trim().split(" ")[0]), ["DOLIPRANE", "#", "METFORMINE"], "l'autre");
egal(valeur("OrdoZone2")[1], {Titre: "##", Posologie: ""}, "un saut de ligne reste un saut de ligne");

// Sans ALD, la seconde zone n'est pas enregistrée.
cocher("FrmMedoc.ChkALD", false);
clic("FrmMedoc.CmdOrdo");
clic("FrmOrdo.CmdEnr");
boites([["Enregistrer les modifications de ALD ?", "Oui"]]);
egal(table("Medoc", "ListeOrdos"), [["ALD", "*", 0, "0"]], "la case est enregistrée");
egal(table("Medoc", "OrdoEnr").map(l => [l[1], l[3]]), [["AMLOR", 1], ["##", 1]], "la première zone seule");
egal(valeur("NbZone2"), 3, "la seconde reste en main");
nouvelle("DURAND  Anne");
clic("FrmMedoc.LblOrdoMem");
doubleClic("FrmMemo.LstMemo(0)", 0);
egal([coche("FrmMedoc.ChkALD"), valeur("NbZone2")], [0, 0], "elle revient avec une zone");
clic("FrmMedoc.CmdAnnule");
