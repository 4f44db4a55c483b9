// The generics of a pack, and the one chosen in its place.
banque({
    packs: [{cip: "3400930000011", id: 11, produit: 101, nom: "DOLIPRANE 1 000 mg", prix: 1.16},
        {cip: "3400930000028", id: 12, produit: 102, nom: "PARACETAMOL LABO", prix: 1},
        {cip: "3400930000035", id: 13, produit: 102, nom: "PARACETAMOL GRATUIT", prix: 0},
        {cip: "3400930000042", id: 14, produit: 103, nom: "PARACETAMOL CHER", prix: 123456.75},
        {cip: "3400930000059", id: 15, produit: 104, nom: "DOLKO SEUL", prix: 0},
        {cip: "3400930000066", id: 16, produit: 105, nom: "DOLVIDE", prix: 3}],
    groupes: [{id: 7, homogeneite: 1, produits: [101, 102, 103]}, {id: 8, produits: [105]}]
});
installer();
ecrire(valeur("CheminMedecin") + "/Base.cfg", '"TVS",0,2\r\n');
clic("FrmDepart.CmdQuitter");
lancer();
clic("FrmChoixBase.CmdSuite");
ajouter("Medoc", "Biblio", ["QSP 3 mois", null]);
clic("FrmDepart.CmdNO");
clic("FrmOrdo.CmdPharma");

function cherche(nom) {
    saisir("FrmMedoc.TxtCherche", nom);
    touche("FrmMedoc.TxtCherche", "Entree");
}
const blancs = n => " ".repeat(n);

cherche("DOLIP");
clic("FrmMedoc.HlbG");
aucuneBoite();
clic("FrmMedoc.TV", 0);
vrai(visible("FrmMedoc.AniGIFG"), "l'image s'anime");
clic("FrmMedoc.AniGIFG");
egal(titre("FrmGEN"), "   Génériques de DOLIPRANE 1 000 mg   (Prix :  1.16 €)", "la légende");
const rangs = ["", "  DOLIPRANE 1 000 mg" + blancs(10) + "1.16  €", "  PARACETAMOL LABO" + blancs(10) + "1  €",
    "  PARACETAMOL CHER" + blancs(10) + "123456.8  €"];
egal(lignes("FrmGEN.LstGen"), rangs, "un rang vide, puis ce qui a un prix");
egal(aspect("FrmGEN.LstGen", 1).police, "Courier New", "en Courier New");
capture("generiques");
clic("FrmGEN.LstGen", 2);
faux(ouverte("FrmGEN"), "un clic ferme la fenêtre");
egal(texte("FrmMedoc.TxtMedoc"), "PARACETAMOL LABO" + blancs(30), "le nom sans son prix");
vrai(visible("FrmMedoc.AniGIFG"), "la liste est remplie à nouveau");
clic("FrmMedoc.CmdAjouter1");
egal(lignes("FrmMedoc.LstChoix1"), ["  PARACETAMOL LABO" + blancs(30) + blancs(100) + "101"], "la ligne porte le produit cliqué");
faux(visible("FrmMedoc.AniGIFG"), "l'ajout arrête l'image");
clic("FrmMedoc.HlbG");
egal(lignes("FrmGEN.LstGen"), rangs, "son conditionnement resté choisi, ses génériques restent à voir");
clic("FrmGEN.CmdFermer");

clic("FrmMedoc.TV", 0);
clic("FrmMedoc.HlbG");
clic("FrmGEN.LstGen", 3);
contient(texte("FrmMedoc.TxtMedoc"), "PARACETAMOL CHER", "un prix trop long");

clic("FrmMedoc.HlbG");
clic("FrmGEN.LstGen", 0);
egal(texte("FrmMedoc.TxtMedoc"), blancs(30), "un rang vide");
clic("FrmMedoc.CmdAjouter1");
egal(valeur("OrdoZone1")[1].Titre, "", "une ligne sans titre");

clic("FrmMedoc.TV", 0);
clic("FrmMedoc.HlbG");
touche("FrmGEN.LstGen", "Echap");
egal(texte("FrmMedoc.TxtMedoc"), "DOLIPRANE 1 000 mg", "fermée sans choix");

cherche("DOLKO");
faux(visible("FrmMedoc.AniGIFG"), "chercher arrête l'image");
clic("FrmMedoc.TV", 0);
faux(visible("FrmMedoc.AniGIFG"), "aucun groupe");
clic("FrmMedoc.HlbG");
boites([["Pas de spécialité générique.", "OK"]]);

cherche("DOLIP");
clic("FrmMedoc.TV", 0);
saisir("FrmMedoc.TxtCherche", "");
clic("FrmMedoc.TV", 0);
egal(texte("FrmMedoc.TxtMedoc"), "QSP 3 mois", "une entrée personnelle");
clic("FrmMedoc.HlbG");
egal(titre("FrmGEN"), "   Génériques de  QSP 3 mois   (Prix :  1.16 €)", "parle du dernier conditionnement");
clic("FrmGEN.CmdFermer");
clic("FrmMedoc.CmdOrdo");
clic("FrmOrdo.CmdPharma");
faux(visible("FrmMedoc.AniGIFG"), "l'ordonnance créée arrête l'image");
clic("FrmMedoc.HlbG");
boites([["Pas de spécialité générique.", "OK"]]);
egal(fuites(), 0, "tout est rendu");
clic("FrmMedoc.CmdAnnule");
