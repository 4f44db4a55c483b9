// Les deux moments sans heure : la quantité est demandée.
installer();
vider("Medoc", "BddMed");
ajouter("Medoc", "BddMed", [1, null, null, null, "1 le soir", "DOLIPRANE"]);
clic("FrmDepart.CmdNO");
clic("FrmOrdo.CmdPharma");
clic("FrmMedoc.TV", 0);
clic("FrmMedoc.LblPoso");

const besoin = "en cas de besoin,", libre = "n'importe quand";
const inviteBesoin = "Inscrire la quantité de la forme pharmaceutique choisie,\n à prendre en cas de besoin :";
const inviteLibre =
    "Inscrire la quantité de la forme pharmaceutique choisie,\n à prendre au moment voulu de la journée :";
const creneau = "toujours dans le même créneau horaire que vous pouvez choisir librement";

function phrase(attendue, motif) {
    egal(texte("FrmPoso.TxtPoso"), attendue, motif);
}
function quantitesActives() {
    return [1, 2, 3, 4].map(function (i) { return actif("FrmPoso.CboP(" + i + ")"); });
}
const toutes = [true, true, true, true], aucune = [false, false, false, false];

// Annuler, ou ne rien inscrire, sans quantité choisie : rien ne change.
saisir("FrmPoso.TxtPoso", "tapé à la main");
[[besoin, null], [besoin, ""], [libre, null], [libre, ""]].forEach(function (cas) {
    choisir("FrmPoso.CboP(5)", cas[0]);
    repondre(cas[1]);
    phrase("tapé à la main", "le texte reste");
    egal(texte("FrmPoso.CboP(5)"), "", "le moment est vidé");
    egal(quantitesActives(), toutes, "les quantités reviennent");
});

// En cas de besoin.
choisir("FrmPoso.CboP(0)", "gélule(s)");
choisir("FrmPoso.CboP(1)", "1");
choisir("FrmPoso.CboP(5)", besoin);
const demande = boite();
egal([demande.genre, demande.titre, demande.texte, demande.valeur], ["saisie", "Quantité", inviteBesoin, "1"],
    "la quantité est demandée");
egal(quantitesActives(), aucune, "les quantités sont inactives");
egal(texte("FrmPoso.CboP(1)"), "", "et vidées");
repondre("2");
phrase("2  gélule(s) , en cas de besoin (max X par jour)", "la phrase du besoin");
egal(valeur("TexteQuantite"), "2", "la quantité est gardée");
egal(quantitesActives(), aucune, "les quantités restent inactives");
vrai(visible("FrmPoso.LblX"), "le X reste à remplacer");
capture("besoin");
saisir("FrmPoso.TxtPoso", "2  gélule(s) , en cas de besoin (max 4 par jour)");
faux(visible("FrmPoso.LblX"), "il est remplacé");
choisir("FrmPoso.CboP(6)", "tous les jours,");
aucuneBoite();
phrase("2  gélule(s) , en cas de besoin (max X par jour), tous les jours, ", "recomposée, virgule et blanc");
choisir("FrmPoso.CboP(7)", "pendant 5 jours");
phrase("2  gélule(s) , en cas de besoin (max X par jour), tous les jours, pendant 5 jours", "la durée");
choisir("FrmPoso.CboP(5)", besoin);
repondre("3");
phrase("3  gélule(s) , en cas de besoin (max X par jour), tous les jours, pendant 5 jours",
    "une seconde fois : demandée encore");

// N'importe quand.
choisir("FrmPoso.CboP(5)", libre);
egal([boite().titre, boite().texte, boite().valeur], ["Quantité", inviteLibre, "1"], "l'autre invite");
repondre("1");
phrase("1 gélule(s) tous les jours, " + creneau + ",  pendant 5 jours", "la phrase libre");
saisir("FrmPoso.CboP(6)", "");
phrase("1 gélule(s) , " + creneau + ",  pendant 5 jours", "sans fréquence, la virgule après le blanc");
saisir("FrmPoso.CboP(7)", "");
phrase("1 gélule(s) , " + creneau + ",  ", "sans durée, la virgule de fin reste");
capture("libre");

// Un autre moment rend les quantités.
choisir("FrmPoso.CboP(5)", "pendant les repas,");
egal(quantitesActives(), toutes, "les quantités reviennent");
phrase("pendant les repas", "la phrase des moments");
taper("FrmPoso.CboP(2)", "3");
phrase("3  gélule(s)  le midi, pendant les repas", "un choix tapé");

// Tapé en entier, le moment demande une seule fois.
saisir("FrmPoso.CboP(5)", "");
taper("FrmPoso.CboP(5)", besoin);
repondre("4");
touche("FrmPoso.CboP(5)", "Tab");
aucuneBoite();
phrase("4  gélule(s) , en cas de besoin (max X par jour)", "le moment tapé");
saisir("FrmPoso.CboP(6)", "1 jour par mois,");
phrase("4  gélule(s) , en cas de besoin (max X par jour), 1 jour par mois, ", "une fréquence");
clic("FrmPoso.CmdQuitter");
egal(texte("FrmMedoc.TxtPoso"), "4  gélule(s) , en cas de besoin (max X par jour), 1 jour par mois",
    "le bouton coupe la virgule");

// La quantité survit, les choix non.
clic("FrmMedoc.LblPoso");
egal(quantitesActives(), toutes, "les quantités sont actives à l'ouverture");
egal(valeur("TexteQuantite"), "4", "la quantité survit");
clic("FrmPoso.CmdAnnule");
