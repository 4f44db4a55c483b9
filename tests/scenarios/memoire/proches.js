// Des titres qui se ressemblent, pour une patiente au nom à apostrophe : chacun ne mène qu'à ses lignes.
installer();
vider("Medoc", "BddMed");
ajouter("Medoc", "BddMed", [1, null, null, null, "1 matin", "AMLOR"]);
ajouter("Medoc", "Patients", [1, "Madame", "O'BRIEN  Anne", "01/02/1980", "60", null, null, null, null, null, null]);
clic("FrmDepart.CmdNO");
function nouvelle() {
    clic("FrmOrdo.CmdNouvelle");
    clic("FrmPatient.LstPatient", 0);
    clic("FrmPatient.CmdOK");
}
const titres = ["ÉTÉ", "été", "Ete", "50%", "50a", "5_a", "a;b", "a;b--/*", "😀", "ł", "Ω 日本", "x".repeat(255), "x".repeat(256)];
titres.forEach(function (titre, i) {
    nouvelle();
    clic("FrmMedoc.TV", 0);
    saisir("FrmMedoc.TxtMedoc", "MEDICAMENT " + i);
    clic("FrmMedoc.CmdAjouter1");
    clic("FrmMedoc.CmdOrdo");
    clic("FrmOrdo.CmdEnr");
    boites([["Donnez un nom à cette ordonnance mémorisée :", titre],
        ["Voulez-vous que cette ordonnance soit spécifique à Madame  O'BRIEN  Anne ?", "Oui"]]);
});
egal(table("Medoc", "ListeOrdos"), titres.map(t => [t, "Madame  O'BRIEN  Anne", 0, "01/02/1980"]), "tels qu'ils sont tapés");
titres.forEach(function (titre, i) {
    nouvelle();
    clic("FrmMedoc.LblOrdoMem");
    egal(texte("FrmMemo.HLB"), "Ordonnances pour Mme  O'BRIEN  Anne", "son nom abrégé");
    clic("FrmMemo.LstMemo(1)", i);
    egal(valeur("TitreMemo"), titre, "le titre choisi");
    clic("FrmMemo.CmdEditer");
    egal(lignes("FrmMedoc.LstChoix1"), ["  MEDICAMENT " + i + " ".repeat(300) + "1"], "ses lignes seules");
    clic("FrmMedoc.CmdOrdo");
});

// Remplacer puis supprimer l'une laisse les autres.
nouvelle();
clic("FrmMedoc.LblOrdoMem");
doubleClic("FrmMemo.LstMemo(1)", 0);
clic("FrmMedoc.CmdSaut");
clic("FrmMedoc.CmdOrdo");
clic("FrmOrdo.CmdEnr");
boites([["Enregistrer les modifications de ÉTÉ ?", "Oui"]]);
egal(table("Medoc", "OrdoEnr").map(l => l[0]).sort(), [...titres, "ÉTÉ"].sort(), "une ligne de plus");
clic("FrmOrdo.CmdSupp");
boites([["Supprimer ÉTÉ des ordonnances mémorisées ?", "Oui"], [/effacer/, "Non"]]);
egal(table("Medoc", "ListeOrdos").map(l => l[0]), titres.slice(1), "les autres restent");
egal(table("Medoc", "OrdoEnr").map(l => l[0]), titres.slice(1), "leurs lignes aussi");
