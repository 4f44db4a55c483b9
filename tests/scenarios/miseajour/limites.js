// The edge cases of an upgrade: names, codes, dates, letterheads, doctors' directories; and what a failure leaves
installer();
const data = utilisateur + "/DataVelmont/DataScriptelle";
const medecin = data + "/DR NEIBRE";
const logo = data + "/DR LogoZ";
clic("FrmDepart.CmdQuitter");
copier(medecin, logo);
creerDossier(data + "/DR SANSBASE");
copier(programme + "/BasesInstal/Copie de Medoc.mdb", programme + "/Copie de Medoc.mdb");

// Only a generic prescription lacks its date: no repair
ajouter(data + "/Medoc.mdb", "Patients", [3, "Madame", "ROUX  Anne", "01/02/1960", "0"]);
ajouter(data + "/Medoc.mdb", "ListeOrdos", ["Modèle", "*", 1, "0"]);
ajouter(data + "/Medoc.mdb", "ListeOrdos", ["Vide", "", null, null]);
ajouter(data + "/Medoc.mdb", "ListeOrdos", ["Anne", "ROUX Anne", 0, "01/02/1960"]);
ajouter(data + "/Medoc.mdb", "OrdoEnr", ["Anne", "UN", "p", 1, "ROUX Anne", "0", 12, 1]);
ajouter(data + "/Medoc.mdb", "OrdoEnr", ["Anne", "DEUX", "p", null, "ROUX  Anne", null, null, 1]);
ajouter(data + "/Medoc.mdb", "OrdoEnr", ["Anne", "TROIS", "p", 2, "ROUX   Anne", "0", 12, null]);
ajouter(data + "/Medoc.mdb", "OrdoEnr", ["Anne", "QUATRE", null, 2, null, "0", "texte", 1]);
ajouter(data + "/Medoc.mdb", "OrdoEnr", ["Anne", "CINQ", null, 2, "", "0", "3400930000011", 1]);
ajouter(data + "/Medoc.mdb", "OrdoEnr", ["Anne", "SIX", null, 2, "*", "0", "3400930000011", null]);
ajouter(data + "/Medoc.mdb", "Vidal", [null, null]);
ajouter(data + "/Medoc.mdb", "Biblio", ["titre", null]);
ajouter(data + "/Medoc.mdb", "MedUtile", [null]);
vider(medecin + "/Ordo.mdb", "Certificat");
ajouter(medecin + "/Ordo.mdb", "Certificat", [null, null, null, null, null]);
vider(medecin + "/Ordo.mdb", "CouleurPET");
ajouter(medecin + "/Ordo.mdb", "CouleurPET", [null]);
const entete = table(medecin + "/Ordo.mdb", "Entete");
const avantLogo = lireOctets(logo + "/Ordo.mdb");

lancer();
boites([[/^Le programme doit faire la mise à jour/, "OK"], [/à mettre à jour$/, data], [/sur votre disque\.\nPatientez \.\.\.$/, "OK"],
    ["Mise à jour des bases terminée.", "OK"],
    ["Si vous désirez utiliser un autre support pour travailler (clef, disque,serveur) , il faudra penser, en premier lieu, à tranférer les données du support utilisé vers le nouveau support. \n\nFaites cela à partir du bouton 'Outils / Transfert de données'", "OK"],
    ["Le programme doit redémarrer après la mise à jour.", "OK"]]);
vrai(fini(), "ni message de l'en-tête, ni réparation des dates");
egal(table(data + "/Medoc.mdb", "ListeOrdos"), [["Modèle", "*", 1, "0"], ["Vide", "*", 0, "0"], ["Anne", "ROUX  Anne", 0, "01/02/1960"]],
    "les ordonnances mémorisées");
egal(table(data + "/Medoc.mdb", "OrdoEnr"), [
    ["Anne", "UN", "p", 1, "ROUX  Anne", "0", 12, 1],
    ["Anne", "DEUX", "p", 1, "ROUX  Anne", "0", 0, 1],
    ["Anne", "TROIS", "p", 2, "ROUX    Anne", "0", 0, null],
    ["Anne", "QUATRE", null, 2, "*", "0", 0, 1],
    ["Anne", "CINQ", null, 2, "*", "0", null, 1],
    ["Anne", "SIX", null, 2, "*", "0", 0, null]], "les lignes");
