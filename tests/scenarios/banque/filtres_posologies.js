// La fenêtre en mode banque : ce qu'elle montre, les filtres, la posologie gardée d'une présentation.
banque({packs: [
    {cip: "3400930000011", id: 11, produit: 101, nom: "DOLIPRANE", prix: 1.16},
    {cip: "3400930000059", id: 15, produit: 105, nom: "DOLKO", prix: 3}
]});
installer();
clic("FrmDepart.mnuBase");
clic("FrmOptions.OptB(1)");
clic("FrmOptions.CmdOK(3)");
vider("Medoc", "Biblio");
ajouter("Medoc", "Biblio", ["Repos", "x"]);
ajouter("Medoc", "Vidal", ["3400930000011", "1 cp le matin"]);
clic("FrmDepart.CmdNO");
clic("FrmOrdo.CmdPharma");
for (const nom of ["Lbl1", "Lbl2", "Lbl5", "CmdCopyright", "CmdPerso", "CmdVD", "LblDatExp", "HlbG", "HlbI", "ChkMono", "Lblmono", "ChkDCI", "lblDCI"]) {
    vrai(visible("FrmMedoc." + nom), nom);
}
faux(visible("FrmMedoc.PctCherch"), "rien à chercher encore");
egal([texte("FrmMedoc.CmdModifier"), actif("FrmMedoc.CmdNouveau"), actif("FrmMedoc.CmdRetire")], ["Enregistrer posologie", false, false], "les boutons");
const recherches = () => appels().filter(appel => appel.nom.startsWith("PackService_searchByName")).map(appel => appel.arguments.slice(1));
function cherche(nom) {
    saisir("FrmMedoc.TxtCherche", nom);
    touche("FrmMedoc.TxtCherche", "Entree");
}

taper("FrmMedoc.TxtCherche", "do");
egal([texte("FrmMedoc.TxtCherche"), visible("FrmMedoc.PctCherch")], ["DO", false], "deux lettres, en capitales");
taper("FrmMedoc.TxtCherche", "l");
egal([visible("FrmMedoc.PctCherch"), recherches().length], [true, 0], "la troisième ne cherche pas encore");
clic("FrmMedoc.PctCherch");
egal(recherches(), [["DOL", [0, 6, 0], 2, [0, 3, 5], 2, 1, 50]], "les pages Vidal");
clic("FrmMedoc.mnu128");
egal(recherches().slice(1), [["DOL", [1, 3, 4, 5, 6, 7], 5, [0, 3, 5], 2, 1, 50]], "les pages Saumon, avec l'ancien texte");
egal([texte("FrmMedoc.TxtCherche"), lignes("FrmMedoc.TV")], ["", [" Repos"]], "puis la pharmacie personnelle");
clic("FrmMedoc.mnu255");
egal(recherches().length, 2, "sans texte, rien n'est demandé");
egal(["mnu64", "mnu128", "mnu255"].map(nom => Number(coche("FrmMedoc." + nom))), [0, 0, 1], "une seule coche");
cherche("DOL");
egal(recherches().pop().slice(1, 3), [[0, 1, 3, 4, 5, 6, 7], 6], "toutes");

clic("FrmMedoc.TV", 0);
egal(texte("FrmMedoc.TxtPoso"), "1 cp le matin", "la posologie gardée");
clic("FrmMedoc.TV", 1);
egal(texte("FrmMedoc.TxtPoso"), "", "aucune");
clic("FrmMedoc.CmdModifier");
egal([boite().genre, boite().boutons], ["question", ["Oui", "Non"]], "une posologie vide est demandée");
boites([["La posologie n'est pas renseignée.\n\nVoulez-vous continuer ?", "Non"]]);
aucuneBoite();
saisir("FrmMedoc.TxtPoso", "2 cp");
clic("FrmMedoc.CmdModifier");
boites([["Modifications enregistrées !", "OK"]]);
clic("FrmMedoc.TV", 0);
saisir("FrmMedoc.TxtPoso", "");
clic("FrmMedoc.CmdModifier");
boites([[/n'est pas renseignée/, "Oui"], ["Modifications enregistrées !", "OK"]]);
egal(table("Medoc", "Vidal"), [["3400930000011", ""], ["3400930000059", "2 cp"]], "remplacée, puis ajoutée");
