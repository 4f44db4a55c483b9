// Apostrophes, guillemets et signes vivent une vie entière en mode local.
installer();
const noms = ["l'eau d'alibour", 'dit "fort"', "50 % ; _ --", "chanvre 🌿", "<b>gras</b> & co"];
vider("Medoc", "BddMed");
ajouter("Medoc", "BddMed", [1, null, null, null, "1 comprimé", "ASPIRINE"]);
clic("FrmDepart.CmdNO");
clic("FrmOrdo.CmdPharma");
clic("FrmMedoc.CmdNouveau");
for (const nom of noms) {
    saisir("FrmNouveauM.TxtNom", nom);
    saisir("FrmNouveauM.TxtPoso", "posologie de " + nom);
    clic("FrmNouveauM.CmdOK");
    aucuneBoite();
}
clic("FrmNouveauM.CmdAnnuler");
egal(table("Medoc", "BddMed").length, 1 + noms.length, "tous stockés");
for (const nom of noms) {
    clic("FrmMedoc.TV", nom.toUpperCase());
    egal(texte("FrmMedoc.TxtMedoc"), nom.toUpperCase(), "le nom " + nom);
    egal(texte("FrmMedoc.TxtPoso"), "posologie de " + nom, "la posologie " + nom);
    clic("FrmMedoc.CmdRetire");
    const question = boite();
    egal(question.texte, "Supprimer " + nom.toUpperCase() + " de la base de données ?", "la question");
    egal([question.genre, question.defaut], ["question", "Non"], "Non par défaut");
    repondre("Oui");
}
egal(table("Medoc", "BddMed").length, 1, "il ne reste que le premier");

// Un nom collé de plusieurs lignes tient sur une.
clic("FrmMedoc.CmdNouveau");
saisir("FrmNouveauM.TxtNom", "doliprane\n1 g\n");
clic("FrmNouveauM.CmdOK");
egal(table("Medoc", "BddMed")[1][5], "DOLIPRANE 1 G", "sur une ligne");
clic("FrmNouveauM.CmdAnnuler");
