// A database that is none, cut, absent or of the other kind: one message names it, nothing is written over
installer();
const data = utilisateur + "/DataVelmont/DataScriptelle";
const medecin = data + "/DR NEIBRE";
clic("FrmDepart.CmdQuitter");
copier(data + "/Medoc.mdb", utilisateur + "/Medoc.bon");
copier(medecin + "/Ordo.mdb", utilisateur + "/Ordo.bon");
const entiere = lire(data + "/Medoc.mdb");

function demarre(nom, phrase) {
    lancer();
    choisir("FrmChoixBase.CboBase", 0);
    clic("FrmChoixBase.CmdSuite");
    egal(boite().genre, "stop", "un message");
    contient(boite().texte, nom, "avec le nom de la base");
    contient(boite().texte, phrase, "et ce qu'elle a");
    repondre("OK");
    aucuneBoite();
    vrai(ouverte("FrmDepart"), "le programme démarre");
}

const pasUneBase = "n'est pas une base de données de Scriptelle.";
const formes = [["pas une base", pasUneBase], ["", pasUneBase],
    [entiere.slice(0, 5000), "est endommagée. Elle n'a pas été modifiée."]];
for (const fichier of [data + "/Medoc.mdb", medecin + "/Ordo.mdb"]) {
    const nom = fichier.split("/").pop();
    for (const [contenu, phrase] of formes) {
        ecrire(fichier, contenu);
        demarre("« " + nom + " »", phrase);
        clic("FrmDepart.CmdQuitter");
        egal(lire(fichier), contenu, "rien n'est écrit par-dessus");
    }
    effacer(fichier);
    lancer();
    clic("FrmChoixBase.CmdSuite");
    aucuneBoite();
    clic("FrmDepart.CmdNO");
    clic("FrmOrdo.CmdNouvelle");
    boites([["La base de données « " + nom + " » n'existe pas.\n" + fichier, "OK"]]);
    clic("FrmPatient.CmdAnnule");
    fermer("FrmOrdo");
    faux(existe(fichier), "aucune base vide n'est créée");
    copier(utilisateur + (nom === "Medoc.mdb" ? "/Ordo.bon" : "/Medoc.bon"), fichier);
    demarre("« " + nom + " »", "contient une autre base de Scriptelle");
    clic("FrmDepart.CmdQuitter");
    effacer(fichier);
    copier(utilisateur + (nom === "Medoc.mdb" ? "/Medoc.bon" : "/Ordo.bon"), fichier);
}

ecrire(data + "/Medoc.mdb", "pas une base");
demarre("« Medoc.mdb »", pasUneBase);
clic("FrmDepart.CmdNO");
clic("FrmOrdo.CmdNouvelle");
boites([[/^Le fichier « Medoc\.mdb » n'est pas une base/, "OK"]]);
vrai(ouverte("FrmPatient"), "un patient de passage reste possible");
egal(lignes("FrmPatient.LstPatient"), [], "la liste est vide");
clic("FrmPatient.CmdAnnule");
faux(fini(), "le programme continue");
