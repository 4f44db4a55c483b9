// Au clavier seul : chercher, choisir, charger, supprimer, quitter.
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
["Épilepsie", "Cœur", "prépa épi", "Rhume"].forEach(function (titre) {
    ajouter("Medoc", "ListeOrdos", [titre, "*", 0, "0"]);
    ajouter("Medoc", "OrdoEnr", [titre, "DE " + titre, "", 1, "*", "0", 1, 1]);
});
ajouter("Medoc", "ListeOrdos", ["Suivi épi", "Monsieur  MARTIN  Paul", 0, "20/03/1953"]);
nouvelle("MARTIN  Paul");
clic("FrmMedoc.LblOrdoMem");
taper("FrmMemo.TxtRecherche", "EPI");
egal(lignes("FrmMemo.LstMemo(0)"), ["1- Épilepsie", "3- prépa épi"], "sans accents ni casse");
egal(lignes("FrmMemo.LstMemo(1)"), ["1- Suivi épi"], "dans les deux listes");
egal(selection("FrmMemo.LstMemo(0)"), -1, "rien n'est choisi tant que plusieurs répondent");
capture("recherche");
touche("FrmMemo.TxtRecherche", "Bas");
egal([selection("FrmMemo.LstMemo(0)"), valeur("TitreMemo")], [0, "Épilepsie"], "Bas mène à la première");
touche("FrmMemo.LstMemo(0)", "Bas");
egal(valeur("TitreMemo"), "prépa épi", "les flèches choisissent");
touche("FrmMemo.LstMemo(0)", "Suppr");
boites([["Supprimer  prépa épi  ?", "Oui"]]);
egal(lignes("FrmMemo.LstMemo(0)"), ["1- Épilepsie"], "la ligne s'en va");
saisir("FrmMemo.TxtRecherche", "");
egal(lignes("FrmMemo.LstMemo(0)"), ["1- Épilepsie", "2- Cœur", "4- Rhume"], "toutes reviennent");
saisir("FrmMemo.TxtRecherche", "coeur");
egal(selection("FrmMemo.LstMemo(0)"), 0, "la seule qui réponde est choisie");
touche("FrmMemo.TxtRecherche", "Entree");
egal(valeur("OrdoZone1").map(e => e.Titre), ["DE Cœur"], "Entrée la charge");
clic("FrmMedoc.LblOrdoMem");
taper("FrmMemo.TxtRecherche", "rien de tel");
egal([lignes("FrmMemo.LstMemo(0)"), lignes("FrmMemo.LstMemo(1)")], [[], []], "aucune ne répond");
capture("vide");
touche("FrmMemo.TxtRecherche", "Bas");
touche("FrmMemo.TxtRecherche", "Echap");
faux(ouverte("FrmMemo"), "Échap ferme");
egal(valeur("TitreMemo"), "Cœur", "celle en main garde son titre");
clic("FrmMedoc.CmdAnnule");
