// La vie d'un médicament saisi : choisi, changé, prescrit, retiré ; F2, F4, F5.
installer();
vider("Medoc", "BddMed");
ajouter("Medoc", "BddMed", [1, null, null, "à jeun", "1 cp", "AMLOR"]);
clic("FrmDepart.CmdNO");
clic("FrmOrdo.CmdPharma");
clic("FrmMedoc.CmdNouveau");
saisir("FrmNouveauM.TxtNom", "crème de l'aube");
saisir("FrmNouveauM.TxtPoso", "1 fois");
clic("FrmNouveauM.CmdOK");
clic("FrmNouveauM.CmdAnnuler");

clic("FrmMedoc.TV", "CRÈME DE L'AUBE");
egal(texte("FrmMedoc.TxtMedoc"), "CRÈME DE L'AUBE", "son nom");
egal(texte("FrmMedoc.TxtPoso"), "1 fois", "sa posologie");
touche("FrmMedoc.TxtMedoc", "F2");
faux(ouverte("FrmIAM"), "pas de notes");
touche("FrmMedoc.TxtMedoc", "F4");
egal(texte("FrmMedoc.TxtMedoc"), "CRÈME DE L'AUBE" + " ".repeat(30), "F4 met trente blancs");
touche("FrmMedoc.TxtMedoc", "F4");
egal(texte("FrmMedoc.TxtMedoc"), "CRÈME DE L'AUBE", "et les ôte");
touche("FrmMedoc.TxtPoso", "F4");
egal(texte("FrmMedoc.TxtMedoc"), "CRÈME DE L'AUBE", "F4 ne vaut que dans le nom");

saisir("FrmMedoc.TxtMedoc", "Crème de \"l'aube\"");
saisir("FrmMedoc.TxtPoso", "2 fois");
clic("FrmMedoc.CmdModifier");
boites([["Modifications enregistrées.", "OK"]]);
egal(table("Medoc", "BddMed")[1], [2, null, null, null, "2 fois", "Crème de \"l'aube\""], "la ligne est changée");
clic("FrmMedoc.CmdModifier");
aucuneBoite();

clic("FrmMedoc.TV", 1);
egal(texte("FrmMedoc.TxtMedoc"), "Crème de \"l'aube\"", "relue par son numéro");
clic("FrmMedoc.CmdAjouter1");
egal(lignes("FrmMedoc.LstChoix1"), ["  Crème de \"l'aube\"" + " ".repeat(100) + "1"], "prescrite sans produit");

// F5 ne vaut que pour la pharmacie personnelle d'une banque, même sur le numéro 1.
clic("FrmMedoc.TV", "AMLOR");
egal(etiquettes("FrmMedoc.TV")[selection("FrmMedoc.TV")], "1", "le numéro 1");
touche("FrmMedoc.TxtMedoc", "F5");
aucuneBoite();
egal(table("Medoc", "BddMed").length, 2, "rien n'est supprimé");
touche("FrmMedoc.TxtMedoc", "F2");
egal(texte("FrmIAM.Txt"), "à jeun", "F2 montre les notes");
touche("FrmIAM.Txt", "Echap");

clic("FrmMedoc.TV", 1);
clic("FrmMedoc.CmdRetire");
boites([["Supprimer Crème de \"l'aube\" de la base de données ?", "Oui"]]);
egal(lignes("FrmMedoc.TV"), ["AMLOR"], "elle est partie");

// Le numéro le plus grand, plus un.
clic("FrmMedoc.CmdNouveau");
saisir("FrmNouveauM.TxtNom", "a");
clic("FrmNouveauM.CmdOK");
egal(table("Medoc", "BddMed")[1][0], 2, "son numéro");
clic("FrmNouveauM.CmdAnnuler");

clic("FrmMedoc.CmdAide");
egal(boite().genre, "information", "l'aide");
egal(boite().texte, ["L 'inscription, après un mot, et sans espace, de l'un des caractères suivants", "(*, $, £)",
    "permet le formatage du mot concerné :", "-     *        en gras", "-     $        en souligné",
    "-     £        en italique", "Ces caractères de formatage peuvent être associés, sans espace entre eux.",
    "Par contre, seuls ou associés, un espace doit suivre obligatoirement.",
    "Dans la zone de saisie des titres, le caractère # (dièse) peut être inséré, sans espace :",
    "- AVANT le titre : cela permet de justifier au centre le titre, et le texte des posologies.",
    "- APRES le titre : le texte ne sera pas reconnu comme un médicament.",
    "Ainsi, si vous enregistrez un texte du type 'A renouveler 2 fois', 'QSP 3 mois', -A domicile par IDE', etc..., " +
        "l'option de comptabilisation des médicaments, si elle est choisie, ignorera ces lignes."].join("\n"), "mot pour mot");
repondre("OK");
clic("FrmMedoc.CmdAnnule");
