// A new version over a practice on its own disk: upgrade, messages in their order, restart
installer();
const data = utilisateur + "/DataVelmont/DataScriptelle";
const medecin = data + "/DR NEIBRE";
ajouter("Medoc", "Patients", [7, "Monsieur", "MARTIN  Paul", "20/03/1953", "70"]);
ajouter("Medoc", "ListeOrdos", ["Toux", "Monsieur  MARTIN   Paul", null, "0"]);
ajouter("Medoc", "OrdoEnr", ["Toux", "SIROP", "1 le soir", null, "Monsieur  MARTIN Paul", "0", 12, null]);
ajouter("Medoc", "OrdoEnr", ["Toux", "GELULES", "1 le matin", 2, "Monsieur  MARTIN Paul", null, "3400930000011", 1]);
clic("FrmDepart.CmdQuitter");
const entete = table(medecin + "/Ordo.mdb", "Entete");
vider(medecin + "/Ordo.mdb", "Entete");
entete.slice(0, 23).forEach(ligne => ajouter(medecin + "/Ordo.mdb", "Entete", ligne));
copier(programme + "/BasesInstal/Copie de Medoc.mdb", programme + "/Copie de Medoc.mdb");

lancer();
boites([
    ['Le programme doit faire la mise à jour des bases de données.\n\nCelle-ci doit se faire dans le répertoire "DataScriptelle" que vous utilisez pour ce programme, et qui se situe, selon votre choix :\n\n1- Sur votre disque dur (c\'est le cas par défaut lors d\'une première installation)\n2- Sur le serveur (en cas d\'installation réseau déjà opérationnelle)\n3- Ou sur un support externe (comme une clef USB).', "OK"],
    ['Sélectionnez le répertoire "DataScriptelle" à mettre à jour', null],
    ["Ce n'est pas le bon répertoire, ou vous avez annulé.\nSans cette information, le programme ne peut fonctionner.\n\nVoulez-vous refaire un essai ?", "Oui"],
    ['Sélectionnez le répertoire "DataScriptelle" à mettre à jour', data],
    ["La nouvelle version du programme va faire la mise à jour de vos bases de données, situées dans le répertoire sélectionné sur votre disque.\nPatientez ...", "OK"],
    ["Un nouveau paramètre, le nom à afficher pour la signature électronique, est à renseigner puis à enregistrer dans la feuille de mise en forme de l'en-tête.", "OK"],
    ["Mise à jour des dates de naissance dans les ordonnances mémorisées.", "OK"],
    ["Mise à jour des bases terminée.", "OK"],
    ["Si vous désirez utiliser un autre support pour travailler (clef, disque,serveur), il faudra penser, en premier lieu, à tranférer les données du support utilisé vers le nouveau support. \n\nFaites cela à partir du bouton 'Outils / Transfert de données'", "OK"],
]);
egal(boite().texte, "Le programme doit redémarrer après la mise à jour.", "le redémarrage est annoncé");
egal(boite().genre, "information", "par une information");
faux(ouverte("FrmChoixBase"), "aucune fenêtre ne reste");
repondre("OK");
vrai(fini(), "le programme est fini");
egal(relances().length, 1, "un programme est lancé");
contient(relances()[0].chemin, "Scriptelle.exe", "le nôtre");

egal(table(data + "/Medoc.mdb", "ListeOrdos"), [["Toux", "Monsieur  MARTIN    Paul", 0, "0"]],
    "trois blancs en deviennent quatre, et aucun patient ne s'y trouve");
egal(table(data + "/Medoc.mdb", "OrdoEnr"), [
    ["Toux", "SIROP", "1 le soir", 1, "Monsieur  MARTIN  Paul", "20/03/1953", 0, null],
    ["Toux", "GELULES", "1 le matin", 2, "Monsieur  MARTIN  Paul", "20/03/1953", null, 1]], "les lignes réparées");
egal(table(data + "/Medoc.mdb", "Patients").length, 1, "le patient est là");
egal(table(medecin + "/Ordo.mdb", "Entete").length, 24, "la ligne de la signature est ajoutée");
egal(table(medecin + "/Ordo.mdb", "Entete")[23],
    [23, "Nom à afficher pour la signature électronique", "Verdana", 8, 0, 0, 0, null], "telle qu'elle doit être");
vrai(existe(data + "/Ancien_Medoc.mdb"), "l'ancienne base reste");
vrai(existe(medecin + "/Ancien_Ordo.mdb"), "celle du médecin aussi");
for (const nom of ["Copie de Medoc.mdb", "Copie de Ordo.mdb", "Ordo.mdb", "Ancien_Ordo.mdb", "MiseAJour.cfg"]) {
    faux(existe(data + "/" + nom), "rien d'autre ne reste à la racine : " + nom);
}
faux(existe(medecin + "/Copie de Ordo.mdb"), "ni chez le médecin");

lancer();
aucuneBoite("le programme relancé n'a plus rien à mettre à jour");
clic("FrmChoixBase.CmdSuite");
vrai(ouverte("FrmDepart"), "il est prêt");
clic("FrmDepart.CmdNO");
clic("FrmOrdo.CmdNouvelle");
egal(lignes("FrmPatient.LstPatient").length, 1, "le patient se retrouve");
clic("FrmPatient.CmdAnnule");
