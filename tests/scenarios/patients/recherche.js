// La recherche d'un patient par les premières lettres, et ce qu'elle laisse en place.
installer();
ajouter("Medoc", "Patients", [1, "Monsieur", "MARTIN  Paul", "20/03/1953", "72", "iode", null, null, null, null, null]);
ajouter("Medoc", "Patients", [2, "", "EMILE  Zoé", "", "0", null, null, null, null, null, null]);
ajouter("Medoc", "Patients", [3, "Madame", "ÉMILE  Anne", "01/02/1960", "0", "", "", "", "", "", ""]);
ajouter("Medoc", "Patients", [4, null, null, null, null, null, null, null, null, null, null]);
ajouter("Medoc", "Patients", [5, "Enfant", "D'ARC  \"Jo\"", "01/02/2020", "12.5", "", "", "", "", "", ""]);
clic("FrmDepart.CmdNO");
clic("FrmOrdo.CmdPatient");
egal(titre("FrmPatient"), "               Liste des Patients", "le titre");
egal(lignes("FrmPatient.LstPatient"), ["  ", "  D'ARC  \"Jo\"", "  ÉMILE  Anne", "  EMILE  Zoé", "  MARTIN  Paul"],
     "l'ordre d'un lecteur français");
egal(donnees("FrmPatient.LstPatient"), [4, 5, 3, 2, 1], "les clés");
egal(selection("FrmPatient.LstPatient"), -1, "rien n'est choisi");

clic("FrmPatient.CmdOK");
boites([["Sélectionnez un nom dans la liste,\nou enregistrez un nouveau patient.", "OK"]]);

taper("FrmPatient.TxtCherche", "mar");
egal(selection("FrmPatient.LstPatient"), 4, "les premières lettres choisissent");
egal(texte("FrmPatient.LblTitre"), "Monsieur  MARTIN  Paul", "la civilité et le nom");
egal(texte("FrmPatient.LblPatient"), "72 kg - " + valeur("AgePatient"), "le poids et l'âge");
saisir("FrmPatient.TxtCherche", "paul");
egal(selection("FrmPatient.LstPatient"), 4, "un prénom ne trouve rien : le choix reste");
egal(texte("FrmPatient.LblTitre"), "Monsieur  MARTIN  Paul", "le nom aussi");
saisir("FrmPatient.TxtCherche", "   ");
egal(selection("FrmPatient.LstPatient"), -1, "des blancs ôtent le choix");
egal(texte("FrmPatient.LblTitre") + texte("FrmPatient.LblPatient"), "", "et les textes");

saisir("FrmPatient.TxtCherche", "é");
egal(selection("FrmPatient.LstPatient"), 2, "l'accent compte");
saisir("FrmPatient.TxtCherche", " em ");
egal(selection("FrmPatient.LstPatient"), 3, "sans accent, les blancs autour ne comptent pas");
egal(texte("FrmPatient.LblTitre"), "EMILE  Zoé", "sans civilité, le nom seul");
egal(texte("FrmPatient.LblPatient"), "", "sans poids ni date, rien");
saisir("FrmPatient.TxtCherche", "d'");
egal(texte("FrmPatient.LblTitre"), "Enfant  D'ARC  \"Jo\"", "apostrophe et guillemets");
clic("FrmPatient.LstPatient", 0);
egal(texte("FrmPatient.LblTitre"), "", "une fiche sans aucun texte se lit");
egal(valeur("PoidsPatient"), "0", "son poids est inconnu");

saisir("FrmPatient.TxtCherche", "martin  p");
saisir("FrmPatient.TxtCherche", "martin  z");
clic("FrmPatient.CmdOK");
boites([["Précautions à prendre en compte pour une prescription à\nMARTIN  Paul\n\no   iode\n", "OK"]]);
faux(ouverte("FrmPatient"), "la fenêtre se cache");
egal(valeur("PatientCourant"), "Monsieur  MARTIN  Paul", "le patient d'avant est confirmé");
egal(valeur("DateOrdo"), "20/11/2026", "la date du jour");
