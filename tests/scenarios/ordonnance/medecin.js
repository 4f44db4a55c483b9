// Another doctor from the desk: his settings, an empty sheet.
installer();
clic("FrmDepart.CmdMedecins");
clic("FrmMedecins.CmdNouveau");
repondre("Dr durand");
clic("FrmMedecins.CmdQuitter");
clic("FrmDepart.CmdNO");
egal(lignes("FrmOrdo.CboMed"), ["DR NEIBRE", "DR DURAND"], "les deux médecins");
egal(texte("FrmOrdo.CboMed"), "DR DURAND", "le dernier inscrit est courant");
clic("FrmOrdo.CmdDate");
repondre("01/02/2026");
vrai(feuille("FrmOrdo.PctOrdo").length > 0, "une feuille est montrée");
choisir("FrmOrdo.CboMed", 0);
contient(valeur("CheminMedecin"), "DR NEIBRE", "l'autre médecin est courant");
egal(feuille("FrmOrdo.PctOrdo"), [], "la feuille est vidée");
egal(selection("FrmDepart.CboListeMed"), 0, "la fenêtre d'accueil suit");
egal(valeur("IndexMedecin"), 0, "l'index suit");
