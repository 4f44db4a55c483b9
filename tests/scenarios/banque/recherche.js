// La recherche dans une banque : cinquante présentations au plus, dans son ordre, sans rien garder d'ouvert.
const packs = [];
for (let i = 1; i <= 60; i++) {
    packs.push({cip: "34009300000" + (10 + i), id: i, produit: 100 + i, nom: "DOLIPRANE " + i + " mg", prix: i / 100});
}
packs.push({cip: "0340093", id: 99, produit: 199, nom: "Œdème é € DOLKO", prix: 0});
banque({packs});
installer();
clic("FrmDepart.mnuBase");
clic("FrmOptions.OptB(1)");
clic("FrmOptions.CmdOK(3)");
egal(valeur("TypeBase"), "TVS", "le Vidal est choisi");
clic("FrmDepart.CmdNO");
egal([valeur("BanqueInitialisee"), valeur("RetourInitBanque"), valeur("ChargementBanque") !== 0], [1, 0, true], "la session est ouverte");
clic("FrmOrdo.CmdPharma");

function cherche(texte) {
    saisir("FrmMedoc.TxtCherche", texte);
    touche("FrmMedoc.TxtCherche", "Entree");
    return lignes("FrmMedoc.TV");
}

function recherches() {
    return appels().filter(appel => appel.nom === "PackService_searchByNameWithPagedResult").map(appel => appel.arguments);
}

egal(cherche("DOL").length, 50, "une page");
egal(lignes("FrmMedoc.TV").slice(0, 2).map(nom => nom.trim()), ["DOLIPRANE 1 mg", "DOLIPRANE 2 mg"], "dans l'ordre de la banque");
egal(recherches().pop().slice(1), ["DOL", [0, 6, 0], 2, [0, 3, 5], 2, 1, 50], "les pages Vidal, avec les bornes hautes");
egal(etiquettes("FrmMedoc.TV")[0], "3400930000011/1/101/0.01", "CIP, présentation, produit, prix");
egal(cherche("DOLKO").map(nom => nom.trim()), ["Œdème é € DOLKO"], "les caractères de Windows-1252");
egal(cherche("ZZZZ"), [], "rien de ce nom");
const noms = appels().map(appel => appel.nom).filter(nom => !/^(StringLength|CopyString)/.test(nom));
const lecture = noms.indexOf("PackList_getItem");
egal(noms.slice(lecture, lecture + 7), ["PackList_getItem", "Pack_getCip", "Pack_getName", "Pack_getId", "Pack_getProductId",
    "Pack_getPublicPrice", "Pack_release"], "chaque présentation est lue puis rendue");
const avant = recherches().length;
egal(cherche("DO"), [], "deux lettres ne suffisent pas");
egal(recherches().length, avant, "et rien n'est demandé");
egal(fuites(), [], "tout est rendu");
