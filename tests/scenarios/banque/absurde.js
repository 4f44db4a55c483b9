// Une banque qui répond n'importe quoi : rien ne s'arrête, rien d'inventé n'est montré.
banque({packs: [{cip: "1", id: 1, produit: 101, nom: "DOL"}]});
const sansFin = {count: 2147483647, element: {id: 1, nom: null, cip: null, prix: NaN, type: 99, groupe: {id: 1}, gravite: -5}};
const texte1252 = "A\u0081\u0001\u00ff";
__reponsesBanque({
    recherche: {VIDE: {packs: {count: -1}}, NUL: {packs: [null, {nom: null, cip: null, id: -1, produit: 2147483647, prix: NaN}]},
        "*": {packs: {count: 2147483647, element: {nom: texte1252, cip: texte1252, id: 1, produit: 101, prix: Infinity}}}},
    documents: {"*": sansFin}, mono: {}, dci: {"*": {nom: texte1252 + ";;*;"}},
    groupes: {"*": sansFin}, produits: {"*": {count: -2147483648}}, packs: {"*": sansFin},
    interactions: {"*": {couples: {count: -1}, inconnus: sansFin}}
});
installer();
clic("FrmDepart.mnuBase");
clic("FrmOptions.OptB(1)");
clic("FrmOptions.CmdOK(3)");
clic("FrmDepart.CmdNO");
clic("FrmOrdo.CmdPharma");
cocher("FrmMedoc.ChkMono", true);

function cherche(nom) {
    saisir("FrmMedoc.TxtCherche", nom);
    touche("FrmMedoc.TxtCherche", "Entree");
    return lignes("FrmMedoc.TV");
}

egal(cherche("VIDE"), [], "un nombre négatif de présentations");
egal(cherche("NUL"), [""], "une présentation sans nom");
clic("FrmMedoc.TV", 0);
aucuneBoite();
egal(cherche("TOUT").length, 50, "une page de ce qui n'a pas de fin");
cocher("FrmMedoc.ChkDCI", true);
clic("FrmMedoc.TV", 0);
aucuneBoite();
contient(texte("FrmMedoc.TxtMedoc"), "ÿ".toUpperCase(), "le nom, tel quel");
clic("FrmMedoc.CmdAjouter1");
contient(valeur("RapportInteractions"), "La banque n'a pas donné toutes les interactions.", "ce qui manque n'est pas tu");
egal(fuites(), [], "tout est rendu");
banque({packs: []});
__reponsesBanque({recherche: {}, documents: {}, dci: {}, groupes: {}, interactions: {}});
clic("FrmMedoc.CmdClear");
aucuneBoite();
