// Des titres difficiles : enregistrés, proposés, chargés et supprimés comme les autres.
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
const longs = new Array(256).join("x");
const titres = ["L'été d'Anne", "\"HTA\" or \"1\"=\"1", "%", "H_A", "'; drop table OrdoEnr; --", longs, "Żółć 高血圧", "2- HTA",
    "*", "a\\b", "<b>gras</b>", "A & B"];
titres.forEach(function (titre, i) {
    nouvelle("MARTIN  Paul");
    clic("FrmMedoc.TV", 0);
    saisir("FrmMedoc.TxtMedoc", "MEDICAMENT " + i);
    clic("FrmMedoc.CmdAjouter1");
    clic("FrmMedoc.CmdOrdo");
    clic("FrmOrdo.CmdEnr");
    boites([["Donnez un nom à cette ordonnance mémorisée :", "  " + titre + " "], [/spécifique/, i % 2 ? "Oui" : "Non"]]);
    egal(valeur("TitreMemo"), titre, "le titre sans ses blancs");
});
egal(table("Medoc", "ListeOrdos").map(l => l[0]), titres, "tous sont enregistrés");
titres.forEach(function (titre, i) {
    const liste = "FrmMemo.LstMemo(" + i % 2 + ")";
    nouvelle("MARTIN  Paul");
    clic("FrmMedoc.LblOrdoMem");
    egal(lignes(liste)[(i - i % 2) / 2], (1 + (i - i % 2) / 2) + "- " + titre, "proposé");
    if (i === 5) capture("titres");
    doubleClic(liste, (i - i % 2) / 2);
    egal(valeur("OrdoZone1").map(e => e.Titre), ["MEDICAMENT " + i], "chargé seul");
    clic("FrmMedoc.CmdOrdo");
});
titres.forEach(function (titre, i) {
    nouvelle("MARTIN  Paul");
    clic("FrmMedoc.LblOrdoMem");
    doubleClic("FrmMemo.LstMemo(" + i % 2 + ")", 0);
    clic("FrmMedoc.CmdOrdo");
    clic("FrmOrdo.CmdSupp");
    boites([["Supprimer " + titre + " des ordonnances mémorisées ?", "Oui"], [/effacer/, "Non"]]);
    egal(table("Medoc", "OrdoEnr").length, titres.length - 1 - i, "supprimé seul");
});
clic("FrmOrdo.CmdEnr");
boites([["Donnez un nom à cette ordonnance mémorisée :", "   "], ["L'ordonnance ne sera pas mémorisée.", "OK"]]);
