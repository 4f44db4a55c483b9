// Tout effacer, annuler, Echap, la case de fermeture.
installer();
vider("Medoc", "BddMed");
ajouter("Medoc", "BddMed", [1, null, null, null, "1 matin*", "AMLOR"]);
clic("FrmDepart.CmdNO");
clic("FrmOrdo.CmdPharma");

fermer("FrmMedoc");
vrai(ouverte("FrmMedoc"), "la case de fermeture est refusée");

doubleClic("FrmMedoc.TV", 0);
taper("FrmMedoc.TxtCherche", "am");
clic("FrmMedoc.CmdClear");
egal(lignes("FrmMedoc.LstChoix1"), [], "Tout effacer vide la liste");
egal(texte("FrmMedoc.TxtCherche"), "", "et la recherche");
egal(valeur("NoeudChoisi"), 100, "aucun nœud");
vrai(ouverte("FrmMedoc"), "la fenêtre reste");
doubleClic("FrmMedoc.TV", 0);
egal(donnees("FrmMedoc.LstChoix1"), [0], "les indices repartent de 0");

// Reprise, puis tout effacer : la ligne suivante est neuve.
doubleClic("FrmMedoc.LstChoix1", 0);
clic("FrmMedoc.CmdClear");
clic("FrmMedoc.TV", 0);
clic("FrmMedoc.CmdAjouter1");
egal(lignes("FrmMedoc.LstChoix1").length, 1, "une ligne neuve");

touche("FrmMedoc.TxtCherche", "Echap");
aucuneBoite();
vrai(ouverte("FrmMedoc"), "Echap ne quitte pas une ordonnance en main");
egal(lignes("FrmMedoc.LstChoix1").length, 1, "rien n'est perdu");
clic("FrmMedoc.TV", 0);
clic("FrmMedoc.CmdClear");
clic("FrmMedoc.TV", 0);
touche("FrmMedoc.TxtMedoc", "Echap");
egal(texte("FrmMedoc.TxtMedoc"), "AMLOR", "ni un médicament choisi");
clic("FrmMedoc.CmdAnnule");

clic("FrmOrdo.CmdPharma");
egal(lignes("FrmMedoc.LstChoix1"), [], "l'ordonnance est vide");
touche("FrmMedoc.TxtCherche", "Echap");
aucuneBoite();
faux(ouverte("FrmMedoc"), "Echap quitte sans question quand il n'y a rien");

clic("FrmOrdo.CmdPharma");
doubleClic("FrmMedoc.TV", 0);
clic("FrmMedoc.CmdAnnule");
aucuneBoite();
faux(ouverte("FrmMedoc"), "Annuler quitte");
clic("FrmOrdo.CmdPharma");
egal(lignes("FrmMedoc.LstChoix1"), [], "et efface tout");

// Ce qui est caché se retrouve.
clic("FrmMedoc.TV", 0);
clic("FrmMedoc.CmdOrdo");
repondre("OK");
clic("FrmOrdo.CmdPharma");
egal(valeur("NoeudChoisi"), 1, "le nœud choisi");
egal(selection("FrmMedoc.TV"), 0, "est choisi de nouveau");
egal(texte("FrmMedoc.TxtMedoc"), "", "CmdPharma a vidé les cadres");
