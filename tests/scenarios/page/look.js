// The doctor's look: fonts of titles and posologies, colour and signature from his own database; tables
// without rows give the defaults, not what the doctor before had.
installer();
const chemin = valeur("CheminMedecin");
const ordo = chemin + "/Ordo.mdb";
const recommence = () => {
  lancer();
  clic("FrmChoixBase.CmdSuite");
};
clic("FrmDepart.CmdQuitter");
for (const nom of ["Misenpage", "CouleurPET", "Certificat"]) vider(ordo, nom);
ajouter(ordo, "Misenpage", [1, "Courier New", 9.5, 0, 1, 0]);
ajouter(ordo, "Misenpage", [0, "Times New Roman", 13, 1, 0, 1]);
ajouter(ordo, "CouleurPET", [200 + 256 * 100 + 65536 * 50]);
ajouter(ordo, "Certificat", ["Liberation Sans Narrow", 12, 1, 0, 0]);
ajouter(ordo, "Entete", [23, "  Docteur Anne NEIBRE ", "Arial", 10, 0, 0, 0, 0]);
recommence();
const police = role => ["Police", "Taille"].map(champ => valeur(champ + role))
  .concat(["Gras", "Italique", "Souligne"].map(champ => Number(valeur(champ + role))));
egal(police("Titre"), ["Times New Roman", 13, 1, 0, 1], "les titres");
egal(police("Poso"), ["Courier New", 9.5, 0, 1, 0], "les posologies");
egal(police("Certif"), ["Liberation Sans Narrow", 12, 1, 0, 0], "les certificats");
egal(valeur("CouleurEntete"), 200 + 256 * 100 + 65536 * 50, "la couleur");
egal(valeur("NomSignature"), "Docteur Anne NEIBRE", "la signature sans ses blancs");

// A second doctor whose tables are empty
clic("FrmDepart.CmdMedecins");
clic("FrmMedecins.CmdNouveau");
repondre("Dr durand");
clic("FrmMedecins.CmdQuitter");
const vide = valeur("CheminTravail") + "/DR DURAND/Ordo.mdb";
choisir("FrmDepart.CboListeMed", 0);
egal(police("Titre")[0], "Times New Roman", "le premier médecin est courant");
for (const nom of ["Entete", "Misenpage", "CouleurPET", "Certificat"]) vider(vide, nom);
choisir("FrmDepart.CboListeMed", 1);
egal(valeur("CouleurEntete"), 0, "noir sans couleur");
egal(valeur("NomSignature"), "", "pas de signature d'un autre");
for (const role of ["Titre", "Poso", "Certif"]) egal(police(role)[0], "Arial", "la police du départ : " + role);
egal(feuille("FrmDepart").filter(item => item.genre === "texte"), [], "ni en-tête");
