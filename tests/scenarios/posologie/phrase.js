// Composer une posologie : les listes, les segments, la virgule de fin.
installer();
vider("Medoc", "BddMed");
ajouter("Medoc", "BddMed", [1, null, null, null, null, "DOLIPRANE"]);
clic("FrmDepart.CmdNO");
clic("FrmOrdo.CmdPharma");

// Sans médicament.
clic("FrmMedoc.LblPoso");
boites([["Sélectionnez un médicament !", "OK"]]);
faux(ouverte("FrmPoso"), "la fenêtre ne s'ouvre pas");

clic("FrmMedoc.TV", 0);
clic("FrmMedoc.LblPoso");
vrai(ouverte("FrmPoso"), "la fenêtre s'ouvre");
egal(texte("FrmPoso.LblNomMed"), "DOLIPRANE", "le nom du médicament");
egal(texte("FrmPoso.TxtPoso"), "", "il n'a pas de posologie");
vrai(actif("FrmPoso.CmdEnregistrer"), "un médicament de la pharmacie s'enregistre");
egal(["CmdAjouter", "CmdEnregistrer", "CmdQuitter", "CmdAnnule"].map(function (nom) {
    return texte("FrmPoso." + nom);
}), ["Ajouter", "Ajouter / Enregistrer", "Inscrire", "Annuler"], "les boutons");
capture("ouverture");

const quantites = ["1/4", "1/2", "3/4", "1", "1 1/4", "1 1/2", "2", "3", "4", "5", "10", "15", "20", "25", "30"];
[1, 2, 3, 4].forEach(function (i) {
    egal(lignes("FrmPoso.CboP(" + i + ")"), quantites, "les quantités de " + i);
});
egal(lignes("FrmPoso.CboP(0)").length, 24, "les formes");
egal(lignes("FrmPoso.CboP(5)")[7], "n'importe quand", "le dernier moment");
egal(lignes("FrmPoso.CboP(6)")[5], "du Xème au Xème jour du cycle,", "la dernière fréquence");
egal(lignes("FrmPoso.CboP(7)").length, 10, "les durées");
egal([0, 1, 2, 3, 4, 5, 6, 7].map(function (i) { return selection("FrmPoso.CboP(" + i + ")"); }),
    [-1, -1, -1, -1, -1, -1, -1, -1], "rien n'est choisi");

function phrase(attendue, motif) {
    egal(texte("FrmPoso.TxtPoso"), attendue, motif);
}
choisir("FrmPoso.CboP(0)", "comprimé(s)");
phrase("  ", "la forme seule : deux blancs");
choisir("FrmPoso.CboP(1)", "1");
phrase("1  comprimé(s)  le matin", "la virgule de fin est coupée");
choisir("FrmPoso.CboP(3)", "1");
phrase("1  comprimé(s)  le matin, 1  le soir", "la forme une seule fois");
choisir("FrmPoso.CboP(1)", "1 1/2");
phrase("1  comprimé(s) et 1/2  le matin, 1  le soir", "et la fraction");
choisir("FrmPoso.CboP(5)", "avant les repas,");
phrase("1  comprimé(s) et 1/2  le matin, 1  le soir, avant les repas", "le moment");
choisir("FrmPoso.CboP(6)", "tous les 2 jours,");
phrase("1  comprimé(s) et 1/2  le matin, 1  le soir, avant les repas, tous les 2 jours", "la fréquence");
choisir("FrmPoso.CboP(7)", "pendant 14 jours");
phrase("1  comprimé(s) et 1/2  le matin, 1  le soir, avant les repas, tous les 2 jours, pendant 14 jours",
    "la durée");
egal(valeur("DernierCboP"), 7, "la dernière boîte");
capture("phrase");

// Des textes tapés ; une boîte vidée à la main.
saisir("FrmPoso.CboP(0)", "");
saisir("FrmPoso.CboP(5)", "");
saisir("FrmPoso.CboP(6)", "");
saisir("FrmPoso.CboP(7)", "");
taper("FrmPoso.CboP(0)", "mat");
phrase("1  mat et 1/2  le matin, 1  le soir", "une forme tapée n'est pas répétée");
saisir("FrmPoso.CboP(1)", "");
phrase("1  mat  le soir", "la forme passe à la première quantité");
saisir("FrmPoso.CboP(3)", "7,5");
touche("FrmPoso.CboP(3)", "Tab");
phrase("7,5  mat  le soir", "une quantité tapée");
saisir("FrmPoso.CboP(3)", "");
phrase("  ", "tout est vide : deux blancs");
clic("FrmPoso.CmdQuitter");
egal(texte("FrmMedoc.TxtPoso"), "", "qui ne donnent rien");

// L'aide, et les choix de la dernière fois oubliés.
clic("FrmMedoc.LblPoso");
egal(texte("FrmPoso.CboP(0)"), "", "la forme est oubliée");
egal(selection("FrmPoso.CboP(1)"), -1, "les quantités aussi");
clic("FrmPoso.CmdAide");
contient(boite().texte, "permet le formatage du mot concerné :", "l'aide du formatage");
repondre("OK");
touche("FrmPoso.TxtPoso", "Echap");
faux(ouverte("FrmPoso"), "Echap annule");
