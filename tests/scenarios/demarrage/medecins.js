// The list of doctors
installer();
const data = utilisateur + "/DataVelmont/DataScriptelle";
const invite = /^Inscrire les nom et prénom du médecin\.\n\(Ignorez la casse, le nom sera mis en majuscules\.\)\n\nRespectez le format"Dr\/un espace/;

function nouveau(nom, suite) {
    clic("FrmMedecins.CmdNouveau");
    boites([[invite, nom]].concat(suite || []));
}

clic("FrmDepart.CmdMedecins");
egal(texte("FrmMedecins.LblMed"), "DR NEIBRE", "le médecin en cours");
clic("FrmMedecins.CmdSupprime");
boites([["On ne peut supprimer le dernier médecin enregistré !", "OK"]]);
nouveau(null);
nouveau("Dr ");
for (const nom of ["Martin", "Dr ../X", "Dr A*B", "Dr -"]) {
    nouveau(nom, [["Mauvais format d'inscription !", "OK"]]);
}
egal(lister(data).includes("X"), false, "rien hors de l'arbre");
nouveau("dr neibre", [['Un médecin est déjà inscrit sous le nom "DR NEIBRE".', "OK"]]);
nouveau("dr martin-durand paul", [[/^Le trait d'union du nom est remplacé par un espace : .* "DR MARTIN DURAND PAUL"\.$/, "OK"]]);
egal(texte("FrmMedecins.LblMed"), "DR MARTIN DURAND PAUL", "le nouveau médecin est en cours");
egal(valeur("CheminMedecin"), data + "/DR MARTIN DURAND PAUL", "avec son répertoire");
nouveau("Dr Léon");
egal(lignes("FrmDepart.CboListeMed"), ["DR NEIBRE", "DR MARTIN DURAND PAUL", "DR LÉON"], "toutes les listes suivent");
egal(lire(data + "/Medecin.ini"), " 3 \r\nDR NEIBRE-1\r\nDR MARTIN DURAND PAUL-2\r\nDR LÉON-3\r\n", "le fichier");
egal(lister(data + "/DR LÉON"), ["Dupli.cfg", "Logo", "Marges.cfg", "Options.cfg", "Ordo.mdb"], "le répertoire du médecin");

choisir("FrmMedecins.LstMed", 1);
clic("FrmMedecins.CmdDefaut");
boites([["DR MARTIN DURAND PAUL sera le médecin sélectionné par défaut à l'ouverture du programme .", "OK"]]);
egal(lire(programme + "/CheminBase.cfg"), '0,"",2\r\n', "le défaut est retenu");
clic("FrmMedecins.CmdSupprime");
egal(boite().defaut, "Non", "Non est proposé");
boites([["Supprimer DR MARTIN DURAND PAUL de la liste ?", "Non"]]);
egal(lignes("FrmMedecins.LstMed").length, 3, "rien n'est supprimé");
clic("FrmMedecins.CmdSupprime");
boites([["Supprimer DR MARTIN DURAND PAUL de la liste ?", "Oui"]]);
faux(existe(data + "/DR MARTIN DURAND PAUL"), "le répertoire est parti");
egal(valeur("NumMedecinDefaut"), 1, "le défaut revient au premier");
egal(texte("FrmMedecins.LblMed"), "", "plus de médecin en cours");
egal(selection("FrmMedecins.LstMed"), -1, "plus de sélection");
egal(valeur("CheminMedecin"), "", "plus de répertoire");
focus("FrmMedecins.LstMed");
egal(valeur("CheminMedecin"), "", "le foyer ne choisit personne");
clic("FrmMedecins.CmdSupprime");
boites([["Sélectionnez un médecin dans la liste !", "OK"]]);
clic("FrmMedecins.CmdDefaut");
boites([["Sélectionnez un médecin !", "OK"]]);
egal(lire(programme + "/CheminBase.cfg"), '0,"",1\r\n', "le fichier est écrit quand même");
clic("FrmMedecins.CmdQuitter");
boites([["Sélectionnez un nom de médecin.", "OK"]]);
vrai(ouverte("FrmMedecins"), "la fenêtre attend un nom");
nouveau("Dr Neuf");
egal(lire(data + "/Medecin.ini"), " 4 \r\nDR NEIBRE-1\r\nDR LÉON-3\r\nDR NEUF-4\r\n", "un numéro ne sert qu'une fois");
choisir("FrmMedecins.LstMed", 0);
clic("FrmMedecins.CmdQuitter");
egal(valeur("CheminMedecin"), data + "/DR NEIBRE", "le médecin choisi reste en cours");
choisir("FrmDepart.CboListeMed", 1);
egal(valeur("CheminMedecin"), data + "/DR LÉON", "la liste de l'accueil change de médecin");
