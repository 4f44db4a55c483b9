// Un arbre de la version 1, sans modèle à côté : il s'ouvre avec tous ses patients, et rien n'en est perdu
const jeux = "../shared/data/jet/";
const data = utilisateur + "/DataVelmont/DataScriptelle";
const medecin = data + "/DR NEIBRE";

function ouvre() {
    lancer();
    choisir("FrmChoixBase.CboBase", 0);
    clic("FrmChoixBase.CmdSuite");
    aucuneBoite();
    clic("FrmDepart.CmdNO");
    clic("FrmOrdo.CmdPatient");
    aucuneBoite();
    egal(lignes("FrmPatient.LstPatient").length, 43, "tous les patients");
    fermer("FrmPatient");
    fermer("FrmOrdo");
}

function joue(jeu) {
    copier(jeux + jeu + "/Medoc.mdb", data + "/Medoc.mdb");
    copier(jeux + jeu + "/Ordo.mdb", data + "/Ordo.mdb");
    copier(jeux + jeu + "/Ordo.mdb", medecin + "/Ordo.mdb");
    ouvre();
    egal(table("Medoc", "OrdoEnr").length, 96, "les lignes mémorisées");
    egal(table("Ordo", "Entete").length, 23, "les lignes de l'en-tête");
    ouvre();
    for (const [garde, source] of [["/Medoc (Jet).mdb", "Medoc"], ["/Ordo (Jet).mdb", "Ordo"], ["/DR NEIBRE/Ordo (Jet).mdb", "Ordo"]]) {
        egal(lireOctets(data + garde), lireOctets(jeux + jeu + "/" + source + ".mdb"), garde + " : octet pour octet");
        effacer(data + garde);
    }
    egal(lister(data).filter(nom => /mdb|ldb|lock|tmp/.test(nom)), ["Medoc.mdb"], "rien d'autre à la racine");
}

if (!existe(jeux + "ancien/Medoc.mdb")) {
    vrai(true, "fichiers Jet absents");
} else {
    installer();
    clic("FrmDepart.CmdQuitter");
    joue("ancien");
    joue("ancien_jet3");
}

// Le même arbre apporté sur une clef
if (existe(jeux + "ancien/Medoc.mdb")) {
    const clef = utilisateur + "/clef d'été";
    const arbre = clef + "/DataScriptelle";
    creerDossier(clef);
    copier(data, arbre);
    copier(jeux + "ancien/Medoc.mdb", arbre + "/Medoc.mdb");
    copier(jeux + "ancien/Ordo.mdb", arbre + "/Ordo.mdb");
    copier(jeux + "ancien/Ordo.mdb", arbre + "/DR NEIBRE/Ordo.mdb");
    ecrire(arbre + "/Medoc.ldb", "POSTE1");
    lancer();
    choisir("FrmChoixBase.CboBase", 1);
    clic("FrmChoixBase.CmdSuite");
    boites([[/^\nVous avez choisi de travailler avec vos données enregistrées sur un support externe/, "OK"],
        ["Sélectionnez uniquement le NOM du lecteur (ou support)", clef],
        [/^La base de données « Medoc\.mdb » semble ouverte dans l'ancien programme : le fichier « Medoc\.ldb » est à côté d'elle\./, "OK"]]);
    aucuneBoite();
    egal(lireOctets(arbre + "/Medoc.mdb"), lireOctets(jeux + "ancien/Medoc.mdb"), "rien n'est touché");
    effacer(arbre + "/Medoc.ldb");
    clic("FrmDepart.CmdNO");
    clic("FrmOrdo.CmdPatient");
    aucuneBoite();
    egal(lignes("FrmPatient.LstPatient").length, 43, "l'ancien programme fermé, tous les patients de la clef");
    egal(lireOctets(arbre + "/Medoc (Jet).mdb"), lireOctets(jeux + "ancien/Medoc.mdb"), "l'original y reste");
    fermer("FrmPatient");
    fermer("FrmOrdo");
}
