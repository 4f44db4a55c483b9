// Two starts in one world: the databases before, during, between and after the runs, and the edge around them.
horloge("15/03/2027 09:30");
plateau(false);
ajouter("Medoc", "Patients", [7, "Madame", "ÉTÉ  Zoé", "01/02/1970", "0", "", null]);
installer();
egal(table("Medoc", "Patients"), [[7, "Madame", "ÉTÉ  Zoé", "01/02/1970", "0", "", null, null, null, null, null]],
    "la base d'avant l'installation a été reprise, vide et rien gardés");
let refus = "";
try { icone("gauche"); } catch (e) { refus = e.message; }
contient(refus, "aucune icône", "sans plateau, pas d'icône");
clic("FrmDepart.CmdOutils");
vrai(visible("FrmDepart.mnuOutils"), "le menu est ouvert");
touche("FrmDepart", "Echap");
faux(visible("FrmDepart.mnuOutils"), "et refermé");
reduire("FrmDepart");
egal(etat("FrmDepart"), "reduite", "sans plateau elle reste à portée");
restaurer("FrmDepart");
agrandir("FrmDepart");
egal(etat("FrmDepart"), "agrandie", "agrandie");
fermer("FrmDepart");
egal([fini(), ouverte("FrmDepart"), etat("FrmDepart"), fenetreActive()], [true, false, "cachee", ""], "plus rien");
egal(table("Medoc", "Patients").length, 1, "les bases se lisent après la fin");
egal(table("Ordo", "Misenpage").length, 2, "celle du médecin aussi");
egal(valeur("CheminData"), utilisateur + "/DataVelmont/DataScriptelle", "les chemins aussi");
egal(lire(programme + "/CheminBase.cfg"), '0,"",1\r\n', "les fichiers aussi");

plateau(true);
horloge("16/03/2027");
lancer();
aucuneBoite("le second lancement ne demande rien");
egal(selection("FrmChoixBase.CboBase"), 0, "le lieu est présélectionné");
ajouter("Medoc", "Patients", [8, "", "NEUF  Ève", "02/03/1980", "0"]);
clic("FrmChoixBase.CmdSuite");
clic("FrmDepart.CmdNO");
egal(etat("FrmDepart"), "cachee", "avec un plateau elle se cache");
icone("droit");
vrai(aspect("FrmDepart.mnuQuitter").gras, "Quitter est l'entrée par défaut");
clic("FrmDepart.mnuAideNewIT");
egal(documents(), [programme + "/Aide.pdf"], "le document demandé");
clic("FrmOrdo.CmdNouvelle");
egal(valeur("DateOrdo"), "16/03/2027", "la date du jour");
egal(lignes("FrmPatient.LstPatient"), ["  ÉTÉ  Zoé", "  NEUF  Ève"], "le patient inscrit entre-temps");
clic("FrmPatient.CmdAnnule");
fermer("FrmOrdo");
vrai(fini(), "fini une seconde fois");
egal(relances(), [], "aucun programme relancé");
