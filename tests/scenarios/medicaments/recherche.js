// La recherche, l'arbre et les deux cadres du médicament choisi.
installer();
vider("Medoc", "BddMed");
ajouter("Medoc", "BddMed", [1, null, null, "à prendre à jeun", "1 comprimé matin* et soir", "DOLIPRANE 1000 MG"]);
ajouter("Medoc", "BddMed", [2, null, null, null, null, "AMLOR 5 MG"]);
ajouter("Medoc", "BddMed", [3, null, null, null, "1 cp", "METFORMINE \"L'1000\""]);
ajouter("Medoc", "BddMed", [4, null, null, null, "perdue", "   "]);
clic("FrmDepart.CmdNO");
clic("FrmOrdo.CmdPharma");

egal(titre("FrmMedoc"), "   Médicaments de la pharmacie", "le titre");
egal(lignes("FrmMedoc.TV"), ["AMLOR 5 MG", "DOLIPRANE 1000 MG", "METFORMINE \"L'1000\""], "l'arbre est trié");
egal(etiquettes("FrmMedoc.TV"), ["2", "1", "3"], "les étiquettes sont les numéros");
egal(table("Medoc", "BddMed").length, 3, "la ligne sans nom est effacée");
aucuneBoite();
["Lbl1", "Lbl2", "Lbl5", "CmdCopyright", "CmdPerso", "CmdVD", "LblDatExp", "HlbG", "HlbI", "ChkMono", "Lblmono",
    "PctCherch", "ChkDCI", "lblDCI", "CmdAjouter2", "LstChoix2", "ImgUp", "ImgDown", "Txt"].forEach(function (nom) {
    faux(visible("FrmMedoc." + nom), nom + " est caché");
});
egal(texte("FrmMedoc.CmdModifier"), "Modifier données Med", "CmdModifier en mode local");
egal(texte("FrmMedoc.CmdAjouter1"), "Ajouter", "CmdAjouter1 sans ALD");
egal(texte("FrmMedoc.Label7"), "Ordonnance ALD", "Label7");
egal(texte("FrmMedoc.Label6"), "Imprimer duplicata", "Label6");
egal(texte("FrmMedoc.Label9"), "Imprimer triplicata", "Label9");

// Une touche, la première correspondance ; l'arbre ne change pas.
taper("FrmMedoc.TxtCherche", "met");
egal(texte("FrmMedoc.TxtCherche"), "MET", "les lettres tapées sont des capitales");
egal(selection("FrmMedoc.TV"), 2, "la première correspondance");
egal(texte("FrmMedoc.TxtMedoc"), "", "chercher ne remplit rien");
taper("FrmMedoc.TxtCherche", "zz");
egal(selection("FrmMedoc.TV"), 2, "sans correspondance la sélection reste");
egal(lignes("FrmMedoc.TV").length, 3, "la liste entière");
saisir("FrmMedoc.TxtCherche", "  dol ");
egal(selection("FrmMedoc.TV"), 1, "petites lettres collées, blancs autour");

// Un clic remplit les deux cadres.
clic("FrmMedoc.TV", 1);
egal(texte("FrmMedoc.TxtMedoc"), "DOLIPRANE 1000 MG", "TxtMedoc");
egal(texte("FrmMedoc.TxtPoso"), "1 comprimé matin* et soir", "TxtPoso");
egal(valeur("NoeudChoisi"), 2, "NoeudChoisi");
vrai(actif("FrmMedoc.CmdModifier"), "CmdModifier est actif");
clic("FrmMedoc.TV", 0);
egal(texte("FrmMedoc.TxtPoso"), "", "une posologie nulle");

// F4 : trente blancs, puis plus.
touche("FrmMedoc.TxtMedoc", "F4");
egal(texte("FrmMedoc.TxtMedoc"), "AMLOR 5 MG" + " ".repeat(30), "F4 met trente blancs");
touche("FrmMedoc.TxtMedoc", "F4");
egal(texte("FrmMedoc.TxtMedoc"), "AMLOR 5 MG", "F4 les ôte");

// CmdModifier.
clic("FrmMedoc.CmdModifier");
aucuneBoite();
saisir("FrmMedoc.TxtPoso", "1 le \"soir\", s'il faut");
clic("FrmMedoc.CmdModifier");
boites([["Modifications enregistrées.", "OK"]]);
egal(table("Medoc", "BddMed")[1][4], "1 le \"soir\", s'il faut", "la posologie est enregistrée");
saisir("FrmMedoc.TxtMedoc", "   ");
clic("FrmMedoc.CmdModifier");
boites([["Aucune indication de nom de médicament !", "OK"]]);
egal(table("Medoc", "BddMed")[1][5], "AMLOR 5 MG", "un nom vide n'est pas enregistré");

// Chercher après un clic n'écrit pas sur le médicament cliqué.
clic("FrmMedoc.TV", 2);
saisir("FrmMedoc.TxtCherche", "AML");
faux(actif("FrmMedoc.CmdModifier"), "CmdModifier attend un clic");

// Entrée lit la table de nouveau.
ajouter("Medoc", "BddMed", [5, null, null, null, null, "ZYLORIC"]);
touche("FrmMedoc.TxtCherche", "Entree");
egal(lignes("FrmMedoc.TV").length, 4, "Entrée relit la table");
egal(valeur("NoeudChoisi"), 100, "aucun nœud");
egal(lignes("FrmMedoc.LstChoix1"), [], "Entrée n'ajoute rien");

// CmdRetire.
clic("FrmMedoc.TV", 3);
clic("FrmMedoc.CmdRetire");
egal(boite().defaut, "Non", "Non par défaut");
boites([["Supprimer ZYLORIC de la base de données ?", "Non"]]);
egal(texte("FrmMedoc.TxtMedoc"), "", "les cadres sont vidés aussi sur Non");
egal(lignes("FrmMedoc.TV").length, 4, "rien n'est effacé");
clic("FrmMedoc.CmdRetire");
boites([["Supprimer ZYLORIC de la base de données ?", "Oui"]]);
egal(lignes("FrmMedoc.TV").length, 3, "le nœud est parti");
egal(table("Medoc", "BddMed").length, 3, "la ligne aussi");

clic("FrmMedoc.CmdAide");
contient(boite().texte, "L 'inscription, après un mot, et sans espace", "l'aide");
egal(boite().genre, "information", "l'aide est une information");
repondre("OK");
