// The printers' tab: what it shows, what its two buttons keep.
installer();
const fichier = valeur("CheminMedecin") + "/Options.cfg";
imprimantes(["Accueil", "Bureau"], "Accueil");
clic("FrmDepart.CmdOptions");
egal(titre("FrmOptions"), "        Options de Scriptelle", "le titre");
egal(texte("FrmOptions.TS"), "Imprimantes", "l'onglet");
egal(lignes("FrmOptions.CboPrint"), ["Accueil", "Bureau", "Fichier PDF"], "toutes les imprimantes");
egal(texte("FrmOptions.CboPrint"), "Bureau", "celle du médecin");
faux(visible("FrmOptions.Chkimp"), "rien à confirmer ici");
vrai(visible("FrmOptions.CmdAnnule(2)"), "on peut renoncer");
capture("FrmOptions");
fermer("FrmOptions");
vrai(ouverte("FrmOptions"), "la case de fermeture est refusée");
choisir("FrmOptions.CboPrint", "Accueil");
clic("FrmOptions.CmdAnnule(2)");
faux(ouverte("FrmOptions"), "annulé");
egal(valeur("Imprimante"), "Bureau", "rien n'a changé");

const base = valeur("CheminMedecin") + "/Base.cfg";
if (existe(base)) effacer(base);
clic("FrmDepart.CmdOptions");
choisir("FrmOptions.CboPrint", "Accueil");
touche("FrmOptions.CboPrint", "Entree");
faux(ouverte("FrmOptions"), "Entrée vaut OK");
egal(valeur("Imprimante"), "Accueil", "l'imprimante est choisie");
egal(lire(fichier).split(",")[13], "\"Accueil\"", "et enregistrée");
vrai(existe(base), "avec la base des médicaments");

imprimantes(["Bureau"], "Bureau");
clic("FrmDepart.CmdOptions");
egal(selection("FrmOptions.CboPrint"), -1, "une imprimante disparue n'est pas montrée");
clic("FrmOptions.CmdOK(2)");
boites([["Vous n'avez pas sélectionné l'imprimamte !", "OK"]]);
clic("FrmOptions.CmdAnnule(2)");
egal(valeur("Imprimante"), "Accueil", "elle reste celle du médecin");
clic("FrmDepart.CmdNO");
vrai(feuille("FrmOrdo.PctOrdo").length > 0, "annuler repeint la feuille");