egal(table(data + "/Medoc.mdb", "Vidal"), [["", ""]], "les nuls de Vidal");
egal(table(data + "/Medoc.mdb", "Biblio"), [["titre", ""]], "ceux de Biblio");
egal(table(data + "/Medoc.mdb", "MedUtile"), [[""]], "ceux de MedUtile");
egal(table(medecin + "/Ordo.mdb", "Certificat"), [["", 10, 0, 0, 0]], "la police des certificats");
egal(table(medecin + "/Ordo.mdb", "CouleurPET"), [[0]], "la couleur");
egal(table(medecin + "/Ordo.mdb", "Entete"), entete, "un en-tête de 24 lignes reste tel");
egal(lireOctets(logo + "/Ordo.mdb"), avantLogo, "un médecin dont le nom contient « Logo » est passé");
egal(lister(logo).filter(nom => /Copie|Ancien/.test(nom)), [], "sans rien y laisser");
egal(lister(data + "/DR SANSBASE"), [], "un répertoire sans base aussi");

// The birth date repair: the last patient whose name is contained, with capitals and small letters apart
ajouter(data + "/Medoc.mdb", "Patients", [4, "Madame", "ROUX  Anne-Marie", null, "0"]);
ajouter(data + "/Medoc.mdb", "ListeOrdos", ["Marie", "Madame ROUX Anne-Marie", 0, "0"]);
ajouter(data + "/Medoc.mdb", "ListeOrdos", ["Petite", "roux Anne", 0, "05/05/1955"]);
copier(programme + "/BasesInstal/Copie de Medoc.mdb", programme + "/Copie de Medoc.mdb");
lancer();
boites([[/^Le programme doit faire la mise à jour/, "OK"], [/à mettre à jour$/, data], [/sur votre disque\.\nPatientez \.\.\.$/, "OK"],
    ["Mise à jour des dates de naissance dans les ordonnances mémorisées.", "OK"],
    ["Mise à jour des bases terminée.", "OK"],
    ["Si vous désirez utiliser un autre support pour travailler (clef, disque,serveur), il faudra penser, en premier lieu, à tranférer les données du support utilisé vers le nouveau support. \n\nFaites cela à partir du bouton 'Outils / Transfert de données'", "OK"],
    ["Le programme doit redémarrer après la mise à jour.", "OK"]]);
egal(table(data + "/Medoc.mdb", "ListeOrdos"), [["Modèle", "*", 1, "0"], ["Vide", "*", 0, "0"], ["Anne", "ROUX  Anne", 0, "01/02/1960"],
    ["Marie", "Madame  ROUX  Anne-Marie", 0, ""], ["Petite", "roux  Anne", 0, "05/05/1955"]], "les dates des ordonnances");
egal(table(data + "/Medoc.mdb", "OrdoEnr").map(ligne => ligne[5]), ["01/02/1960", "01/02/1960", "0", "0", "0", "0"], "et celles des lignes");

// A damaged database of a doctor: said once, and the practice goes on
copier(programme + "/BasesInstal/Copie de Medoc.mdb", programme + "/Copie de Medoc.mdb");
const nombre = table(data + "/Medoc.mdb", "OrdoEnr").length;
creerDossier(data + "/DR ABIME");
ecrire(data + "/DR ABIME/Ordo.mdb", "abîmée");
lancer();
boites([[/^Le programme doit faire la mise à jour/, "OK"], [/à mettre à jour$/, data], [/sur votre disque\.\nPatientez \.\.\.$/, "OK"]]);
egal(boite().genre, "stop", "l'échec est dit");
contient(boite().texte, "DR ABIME", "avec son fichier");
repondre("OK");
egal(texte("FrmChoixBase.CmdSuite").replace("&", ""), "Poursuivre ...", "le travail reprend");
clic("FrmChoixBase.CmdSuite");
vrai(ouverte("FrmDepart"), "sur l'ancien arbre");
egal(table("Medoc", "OrdoEnr").length, nombre, "qui est entier");
vrai(existe(data + "/Copie de Medoc.mdb"), "la mise à jour reste due");
clic("FrmDepart.CmdQuitter");
effacer(data + "/DR ABIME/Ordo.mdb");
lancer();
boites([[/^Le programme doit faire la mise à jour/, "OK"], [/à mettre à jour$/, data], [/sur votre disque\.\nPatientez \.\.\.$/, "OK"]]);
boites([["Mise à jour des bases terminée.", "OK"], [/^Si vous désirez/, "OK"], [/redémarrer/, "OK"]]);
vrai(fini(), "et se fait au lancement suivant");
