// La suppression d'un patient et de ses ordonnances mémorisées ; les homonymes les partagent.
installer();
const martin = "Monsieur  D'ARC  \"Jo\"";
ajouter("Medoc", "Patients", [1, "Monsieur", "D'ARC  \"Jo\"", "20/03/1953", "0", "", "", "", "", "", ""]);
ajouter("Medoc", "Patients", [2, "Monsieur", "D'ARC  \"Jo\"", "20/03/1953", "0", "", "", "", "", "", ""]);
ajouter("Medoc", "Patients", [3, "Madame", "MARTIN  Anne", "01/02/1960", "0", "", "", "", "", "", ""]);
ajouter("Medoc", "ListeOrdos", ["Grippe", martin, 0, "20/03/1953"]);
ajouter("Medoc", "ListeOrdos", ["Grippe", martin, 0, "20/03/1954"]);
ajouter("Medoc", "ListeOrdos", ["Modèle", "*", 0, "0"]);
ajouter("Medoc", "OrdoEnr", ["Grippe", "AMLOR", "", 1, martin, "20/03/1953", 1, 1]);
ajouter("Medoc", "OrdoEnr", ["Modèle", "AMLOR", "", 1, "*", "0", 1, 1]);
clic("FrmDepart.CmdNO");
clic("FrmOrdo.CmdPatient");
clic("FrmPatient.CmdSupprime");
boites([["Quel patient supprimer ?", "OK"]]);

clic("FrmPatient.LstPatient", 0);
clic("FrmPatient.CmdSupprime");
const question = boite();
egal([question.genre, question.texte, question.boutons, question.defaut],
     ["question", "Supprimer   D'ARC  \"Jo\", et les ordonnances associées ?", ["Oui", "Non"], "Non"], "la question");
repondre("Non");
egal(table("Medoc", "Patients").length, 3, "Non ne supprime rien");
egal(table("Medoc", "ListeOrdos").length, 3, "aucune ordonnance");

clic("FrmPatient.CmdSupprime");
repondre("Oui");
egal(table("Medoc", "Patients").map(rangee => rangee[0]), [2, 3], "une seule rangée");
egal(table("Medoc", "ListeOrdos").map(rangee => [rangee[0], rangee[3]]), [["Grippe", "20/03/1954"], ["Modèle", "0"]],
     "les ordonnances de l'homonyme partent avec, les modèles restent");
egal(table("Medoc", "OrdoEnr").map(rangee => rangee[4]), ["*"], "leurs lignes aussi");
egal(lignes("FrmPatient.LstPatient"), ["  D'ARC  \"Jo\"", "  MARTIN  Anne"], "la liste");
egal(selection("FrmPatient.LstPatient"), -1, "plus de choix");
egal(texte("FrmPatient.LblTitre"), "", "plus de nom");
clic("FrmPatient.CmdOK");
boites([[/^Sélectionnez un nom/, "OK"]]);
