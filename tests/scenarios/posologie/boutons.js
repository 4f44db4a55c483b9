// Les quatre sorties : inscrire, ajouter, ajouter et enregistrer, annuler.
installer();
vider("Medoc", "BddMed");
ajouter("Medoc", "BddMed", [1, null, null, null, null, "DOLIPRANE"]);
ajouter("Medoc", "BddMed", [2, null, null, null, "1 le soir", "ZYLORIC"]);
clic("FrmDepart.CmdNO");
clic("FrmOrdo.CmdPharma");

function compose(medicament) {
    clic("FrmMedoc.TV", medicament);
    clic("FrmMedoc.LblPoso");
    choisir("FrmPoso.CboP(0)", "lyo");
    choisir("FrmPoso.CboP(4)", "2");
}
const phrase = "2  lyo  au coucher";

// Annuler : rien.
compose("ZYLORIC");
clic("FrmPoso.CmdAnnule");
egal(texte("FrmMedoc.TxtPoso"), "1 le soir", "la posologie reste");
egal(lignes("FrmMedoc.LstChoix1"), [], "rien n'est ajouté");
compose("ZYLORIC");
fermer("FrmPoso");
egal(texte("FrmMedoc.TxtPoso"), "1 le soir", "la case de fermeture annule aussi");

// Inscrire : le texte seul.
compose("ZYLORIC");
saisir("FrmPoso.TxtPoso", "  2 lyo ,  ");
clic("FrmPoso.CmdQuitter");
egal(texte("FrmMedoc.TxtPoso"), "2 lyo ", "inscrite, la virgule coupée");
egal(texte("FrmMedoc.TxtMedoc"), "ZYLORIC", "le médicament reste");
egal(lignes("FrmMedoc.LstChoix1"), [], "rien n'est ajouté");
clic("FrmMedoc.LblPoso");
egal(texte("FrmPoso.TxtPoso"), "2 lyo ", "la fenêtre reprend le texte");
clic("FrmPoso.CmdAnnule");

// Ajouter : la ligne.
compose("DOLIPRANE");
clic("FrmPoso.CmdAjouter");
egal(lignes("FrmMedoc.LstChoix1").length, 1, "la ligne est ajoutée");
egal(valeur("OrdoZone1"), [{Posologie: phrase, Titre: "DOLIPRANE"}], "avec sa phrase");
egal(texte("FrmMedoc.TxtMedoc"), "", "les cadres sont vidés");
clic("FrmMedoc.TV", "DOLIPRANE");
egal(texte("FrmMedoc.TxtPoso"), "", "rien n'est mémorisé");

// Ajouter / Enregistrer : la ligne, et la mémoire.
compose("DOLIPRANE");
clic("FrmPoso.CmdEnregistrer");
boites([["Modifications enregistrées.", "OK"]]);
egal(lignes("FrmMedoc.LstChoix1").length, 2, "la ligne est ajoutée");
egal(table("Medoc", "BddMed")[0], [1, null, null, null, phrase, "DOLIPRANE"], "la table");
clic("FrmMedoc.TV", "ZYLORIC");
clic("FrmMedoc.TV", "DOLIPRANE");
egal(texte("FrmMedoc.TxtPoso"), phrase, "elle revient au clic suivant");

// Deux zones : la question, sans icône.
cocher("FrmMedoc.ChkALD", true);
const question = "Zone ALD, tapez oui.\n\nZone non ALD, tapez non.";
[["Oui", [3, 0]], ["Non", [3, 1]], ["Annuler", [3, 1]]].forEach(function (cas) {
    compose("ZYLORIC");
    clic("FrmPoso.CmdAjouter");
    const vue = boite();
    egal([vue.genre, vue.texte, vue.boutons], ["simple", question, ["Oui", "Non", "Annuler"]], "la question");
    repondre(cas[0]);
    egal([lignes("FrmMedoc.LstChoix1").length, lignes("FrmMedoc.LstChoix2").length], cas[1], cas[0]);
});
egal(texte("FrmMedoc.TxtPoso"), phrase, "Annuler laisse la phrase à côté du médicament");

// Enregistrer puis Annuler : la mémoire est prise, aucune ligne.
compose("ZYLORIC");
clic("FrmPoso.CmdEnregistrer");
boites([["Modifications enregistrées.", "OK"], [question, "Annuler"]]);
egal(table("Medoc", "BddMed")[1][4], phrase, "mémorisée");
egal([lignes("FrmMedoc.LstChoix1").length, lignes("FrmMedoc.LstChoix2").length], [3, 1], "aucune ligne");
