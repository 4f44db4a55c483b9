// Un cabinet apporte ses bases Access : elles sont converties à leur première ouverture, les originaux restent
const jeu = "../shared/data/jet/petit/";
const data = utilisateur + "/DataVelmont/DataScriptelle";
const medecin = data + "/DR NEIBRE";

function ouvre() {
    lancer();
    choisir("FrmChoixBase.CboBase", 0);
    clic("FrmChoixBase.CmdSuite");
    boites([[/« Garamond » est remplacée/, "OK"]]); // la police des certificats du cabinet
    aucuneBoite();
    vrai(ouverte("FrmDepart"), "le programme démarre");
}

if (!existe(jeu + "Medoc.mdb")) {
    vrai(true, "fichiers Jet absents");
} else {
    installer();
    clic("FrmDepart.CmdQuitter");
    copier(jeu + "Medoc.mdb", data + "/Medoc.mdb");
    copier(jeu + "Ordo.mdb", medecin + "/Ordo.mdb");
    ouvre();
    clic("FrmDepart.CmdNO");
    clic("FrmOrdo.CmdPatient");
    aucuneBoite();
    egal(lignes("FrmPatient.LstPatient").length, 30, "tous les patients");
    saisir("FrmPatient.TxtCherche", "d'argelès");
    egal(texte("FrmPatient.LblTitre"), "Monsieur  D'ARGELÈS  Adrien", "avec leurs accents");
    clic("FrmPatient.CmdOK");
    boites([[/Allergie à la pénicilline/, "OK"]]);
    faux(ouverte("FrmConversion"), "la fenêtre de conversion est fermée");

    egal(lireOctets(data + "/Medoc (Jet).mdb"), lireOctets(jeu + "Medoc.mdb"), "l'original est à côté");
    egal(lireOctets(medecin + "/Ordo (Jet).mdb"), lireOctets(jeu + "Ordo.mdb"), "celui du médecin aussi");
    egal(lister(data).filter(nom => /Medoc/.test(nom)), ["Medoc (Jet).mdb", "Medoc.mdb"], "rien d'autre");
    egal(table("Ordo", "Entete").length, 24, "les lignes de l'en-tête");
    egal(table("Ordo", "Entete")[0][1], "Docteur Éloïse CŒURDEVEY-L'HÉRITIER", "et leur texte");
    egal(table("Ordo", "Entete")[1][3], 12.5, "et leur taille");
    egal(table("Medoc", "OrdoEnr").length, 58, "les lignes mémorisées");
    fermer("FrmOrdo");

    ouvre();
    egal(lister(data).filter(nom => /Medoc/.test(nom)), ["Medoc (Jet).mdb", "Medoc.mdb"], "une seule conversion");
}
