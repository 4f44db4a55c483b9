// Ctrl+Z rend ce qui était tapé à la main quand un choix recompose.
installer();
vider("Medoc", "BddMed");
ajouter("Medoc", "BddMed", [1, null, null, null, "1 matin*", "AMLOR"]);
ajouter("Medoc", "BddMed", [2, null, null, null, null, "DOLIPRANE 1000 MG"]);
clic("FrmDepart.CmdNO");
clic("FrmOrdo.CmdPharma");

const P = "FrmPoso.TxtPoso";
const BESOIN = "Inscrire la quantité de la forme pharmaceutique choisie,\n à prendre en cas de besoin :";
function c(i) { return "FrmPoso.CboP(" + i + ")"; }
function ouvre(noeud) { clic("FrmMedoc.TV", noeud); clic("FrmMedoc.LblPoso"); vrai(ouverte("FrmPoso"), "FrmPoso ouverte"); }
function prompte(texteAttendu, reponse) {
    const b = boite();
    egal(b.genre, "saisie", "une saisie");
    egal(b.titre, "Quantité", "titre");
    egal(b.texte, texteAttendu, "texte de la question");
    egal(b.valeur, "1", "défaut 1");
    repondre(reponse);
}

ouvre(0);
taper(P, "texte à moi");
const main = texte(P);
choisir(c(0), 0); choisir(c(1), 3); choisir(c(5), 0);
prompte(BESOIN, null);
focus(P);
let n = 0;
while (texte(P) !== main && n < 10) { touche(P, "Ctrl+Z"); ++n; }
egal(texte(P), main, "retrouvé en " + n);
taper(P, " max 3");
const gardee = texte(P);
choisir(c(1), 3); focus(P); taper(P, " corrigée");
const corrigee = texte(P);
choisir(c(5), 7);
boite(); repondre(null);
egal(texte(P), corrigee, "sans quantité, ce qui est corrigé à la main reste tel quel");
saisir(P, gardee);
const deux = texte(P);
taper(c(5), "au lever du soleil");
n = 0; focus(P);
while (texte(P) !== deux && n < 40) { touche(P, "Ctrl+Z"); ++n; }
egal(texte(P), deux, "retrouvé en " + n);

// Le curseur est encore dans la liste : Ctrl+Z y défait le choix, lui aussi.
saisir(P, "encore à moi");
choisir(c(6), 0);
different(texte(P), "encore à moi", "le choix recompose");
touche(c(6), "Ctrl+Z");
egal(texte(P), "encore à moi", "et se défait sans quitter la liste");
clic("FrmPoso.CmdAnnule");
