// Les médicaments déjà prescrits ressortent dans l'arbre, jusqu'à ce qu'on les démarque.
banque({packs: [
    {cip: "3400930000011", id: 11, produit: 101, nom: "DOLIPRANE & CO", prix: 1.16},
    {cip: "0000123456789", id: 12, produit: 102, nom: "DOLIRHUME", prix: 0}
]});
installer();
clic("FrmDepart.mnuBase");
clic("FrmOptions.OptB(1)");
cocher("FrmOptions.ChKMedU", true);
clic("FrmOptions.CmdOK(3)");
clic("FrmDepart.CmdNO");
clic("FrmOrdo.CmdPharma");
function cherche() {
    saisir("FrmMedoc.TxtCherche", "DOL");
    touche("FrmMedoc.TxtCherche", "Entree");
}
function relief(rang) {
    const vu = aspect("FrmMedoc.TV", rang);
    return [vu.gras, vu.couleur, vu.fond];
}
const normal = [false, 0, 16777215];

cherche();
egal(relief(0), normal, "jamais prescrit");
clicDroit("FrmMedoc.TV", 0);
egal(texte("FrmMedoc.mnuDemark"), "Marquer comme utilisation non fréquente", "rien n'est proposé");
doubleClic("FrmMedoc.TV", 0);
doubleClic("FrmMedoc.TV", 1);
egal(table("Medoc", "MedUtile"), [["3400930000011"], ["123456789"]], "les codes, tels que l'arbre les porte");
egal(relief(0), normal, "à la recherche suivante seulement");
cherche();
egal(relief(0), [true, 3 + 256 * 75 + 65536 * 162, 249 + 256 * 237 + 65536 * 160], "il ressort");
egal(relief(1), normal, "un code à zéros n'est pas retrouvé");
clicDroit("FrmMedoc.TV", 0);
egal(texte("FrmMedoc.mnuDemark"), "Marquer DOLIPRANE & CO comme utilisation non fréquente ?", "le nom entier");
clic("FrmMedoc.mnuDemark");
egal(relief(0), normal, "démarqué");
egal(table("Medoc", "MedUtile"), [["123456789"]], "et oublié");
doubleClic("FrmMedoc.TV", 0);
cherche();
vrai(relief(0)[0], "prescrit encore, il ressort de nouveau");
capture("relief");
