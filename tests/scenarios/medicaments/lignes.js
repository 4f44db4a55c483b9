// Les lignes de l'ordonnance : ajouter, montrer, reprendre, déplacer, compter.
installer();
vider("Medoc", "BddMed");
ajouter("Medoc", "BddMed", [1, null, null, null, "1 matin*", "AMLOR"]);
ajouter("Medoc", "BddMed", [2, null, null, null, "2 le soir", "DOLIPRANE"]);
ajouter("Medoc", "BddMed", [3, null, null, null, null, "METFORMINE"]);
clic("FrmDepart.CmdNO");
clic("FrmOrdo.CmdPharma");

function rangee(titre, blancs) {
    return "  " + titre + " ".repeat(blancs) + "1";
}

// Une ordonnance vide.
clic("FrmMedoc.CmdOrdo");
boites([["Aucun médicament n'a été choisi !", "OK"]]);
faux(ouverte("FrmMedoc"), "et l'éditeur vient tout de même");
clic("FrmOrdo.CmdPharma");

// Sans nœud, rien ; avec un nœud, ce qui est tapé.
touche("FrmMedoc.TxtCherche", "Entree");
saisir("FrmMedoc.TxtMedoc", "A LA MAIN");
clic("FrmMedoc.CmdAjouter1");
egal(texte("FrmMedoc.TxtMedoc"), "", "sans nœud le nom est vidé");
egal(lignes("FrmMedoc.LstChoix1"), [], "rien n'est ajouté");
clic("FrmMedoc.TV", 0);
saisir("FrmMedoc.TxtMedoc", " A LA MAIN ");
clic("FrmMedoc.CmdAjouter1");
egal(lignes("FrmMedoc.LstChoix1"), [rangee(" A LA MAIN ", 100)], "deux blancs, le texte, cent blancs, 1");
egal(donnees("FrmMedoc.LstChoix1"), [0], "l'indice de la ligne");
egal(texte("FrmMedoc.TxtPoso"), "", "les cadres sont vidés");
faux(actif("FrmMedoc.CmdModifier"), "CmdModifier est inactif");
egal(valeur("NoeudChoisi"), 100, "aucun nœud");
clic("FrmMedoc.CmdAjouter1");
egal(lignes("FrmMedoc.LstChoix1").length, 1, "un second clic n'ajoute rien");

// Un double clic ajoute.
doubleClic("FrmMedoc.TV", 1);
doubleClic("FrmMedoc.TV", 2);
egal(lignes("FrmMedoc.LstChoix1").length, 3, "trois lignes");

// Appuyer montre seulement.
clic("FrmMedoc.LstChoix1", 1);
egal(texte("FrmMedoc.TxtMedoc"), "DOLIPRANE", "la ligne montrée");
egal(texte("FrmMedoc.TxtPoso"), "2 le soir", "sa posologie");
faux(actif("FrmMedoc.CmdModifier"), "CmdModifier est inactif");
vrai(visible("FrmMedoc.ImgUp") && visible("FrmMedoc.ImgDown"), "les deux flèches");
clic("FrmMedoc.CmdAjouter1");
egal(lignes("FrmMedoc.LstChoix1").length, 3, "pas de double");

// Déplacer.
clic("FrmMedoc.LstChoix1", 0);
faux(visible("FrmMedoc.ImgUp"), "la première ne monte pas");
clic("FrmMedoc.ImgDown");
egal(donnees("FrmMedoc.LstChoix1"), [1, 0, 2], "elle est descendue");
egal(selection("FrmMedoc.LstChoix1"), 1, "elle reste choisie");
clic("FrmMedoc.ImgDown");
faux(visible("FrmMedoc.ImgDown"), "la dernière ne descend pas");
clic("FrmMedoc.ImgUp");
clic("FrmMedoc.ImgUp");
egal(donnees("FrmMedoc.LstChoix1"), [0, 1, 2], "elle est remontée");
clic("FrmMedoc.TV", 0);
faux(visible("FrmMedoc.ImgUp") || visible("FrmMedoc.ImgDown"), "l'arbre cache les flèches");
egal(selection("FrmMedoc.LstChoix1"), -1, "et la sélection");

// Reprendre, remettre : la dernière, deux cents blancs, le même indice.
doubleClic("FrmMedoc.LstChoix1", 1);
egal(texte("FrmMedoc.TxtMedoc"), "DOLIPRANE", "la ligne reprise");
egal(lignes("FrmMedoc.LstChoix1").length, 2, "elle a quitté la liste");
saisir("FrmMedoc.TxtPoso", "3 le soir");
clic("FrmMedoc.CmdAjouter1");
egal(lignes("FrmMedoc.LstChoix1")[2], rangee("DOLIPRANE", 200), "deux cents blancs");
egal(donnees("FrmMedoc.LstChoix1"), [0, 2, 1], "son indice");
clic("FrmMedoc.LstChoix1", 2);
egal(texte("FrmMedoc.TxtPoso"), "3 le soir", "la posologie corrigée");

// Le saut de ligne et le dièse seul.
clic("FrmMedoc.CmdSaut");
egal(lignes("FrmMedoc.LstChoix1")[3], rangee("#", 300), "trois cents blancs");
clic("FrmMedoc.LstChoix1", 3);
egal(texte("FrmMedoc.TxtMedoc"), "#", "un saut se montre #");
clic("FrmMedoc.TV", 0);
saisir("FrmMedoc.TxtMedoc", "#");
clic("FrmMedoc.CmdAjouter1");
clic("FrmMedoc.TV", 0);
saisir("FrmMedoc.TxtMedoc", "QSP 3 mois#");
clic("FrmMedoc.CmdAjouter1");

// Reprendre et abandonner : la ligne n'est plus sur la page.
doubleClic("FrmMedoc.LstChoix1", 1);
saisir("FrmMedoc.TxtCherche", "X");
egal(lignes("FrmMedoc.LstChoix1").length, 5, "la ligne abandonnée est partie");

clic("FrmMedoc.CmdOrdo");
aucuneBoite();
egal(valeur("NbMedZone1"), 2, "deux médicaments comptés");
egal(valeur("ModeApercu"), 0, "une ordonnance");
const textes = feuille("FrmOrdo.PctOrdo").filter(function (item) { return item.genre === "texte"; })
    .map(function (item) { return item.texte; }).join("|");
contient(textes, "A LA MAIN", "la ligne est peinte");
contient(textes, "QSP 3 mois", "le titre sans numéro aussi");
faux(/#/.test(textes), "aucun dièse n'est peint");
faux(/METFORMINE/.test(textes), "la ligne abandonnée n'est pas peinte");

// Revenir : les lignes sont là.
clic("FrmOrdo.CmdPharma");
egal(lignes("FrmMedoc.LstChoix1").length, 5, "les lignes restent");
