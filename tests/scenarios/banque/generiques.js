// Les génériques : un groupe sans prix donne une rangée vide et allume l'animation.
banque({
    packs: [{cip: "1", id: 1, produit: 101, nom: "DOLPRIX", prix: 2.5}, {cip: "2", id: 2, produit: 102, nom: "DOLCOPIE", prix: 1.16},
        {cip: "3", id: 3, produit: 103, nom: "DOLGRATUIT", prix: 0}, {cip: "4", id: 4, produit: 104, nom: "DOLSEUL", prix: 3}],
    groupes: [{id: 7, homogeneite: 1, produits: [101, 102]}, {id: 8, homogeneite: 0, produits: [103]}]
});
installer();
clic("FrmDepart.mnuBase");
clic("FrmOptions.OptB(1)");
clic("FrmOptions.CmdOK(3)");
clic("FrmDepart.CmdNO");
clic("FrmOrdo.CmdPharma");
saisir("FrmMedoc.TxtCherche", "DOL");
touche("FrmMedoc.TxtCherche", "Entree");

clic("FrmMedoc.TV", "DOLPRIX");
egal(lignes("FrmGEN.LstGen"), ["", "  DOLPRIX          2.5  €", "  DOLCOPIE          1.16  €"], "le groupe, puis ce qui a un prix");
vrai(visible("FrmMedoc.AniGIFG"), "l'animation");
clic("FrmMedoc.TV", "DOLGRATUIT");
egal(lignes("FrmGEN.LstGen"), [""], "rien n'a de prix");
vrai(visible("FrmMedoc.AniGIFG"), "l'animation tout de même");
const noms = appels().map(appel => appel.nom).filter(nom => !/^(StringLength|CopyString)/.test(nom));
egal(noms.slice(noms.lastIndexOf("GenericGroupService_searchByProductId"), noms.lastIndexOf("ProductGenericGroupList_release") + 1), [
    "GenericGroupService_searchByProductId", "ProductGenericGroupList_getCount", "ProductGenericGroupList_getItem",
    "ProductGenericGroup_getGenericGroup", "GenericGroup_getId", "GenericGroup_getActiveExcipientHomogeneity",
    "GenericGroup_release", "ProductGenericGroup_release", "ProductService_searchByGenericGroupId",
    "ProductList_getCount", "ProductList_getItem", "Product_getId", "PackService_searchByProductId", "PackList_getCount",
    "PackList_getItem", "Pack_getName", "Pack_getPublicPrice", "Pack_release", "PackList_release", "Product_release",
    "ProductList_release", "ProductGenericGroupList_release"
], "la banque est parcourue dans l'ordre");
clic("FrmMedoc.TV", "DOLSEUL");
egal(lignes("FrmGEN.LstGen"), [], "sans groupe");
faux(visible("FrmMedoc.AniGIFG"), "sans animation");
egal(fuites(), [], "tout est rendu");
