// The first start, with every way out of its dialogues
const sep = programme.includes("\\") ? "\\" : "/";
const accueilUtilisateur = [/^         Sélectionnez le répertoire où seront enregistrées les données/, "OK"];
const titre = "Sélectionnez uniquement le répertoire à votre NOM D'UTILISATEUR";

lancer();
boites([
    accueilUtilisateur,
    [titre, null],
    ["Ce renseignement est obligatoire ; voulez-vous continuer ?", "Oui"],
    [titre, null],
    ["Ce renseignement est obligatoire ; voulez-vous continuer ?", "Non"],
    ["Lancement du programme interrompu par défaut de renseignement !", "OK"],
]);
vrai(fini(), "sans répertoire, le programme s'arrête");
faux(existe(programme + "/CheminData.cfg"), "rien n'est retenu");
vrai(existe(programme + "/Medoc.mdb"), "rien n'est déplacé");

const invite = /^Inscrire les nom et prénom du médecin\.\n\(Ignorez la casse.*\)\n\nRESPECTEZ LE FORMAT : "Dr\/un espace/;
lancer();
boites([
    accueilUtilisateur,
    [titre, utilisateur],
    ["Vous devez renseigner le nom du MEDECIN UTILISATEUR de ce programme\n(le seul, ou le premier, car on peut enregistrer plusieurs utilisateurs).", "OK"],
]);
egal(boite().valeur, "Dr ", "la saisie commence par le titre");
boites([
    [invite, "Dr "],
    ["Cette inscription est obligatoire ; voulez-vous continuer ?", "Oui"],
    [invite, "Neibre"],
    ["Mauvais format d'inscription ! Voulez-vous continuer ?", "Oui"],
    [invite, null],
    ["Cette inscription est obligatoire ; voulez-vous continuer ?", "Non"],
    ["Lancement du programme interrompu par défaut d'inscription d'un utilisateur !", "OK"],
]);
vrai(fini(), "sans médecin, le programme s'arrête");
const data = utilisateur + "/DataVelmont/DataScriptelle";
vrai(existe(data), "l'arbre est créé");
egal(lire(programme + "/CheminData.cfg"), '"' + data.split("/").join(sep) + '"\r\n', "le chemin est retenu");

lancer();
boites([
    [/MEDECIN UTILISATEUR/, "OK"],
    [invite, "Dr ../Ailleurs"],
    ["Mauvais format d'inscription ! Voulez-vous continuer ?", "Non"],
]);
vrai(fini(), "un mauvais format refusé termine sans autre mot");

lancer();
boites([
    [/MEDECIN UTILISATEUR/, "OK"],
    [invite, "dr andré"],
    [/^Vous utilisez ce programme pour la première fois\.\n\no   Cliquez/, "OK"],
]);
egal(lignes("FrmChoixBase.CboMed"), ["DR ANDRÉ"], "le médecin est proposé");
egal(selection("FrmChoixBase.CboBase"), -1, "la place n'est pas choisie d'avance");
clic("FrmChoixBase.CmdSuite");
boites([["Vous devez obligatoirement faire ce choix !\n\nPoursuivre ?", "Oui"]]);
vrai(ouverte("FrmChoixBase"), "la fenêtre attend la réponse");
choisir("FrmChoixBase.CboBase", 0);
clic("FrmChoixBase.CmdSuite");
vrai(ouverte("FrmDepart"), "le programme est prêt");
egal(valeur("CheminTravail"), data, "le travail est sur le disque");
egal(valeur("NomMedecinSignature"), "Docteur ANDocteurÉ", "la signature");
egal(lire(data + "/Medecin.ini"), " 1 \r\nDR ANDRÉ-1\r\n", "la liste des médecins");
egal(lire(data + "/Options.cfg"), '0,1,1,1,0,0,1,2,1,0,0,0,0,"",0,0,"",0,0,0,0,0,0,0,0,1,1,1,1\r\n', "les options");
egal(lire(data + "/DR ANDRÉ/Marges.cfg"), "10,4,10,20,100,170,70,100,0,0,0,0,0\r\n", "les marges du médecin");
egal(lister(data), ["Certificats", "DR ANDRÉ", "Dupli.cfg", "Marges.cfg", "Medecin.ini", "Medoc.mdb", "Options.cfg"], "l'arbre");
egal(lire(programme + "/CheminBase.cfg"), '0,"",1\r\n', "le choix du jour");
