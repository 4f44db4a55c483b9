// Textes hostiles, clics en hâte, données qui manquent.
installer();
vider("Medoc", "BddMed");
const noms = ["L'\"1000\" % _ ; drop table BddMed --", "Œstrodose", "ÉTODOLAC", "中文 \u{1F48A} Ж", "X".repeat(5000)];
noms.forEach(function (nom, i) { ajouter("Medoc", "BddMed", [i + 1, null, null, null, null, nom]); });
ajouter("Medoc", "BddMed", [7, null, null, null, "sans nom", null]);
clic("FrmDepart.CmdNO");
clic("FrmOrdo.CmdPharma");
egal(lignes("FrmMedoc.TV").length, 5, "un nom nul n'est pas montré");
egal(table("Medoc", "BddMed").length, 6, "mais sa ligne reste");

noms.forEach(function (nom, i) {
    saisir("FrmMedoc.TxtCherche", nom.slice(0, 3));
    egal(donneeChoisie(), String(i + 1), "trouvé : " + nom.slice(0, 12));
    clic("FrmMedoc.TV", selection("FrmMedoc.TV"));
    egal(texte("FrmMedoc.TxtMedoc"), nom, "lu tel quel");
    clic("FrmMedoc.CmdAjouter1");
});
egal(lignes("FrmMedoc.LstChoix1").map(function (ligne) { return ligne.slice(2, -101); }), noms, "les lignes");

function donneeChoisie() {
    return etiquettes("FrmMedoc.TV")[selection("FrmMedoc.TV")];
}

// Des accents différents ne se confondent pas ; la ligature n'est pas deux lettres pour la recherche.
clic("FrmMedoc.CmdClear");
saisir("FrmMedoc.TxtCherche", "éto");
egal(donneeChoisie(), "3", "petites lettres accentuées");
saisir("FrmMedoc.TxtCherche", "ETO");
egal(donneeChoisie(), "3", "sans accent rien ne correspond, la sélection reste");

// En hâte : deux doubles clics, deux clics sur les boutons.
doubleClic("FrmMedoc.TV", 0);
doubleClic("FrmMedoc.TV", 0);
egal(lignes("FrmMedoc.LstChoix1").length, 2, "deux doubles clics, deux lignes");
doubleClic("FrmMedoc.CmdAjouter1");
egal(lignes("FrmMedoc.LstChoix1").length, 2, "CmdAjouter1 sans texte n'ajoute rien");
doubleClic("FrmMedoc.LstChoix1", 0);
doubleClic("FrmMedoc.CmdAjouter1");
egal(donnees("FrmMedoc.LstChoix1"), [1, 0], "une reprise revient une fois");

// La posologie a plusieurs lignes.
clic("FrmMedoc.LstChoix1", 0);
doubleClic("FrmMedoc.LstChoix1", 0);
saisir("FrmMedoc.TxtPoso", "matin*\nsoir$ \"L'1\"");
clic("FrmMedoc.CmdAjouter1");
egal(valeur("OrdoZone1")[1].Posologie, "matin*\nsoir$ \"L'1\"", "telle quelle");

// Un autre poste a retiré le médicament.
const numero = etiquettes("FrmMedoc.TV")[0];
const restantes = table("Medoc", "BddMed").filter(function (ligne) { return String(ligne[0]) !== numero; });
vider("Medoc", "BddMed");
restantes.forEach(function (ligne) { ajouter("Medoc", "BddMed", ligne); });
clic("FrmMedoc.TV", 0);
egal(texte("FrmMedoc.TxtMedoc"), lignes("FrmMedoc.TV")[0], "son nom se prescrit encore");
clic("FrmMedoc.CmdModifier");
egal(boite().texte, "Ce médicament n'est plus dans la base de données : rien n'a été enregistré.", "et se dit parti");
repondre("OK");
clic("FrmMedoc.CmdRetire");
aucuneBoite();
egal(lignes("FrmMedoc.TV").length, 4, "le nœud part sans question");
clic("FrmMedoc.CmdRetire");
egal(texte("FrmMedoc.TxtMedoc"), "", "sans nœud, les cadres sont vidés");
clic("FrmMedoc.CmdAnnule");
