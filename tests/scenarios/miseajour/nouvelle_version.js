// A real update: version 1 in use with its Jet files, the files of this version laid over it as the installer does
const jeu = "../shared/data/jet/ancien";
const data = utilisateur + "/DataVelmont/DataScriptelle";
const medecin = data + "/DR NEIBRE";
const pose = utilisateur + "/pose";

if (!existe(jeu + "/Medoc.mdb")) {
    vrai(true, "fichiers Jet absents");
} else {
    copier(programme + "/Medoc.mdb", pose + "/Medoc.mdb");
    copier(programme + "/Ordo.mdb", pose + "/Ordo.mdb");
    installer();
    clic("FrmDepart.CmdQuitter");
    for (const [de, vers] of [["Medoc", data], ["Ordo", data], ["Ordo", medecin]]) {
        copier(jeu + "/" + de + ".mdb", vers + "/" + de + ".mdb");
    }
    for (const nom of ["Medoc.mdb", "Ordo.mdb"]) {
        copier(pose + "/" + nom, programme + "/" + nom);
    }
    copier(programme + "/BasesInstal/Copie de Medoc.mdb", programme + "/Copie de Medoc.mdb");

    // A damaged doctor: the practice works on its old databases, with the patients that stand in the root's "Ordo.mdb"
    ecrire(data + "/DR ABIME/Ordo.mdb", "abîmée");
    lancer();
    boites([[/^Le programme doit faire la mise à jour/, "OK"], [/à mettre à jour$/, data], [/sur votre disque\.\nPatientez/, "OK"]]);
    egal(boite().genre, "stop", "l'échec est dit");
    repondre("OK");
    clic("FrmChoixBase.CmdSuite");
    clic("FrmDepart.CmdNO");
    clic("FrmOrdo.CmdNouvelle");
    egal(lignes("FrmPatient.LstPatient").length, 43, "le travail continue, avec tous les patients");
    clic("FrmPatient.CmdAnnule");
    clic("FrmOrdo.CmdFermer");
    vrai(existe(data + "/Copie de Medoc.mdb"), "la mise à jour reste due");
    effacer(data + "/DR ABIME/Ordo.mdb");

    lancer();
    boites([[/^Le programme doit faire la mise à jour/, "OK"], [/à mettre à jour$/, data], [/sur votre disque\.\nPatientez/, "OK"],
        [/^Un nouveau paramètre/, "OK"], [/^Mise à jour des dates/, "OK"],
        ["Mise à jour des bases terminée.", "OK"], [/^Si vous désirez utiliser/, "OK"], [/redémarrer/, "OK"]]);
    lancer();
    aucuneBoite("le programme relancé est à jour");
    clic("FrmChoixBase.CmdSuite");
    clic("FrmDepart.CmdNO");
    clic("FrmOrdo.CmdNouvelle");
    egal(lignes("FrmPatient.LstPatient").length, 43, "les patients sont là");
    clic("FrmPatient.CmdAnnule");
    clic("FrmOrdo.CmdFermer");
    egal(lister(programme).filter(nom => /mdb$/.test(nom)), [], "rien ne reste à côté du programme");
    egal(lister(data).filter(nom => /mdb$/.test(nom)), ["Ancien_Medoc.mdb", "Medoc (Jet).mdb", "Medoc.mdb", "Ordo (Jet).mdb"],
        "ni à la racine");
}
