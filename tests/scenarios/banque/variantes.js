// Les banques qu'un poste peut avoir : chaque lancement en trouve une autre.
const packs = [{cip: "1", id: 1, produit: 101, nom: "DOLIPRANE", prix: 1.16}];
let vus = 0;

banque({packs, attentes: 3, version: "4.1", expiration: "2028-02-29"});
installer();
clic("FrmDepart.mnuBase");
clic("FrmOptions.OptB(1)");
clic("FrmOptions.CmdOK(3)");

function noms() {
    return appels().slice(vus).map(appel => appel.nom);
}

function relance(description) {
    if (!fini()) {
        clic("FrmOrdo.CmdFermer");
        vrai(fini(), "le programme est fini");
    }
    vus = appels().length;
    banque(description);
    lancer();
    if (ouverte("FrmChoixBase")) clic("FrmChoixBase.CmdSuite");
    clic("FrmDepart.CmdNO");
}

function cherche() {
    clic("FrmOrdo.CmdPharma");
    saisir("FrmMedoc.TxtCherche", "DOL");
    touche("FrmMedoc.TxtCherche", "Entree");
    const trouves = lignes("FrmMedoc.TV").map(nom => nom.trim());
    clic("FrmMedoc.CmdAnnule");
    return trouves;
}

// Un démarrage en arrière-plan.
clic("FrmDepart.CmdNO");
egal(noms().filter(nom => nom === "VidalAPI_asyncStartResult").length, 3, "trois questions : deux fois 14, puis la fin");
contient(appels(), "VidalAPI_asyncInit(null, 2)", "le produit choisi");
faux(noms().includes("VidalAPI_init"), "sans l'autre démarrage");
egal(valeur("MessageBanque"), "Pharmacie initialisée\nDate d'expiration = 29/02/2028", "la date d'expiration");
egal([valeur("VersionBanque"), valeur("DateExpirationBase"), valeur("SessionBanque")], ["4.1", "29/02/2028", 77], "ce que la banque dit d'elle");
faux(ouverte("FrmI"), "la fenêtre d'état est partie");
egal(texte("FrmI.Out"), valeur("MessageBanque"), "son dernier texte se lit encore");
egal(cherche(), ["DOLIPRANE"], "elle répond");

// Une bibliothèque plus ancienne.
relance({packs, asynchrone: false, copieBornee: false});
vrai(noms().includes("VidalAPI_init") && !noms().includes("VidalAPI_asyncInit"), "le démarrage d'autrefois");
egal(cherche(), ["DOLIPRANE"], "elle répond");
vrai(noms().includes("CopyString") && !noms().includes("CopyStringN2"), "la copie d'autrefois");

// La session est rendue à la fin.
relance({packs, retourVersion: 5});
egal(appels().filter(appel => appel.nom === "VidalAPI_release").length, 2, "chaque session est rendue");
egal(valeur("RetourInitBanque"), 5, "l'issue est celle de la version");

relance({packs, produits: {1: true}});
contient(valeur("MessageBanque"), "Retour init = 21   =>  Echec initialisation", "un produit qui n'est pas installé");
relance({packs, chargeable: false});
contient(valeur("MessageBanque"), "Retour init = 16   =>  Echec initialisation", "une bibliothèque qui ne se charge pas");
relance({aide: false});
egal(valeur("TypeBase"), "BIP", "sans aide, la pharmacie du poste");
egal(noms(), [], "rien n'est appelé");

// Un démarrage qui ne finit pas.
relance({packs, attentes: 1000000});
vrai(ouverte("FrmI"), "la fenêtre d'état reste");
clic("FrmI.CmdAnnuler");
faux(ouverte("FrmI"), "on y renonce");
egal(valeur("BanqueInitialisee"), 1, "jusqu'au prochain lancement");
egal(fuites(), [], "tout est rendu");
