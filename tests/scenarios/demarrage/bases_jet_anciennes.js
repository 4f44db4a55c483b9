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
