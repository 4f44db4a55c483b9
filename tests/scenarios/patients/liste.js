// La liste au clavier et à la souris : le focus ne choisit rien, aucun geste n'ôte un choix.
installer();
ajouter("Medoc", "Patients", [1, "Monsieur", "MARTIN  Paul", "20/03/1953", "72", "", "", "", "", "", ""]);
ajouter("Medoc", "Patients", [2, "Madame", "ZOLA  Anne", "inconnue", "0", "", "", "", "", "", ""]);
clic("FrmDepart.CmdNO");
clic("FrmOrdo.CmdPatient");
focus("FrmPatient.LstPatient");
egal(selection("FrmPatient.LstPatient"), -1, "le focus seul ne choisit rien");
touche("FrmPatient.LstPatient", "Bas");
egal(texte("FrmPatient.LblTitre"), "Monsieur  MARTIN  Paul", "la première flèche choisit le premier");
touche("FrmPatient.LstPatient", "Espace");
touche("FrmPatient.LstPatient", "Ctrl+Espace");
egal([selection("FrmPatient.LstPatient"), texte("FrmPatient.LblTitre")], [0, "Monsieur  MARTIN  Paul"],
     "le choix reste");
touche("FrmPatient.LstPatient", "Bas");
egal([texte("FrmPatient.LblTitre"), texte("FrmPatient.LblPatient")], ["Madame  ZOLA  Anne", "inconnue"],
     "un texte qui n'est pas une date se montre tel quel");
clic("FrmPatient.LstPatient", "ZOLA  Anne");
egal(selection("FrmPatient.LstPatient"), 1, "un second clic garde le choix");
egal(valeur("ModePatient"), 1, "un patient de la liste");
egal(valeur("OuvreMedocApres"), 0, "pas de nouvelle ordonnance");
touche("FrmPatient.LstPatient", "Entree");
faux(ouverte("FrmPatient"), "Entrée confirme depuis la liste");
aucuneBoite();
egal(valeur("PatientCourant"), "Madame  ZOLA  Anne", "le patient");

clic("FrmOrdo.CmdNouvelle");
egal(valeur("OuvreMedocApres"), 1, "une nouvelle ordonnance");
doubleClic("FrmPatient.LstPatient", "MARTIN  Paul");
vrai(ouverte("FrmMedoc"), "les médicaments suivent");
egal(valeur("PatientCourant"), "Monsieur  MARTIN  Paul", "le patient du double clic");
