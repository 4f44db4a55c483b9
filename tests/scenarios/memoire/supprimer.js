// Supprimer dans la fenêtre, jusqu'à la dernière, et celle qui est en main.
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
["HTA", "Rhume", "Grippe"].forEach(function (titre) {
    ajouter("Medoc", "ListeOrdos", [titre, "*", 0, "0"]);
    ajouter("Medoc", "OrdoEnr", [titre, "DE " + titre, "", 1, "*", "0", 1, 1]);
});
ajouter("Medoc", "ListeOrdos", ["Suivi", "Monsieur  MARTIN  Paul", 0, "20/03/1953"]);
ajouter("Medoc", "OrdoEnr", ["Suivi", "DE SUIVI", "", 1, "Monsieur  MARTIN  Paul", "20/03/1953", 1, 1]);
nouvelle("MARTIN  Paul");
clic("FrmMedoc.LblOrdoMem");
clic("FrmMemo.CmdEditer");
boites([["Sélectionnez une ordonnance .", "OK"]]);
touche("FrmMemo.LstMemo(0)", "Suppr");
aucuneBoite();
clic("FrmMemo.lblAS");
egal(boite().genre, "information", "l'aide");
boites([["Pour supprimer une ordonnance enregistrée, il faut la sélectionner dans la liste, et taper sur la touche " +
    "'Suppr' du clavier.", "OK"]]);
doubleClic("FrmMemo.LstMemo(0)", "1- HTA");
egal(valeur("TitreMemo"), "HTA", "celle qui est en main");

// Non, puis oui, sur une autre : celle en main garde son titre.
clic("FrmMedoc.LblOrdoMem");
clic("FrmMemo.LstMemo(0)", 1);
touche("FrmMemo.LstMemo(0)", "Suppr");
const question = boite();
egal([question.genre, question.texte, question.defaut], ["question", "Supprimer  Rhume  ?", "Non"], "une question");
repondre("Non");
egal(lignes("FrmMemo.LstMemo(0)"), ["1- HTA", "2- Rhume", "3- Grippe"], "Non ne change rien");
touche("FrmMemo.CmdEditer", "Suppr");
boites([["Supprimer  Rhume  ?", "Oui"]]);
egal(lignes("FrmMemo.LstMemo(0)"), ["1- HTA", "3- Grippe"], "la ligne s'en va, les numéros restent");
egal(selection("FrmMemo.LstMemo(0)"), -1, "rien n'est choisi");
egal(table("Medoc", "ListeOrdos").map(l => l[0]), ["HTA", "Grippe", "Suivi"], "la liste enregistrée");
egal(table("Medoc", "OrdoEnr").map(l => l[0]), ["HTA", "Grippe", "Suivi"], "et les lignes");
clic("FrmMemo.CmdQuitter");
egal([valeur("OrdoMemorisee"), valeur("TitreMemo")], [1, "HTA"], "celle en main garde son titre");

// Celle en main, puis les autres.
clic("FrmMedoc.LblOrdoMem");
[["LstMemo(0)", "HTA"], ["LstMemo(1)", "Suivi"], ["LstMemo(0)", "Grippe"]].forEach(function (paire) {
    clic("FrmMemo." + paire[0], 0);
    touche("FrmMemo." + paire[0], "Suppr");
    boites([["Supprimer  " + paire[1] + "  ?", "Oui"]]);
    egal(valeur("OrdoMemorisee"), 0, "celle en main n'est plus une ordonnance mémorisée");
});
boites([["Plus d'ordonnance enregistrée !", "OK"]]);
faux(ouverte("FrmMemo"), "la fenêtre se ferme");
egal([table("Medoc", "ListeOrdos"), table("Medoc", "OrdoEnr")], [[], []], "tout est supprimé");
clic("FrmMedoc.CmdOrdo");

// Ce qui est en main n'est plus enregistré nulle part : rien à supprimer, et un nom est demandé.
faux(visible("FrmOrdo.ImgMemo"), "sa marque s'en va");
clic("FrmOrdo.CmdSupp");
boites([["Ce raccourci ne peut que supprimer une ordonnance mémorisée.", "OK"]]);
clic("FrmOrdo.CmdEnr");
boites([["Donnez un nom à cette ordonnance mémorisée :", "HTA"], [/spécifique/, "Non"]]);
egal(table("Medoc", "ListeOrdos").length, 1, "elle est de nouveau enregistrée");
clic("FrmOrdo.CmdSupp");
boites([["Supprimer HTA des ordonnances mémorisées ?", "Oui"], ["Voulez-vous effacer l'ordonnance actuelle ?", "Oui"]]);
vrai(ouverte("FrmPatient"), "une nouvelle ordonnance commence");
egal([valeur("NbZone1"), table("Medoc", "OrdoEnr")], [0, []], "tout est effacé");
clic("FrmPatient.CmdAnnule");
clic("FrmOrdo.CmdSupp");
boites([["Ce raccourci ne peut que supprimer une ordonnance mémorisée.", "OK"]]);
