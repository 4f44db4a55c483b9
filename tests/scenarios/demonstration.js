// A first day with Scriptelle: the program is started in an empty world, a doctor and his letterhead, a
// patient, five medications on a sheet in two zones, printed three times into a PDF file. One picture of each
// window is left, and ordonnance.pdf beside the world.

// The first start
lancer();
boites([
    [/Sélectionnez le répertoire où seront enregistrées les données/, "OK"],
    [/Sélectionnez uniquement le répertoire à votre NOM D'UTILISATEUR/, utilisateur],
    [/Vous devez renseigner le nom du MEDECIN UTILISATEUR/, "OK"],
    [/Inscrire les nom et prénom du médecin/, "Dr Neibre Anne"],
    [/Vous utilisez ce programme pour la première fois/, "OK"],
]);
// The letterhead, and the settings that its designer and the options would write
const ordo = valeur("CheminMedecin") + "/Ordo.mdb";
const ligne = (numero, texte, taille, gras, italique) =>
    ajouter(ordo, "Entete", [numero, texte, "Arial", taille, gras ? 1 : 0, italique ? 1 : 0, 0, 0]);
vider(ordo, "Entete");
ligne(0, "12, rue des Tilleuls", 10);
ligne(1, "35000 RENNES", 10);
ligne(2, "Tél. 02 99 00 00 00", 10, true);
ligne(3, "Consultations sur rendez-vous", 9, false, true);
for (let numero = 4; numero <= 9; ++numero) ligne(numero, "*", 10);
ligne(10, "Docteur Anne NEIBRE", 18, true);
ligne(11, "Médecine générale", 12, false, true);
ligne(12, "Ancienne interne des hôpitaux de Rennes", 9);
ligne(13, "Conventionnée secteur 1 - N° RPPS 10001234567", 9);
for (let numero = 14; numero <= 21; ++numero) ligne(numero, "*", 10);
ligne(22, "          Membre d'une association agréée, le règlement des honoraires par chèque est accepté.", 8, false, true);
ligne(23, "Docteur Anne NEIBRE", 10);
vider(ordo, "CouleurPET");
ajouter(ordo, "CouleurPET", [11 + 256 * 61 + 65536 * 145]);
vider(ordo, "Misenpage");
ajouter(ordo, "Misenpage", [0, "Arial", 12, 1, 0, 0]);
ajouter(ordo, "Misenpage", [1, "Arial", 11, 0, 0, 0]);
ecrire(valeur("CheminMedecin") + "/Options.cfg",
    '0,1,1,1,0,0,1,1,1,0,0,1,1,"",1,1,"",0,0,0,0,0,0,0,1,1,1,1,1\r\n');
ecrire(valeur("CheminMedecin") + "/Dupli.cfg", '"Arial",30,0,1,12632256,100,28,1,"DUPLICATA"\r\n');

choisir("FrmChoixBase.CboBase", 0);
capture("FrmChoixBase");
clic("FrmChoixBase.CmdSuite");
vrai(ouverte("FrmDepart"), "le programme est prêt");
egal(valeur("ModeEntete"), 1, "le praticien avant l'adresse");
contient(feuille("FrmDepart").filter(item => item.genre === "texte").map(item => item.texte), "Docteur Anne NEIBRE", "l'entête sur la fenêtre d'accueil");
capture("FrmDepart");
clic("FrmDepart.CmdMedecins");
capture("FrmMedecins");
fermer("FrmMedecins");
clic("FrmDepart.CmdAP");
capture("FrmAPROPOS");
fermer("FrmAPROPOS");

// A medication with notes in the local pharmacy
ajouter("Medoc", "BddMed", [9001, null, null, "A prendre au milieu du repas.\nPas plus de 3 g par jour.",
    "1 comprimé matin* et soir", "METFORMINE 1 G CPR (NOTES)"]);

// The patient
clic("FrmDepart.CmdNO");
clic("FrmOrdo.CmdNouvelle");
clic("FrmPatient.CmdNouveauPatient");
clic("FrmNouveauP.Opt(0)");
taper("FrmNouveauP.Txt(0)", "martin");
taper("FrmNouveauP.Txt(1)", "paul");
taper("FrmNouveauP.MEB", "20/03/1953");
taper("FrmNouveauP.Txt(3)", "82");
capture("FrmNouveauP");
clic("FrmNouveauP.CmdOK");
egal(texte("FrmPatient.LblTitre"), "Monsieur  MARTIN  Paul", "le patient est inscrit");
capture("FrmPatient");
clic("FrmPatient.CmdOK");
vrai(ouverte("FrmMedoc"), "la pharmacie");

clic("FrmMedoc.TV", "METFORMINE 1 G CPR (NOTES)");
touche("FrmMedoc", "F2");
capture("FrmIAM");
fermer("FrmIAM");

// Three medications of the long illness, two others, and a line that is none
function prescrit(bouton, nom, titre, posologie) {
    saisir("FrmMedoc.TxtCherche", "");
    taper("FrmMedoc.TxtCherche", nom);
    clic("FrmMedoc.TV", nom);
    egal(texte("FrmMedoc.TxtMedoc"), nom, nom + " est dans la pharmacie");
    saisir("FrmMedoc.TxtMedoc", titre);
    saisir("FrmMedoc.TxtPoso", posologie);
    clic("FrmMedoc." + bouton);
}
cocher("FrmMedoc.ChkALD", true);
prescrit("CmdAjouter1", "AMLODIPINE 5 MG GELULE", "AMLODIPINE 5 mg gélule",
    "1 gélule le matin* pendant 3 mois*$");
prescrit("CmdAjouter1", "BISOPROLOL 2,5 MG CPR", "BISOPROLOL 2,5 mg comprimé",
    "1 comprimé le matin* ne$ jamais$ interrompre$ brutalement$");
prescrit("CmdAjouter1", "ATORVASTATINE 20 MG CPR", "ATORVASTATINE 20 mg comprimé",
    "1 comprimé le soir* au coucher£");
prescrit("CmdAjouter2", "CHOLECALCIFEROL 100 000 UI AMPOULE BUV", "CHOLECALCIFEROL 100 000 UI ampoule buvable",
    "1 ampoule* tous les 3 mois");
prescrit("CmdAjouter2", "ACIDE FOLIQUE 5 MG CPR", "#ACIDE FOLIQUE 5 mg comprimé",
    "1 comprimé le midi* pendant 1 mois");
prescrit("CmdAjouter2", "CETIRIZINE 10 MG CPR", "#A renouveler 2 fois#", "");
cocher("FrmMedoc.ChkTri", true);
egal(lignes("FrmMedoc.LstChoix1").length, 3, "trois lignes dans la zone ALD");
egal(lignes("FrmMedoc.LstChoix2").length, 3, "trois lignes dans l'autre zone");
capture("FrmMedoc");
clic("FrmMedoc.CmdOrdo");
egal(valeur("NbMedZone1") + valeur("NbMedZone2"), 5, "cinq médicaments");
capture("FrmOrdo");

// Three sheets on paper
clic("FrmOrdo.CmdImprime");
choisir("FrmOptions.CboPrint", "Fichier PDF");
capture("FrmOptions");
cocher("FrmOptions.Chkimp", true);
aucuneBoite();
egal(travaux().length, 1, "un seul travail");
const pages = travaux()[0].pages;
egal(pages.length, 3, "trois feuilles");
egal(pages.map(items => items.some(item => item.texte === "DUPLICATA")), [false, true, true], "les copies sont marquées");
egal(documents().length, 1, "le fichier PDF est ouvert");
copier(documents()[0], programme + "/../ordonnance.pdf");
vrai(existe(programme + "/../ordonnance.pdf"), "ordonnance.pdf");
