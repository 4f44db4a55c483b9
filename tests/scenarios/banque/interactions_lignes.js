// The interactions of the lines in hand, from the bank to the window.
const A = {cip: "3400930000011", id: 11, produit: 101, nom: "ASPEGIC 1 000 mg", prix: 2.5};
const B = {cip: "3400930000028", id: 12, produit: 102, nom: "PREVISCAN 20 mg", prix: 4};
const C = {cip: "3400930000035", id: 13, produit: 103, nom: "INCONNUMAB 5 mg", prix: 9};
banque({
    packs: [A, B, C],
    interactions: [{a: 101, b: 102, gravite: 3, classeA: "salicylés", classeB: "antivitamines K",
        risque: "Majoration du risque hémorragique.", precaution: "Ligne un.\nLigne deux."}],
    inconnus: [{id: 103, nom: "INCONNUMAB"}]
});
installer();
ecrire(valeur("CheminMedecin") + "/Base.cfg", '"TVS",1,2\r\n');
clic("FrmDepart.CmdQuitter");
lancer();
clic("FrmChoixBase.CmdSuite");
clic("FrmDepart.CmdNO");
clic("FrmOrdo.CmdPharma");
egal(valeur("TypeBase"), "TVS", "la banque est choisie");

const aucune = nombre => "\n".repeat(6) + " ".repeat(nombre) + "AUCUNE  INTERACION  MEDICAMENTEUSE  DANS  L'ORDONNANCE !";
const demandes = () => appels().filter(appel => appel.nom.startsWith("InteractionService_"))
    .map(appel => appel.arguments.slice(1));
function ajouteLe(nom, bouton) {
    saisir("FrmMedoc.TxtCherche", nom);
    touche("FrmMedoc.TxtCherche", "Entree");
    clic("FrmMedoc.TV", 0);
    clic(bouton || "FrmMedoc.CmdAjouter1");
}
function rapport(controle) {
    clic(controle);
    const montre = texte("FrmIAM.Txt").replace(/\r\n/g, "\n");
    clic("FrmIAM.CmdFermer");
    return montre;
}

clic("FrmMedoc.CmdAjouter1");
egal(demandes(), [], "sans médicament, rien n'est demandé");
ajouteLe("ASPE");
egal(demandes(), [[[101], 1, 1]], "le produit de la ligne, au niveau choisi");
faux(visible("FrmMedoc.AniGIFI"), "rien à voir");
egal(rapport("FrmMedoc.HlbI"), aucune(9), "le panneau le dit");
contient(valeur("RapportInteractions"), "AUCUNE", "et le texte reste");
clic("FrmMedoc.CmdSaut");
egal(demandes().length, 1, "un saut ne demande rien");

ajouteLe("PREV");
egal(demandes()[1], [[101, 102], 2, 1], "le saut n'est pas un produit");
vrai(visible("FrmMedoc.AniGIFI"), "l'image s'anime");
egal(rapport("FrmMedoc.AniGIFI"),
    "        1- : ASPEGIC 1 000 mg\n        salicylés\n\n        2- : PREVISCAN 20 mg\n        antivitamines K\n\n" +
    "Niveau d'interaction :  Association contre-indiquée\n----------------------------\n\n" +
    "Type de risque :   \n---------------------\nMajoration du risque hémorragique.\n\n" +
    "Commentaires sur les précautions: \n-----------------------------------------------\n" +
    "Ligne un.\n\nLigne deux.\n\n\n" +
    "<<<<<  ----------------------------------------------------------------------------------------------------------  >>>>>\n\n\n",
    "le couple");
capture("interactions");

ajouteLe("INCO");
contient(rapport("FrmMedoc.HlbI"), "unknown product interactions:\n\n product name: INCONNUMAB\n", "un produit inconnu de la banque");

doubleClic("FrmMedoc.LstChoix1", 0);
egal(demandes().pop()[0], [102, 103], "une ligne reprise n'est plus là");
clic("FrmMedoc.CmdAjouter1");
egal(demandes().pop()[0], [102, 103, 101], "remise, elle est la dernière");
contient(lignes("FrmMedoc.LstChoix1").pop(), " ".repeat(200) + "101", "avec son identifiant");

cocher("FrmMedoc.ChkALD", true);
saisir("FrmMedoc.TxtCherche", "");
const avant = demandes().length;
clic("FrmMedoc.LstChoix1", 3);
glisser("FrmMedoc.LstChoix1", 3, "FrmMedoc.LstChoix2");
egal(lignes("FrmMedoc.LstChoix2").length, 1, "passée dans l'autre zone");
egal(demandes().length, avant, "passer une ligne ne demande rien");
ajouteLe("ASPE", "FrmMedoc.CmdAjouter2");
egal(demandes().pop()[0], [102, 103, 101, 101], "la première zone, puis l'autre");

clic("FrmMedoc.CmdClear");
egal(demandes().pop(), [[0], 1, 1], "sans ligne, un seul zéro");
egal(valeur("RapportInteractions"), "", "plus de rapport");
faux(visible("FrmMedoc.AniGIFI"), "plus rien à voir");
egal(fuites(), 0, "tout est rendu");
clic("FrmMedoc.CmdAnnule");
