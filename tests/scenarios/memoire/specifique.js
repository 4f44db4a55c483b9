// Une ordonnance spécifique à un patient : elle ne revient que pour lui ; modifiée, ses lignes sont remplacées.
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
function specifique(reponse) {
    return [/^Voulez-vous que cette ordonnance soit spécifique à /, reponse];
}
nouvelle("MARTIN  Paul");
doubleClic("FrmMedoc.TV", 0);
clic("FrmMedoc.CmdOrdo");
clic("FrmOrdo.CmdEnr");
boites([["Donnez un nom à cette ordonnance mémorisée :", "HTA"], specifique("Oui")]);
egal(table("Medoc", "ListeOrdos"), [["HTA", "Monsieur  MARTIN  Paul", 0, "20/03/1953"]], "au nom du patient");
egal(table("Medoc", "OrdoEnr"), [["HTA", "AMLOR", "1 matin", 1, "Monsieur  MARTIN  Paul", "20/03/1953", 1, 1]], "ses lignes aussi");

// Modifiée et enregistrée à nouveau.
clic("FrmOrdo.CmdPharma");
doubleClic("FrmMedoc.TV", 1);
clic("FrmMedoc.CmdOrdo");
clic("FrmOrdo.CmdEnr");
egal(boite().genre, "question", "une question");
boites([["Enregistrer les modifications de HTA ?", "Non"]]);
egal(table("Medoc", "OrdoEnr").length, 1, "Non ne change rien");
clic("FrmOrdo.CmdEnr");
boites([["Enregistrer les modifications de HTA ?", "Oui"]]);
egal(table("Medoc", "OrdoEnr").map(l => l[1]), ["AMLOR", "DOLIPRANE"], "les lignes sont remplacées");
egal(table("Medoc", "ListeOrdos").length, 1, "la liste reste");

// Le même titre pour une autre patiente.
nouvelle("DURAND  Anne");
clic("FrmMedoc.LblOrdoMem");
boites([["Aucun modèle d'ordonnance n'est enregistré.", "OK"]]);
doubleClic("FrmMedoc.TV", 2);
clic("FrmMedoc.CmdOrdo");
clic("FrmOrdo.CmdEnr");
boites([["Donnez un nom à cette ordonnance mémorisée :", "HTA"], specifique("Oui")]);
egal(table("Medoc", "OrdoEnr").length, 3, "les deux restent");

// Et pour tous : trois ordonnances d'un même titre, chacune pour soi.
nouvelle("MARTIN  Paul");
doubleClic("FrmMedoc.TV", 2);
clic("FrmMedoc.CmdOrdo");
clic("FrmOrdo.CmdEnr");
boites([["Donnez un nom à cette ordonnance mémorisée :", "HTA"], specifique("Non")]);
nouvelle("MARTIN  Paul");
clic("FrmMedoc.LblOrdoMem");
egal(texte("FrmMemo.HLB"), "Ordonnances pour M.  MARTIN  Paul", "le patient, en abrégé");
egal([lignes("FrmMemo.LstMemo(0)"), lignes("FrmMemo.LstMemo(1)")], [["1- HTA"], ["1- HTA"]], "chacune dans sa liste");
clic("FrmMemo.LstMemo(1)", 0);
egal(valeur("TitreMemo"), "HTA", "le titre choisi");
clic("FrmMemo.LstMemo(0)", 0);
egal(selection("FrmMemo.LstMemo(1)"), -1, "une seule liste a un choix");
clic("FrmMemo.LstMemo(1)", 0);
egal(selection("FrmMemo.LstMemo(0)"), -1, "dans l'autre sens aussi");
clic("FrmMemo.CmdEditer");
egal(valeur("OrdoZone1").map(e => e.Titre), ["AMLOR", "DOLIPRANE"], "celle du patient seule");
clic("FrmMedoc.CmdOrdo");
clic("FrmOrdo.CmdSupp");
boites([["Supprimer HTA des ordonnances mémorisées ?", "Oui"], ["Voulez-vous effacer l'ordonnance actuelle ?", "Non"]]);
egal(table("Medoc", "ListeOrdos"), [["HTA", "Madame  DURAND  Anne", 0, "01/02/1960"], ["HTA", "*", 0, "0"]],
    "la supprimer laisse les autres");
egal(table("Medoc", "OrdoEnr").map(l => l[4]), ["Madame  DURAND  Anne", "*"], "et leurs lignes");
faux(visible("FrmOrdo.ImgMemo"), "elle n'est plus mémorisée");
egal(valeur("OrdoZone1").length, 2, "ses lignes restent en main");

// Le patient change : l'ordonnance d'un autre ne se remplace pas.
clic("FrmOrdo.CmdPharma");
clic("FrmMedoc.CmdClear");
clic("FrmMedoc.LblOrdoMem");
doubleClic("FrmMemo.LstMemo(0)", 0);
egal(valeur("OrdoZone1").map(e => e.Titre), ["METFORMINE"], "la générique");
clic("FrmMedoc.CmdOrdo");
nouvelle("DURAND  Anne");
clic("FrmMedoc.LblOrdoMem");
doubleClic("FrmMemo.LstMemo(1)", 0);
clic("FrmMedoc.CmdOrdo");
clic("FrmOrdo.CmdPatient");
choisir("FrmPatient.LstPatient", "MARTIN  Paul");
clic("FrmPatient.CmdOK");
clic("FrmOrdo.CmdEnr");
boites([["Donnez un nom à cette ordonnance mémorisée :", null], ["L'ordonnance ne sera pas mémorisée.", "OK"]]);
egal(table("Medoc", "OrdoEnr").length, 2, "rien n'est perdu");
