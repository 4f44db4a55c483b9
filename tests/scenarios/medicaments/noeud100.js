// Le nœud 100 se lit comme aucun ; une table vide est un arbre vide.
installer();
vider("Medoc", "BddMed");
clic("FrmDepart.CmdNO");
clic("FrmOrdo.CmdPharma");
egal(lignes("FrmMedoc.TV"), [], "une table vide");
taper("FrmMedoc.TxtCherche", "a");
aucuneBoite();
for (let i = 1; i <= 120; ++i) {
    ajouter("Medoc", "BddMed", [i, null, null, null, null, "MEDICAMENT " + String(i).padStart(3, "0")]);
}
touche("FrmMedoc.TxtCherche", "Entree");
clic("FrmMedoc.TV", 98);
egal(valeur("NoeudChoisi"), 99, "le nœud 99");
clic("FrmMedoc.TV", 99);
egal(valeur("NoeudChoisi"), 100, "le nœud 100 est aucun nœud");
egal(texte("FrmMedoc.TxtMedoc"), "MEDICAMENT 100", "mais il est lu");
clic("FrmMedoc.CmdAjouter1");
egal(lignes("FrmMedoc.LstChoix1").length, 1, "et s'ajoute");
