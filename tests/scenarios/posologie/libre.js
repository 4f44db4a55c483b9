// N'importe quand : la quantité donnée, refusée, redemandée.
installer();
vider("Medoc", "BddMed");
ajouter("Medoc", "BddMed", [1, null, null, null, "1 matin*", "AMLOR"]);
ajouter("Medoc", "BddMed", [2, null, null, null, null, "DOLIPRANE 1000 MG"]);
clic("FrmDepart.CmdNO");
clic("FrmOrdo.CmdPharma");

const P = "FrmPoso.TxtPoso";
const BESOIN = "Inscrire la quantité de la forme pharmaceutique choisie,\n à prendre en cas de besoin :";
const LIBRE = "Inscrire la quantité de la forme pharmaceutique choisie,\n à prendre au moment voulu de la journée :";
const CRENEAU = "toujours dans le même créneau horaire que vous pouvez choisir librement";
function c(i) { return "FrmPoso.CboP(" + i + ")"; }
function actifs() { return [0, 1, 2, 3, 4, 5, 6, 7].map(function (i) { return actif(c(i)) ? 1 : 0; }).join(""); }
function textes() { return [0, 1, 2, 3, 4, 5, 6, 7].map(function (i) { return texte(c(i)); }); }
function ouvre(noeud) { clic("FrmMedoc.TV", noeud); clic("FrmMedoc.LblPoso"); vrai(ouverte("FrmPoso"), "FrmPoso ouverte"); }
function rouvre() { clic("FrmPoso.CmdAnnule"); clic("FrmMedoc.LblPoso"); }
function prompte(texteAttendu, reponse) {
    const b = boite();
    egal(b.genre, "saisie", "une saisie");
    egal(b.titre, "Quantité", "titre");
    egal(b.texte, texteAttendu, "texte de la question");
    egal(b.valeur, "1", "défaut 1");
    repondre(reponse);
}

ouvre(1);
choisir(c(0), 0); choisir(c(2), 3);
choisir(c(5), 7);
prompte(LIBRE, "2");
egal(texte(P), "2 comprimé(s) , " + CRENEAU, "C, R vide");
egal(actifs(), "10000111", "1 à 4 inactifs");
egal(textes().slice(1, 5), ["", "", "", ""], "1 à 4 vides");
choisir(c(7), 0);
egal(texte(P), "2 comprimé(s) , " + CRENEAU + ",  pendant 5 jours", "D, durée");
choisir(c(6), 1);
egal(texte(P), "2 comprimé(s) tous les 2 jours, " + CRENEAU + ",  pendant 5 jours", "D, R");
saisir(c(7), "");
egal(texte(P), "2 comprimé(s) tous les 2 jours, " + CRENEAU + ",  ", "D ne coupe pas");
saisir(c(6), "");
egal(texte(P), "2 comprimé(s) , " + CRENEAU + ",  ", "D sans R");
saisir(c(0), "");
egal(texte(P), "2  , " + CRENEAU + ",  ", "D sans F");
choisir(c(0), 1); choisir(c(6), 0);
choisir(c(5), 7);
prompte(LIBRE, "5");
egal(texte(P), "5 comprimé(s) eff. tous les jours, " + CRENEAU, "la question revient");
choisir(c(5), 7);
prompte(LIBRE, null);
egal(actifs(), "11111111", "tout actif");
egal(texte(c(5)), "", "5 vide");
egal(valeur("TexteQuantite"), "5", "TexteQuantite reste");
choisir(c(5), 7);
prompte(LIBRE, "");
egal(actifs(), "11111111", "vide : tout actif");
egal(texte(c(5)), "", "5 vide");
// de quand à besoin
choisir(c(5), 7);
prompte(LIBRE, "6");
choisir(c(5), 0);
prompte(BESOIN, "7");
egal(texte(P), "7  comprimé(s) eff. , en cas de besoin (max X par jour), tous les jours", "de l'un à l'autre");
choisir(c(5), 7);
prompte(LIBRE, "8");
egal(texte(P), "8 comprimé(s) eff. tous les jours, " + CRENEAU, "et retour");
egal(actifs(), "10000111", "toujours inactifs");
rouvre();
egal(actifs(), "11111111", "réouverture : tout actif");
egal(textes(), ["", "", "", "", "", "", "", ""], "réouverture : vide");
aucuneBoite();
clic("FrmPoso.CmdAnnule");
