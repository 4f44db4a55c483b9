// L'ouverture de la composition : le refus sans médicament, les listes, l'état, ce qui revient.
installer();
vider("Medoc", "BddMed");
ajouter("Medoc", "BddMed", [1, null, null, null, "1 matin*", "AMLOR"]);
ajouter("Medoc", "BddMed", [2, null, null, null, null, "DOLIPRANE 1000 MG"]);
clic("FrmDepart.CmdNO");
clic("FrmOrdo.CmdPharma");

const P = "FrmPoso.TxtPoso";
const LIBRE = "Inscrire la quantité de la forme pharmaceutique choisie,\n à prendre au moment voulu de la journée :";
function c(i) { return "FrmPoso.CboP(" + i + ")"; }
function actifs() { return [0, 1, 2, 3, 4, 5, 6, 7].map(function (i) { return actif(c(i)) ? 1 : 0; }).join(""); }
function textes() { return [0, 1, 2, 3, 4, 5, 6, 7].map(function (i) { return texte(c(i)); }); }
function ouvre(noeud) { clic("FrmMedoc.TV", noeud); clic("FrmMedoc.LblPoso"); vrai(ouverte("FrmPoso"), "FrmPoso ouverte"); }
function rouvre() { clic("FrmPoso.CmdAnnule"); clic("FrmMedoc.LblPoso"); }

clic("FrmMedoc.LblPoso");
const b = boite();
egal(b.texte, "Sélectionnez un médicament !", "refus");
egal(b.boutons, ["OK"], "OK seul");
repondre("OK");
faux(ouverte("FrmPoso"), "rien d'autre");
egal(texte("FrmMedoc.LblPoso"), "Ajouter une Posologie", "LblPoso");
ouvre(0);
egal(texte("FrmPoso.LblNomMed"), "AMLOR", "le nom");
egal(texte(P), "1 matin*", "la posologie de FrmMedoc");
egal(textes(), ["", "", "", "", "", "", "", ""], "rien de choisi");
egal([0,1,2,3,4,5,6,7].map(function (i) { return selection(c(i)); }), [-1,-1,-1,-1,-1,-1,-1,-1], "aucune sélection");
egal(actifs(), "11111111", "tout actif");
vrai(actif("FrmPoso.CmdEnregistrer"), "enregistrer actif");
egal(["CmdAjouter", "CmdEnregistrer", "CmdQuitter", "CmdAnnule"].map(function (n) { return texte("FrmPoso." + n); }),
    ["Ajouter", "Ajouter / Enregistrer", "Inscrire", "Annuler"], "boutons");
const q = ["1/4", "1/2", "3/4", "1", "1 1/4", "1 1/2", "2", "3", "4", "5", "10", "15", "20", "25", "30"];
egal(lignes(c(0)), ["comprimé(s)", "comprimé(s) eff.", "comprimé(s) orodisp.", "gélule(s)", "sachet(s)", "ampoule(s)", "cuillère(s) à soupe", "cuillère(s) à café", "cuillère(s) mesure", "dose(s) poids", "goutte(s)", "pulvérisation(s)", "inhalation(s)", "application(s)", "dose(s)", "injection(s) IM", "ovule", "lyoc", "lyo", "dose 2,5 ml", "dose 5 ml", "dose 10 ml", "dose 15 ml", "suppo"], "formes");
for (let i = 1; i <= 4; ++i) egal(lignes(c(i)), q, "quantités " + i);
egal(lignes(c(5)), ["en cas de besoin,", "avant les repas,", "au début des repas,", "pendant les repas,", "après les repas,", "à la fin des repas,", "à distance des repas,", "n'importe quand"], "moments");
egal(lignes(c(6)), ["tous les jours,", "tous les 2 jours,", "5 jours par semaine,", "1 jour par semaine,", "1 jour par mois,", "du Xème au Xème jour du cycle,"], "fréquences");
egal(lignes(c(7)), ["pendant 5 jours", "pendant 6 jours", "pendant 7 jours", "pendant 8 jours", "pendant 10 jours", "pendant 14 jours", "pendant 1 mois", "pendant 3 mois", "pendant 4 mois", "pendant 6 mois"], "durées");
choisir(c(1), 3);
choisir(c(5), 1);
egal(valeur("DernierCboP"), 5, "DernierCboP");
rouvre();
egal(textes(), ["", "", "", "", "", "", "", ""], "les choix tombent");
egal(texte(P), "1 matin*", "et la posologie revient");
clic("FrmPoso.CmdAnnule");
// posologie nulle
ouvre(1);
egal(texte(P), "", "null : vide");
egal(texte("FrmPoso.LblNomMed"), "DOLIPRANE 1000 MG", "le nom");
clic("FrmPoso.CmdAnnule");
// ce qui a été tapé à la main passe
saisir("FrmMedoc.TxtPoso", "tapé & à la main");
saisir("FrmMedoc.TxtMedoc", "DOLI & PRANE");
clic("FrmMedoc.LblPoso");
egal(texte(P), "tapé & à la main", "le texte courant");
egal(texte("FrmPoso.LblNomMed"), "DOLI & PRANE", "le nom courant, esperluette comprise");
clic("FrmPoso.CmdAnnule");
// NoeudChoisi 100 : ligne reprise
clic("FrmMedoc.CmdAjouter1");
egal(valeur("NoeudChoisi"), 100, "aucun noeud");
saisir("FrmMedoc.TxtMedoc", "LIBRE");
clic("FrmMedoc.LblPoso");
faux(actif("FrmPoso.CmdEnregistrer"), "NoeudChoisi 100 : inactif");
clic("FrmPoso.CmdAnnule");
