// Les boutons, la zone demandée, ce qui est gardé, les trois façons d'abandonner.
installer();
vider("Medoc", "BddMed");
ajouter("Medoc", "BddMed", [1, null, null, null, "1 matin*", "AMLOR"]);
ajouter("Medoc", "BddMed", [2, null, null, null, null, "DOLIPRANE 1000 MG"]);
clic("FrmDepart.CmdNO");
clic("FrmOrdo.CmdPharma");

const P = "FrmPoso.TxtPoso";
function c(i) { return "FrmPoso.CboP(" + i + ")"; }
function ouvre(noeud) { clic("FrmMedoc.TV", noeud); clic("FrmMedoc.LblPoso"); vrai(ouverte("FrmPoso"), "FrmPoso ouverte"); }

function lignes1() { return lignes("FrmMedoc.LstChoix1").map(function (l) { return l.trim().split("  ")[0]; }); }
// Annuler
ouvre(0);
saisir(P, "changé");
clic("FrmPoso.CmdAnnule");
faux(ouverte("FrmPoso"), "fermée");
egal(texte("FrmMedoc.TxtPoso"), "1 matin*", "Annuler ne change rien");
egal(lignes1(), [], "rien d'ajouté");
// Inscrire
clic("FrmMedoc.LblPoso");
saisir(P, "  1 soir,, ");
clic("FrmPoso.CmdQuitter");
egal(texte("FrmMedoc.TxtPoso"), "1 soir,", "une seule virgule s'en va");
egal(lignes1(), [], "Inscrire n'ajoute pas");
// vide
clic("FrmMedoc.LblPoso");
saisir(P, "   ");
clic("FrmPoso.CmdQuitter");
egal(texte("FrmMedoc.TxtPoso"), "", "N vide");
// Ajouter sans ALD
clic("FrmMedoc.LblPoso");
saisir(P, "1 midi ,");
clic("FrmPoso.CmdAjouter");
aucuneBoite();
egal(lignes1(), ["AMLOR"], "ajoutée");
egal(valeur("OrdoZone1").map(function (e) { return e.Posologie; }), ["1 midi "], "la posologie de la ligne : coupée sans reprise du blanc");
egal(texte("FrmMedoc.TxtPoso"), "", "boîtes vidées");
// Ajouter avec ALD : trois voies
cocher("FrmMedoc.ChkALD", true);
function trois(reponse) {
    clic("FrmMedoc.TV", 0);
    clic("FrmMedoc.LblPoso");
    saisir(P, "p " + reponse);
    clic("FrmPoso.CmdAjouter");
    const b = boite();
    egal(b.texte, "Zone ALD, tapez oui.\n\nZone non ALD, tapez non.", "question");
    egal(b.boutons, ["Oui", "Non", "Annuler"], "boutons");
    egal(b.genre, "simple", "sans icône");
    repondre(reponse);
}
trois("Oui");
egal(lignes("FrmMedoc.LstChoix1").length, 2, "Oui : ALD");
trois("Non");
egal(lignes("FrmMedoc.LstChoix2").length, 1, "Non : non ALD");
trois("Annuler");
egal([lignes("FrmMedoc.LstChoix1").length, lignes("FrmMedoc.LstChoix2").length], [2, 1], "Annuler : rien");
egal(texte("FrmMedoc.TxtPoso"), "p Annuler", "la phrase reste dans FrmMedoc");
egal(texte("FrmMedoc.TxtMedoc"), "AMLOR", "et le médicament");
cocher("FrmMedoc.ChkALD", false);
// Enregistrer
clic("FrmMedoc.TV", 1);
clic("FrmMedoc.LblPoso");
choisir(c(0), 0); choisir(c(1), 3); choisir(c(3), 3);
clic("FrmPoso.CmdEnregistrer");
boites([["Modifications enregistrées.", "OK"]]);
egal(table("Medoc", "BddMed").map(function (r) { return r[4]; }), ["1 matin*", "1  comprimé(s)  le matin, 1  le soir"], "BddMed");
egal(lignes("FrmMedoc.LstChoix1").length, 3, "et ajoutée");
clic("FrmMedoc.TV", 1);
egal(texte("FrmMedoc.TxtPoso"), "1  comprimé(s)  le matin, 1  le soir", "revient au clic suivant");
// inchangée : pas de message
clic("FrmMedoc.LblPoso");
clic("FrmPoso.CmdEnregistrer");
aucuneBoite();
egal(lignes("FrmMedoc.LstChoix1").length, 4, "ajoutée sans message");
// la case de fermeture, Echap
clic("FrmMedoc.TV", 0);
clic("FrmMedoc.LblPoso");
saisir(P, "perdu");
fermer("FrmPoso");
faux(ouverte("FrmPoso"), "fermée par sa case");
egal(texte("FrmMedoc.TxtPoso"), "1 matin*", "comme Annuler");
clic("FrmMedoc.LblPoso");
touche(P, "Echap");
faux(ouverte("FrmPoso"), "fermée par Echap");
egal(texte("FrmMedoc.TxtPoso"), "1 matin*", "comme Annuler");
egal(lignes("FrmMedoc.LstChoix1").length, 4, "rien d'ajouté");
