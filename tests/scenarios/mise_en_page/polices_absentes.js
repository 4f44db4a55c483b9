// Fonts that this computer lacks are named once for each doctor and run, with what prints instead.
installer();
const ordo = valeur("CheminMedecin") + "/Ordo.mdb";
const recommence = () => { clic("FrmDepart.CmdQuitter"); lancer(); clic("FrmChoixBase.CmdSuite"); };
recommence();
aucuneBoite();
vider(ordo, "Misenpage");
ajouter(ordo, "Misenpage", [0, "Fantaisie du voisin", 12, 1, 0, 0]);
ajouter(ordo, "Misenpage", [1, "Times New Roman", 10, 0, 0, 0]);
ajouter(ordo, "Entete", [22, "Bas de page", "Pieds de mouche", 8, 0, 0, 0, 0]);
recommence();
const message = boite().texte;
egal(boite().genre, "information", "une seule information");
contient(message, "« Pieds de mouche » est remplacée par « ", "la police de l'en-tête");
contient(message, "« Fantaisie du voisin » est remplacée par « ", "celle des médicaments");
faux(/Arial|Times/.test(message), "les polices servies par d'autres de mêmes largeurs ne manquent pas");
repondre("OK");
aucuneBoite();
const remplacante = /« Fantaisie du voisin » est remplacée par « (.*?) »/.exec(message)[1];
proche(mesure("Ordonnance", {nom: "Fantaisie du voisin", taille: 12, gras: true, italique: false, souligne: false}),
  mesure("Ordonnance", {nom: remplacante, taille: 12, gras: true, italique: false, souligne: false}), 0.0001, "la remplaçante imprime");

clic("FrmDepart.CmdMedecins");
clic("FrmMedecins.CmdNouveau");
repondre("Dr durand");
clic("FrmMedecins.CmdQuitter");
choisir("FrmDepart.CboListeMed", 0);
choisir("FrmDepart.CboListeMed", 1);
aucuneBoite();
recommence();
contient(boite().texte, "Fantaisie du voisin", "de nouveau au lancement suivant");
repondre("OK");
