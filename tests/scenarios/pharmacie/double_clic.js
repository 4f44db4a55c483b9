// Un double clic sur « Enregistrer » est un clic ; la même saisie pressée plus tard est une seconde ligne.
installer();
vider("Medoc", "BddMed");
clic("FrmDepart.CmdNO");
clic("FrmOrdo.CmdPharma");
clic("FrmMedoc.CmdNouveau");
const noms = () => table("Medoc", "BddMed").map(ligne => ligne[5]);
saisir("FrmNouveauM.TxtNom", "doliprane");
doubleClic("FrmNouveauM.CmdOK");
aucuneBoite();
egal(texte("FrmNouveauM.TxtNom"), "doliprane", "le cadre garde son texte");
egal(noms(), ["DOLIPRANE"], "une seule ligne");
capture("nouveau_enregistre");
saisir("FrmNouveauM.TxtNom", "dafalgan");
clic("FrmNouveauM.CmdOK");
egal(noms(), ["DOLIPRANE", "DAFALGAN"], "le suivant");
clic("FrmNouveauM.CmdAnnuler");
egal(fenetreActive(), "FrmMedoc", "retour à la pharmacie");

// Les flèches lisent le médicament qu'elles atteignent.
clic("FrmMedoc.TV", 0);
egal(texte("FrmMedoc.TxtMedoc"), "DAFALGAN", "le premier");
touche("FrmMedoc.TV", "Bas");
egal(texte("FrmMedoc.TxtMedoc"), "DOLIPRANE", "le suivant");
doubleClic("FrmMedoc.TV", "DAFALGAN");
egal(texte("FrmMedoc.TxtMedoc"), "", "ajouté, les cadres sont vides");
egal(lignes("FrmMedoc.LstChoix1").length, 1, "une ligne de l'ordonnance");
