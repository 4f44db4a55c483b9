// A code of seven digits in a memorised prescription of an old version is never taken for a product, asked about or not.
banque({
    packs: [{cip: "3400931", id: 11, produit: 101, nom: "ASPEGIC", prix: 2},
        {cip: "3400932", id: 12, produit: 102, nom: "PREVISCAN", prix: 4}],
    produitsBanque: [{id: 3400930, nom: "AUTRE PRODUIT"}],
    interactions: [{a: 3400930, b: 102, gravite: 3, risque: "D'un autre."}]
});
installer();
ecrire(valeur("CheminMedecin") + "/Base.cfg", '"TVS",0,2\r\n');
clic("FrmDepart.CmdQuitter");
lancer();
clic("FrmChoixBase.CmdSuite");
for (const [titre, id, converti] of [["DISPARU", 3400930, 0], ["ASPEGIC", 3400931, 0], ["LONG", "3400930000099", 0], ["PREVISCAN", 102, 1], ["##", 1, 0]]) {
    ajouter("Medoc", "OrdoEnr", ["Vieille", titre, "1", 1, "*", "0", id, converti]);
}
ajouter("Medoc", "ListeOrdos", ["Vieille", "*", 0, "0"]);
ajouter("Medoc", "ListeOrdos", ["Sans format", "*", 0, "0"]);
ajouter("Medoc", "OrdoEnr", ["Sans format", "NUL", "1", 1, "*", "0", 3400930, null]);
ajouter("Medoc", "ListeOrdos", ["Perdue", "*", 0, "0"]);
ajouter("Medoc", "OrdoEnr", ["Perdue", "PREVISCAN", "1", 1, "*", "0", 102, 1]);
ajouter("Medoc", "OrdoEnr", ["Perdue", "DISPARU", "1", 1, "*", "0", 3400930, 0]);
clic("FrmDepart.CmdNO");
clic("FrmOrdo.CmdPharma");
const demandes = () => appels().filter(appel => appel.nom.startsWith("InteractionService_")).map(appel => appel.arguments[1]);
const rangees = () => table("Medoc", "OrdoEnr").filter(rangee => rangee[0] === "Vieille").map(rangee => rangee.slice(6));
function charge(rang) {
    clic("FrmMedoc.CmdClear");
    clic("FrmMedoc.LblOrdoMem");
    doubleClic("FrmMemo.LstMemo(0)", rang);
}
function rapport() {
    clic("FrmMedoc.HlbI");
    const texteDuRapport = texte("FrmIAM.Txt");
    clic("FrmIAM.CmdFermer");
    return texteDuRapport;
}

charge(0);
boites([[/version 2\.0\.0/, "Non"], [/Arrêter de poser la question/, "Oui"]]);
egal(rangees(), [[3400930, 2], [3400931, 2], [3400930000099, 1], [102, 1], [1, 1]], "personne ne demande plus rien, les codes courts restent des codes");
charge(0);
aucuneBoite();
egal(demandes().pop(), [102, 0], "le code n'est pas devenu un produit");
const lu = rapport();
contient(lu, "Interactions non vérifiées pour : DISPARU", "la ligne est nommée");
faux(lu.includes("D'un autre."), "rien n'est dit d'un autre produit");

clic("FrmMedoc.CmdOrdo");
clic("FrmOrdo.CmdEnr");
boites([["Enregistrer les modifications de Vieille ?", "Oui"]]);
egal(rangees(), [[3400930, 2], [101, 1], [3400930000099, 1], [102, 1], [1, 1]], "enregistrée à nouveau, un code connu devient le produit");
clic("FrmOrdo.CmdPharma");
charge(0);
aucuneBoite();
egal(demandes().pop(), [101, 102, 0], "les produits seuls");

charge(1);
aucuneBoite();
egal(demandes().pop(), [0], "sans format du tout, ce n'est pas un produit non plus");
contient(rapport(), "Interactions non vérifiées pour : NUL", "et c'est dit");

charge(2);
boites([[/version 2\.0\.0/, "Oui"], [/ne reconnaît aucun code .*\nRien n'a été modifié/, "OK"]]);
aucuneBoite();
egal(fuites(), 0, "tout est rendu");
