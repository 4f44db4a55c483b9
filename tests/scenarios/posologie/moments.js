// La phrase des moments, blanc par blanc.
installer();
vider("Medoc", "BddMed");
ajouter("Medoc", "BddMed", [1, null, null, null, "1 matin*", "AMLOR"]);
ajouter("Medoc", "BddMed", [2, null, null, null, null, "DOLIPRANE 1000 MG"]);
clic("FrmDepart.CmdNO");
clic("FrmOrdo.CmdPharma");

const P = "FrmPoso.TxtPoso";
function c(i) { return "FrmPoso.CboP(" + i + ")"; }
function ouvre(noeud) { clic("FrmMedoc.TV", noeud); clic("FrmMedoc.LblPoso"); vrai(ouverte("FrmPoso"), "FrmPoso ouverte"); }
function rouvre() { clic("FrmPoso.CmdAnnule"); clic("FrmMedoc.LblPoso"); }

ouvre(1);
choisir(c(0), 0);
egal(texte(P), "  ", "sans quantité la forme ne s'écrit pas : deux blancs");
choisir(c(1), 3);
egal(texte(P), "1  comprimé(s)  le matin", "un matin");
choisir(c(3), 3);
egal(texte(P), "1  comprimé(s)  le matin, 1  le soir", "matin et soir");
choisir(c(1), 5);
egal(texte(P), "1  comprimé(s) et 1/2  le matin, 1  le soir", "1 1/2");
choisir(c(2), 4);
egal(texte(P), "1  comprimé(s) et 1/2  le matin, 1 et 1/4  le midi, 1  le soir", "1 1/4 midi sans forme");
choisir(c(4), 0);
egal(texte(P), "1  comprimé(s) et 1/2  le matin, 1 et 1/4  le midi, 1  le soir, 1/4  au coucher", "coucher");
choisir(c(5), 1);
egal(texte(P), "1  comprimé(s) et 1/2  le matin, 1 et 1/4  le midi, 1  le soir, 1/4  au coucher, avant les repas", "repas");
choisir(c(6), 0);
egal(texte(P), "1  comprimé(s) et 1/2  le matin, 1 et 1/4  le midi, 1  le soir, 1/4  au coucher, avant les repas, tous les jours", "fréquence");
choisir(c(7), 0);
egal(texte(P), "1  comprimé(s) et 1/2  le matin, 1 et 1/4  le midi, 1  le soir, 1/4  au coucher, avant les repas, tous les jours, pendant 5 jours", "durée");
rouvre();
// M vide, R, D
choisir(c(0), 3); choisir(c(2), 6); choisir(c(6), 5); 
egal(texte(P), "2  gélule(s)  le midi,  du Xème au Xème jour du cycle", "M vide : deux blancs");
choisir(c(7), 6);
egal(texte(P), "2  gélule(s)  le midi,  du Xème au Xème jour du cycle, pendant 1 mois", "M vide, D");
saisir(c(6), "");
egal(texte(P), "2  gélule(s)  le midi,   pendant 1 mois", "M et R vides : trois blancs");
rouvre();
choisir(c(7), 1);
egal(texte(P), "  pendant 6 jours", "la durée seule garde ses blancs");
choisir(c(6), 0);
egal(texte(P), " tous les jours, pendant 6 jours", "fréquence et durée");
saisir(c(7), "");
egal(texte(P), "tous les jours", "virgule coupée : le texte coupé est sans blancs");
rouvre();
// formes tapées
saisir(c(0), "Cp");
taper(c(1), "2 puis 3");
egal(texte(P), "2  Cp et 3  le matin", "premier et dernier mot");
saisir(c(2), "1");
egal(texte(P), "2  Cp et 3  le matin, 1  le midi", "la forme une seule fois");
saisir(c(1), "");
egal(texte(P), "1  Cp  le midi", "la forme passe au premier servi");
rouvre();
// la forme déjà dans l'accumulateur, sensible à la casse
saisir(c(0), "Matin"); saisir(c(1), "1"); saisir(c(2), "2");
egal(texte(P), "1  Matin  le matin, 2  le midi", "la forme n'est pas répétée");
saisir(c(1), "1dose(s)"); saisir(c(0), "dose");
egal(texte(P), "1dose(s)  dose  le matin, 2  le midi", "au premier elle s'écrit toujours");
rouvre();
choisir(c(5), 3);
egal(texte(P), "pendant les repas", "moment seul");
saisir(c(5), "au lever");
egal(texte(P), "au lever  ", "moment tapé, sans virgule : blancs gardés");
rouvre();
// virgule seule
saisir(c(7), ",");
egal(texte(P), "", "une virgule seule est coupée");
clic("FrmPoso.CmdAnnule");
