// A memorised prescription of an old version: its codes are never taken for products.
banque({
    packs: [{cip: "3400930000011", id: 11, produit: 101, nom: "ASPEGIC", prix: 2},
        {cip: "3400930000028", id: 12, produit: 102, nom: "PREVISCAN", prix: 4},
        {cip: "3400999999999", id: 13, produit: 930000099, nom: "AUTRE PRODUIT", prix: 4}],
    interactions: [{a: 101, b: 102, gravite: 2, risque: "Saignement."}]
});
installer();
ecrire(valeur("CheminMedecin") + "/Base.cfg", '"TVS",0,2\r\n');
clic("FrmDepart.CmdQuitter");
lancer();
clic("FrmChoixBase.CmdSuite");
ajouter("Medoc", "ListeOrdos", ["Vieille", "*", 0, "0"]);
ajouter("Medoc", "OrdoEnr", ["Vieille", "ASPEGIC", "1", 1, "*", "0", "3400930000011", 0]);
ajouter("Medoc", "OrdoEnr", ["Vieille", "DISPARU", "1", 1, "*", "0", "3400930000099", 0]);
ajouter("Medoc", "OrdoEnr", ["Vieille", "PREVISCAN", "1", 1, "*", "0", 102, 1]);
ajouter("Medoc", "ListeOrdos", ["Ancienne", "*", 0, "0"]);
ajouter("Medoc", "OrdoEnr", ["Ancienne", "ASPEGIC", "1", 1, "*", "0", "3400930000011", 0]);
ajouter("Medoc", "OrdoEnr", ["Ancienne", "DISPARU", "1", 1, "*", "0", "3400930000099", 0]);
ajouter("Medoc", "OrdoEnr", ["Ancienne", "PREVISCAN", "1", 1, "*", "0", 102, 1]);
clic("FrmDepart.CmdNO");
clic("FrmOrdo.CmdPharma");
const demandes = () => appels().filter(appel => appel.nom.startsWith("InteractionService_"))
    .map(appel => appel.arguments[1]);
const rangees = titre => table("Medoc", "OrdoEnr").filter(rangee => rangee[0] === titre).map(rangee => rangee.slice(6));
function charge(rang) {
    clic("FrmMedoc.LblOrdoMem");
    doubleClic("FrmMemo.LstMemo(0)", rang);
}

charge(0);
boites([[/version 2\.0\.0/, "Non"], [/Arrêter de poser la question/, "Non"]]);
egal(demandes(), [[102]], "seul le produit est demandé");
vrai(visible("FrmMedoc.AniGIFI"), "l'image s'anime");
clic("FrmMedoc.HlbI");
contient(texte("FrmIAM.Txt"), "Interactions non vérifiées pour : ASPEGIC", "la ligne est nommée");
contient(texte("FrmIAM.Txt"), "Interactions non vérifiées pour : DISPARU", "l'autre aussi");
clic("FrmIAM.CmdFermer");

doubleClic("FrmMedoc.LstChoix1", 1);
clic("FrmMedoc.CmdAjouter1");
egal(demandes().pop(), [102, 0], "reprise et remise, elle n'est toujours pas un produit");
clic("FrmMedoc.CmdOrdo");
clic("FrmOrdo.CmdEnr");
boites([[/Enregistrer les modifications/, "Oui"]]);
egal(rangees("Vieille"), [[101, 1], [102, 1], [3400930000099, 1]], "le code connu est devenu le produit, l'autre est gardé entier");

clic("FrmOrdo.CmdPharma");
clic("FrmMedoc.CmdClear");
charge(0);
aucuneBoite();
egal(demandes().pop(), [101, 102, 0], "modifiée, la question n'est plus posée, et le code n'est pas un produit pour autant");
clic("FrmMedoc.CmdClear");
charge(1);
boites([[/version 2\.0\.0/, "Oui"], [/Modifications enregistrées/, "OK"], [/Poursuivre/, "Oui"]]);
egal(rangees("Ancienne"), [[101, 1], [3400930000099, 0], [102, 1]], "le code inconnu attend");
egal(lignes("FrmMedoc.LstChoix1"), [], "effacé, pour choisir à nouveau");
doubleClic("FrmMemo.LstMemo(0)", 1);
boites([[/version 2\.0\.0/, "Non"], [/Arrêter de poser la question/, "Oui"]]);
egal(demandes().pop(), [101, 102], "les produits");
clic("FrmMedoc.HlbI");
contient(texte("FrmIAM.Txt"), "Saignement.", "leur interaction");
contient(texte("FrmIAM.Txt"), "Interactions non vérifiées pour : DISPARU", "et ce qui n'est pas vérifié");
clic("FrmIAM.CmdFermer");

clic("FrmMedoc.CmdClear");
clic("FrmMedoc.LblOrdoMem");
clic("FrmMemo.CmdQuitter");
egal(demandes().pop(), [0], "quittée sans choix, rien n'est en main");
charge(1);
aucuneBoite();
egal(demandes().pop(), [101, 102], "arrêté, le code n'est pas un produit pour autant");
clic("FrmMedoc.CmdAnnule");
egal(fuites(), 0, "tout est rendu");
