// À partir de la centième, le titre garde un tiret et rien ne se trouve : ni à charger, ni à supprimer.
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
for (let i = 1; i <= 101; ++i) {
    ajouter("Medoc", "ListeOrdos", ["T" + i, "*", 0, "0"]);
}
["T99", "T100", "- T100"].forEach(function (titre) {
    ajouter("Medoc", "OrdoEnr", [titre, "DE " + titre, "", 1, "*", "0", 1, 1]);
});
nouvelle("MARTIN  Paul");
clic("FrmMedoc.LblOrdoMem");
egal(lignes("FrmMemo.LstMemo(0)").slice(97), ["98- T98", "99- T99", "100- T100", "101- T101"], "les numéros");
clic("FrmMemo.LstMemo(0)", 98);
egal(valeur("TitreMemo"), "T99", "la 99e");
clic("FrmMemo.LstMemo(0)", 99);
egal(valeur("TitreMemo"), "- T100", "la centième garde un tiret");
touche("FrmMemo.LstMemo(0)", "Suppr");
boites([["Supprimer  - T100  ?", "Oui"]]);
egal([table("Medoc", "ListeOrdos").length, table("Medoc", "OrdoEnr").length], [101, 3], "rien n'est supprimé");
egal(lignes("FrmMemo.LstMemo(0)").length, 101, "et la ligne reste");
clic("FrmMemo.CmdEditer");
faux(ouverte("FrmMemo"), "la fenêtre se ferme");
egal([valeur("NbZone1"), valeur("OrdoMemorisee"), valeur("TitreMemo")], [0, 1, "- T100"], "rien n'est chargé");
doubleClic("FrmMedoc.TV", 0);
clic("FrmMedoc.CmdOrdo");
clic("FrmOrdo.CmdEnr");
boites([["Donnez un nom à cette ordonnance mémorisée :", null], ["L'ordonnance ne sera pas mémorisée.", "OK"]]);
clic("FrmOrdo.CmdSupp");
boites([["Supprimer - T100 des ordonnances mémorisées ?", "Oui"], [/effacer/, "Non"]]);
egal(table("Medoc", "OrdoEnr").length, 3, "rien n'est supprimé");

// La recherche laisse les numéros : la centième reste la centième, la 99e se charge.
clic("FrmOrdo.CmdPharma");
clic("FrmMedoc.CmdClear");
clic("FrmMedoc.LblOrdoMem");
taper("FrmMemo.TxtRecherche", "t99");
egal(lignes("FrmMemo.LstMemo(0)"), ["99- T99"], "une seule répond");
touche("FrmMemo.TxtRecherche", "Entree");
egal(valeur("OrdoZone1").map(e => e.Titre), ["DE T99"], "Entrée la charge");
clic("FrmMedoc.CmdAnnule");
