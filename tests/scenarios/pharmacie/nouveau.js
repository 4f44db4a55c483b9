// Un nouveau médicament de la pharmacie locale.
installer();
vider("Medoc", "BddMed");
ajouter("Medoc", "BddMed", [7, null, null, null, null, "AMLOR"]);
ajouter("Medoc", "Biblio", ["QSP 3 mois", null]);
const nombreBiblio = table("Medoc", "Biblio").length;
clic("FrmDepart.CmdNO");
clic("FrmOrdo.CmdPharma");
clic("FrmMedoc.CmdNouveau");
egal(fenetreActive(), "FrmNouveauM", "la fenêtre s'ouvre");
egal(texte("FrmNouveauM.LblPharma"), "PHARMACIE  SCRIPTELLE", "deux blancs en mode local");
egal(texte("FrmNouveauM.LblTitre"), "Nom du médicament    ", "LblTitre");
egal(texte("FrmNouveauM.LblPoso"), "Posologie", "LblPoso");
egal(texte("FrmNouveauM.CmdOK"), "Enregistrer", "CmdOK");
egal(texte("FrmNouveauM.CmdAnnuler"), "Annuler / Quitter", "CmdAnnuler");
faux(visible("FrmNouveauM.lblAS"), "lblAS est caché");
faux(visible("FrmNouveauM.CmdSupp"), "CmdSupp est caché");
egal(lignes("FrmNouveauM.LstP"), [], "LstP reste vide");
capture("nouveau_local");

// Sans nom, rien.
clic("FrmNouveauM.CmdOK");
egal(boite().genre, "stop", "un refus");
boites([["Aucune indication de nom de médicament !", "OK"]]);
saisir("FrmNouveauM.TxtNom", "    ");
saisir("FrmNouveauM.TxtPoso", "1 cp");
clic("FrmNouveauM.CmdOK");
boites([["Aucune indication de nom de médicament !", "OK"]]);
egal(table("Medoc", "BddMed").length, 1, "rien n'est enregistré");
egal(texte("FrmNouveauM.TxtPoso"), "1 cp", "la saisie reste");

// En capitales, avec un numéro à lui ; les cadres gardent leur texte, l'arbre suit.
saisir("FrmNouveauM.TxtNom", "gouttes d'été \"10\" % _ ;");
saisir("FrmNouveauM.TxtPoso", "2 gouttes l'après-midi\nau \"lit\"");
clic("FrmNouveauM.CmdOK");
aucuneBoite();
egal(table("Medoc", "BddMed")[1], [8, null, null, null, "2 gouttes l'après-midi\nau \"lit\"", "GOUTTES D'ÉTÉ \"10\" % _ ;"],
    "la ligne");
egal(texte("FrmNouveauM.TxtNom"), "gouttes d'été \"10\" % _ ;", "TxtNom garde son texte");
egal(texte("FrmNouveauM.TxtPoso"), "2 gouttes l'après-midi\nau \"lit\"", "TxtPoso garde le sien");
egal(lignes("FrmNouveauM.LstP"), [], "LstP reste vide");
egal(lignes("FrmMedoc.TV"), ["AMLOR", "GOUTTES D'ÉTÉ \"10\" % _ ;"], "l'arbre est rempli de nouveau");

// La même saisie une seconde fois est une seconde ligne ; F5 ne fait rien ici.
const long = "x".repeat(255);
saisir("FrmNouveauM.TxtNom", long);
touche("FrmNouveauM.TxtNom", "Entree");
egal(table("Medoc", "BddMed")[2][0], 9, "un autre numéro");
egal(table("Medoc", "BddMed")[2][5], long.toUpperCase(), "255 caractères");
saisir("FrmNouveauM.TxtNom", "中文 Жук");
clic("FrmNouveauM.CmdOK");
egal(table("Medoc", "BddMed")[3][5], "中文 ЖУК", "d'autres alphabets");
touche("FrmNouveauM.LstP", "F5");
aucuneBoite();
egal(table("Medoc", "Biblio").length, nombreBiblio, "la pharmacie personnelle n'est pas touchée");
clic("FrmNouveauM.CmdAnnuler");
faux(ouverte("FrmNouveauM"), "la fenêtre est fermée");
egal(fenetreActive(), "FrmMedoc", "retour à la pharmacie");

// Elle revient vide.
clic("FrmMedoc.CmdNouveau");
egal(texte("FrmNouveauM.TxtNom"), "", "TxtNom est vide");
touche("FrmNouveauM.TxtNom", "Echap");
faux(ouverte("FrmNouveauM"), "Echap ferme");
