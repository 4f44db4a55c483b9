// Une ligne de BddMed sans nom part au remplissage suivant de l'arbre, ici celui d'un nouveau médicament.
installer();
vider("Medoc", "BddMed");
ajouter("Medoc", "BddMed", [1, null, null, null, "1 comprimé", "ASPIRINE"]);
clic("FrmDepart.CmdNO");
clic("FrmOrdo.CmdPharma");
ajouter("Medoc", "BddMed", [7, null, null, "note", "x", "   "]);
ajouter("Medoc", "BddMed", [8, null, null, "note", "x", null]);
clic("FrmMedoc.CmdNouveau");
egal(table("Medoc", "BddMed").length, 3, "elle est encore là");
taper("FrmNouveauM.TxtNom", "doliprane");
clic("FrmNouveauM.CmdOK");
egal(table("Medoc", "BddMed").map(ligne => ligne[5]), ["ASPIRINE", null, "DOLIPRANE"], "le nom blanc est parti, le nul reste");
egal(lignes("FrmMedoc.TV"), ["ASPIRINE", "DOLIPRANE"], "l'arbre ne montre ni l'un ni l'autre");
aucuneBoite();
clic("FrmNouveauM.CmdAnnuler");
