// Les interactions des lignes : une gravité hors de l'échelle, un produit inconnu, le niveau demandé.
banque({
    packs: [{cip: "1", id: 1, produit: 101, nom: "DOLA"}, {cip: "2", id: 2, produit: 102, nom: "DOLB"},
        {cip: "3", id: 3, produit: 103, nom: "DOLC"}, {cip: "4", id: 4, produit: 999, nom: "DOLINCONNU"}],
    produitsBanque: [{id: 101, nom: "PRODUIT A"}, {id: 102, nom: "PRODUIT B"}, {id: 103, nom: "PRODUIT C"}],
    interactions: [{a: 101, b: 102, gravite: 1, risque: "Sous le niveau."}, {a: 101, b: 102, gravite: 7, classeA: "classe a", classeB: "classe b", risque: "Risque.", precaution: ""},
        {a: 101, b: 103, gravite: 3, classeA: "classe a", classeB: "classe c", risque: "Grave.", precaution: "Éviter.\nBien"}],
    inconnus: [999]
});
installer();
clic("FrmDepart.mnuBase");
clic("FrmOptions.OptB(1)");
clic("FrmOptions.CmdOK(3)");
clic("FrmDepart.mnuBase");
choisir("FrmOptions.TS", "Interactions");
clic("FrmOptions.OptN(2)");
clic("FrmOptions.CmdOK(4)");
clic("FrmDepart.CmdNO");
clic("FrmOrdo.CmdPharma");
saisir("FrmMedoc.TxtCherche", "DOL");
touche("FrmMedoc.TxtCherche", "Entree");

function prescrit(nom) {
    clic("FrmMedoc.TV", nom);
    clic("FrmMedoc.CmdAjouter1");
    return valeur("RapportInteractions");
}

function demandes() {
    return appels().filter(appel => appel.nom.startsWith("InteractionService_")).map(appel => appel.arguments.slice(1));
}

egal(prescrit("DOLA"), "", "un seul produit");
egal(demandes().pop(), [[101], 1, 2], "son identifiant est demandé");
const tirets = prescrit("DOLB");
contient(tirets, "        1- : PRODUIT A\r\n        classe a\r\n\r\n        2- : PRODUIT B\r\n        classe b\r\n\r\n", "les deux produits");
contient(tirets, "Niveau d'interaction : - \r\n\r\nType de risque :   \r\n---------------------\r\nRisque.\r\n\r\n\r\n\r\n<<<<<", "une gravité hors de l'échelle, sans commentaire");
faux(tirets.includes("Sous le niveau"), "celle du dessous n'est pas donnée");
const deux = prescrit("DOLC");
contient(deux, "Niveau d'interaction :  Association contre-indiquée\r\n", "une contre-indication");
contient(deux, "Éviter.\r\n\r\nBien", "les fins de ligne du commentaire");
egal(demandes().pop(), [[101, 102, 103], 3, 2], "les trois");
contient(prescrit("DOLINCONNU"), "unknown product interactions:\r\n\r\n product name: DOLINCONNU\r\n", "un produit que la banque ne connaît pas");
const noms = appels().map(appel => appel.nom).filter(nom => !/^(StringLength|CopyString)/.test(nom));
const membre = lettre => ["InteractionCouple_getProduct" + lettre, "Product_getId", "Product_getName", "Product_release",
    "InteractionCouple_getDrugInteractionClass" + lettre, "DrugInteractionClass_getId", "DrugInteractionClass_getName",
    "DrugInteractionClass_release"];
const couple = noms.lastIndexOf("InteractionCouple_getInteractionId");
egal(noms.slice(couple), ["InteractionCouple_getInteractionId", "InteractionCouple_getPrecautionComment",
    "InteractionCouple_getRiskComment", ...membre("A"), ...membre("B"), "InteractionCouple_getSeverity",
    "InteractionCouple_release", "InteractionCoupleList_release", "InteractionResult_getUnkownProductInteractionList",
    "ProductList_getCount", "ProductList_getItem", "Product_getId", "Product_getName", "Product_release",
    "ProductList_release", "InteractionResult_release"], "chaque couple est lu puis rendu");
egal(fuites(), [], "tout est rendu");
