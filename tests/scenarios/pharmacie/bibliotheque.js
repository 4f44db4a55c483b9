// En mode local la pharmacie personnelle d'une banque ne se montre pas et ne change pas ; BddMed vide se remplit.
installer();
vider("Medoc", "BddMed");
vider("Medoc", "Biblio");
ajouter("Medoc", "Biblio", ["QSP 3 mois#", "à renouveler"]);
clic("FrmDepart.CmdNO");
clic("FrmOrdo.CmdPharma");
egal(lignes("FrmMedoc.TV"), [], "l'arbre d'une base vide");
clic("FrmMedoc.CmdNouveau");
egal(lignes("FrmNouveauM.LstP"), [], "LstP n'a pas même une ligne vide");
touche("FrmNouveauM.TxtNom", "F5");
touche("FrmNouveauM.LstP", "F5");
aucuneBoite();
saisir("FrmNouveauM.TxtNom", "QSP 3 mois#");
clic("FrmNouveauM.CmdOK");
egal(table("Medoc", "BddMed"), [[1, null, null, null, "", "QSP 3 MOIS#"]], "le premier médicament, dièse compris");
egal(table("Medoc", "Biblio"), [["QSP 3 mois#", "à renouveler"]], "Biblio est intacte");
clic("FrmNouveauM.CmdAnnuler");

// Ce n'est pas un médicament : il ne compte pas.
clic("FrmMedoc.TV", "QSP 3 MOIS#");
clic("FrmMedoc.CmdAjouter1");
clic("FrmMedoc.CmdOrdo");
egal(valeur("NbMedZone1"), 0, "rien à compter");
egal(table("Medoc", "MedUtile"), [], "ni à marquer");
