// A drug bank for a world: real libraries that answer from a description, and what they were asked.
egal([appels(), fuites()], [[], []], "sans banque");
const dolipranes = [{cip: "0034", id: 11, produit: 101, nom: "DOLIPRANE 1 000 mg : œdème", prix: 1.16},
    {cip: 3400930000028, id: 12, produit: 102, nom: "DOLKO", prix: NaN}];
function trace() {
    clic("FrmEssai.CmdBanque");
    return texte("FrmEssai.LblTrace");
}

lancer();
egal(trace(), "pas d'aide", "un monde n'a pas de banque");
banque({packs: dolipranes});
egal(trace(), "chargée|DOLIPRANE 1 000 mg : œdème 1.16 101|DOLKO 0 102", "ce que la banque trouve");

const [premier, recherche] = appels();
egal(premier, {nom: "VidalHelper_getVidalAPIPath", arguments: [2, null, 255]}, "l'aide d'abord");
egal(recherche, {nom: "PackService_searchByNameWithPagedResult", arguments: [77, "dol", [0, 6, 0], 2, [0, 3, 5], 2, 1, 50]},
    "une recherche avec ses listes");
egal(String(recherche), 'PackService_searchByNameWithPagedResult(77, "dol", [0,6,0], 2, [0,3,5], 2, 1, 50)', "se lit comme un texte");
const [nom, , cherche] = recherche;
egal([nom, cherche, recherche[0], recherche.startsWith("PackService_"), recherche.includes('"dol"')],
    ["PackService_searchByNameWithPagedResult", "dol", nom, true, true], "et comme une liste");
contient(appels(), {nom: "Pack_getPublicPrice"}, "un appel par son nom");
contient(appels(), 'PackService_searchByCip(77, "34")', "un appel par son texte");
faux(appels().some(appel => appel.nom === "VidalAPI_init"), "aucune session");

egal(fuites().map(fuite => fuite.appel), ["PackService_searchByCip"], "ce que personne n'a rendu, la bibliothèque fermée");
egal(fuites(), 1, "se compte");
different(fuites(), 0, "une n'est pas zéro");

const avant = appels().length;
banque({packs: dolipranes.slice(1), copieBornee: false, asynchrone: false});
egal(trace(), "chargée|DOLKO 0 102", "une autre description la remplace");
vrai(appels().slice(avant).some(appel => appel.nom === "CopyString"), "avec la copie d'autrefois");
faux(appels().slice(avant).some(appel => appel.nom === "CopyStringN2"), "et sans l'autre");
egal(fuites(), 1, "un CIP inconnu ne donne rien à rendre");

banque({produits: {1: true}});
egal(trace(), "pas installée", "un produit qui manque");
banque({produits: {1: true, 2: false}});
egal(trace(), "pas installée", "un produit dit absent");
banque({chargeable: false, packs: dolipranes});
egal(trace(), "illisible", "une bibliothèque qui ne se charge pas");
banque({aide: false});
egal(trace(), "pas d'aide", "plus d'aide");
banque({});
egal(trace(), "chargée", "une banque vide");
fermer("FrmEssai");
vrai(appels().length > avant && fini(), "le journal dure plus que le programme");
