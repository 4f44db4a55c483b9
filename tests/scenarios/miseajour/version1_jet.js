// A practice of version 1 in its Jet files: converted, then upgraded row for row as the rule says
const jeux = "../shared/data/jet/";
const data = utilisateur + "/DataVelmont/DataScriptelle";
const medecin = data + "/DR NEIBRE";

function nomEspace(nom) {
    return (nom === null || nom === "" ? "*" : nom).split("  ").join(" ").split(" ").join("  ");
}

function sinon(valeur, defaut) {
    return valeur === null || valeur === undefined ? defaut : valeur;
}

// The last patient whose name is contained gives his date.
function date(patients, nom, avant) {
    return patients.reduce((suite, patient) => nom.includes(sinon(patient[2], "")) ? sinon(patient[3], "") : suite, avant);
}

function joue(jeu) {
    copier(jeux + jeu + "/Medoc.mdb", data + "/Medoc.mdb");
    copier(jeux + jeu + "/Ordo.mdb", data + "/Ordo.mdb");
    copier(jeux + jeu + "/Ordo.mdb", medecin + "/Ordo.mdb");
    copier(programme + "/BasesInstal/Copie de Medoc.mdb", programme + "/Copie de Medoc.mdb");
    lancer();
    const parametre = /^Un nouveau paramètre, le nom à afficher pour la signature électronique/;
    boites([[/^Le programme doit faire la mise à jour/, "OK"], [/à mettre à jour$/, data],
        [/sur votre disque\.\nPatientez \.\.\.$/, "OK"], [parametre, "OK"], [parametre, "OK"],
        ["Mise à jour des dates de naissance dans les ordonnances mémorisées.", "OK"],
        ["Mise à jour des bases terminée.", "OK"], [/^Si vous désirez utiliser un autre support/, "OK"],
        ["Le programme doit redémarrer après la mise à jour.", "OK"]]);
    vrai(fini(), jeu + " : le programme redémarre");

    const patients = table(data + "/Medoc.mdb", "Patients");
    egal(patients.length, 43, "les patients viennent de l'ancien Ordo.mdb");
    const liste = table(data + "/Ancien_Medoc.mdb", "ListeOrdos").map(([titre, nom, ald, naissance]) =>
        [titre, nomEspace(nom), sinon(ald, 0), date(patients, nomEspace(nom), sinon(naissance, "0"))]);
    egal(table(data + "/Medoc.mdb", "ListeOrdos"), liste, "les ordonnances mémorisées");
    const lignes = table(data + "/Ancien_Medoc.mdb", "OrdoEnr").map(([titre, ligne, poso, zone, nom, naissance]) =>
        [titre, ligne, poso, sinon(zone, 1), nomEspace(nom), date(patients, nomEspace(nom), sinon(naissance, "0")), 0, null]);
    egal(lignes.length, 96, "toutes les lignes");
    egal(table(data + "/Medoc.mdb", "OrdoEnr"), lignes, "une à une, leur code à revoir");
    for (const [nom, nombre] of [["BddMed", 25], ["Biblio", 5], ["Vidal", 10], ["MedUtile", 12]]) {
        egal(table(data + "/Medoc.mdb", nom).length, nombre, nom);
    }
    const entete = table(medecin + "/Ordo.mdb", "Entete");
    egal(entete.length, 24, "l'en-tête a sa ligne de signature");
    egal(entete.slice(0, 23), table(medecin + "/Ancien_Ordo.mdb", "Entete"), "et les siennes");
    egal(lister(data).filter(nom => /mdb|MiseAJour/.test(nom)),
        ["Ancien_Medoc.mdb", "Medoc (Jet).mdb", "Medoc.mdb", "Ordo (Jet).mdb"], "les originaux restent");
    egal(lireOctets(data + "/Ordo (Jet).mdb"), lireOctets(jeux + jeu + "/Ordo.mdb"), "octet pour octet");
}

if (!existe(jeux + "ancien/Medoc.mdb")) {
    vrai(true, "fichiers Jet absents");
} else {
    installer();
    clic("FrmDepart.CmdQuitter");
    joue("ancien");
    for (const nom of ["/Medoc (Jet).mdb", "/Ordo (Jet).mdb", "/DR NEIBRE/Ordo (Jet).mdb"]) {
        effacer(data + nom);
    }
    joue("ancien_jet3");
}
