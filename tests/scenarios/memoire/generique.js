// Une ordonnance générique : enregistrée avec un patient en main, elle revient pour tous et pour personne.
installer();
vider("Medoc", "BddMed");
["AMLOR", "DOLIPRANE"].forEach(function (nom, i) {
    ajouter("Medoc", "BddMed", [i + 1, null, null, null, "1 matin* et soir", nom]);
});
ajouter("Medoc", "Patients", [1, "Monsieur", "MARTIN  Paul", "20/03/1953", "0", null, null, null, null, null, null]);
ajouter("Medoc", "Patients", [2, "Madame", "DURAND  Anne", "01/02/1960", "0", null, null, null, null, null, null]);
clic("FrmDepart.CmdNO");

function nouvelle(rang) {
    clic("FrmOrdo.CmdNouvelle");
    choisir("FrmPatient.LstPatient", rang);
    clic("FrmPatient.CmdOK");
}
nouvelle("MARTIN  Paul");
doubleClic("FrmMedoc.TV", 0);
clic("FrmMedoc.CmdSaut");
doubleClic("FrmMedoc.TV", 1);
clic("FrmMedoc.CmdOrdo");
faux(visible("FrmOrdo.ImgMemo"), "pas encore mémorisée");

clic("FrmOrdo.CmdEnr");
const nom = boite();
egal([nom.genre, nom.titre, nom.texte, nom.valeur],
    ["saisie", "Ordonnance mémorisée", "Donnez un nom à cette ordonnance mémorisée :", ""], "un nom est demandé");
repondre("HTA");
const specifique = boite();
egal([specifique.genre, specifique.texte, specifique.boutons], ["question",
    "Voulez-vous que cette ordonnance soit spécifique à Monsieur  MARTIN  Paul ?", ["Oui", "Non"]], "pour qui");
repondre("Non");
aucuneBoite();
vrai(visible("FrmOrdo.ImgMemo"), "l'ordonnance en main est mémorisée");
egal([valeur("OrdoMemorisee"), valeur("TitreMemo")], [1, "HTA"], "sous son titre");
egal(table("Medoc", "ListeOrdos"), [["HTA", "*", 0, "0"]], "une ligne dans la liste");
egal(table("Medoc", "OrdoEnr"), [
    ["HTA", "AMLOR", "1 matin* et soir", 1, "*", "0", 1, 1],
    ["HTA", "##", "", 1, "*", "0", 1, 1],
    ["HTA", "DOLIPRANE", "1 matin* et soir", 1, "*", "0", 1, 1]], "une ligne par rangée, dans l'ordre");

// Pour un autre patient.
nouvelle("DURAND  Anne");
egal(valeur("OrdoMemorisee"), 0, "une nouvelle ordonnance n'est pas mémorisée");
clic("FrmMedoc.LblOrdoMem");
egal(lignes("FrmMemo.LstMemo(0)"), ["1- HTA"], "la liste générique");
egal(donnees("FrmMemo.LstMemo(0)"), [0], "sa donnée");
egal(lignes("FrmMemo.LstMemo(1)"), [], "aucune pour elle");
egal(texte("FrmMemo.HLB"), "Ordonnances pour Mme  DURAND  Anne", "la liste de la patiente");
capture("liste");
doubleClic("FrmMemo.LstMemo(0)", 0);
faux(ouverte("FrmMemo"), "la fenêtre se ferme");
aucuneBoite();
egal(valeur("OrdoZone1"), [{Titre: "AMLOR", Posologie: "1 matin* et soir"}, {Titre: "##", Posologie: ""},
    {Titre: "DOLIPRANE", Posologie: "1 matin* et soir"}], "les lignes reviennent");
const blancs = new Array(301).join(" ");
egal(lignes("FrmMedoc.LstChoix1"), ["  AMLOR" + blancs + "1", "  #" + blancs + "1", "  DOLIPRANE" + blancs + "1"],
    "un saut de ligne reste un saut de ligne");
egal(donnees("FrmMedoc.LstChoix1"), [0, 1, 2], "leurs places");
egal(valeur("OrdoMemorisee"), 1, "l'ordonnance en main est mémorisée");
egal(fenetreActive(), "FrmMedoc", "retour à la pharmacie");

// Une seconde fois : les lignes s'ajoutent.
clic("FrmMedoc.LblOrdoMem");
clic("FrmMemo.LstMemo(0)", 0);
clic("FrmMemo.CmdEditer");
egal(donnees("FrmMedoc.LstChoix1"), [0, 1, 2, 3, 4, 5], "les lignes grandissent");
clic("FrmMedoc.CmdOrdo");
vrai(visible("FrmOrdo.ImgMemo"), "le signe est là");

// Sans patient.
clic("FrmOrdo.CmdNouvelle");
clic("FrmPatient.CmdAnnule");
clic("FrmOrdo.CmdPharma");
clic("FrmMedoc.LblOrdoMem");
egal(lignes("FrmMemo.LstMemo(0)"), ["1- HTA"], "pour personne aussi");
clicDroit("FrmMemo.LstMemo(0)");
faux(ouverte("FrmMemo"), "le bouton droit ferme");
egal(lignes("FrmMedoc.LstChoix1"), [], "rien n'est chargé");
clic("FrmMedoc.CmdAnnule");
