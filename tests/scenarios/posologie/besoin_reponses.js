// En cas de besoin : la quantité donnée, refusée, redemandée.
installer();
vider("Medoc", "BddMed");
ajouter("Medoc", "BddMed", [1, null, null, null, "1 matin*", "AMLOR"]);
ajouter("Medoc", "BddMed", [2, null, null, null, null, "DOLIPRANE 1000 MG"]);
clic("FrmDepart.CmdNO");
clic("FrmOrdo.CmdPharma");

const P = "FrmPoso.TxtPoso";
const BESOIN = "Inscrire la quantité de la forme pharmaceutique choisie,\n à prendre en cas de besoin :";
function c(i) { return "FrmPoso.CboP(" + i + ")"; }
function actifs() { return [0, 1, 2, 3, 4, 5, 6, 7].map(function (i) { return actif(c(i)) ? 1 : 0; }).join(""); }
function textes() { return [0, 1, 2, 3, 4, 5, 6, 7].map(function (i) { return texte(c(i)); }); }
function ouvre(noeud) { clic("FrmMedoc.TV", noeud); clic("FrmMedoc.LblPoso"); vrai(ouverte("FrmPoso"), "FrmPoso ouverte"); }
function prompte(texteAttendu, reponse) {
    const b = boite();
    egal(b.genre, "saisie", "une saisie");
    egal(b.titre, "Quantité", "titre");
    egal(b.texte, texteAttendu, "texte de la question");
    egal(b.valeur, "1", "défaut 1");
    repondre(reponse);
}

ouvre(1);
choisir(c(0), 0); choisir(c(1), 3); choisir(c(3), 3); choisir(c(7), 0);
choisir(c(5), 0);
prompte(BESOIN, "2");
egal(texte(P), "2  comprimé(s) , en cas de besoin (max X par jour),  pendant 5 jours", "A, R vide");
egal(actifs(), "10000111", "1 à 4 inactifs");
egal(textes().slice(1, 5), ["", "", "", ""], "1 à 4 vides");
egal(valeur("TexteQuantite"), "2", "TexteQuantite");
choisir(c(6), 0);
aucuneBoite();
egal(texte(P), "2  comprimé(s) , en cas de besoin (max X par jour), tous les jours, pendant 5 jours", "B");
saisir(c(7), "");
egal(texte(P), "2  comprimé(s) , en cas de besoin (max X par jour), tous les jours, ", "B ne coupe pas");
choisir(c(0), 3);
egal(texte(P), "2  gélule(s) , en cas de besoin (max X par jour), tous les jours, ", "B par la forme");
egal(actifs(), "10000111", "B : 1 à 4 inactifs");
saisir(c(6), "");
egal(texte(P), "2  gélule(s) , en cas de besoin (max X par jour),  ", "B sans R ni D");
saisir(c(0), "");
egal(texte(P), "2   , en cas de besoin (max X par jour),  ", "B sans F");
choisir(c(0), 0);
// de nouveau
choisir(c(5), 0);
prompte(BESOIN, "3");
egal(texte(P), "3  comprimé(s) , en cas de besoin (max X par jour)", "la question revient, virgule coupée");
// annulée : 1 à 4 actifs, 5 vide, texte gardé
choisir(c(5), 0);
prompte(BESOIN, null);
egal(actifs(), "11111111", "tout actif");
egal(texte(c(5)), "", "5 vide");
egal(texte(P), "3  comprimé(s) , en cas de besoin (max X par jour)", "TxtPoso reste");
egal(valeur("TexteQuantite"), "3", "TexteQuantite reste");
choisir(c(1), 3);
egal(texte(P), "1  comprimé(s)  le matin", "retour à E");
choisir(c(5), 0);
prompte(BESOIN, "");
egal(texte(P), "1  comprimé(s)  le matin", "vide vaut Annuler, TxtPoso reste");
egal(actifs(), "11111111", "tout actif");
egal(texte(c(5)), "", "5 vide");
egal(textes().slice(1, 5), ["", "", "", ""], "1 à 4 vidés");
// de besoin à un repas
choisir(c(5), 0);
prompte(BESOIN, "1/2");
choisir(c(5), 2);
egal(actifs(), "11111111", "un autre moment les rend");
egal(texte(P), "au début des repas", "E");
// tapé lettre à lettre
saisir(c(5), "");
taper(c(5), "en cas de besoin,");
prompte(BESOIN, "4");
egal(texte(P), "4  comprimé(s) , en cas de besoin (max X par jour)", "tapé à la main");
aucuneBoite();
// au bouton
choisir(c(6), 0);
egal(texte(P), "4  comprimé(s) , en cas de besoin (max X par jour), tous les jours, ", "B");
clic("FrmPoso.CmdQuitter");
egal(texte("FrmMedoc.TxtPoso"), "4  comprimé(s) , en cas de besoin (max X par jour), tous les jours", "le bouton coupe");
// la quantité survit à la fermeture
clic("FrmMedoc.LblPoso");
egal(valeur("TexteQuantite"), "4", "TexteQuantite survit");
clic("FrmPoso.CmdAnnule");
