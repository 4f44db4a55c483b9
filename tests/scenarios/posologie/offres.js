// En tapant une posologie : celles que le cabinet a déjà écrites pour ce médicament.
installer();
vider("Medoc", "BddMed");
ajouter("Medoc", "BddMed", [1, null, null, null, null, "DOLIPRANE 1000 MG"]);
ajouter("Medoc", "BddMed", [2, null, null, null, "9 au coucher", "AMLOR"]);
function ecrite(titre, posologie) {
    ajouter("Medoc", "OrdoEnr", ["modèle", titre, posologie, 1, "*", "0", 1, 1]);
}
ecrite("DOLIPRANE 1000 MG", "1 le soir");
ecrite("DOLIPRANE 1000 MG", "1 comprimé le matin");
ecrite("DOLIPRANE 1000 MG", "1 comprimé le matin");
ecrite("AMLOR", "5 le midi");
clic("FrmDepart.CmdNO");
clic("FrmOrdo.CmdPharma");
const poso = "FrmMedoc.TxtPoso", liste = "FrmMedoc.LstOffres";

clic("FrmMedoc.TV", "DOLIPRANE 1000 MG");
faux(visible(liste), "rien avant la première touche");
focus(poso);
faux(visible(liste), "rien au seul focus");
taper(poso, "1");
vrai(visible(liste), "une touche, et la liste vient");
egal(lignes(liste), ["1 comprimé le matin", "1 le soir"], "la plus fréquente d'abord");
egal(selection(liste), -1, "aucune n'est choisie");
capture("offres");

// Ce qui est tapé restreint, sans la casse ni les accents.
taper(poso, " COMPRIME");
egal(lignes(liste), ["1 comprimé le matin"], "restreinte");
egal(texte(poso), "1 COMPRIME", "rien n'est inséré");
touche(poso, "Entree");
egal(texte(poso), "1 COMPRIME\n", "Entrée sans choix est un passage à la ligne");
taper(poso, "x");
faux(visible(liste), "plus rien ne convient");

// Choisir avec Bas et Entrée.
saisir(poso, "");
taper(poso, "1");
touche(poso, "Bas");
egal(selection(liste), 0, "Bas choisit la première");
touche(poso, "Bas");
touche(poso, "Bas");
egal(selection(liste), 1, "puis la dernière");
touche(poso, "Entree");
egal(texte(poso), "1 le soir", "Entrée la prend");
faux(visible(liste), "la liste se ferme");
touche(poso, "Ctrl+Z");
egal(texte(poso), "1", "et se défait");

// Haut revient au texte ; Echap ne ferme que la liste.
saisir(poso, "");
taper(poso, "1");
touche(poso, "Bas");
touche(poso, "Haut");
egal(selection(liste), -1, "Haut rend la main au texte");
touche(poso, "Echap");
faux(visible(liste), "Echap ferme la liste");
vrai(ouverte("FrmMedoc"), "et elle seule");
aucuneBoite();
taper(poso, " ");
faux(visible(liste), "elle reste fermée");
saisir(poso, "");
taper(poso, "1");
vrai(visible(liste), "et revient dans une boîte vidée");

// La souris ; les boutons restent à portée.
clic(liste, 0);
egal(texte(poso), "1 comprimé le matin", "un clic la prend");
taper(poso, "x");
touche(poso, "Retour");
faux(visible(liste), "rien quand elle est déjà écrite");
saisir(poso, "");
taper(poso, "1");
clic("FrmMedoc.CmdAjouter1");
faux(visible(liste), "ajouter ferme la liste");
egal(valeur("OrdoZone1"), [{Posologie: "1", Titre: "DOLIPRANE 1000 MG"}], "ce qui est tapé est ajouté");

// Un autre médicament, les siennes ; un inconnu, aucune.
clic("FrmMedoc.TV", "AMLOR");
saisir(poso, "");
taper(poso, "9");
egal(lignes(liste), ["9 au coucher"], "celle de la pharmacie");
taper(poso, "x");
saisir(poso, "");
taper(poso, "l");
egal(lignes(liste), ["5 le midi"], "celle d'une ordonnance mémorisée");
touche(poso, "Tab");
faux(visible(liste), "quitter la boîte ferme la liste");
saisir("FrmMedoc.TxtMedoc", "INCONNU");
saisir(poso, "");
taper(poso, "1");
faux(visible(liste), "rien pour un inconnu");
saisir("FrmMedoc.TxtMedoc", "");
saisir(poso, "");
taper(poso, "5");
faux(visible(liste), "rien sans médicament");
clic("FrmMedoc.CmdAnnule");
