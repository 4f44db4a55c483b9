// A doctor's first afternoon from the first start to the printed sheet; after a restart the sheet is the same,
// item by item, and a second doctor meets nothing of the first.
const octets = (v, t) => [...Array(t).keys()].map(i => String.fromCharCode(v >> 8 * i & 255)).join("");
const image = "BM" + octets(62, 4) + octets(0, 4) + octets(54, 4) + octets(40, 4) + octets(2, 4) + octets(1, 4) +
      octets(1, 2) + octets(24, 2) + octets(0, 4) + octets(8, 4) + octets(0, 16) + octets(0, 8);
const arial = (taille, gras) => ({nom: "Arial", taille, gras: !!gras, italique: false, souligne: false});
const textes = items => items.filter(i => i.genre === "texte").map(i => i.texte);

imprimantes(["Bureau", "Accueil"], "Bureau");
lancer();
boites([
    [/Sélectionnez le répertoire où seront enregistrées/, "OK"],
    [/Sélectionnez uniquement le répertoire/, utilisateur],
    [/MEDECIN UTILISATEUR/, "OK"],
    [/Inscrire les nom et prénom/, "Dr Neibre Anne"],
    [/pour la première fois/, "OK"],
]);
choisir("FrmChoixBase.CboBase", 0);
clic("FrmChoixBase.CmdSuite");
aucuneBoite();
clic("FrmDepart.CmdUtiliseEntete");
const premier = valeur("CheminMedecin");

// The letterhead
clic("FrmDepart.CmdOptions");
egal(selection("FrmOptions.TS"), 0, "Options s'ouvre sur le premier onglet");
clic("FrmOptions.CmdET");
clic("FrmEntete.Opt(1)");
focus("FrmEntete.Txt(0)");
saisir("FrmEntete.Txt(0)", "12, rue des Tilleuls");
clic("FrmEntete.CmdPolice"); repondre(arial(11, true));
saisir("FrmEntete.Txt(5)", "Tél. *");
saisir("FrmEntete.Txt(6)", "02 99 00 00 00$");
caret("FrmEntete.Txt(0)", 0);
taper("FrmEntete.Txt(0)", "   ");
saisir("FrmEntete.Txt(22)", "Membre d'une association agréée.");
saisir("FrmEntete.Txt(23)", " Docteur Anne Neibre ");
saisir("FrmEntete.TxtMG", "15");
saisir("FrmEntete.TxtMH", "12");
clic("FrmEntete.CmdCouleur");
boites([[/^Seule la couleur/, "OK"]]);
repondre(11 + 256 * 61 + 65536 * 145);
vrai(visible("FrmEntete.LblModifie"), "les modifications sont marquées");
egal(table(premier + "/Ordo.mdb", "Entete")[0][1], "*", "rien n'est encore enregistré");
clic("FrmEntete.CmdEnregistrer"); repondre("OK");
egal(table(premier + "/Ordo.mdb", "Entete")[0][7], 3, "le retrait tapé en tête");
const enteteApercu = feuille("FrmEntete.PctEntete");
clic("FrmEntete.CmdImpression");
const essai = travaux()[travaux().length - 1].pages[0];
clic("FrmEntete.CmdQuitter");

// The layout
clic("FrmOptions.CmdMEP");
choisir("FrmConfOrdo.CboInt", 1);
choisir("FrmConfOrdo.CboM", "90");
saisir("FrmConfOrdo.TxtM", "25");
focus("FrmConfOrdo.Txt(0)");
clic("FrmConfOrdo.CmdPolice"); repondre(arial(13, true));
cocher("FrmConfOrdo.ChkS", true);
cocher("FrmConfOrdo.ChKSLP", true);
repondre("4.5");
egal(texte("FrmConfOrdo.TxtSLP"), "4,5", "le point est compris");
clic("FrmConfOrdo.CmdEnregistrer"); repondre("OK");
clic("FrmConfOrdo.CmdRetour");

// The options, tab by tab
clic("FrmOptions.Opt(1)");
choisir("FrmOptions.TS", "Options générales");
for (const c of ["ChkP", "ChkA", "ChkS", "ChkInc", "ChkNbMed", "ChkJournal", "ChkDDN", "ChkDate", "ChkR"]) cocher("FrmOptions." + c, true);
choisir("FrmOptions.TS", "Imprimantes");
choisir("FrmOptions.CboPrint", "Accueil");
choisir("FrmOptions.TS", "Pharmacies");
clic("FrmOptions.OptB(0)");
choisir("FrmOptions.TS", "Interactions");
clic("FrmOptions.OptN(2)");
choisir("FrmOptions.TS", "Logo");
cocher("FrmOptions.ChkLog", true);
ecrire(utilisateur + "/croix.bmp", image);
clic("FrmOptions.CmdChemin"); repondre(utilisateur + "/croix.bmp");
saisir("FrmOptions.TxtH", "15");
choisir("FrmOptions.TS", "Duplicata");
cocher("FrmOptions.ChkDup", true);
clic("FrmOptions.CmdTexte"); repondre("COPIE*PHARMACIEN");
clic("FrmOptions.CmdOK");
aucuneBoite();

// A certificate template
ajouter("Medoc", "Patients", [1, "Monsieur", "MARTIN  Paul", "20/03/1953", "82", "", "", "",
        "1 rue Basse\r\nBât. C\r\nEscalier 2\r\n3e étage\r\n75000 PARIS", "", ""]);
clic("FrmDepart.CmdNO");
clic("FrmOrdo.CmdCertif");
doubleClic("FrmPatient.LstPatient", 0);
clic("FrmCertif.CmdNouveau"); repondre("OK");
saisir("FrmCertif.TxtCert", "Je soussigné <DR> certifie\r\nque *<N>* né le <DN> demeurant <AD> va bien\r\n<DJ> <EL>");
clic("FrmCertif.CmdPolice"); repondre(arial(12));
clic("FrmCertif.CmdEnr"); repondre("Bonne santé");
choisir("FrmCertif.LstCertif", "Bonne santé");
clic("FrmCertif.CmdDecD");
clic("FrmCertif.CmdEnr");
clic("FrmCertif.mnuEnr");
egal(lire(valeur("CheminTravail") + "/Certificats/Bonne santé.cfg").trim(), "2,0", "le décalage du modèle");
clic("FrmCertif.CmdEcrire");
const certificat = feuille("FrmOrdo.PctOrdo");
clic("FrmOrdo.CmdImprime");
cocher("FrmOptions.Chkimp", true);
aucuneBoite();
const certificatPapier = travaux()[travaux().length - 1];
egal([certificatPapier.imprimante, certificatPapier.pages.length], ["Accueil", 1], "une feuille, à l'imprimante choisie");
egal(lister(premier).filter(nom => nom.startsWith("Journal_")), [], "pas de ligne de journal");

// The prescription
function prescrit() {
    clic("FrmOrdo.CmdNouvelle");
    doubleClic("FrmPatient.LstPatient", 0);
    if (!ouverte("FrmMedoc")) clic("FrmOrdo.CmdPharma");
    taper("FrmMedoc.TxtCherche", "amlodipine 5");
    clic("FrmMedoc.TV", "AMLODIPINE 5 MG GELULE");
    saisir("FrmMedoc.TxtMedoc", "AMLODIPINE 5 mg gélule");
    saisir("FrmMedoc.TxtPoso", "1 gélule le matin* pendant 3 mois");
    clic("FrmMedoc.CmdAjouter1");
    cocher("FrmMedoc.ChkTri", true);
    clic("FrmMedoc.CmdOrdo");
}
prescrit();
const ordonnance = feuille("FrmOrdo.PctOrdo");
clic("FrmOrdo.CmdImprime");
aucuneBoite();
const papier = travaux()[travaux().length - 1];
egal(papier.pages.length, 3, "trois feuilles");
egal(textes(papier.pages[1]).slice(0, 2), ["COPIE", "PHARMACIEN"], "la marque sur deux lignes");
faux(textes(papier.pages[0]).includes("COPIE"), "l'original n'en a pas");
vrai(papier.pages[0].some(i => i.genre === "image" && i.hauteur === 15), "le logo");

// The same sheet after a restart
fermer("FrmOrdo");
vrai(fini(), "fermé");
lancer();
clic("FrmChoixBase.CmdSuite");
aucuneBoite();
egal(feuille("FrmDepart").length > 0, true, "la face");
clic("FrmDepart.CmdNO");
prescrit();
egal(feuille("FrmOrdo.PctOrdo"), ordonnance, "le même aperçu");
clic("FrmOrdo.CmdImprime");
if (ouverte("FrmOptions")) cocher("FrmOptions.Chkimp", true);
egal(travaux()[travaux().length - 1].pages, papier.pages, "la même feuille");
egal(travaux()[travaux().length - 1].imprimante, "Accueil", "la même imprimante");
clic("FrmOrdo.CmdCertif");
repondre("Oui");
choisir("FrmCertif.LstCertif", "Bonne santé");
egal(valeur("TailleCertif"), 12, "la police des certificats");
clic("FrmCertif.CmdEcrire");
egal(feuille("FrmOrdo.PctOrdo"), certificat, "le même certificat");
clic("FrmOrdo.CmdImprime");
egal(travaux()[travaux().length - 1].pages, certificatPapier.pages, "sur le papier aussi");
aucuneBoite();

// The second doctor
fermer("FrmOrdo");
lancer();
clic("FrmChoixBase.CmdSuite");
clic("FrmDepart.CmdOptions");
clic("FrmOptions.CmdET");
saisir("FrmEntete.Txt(1)", "en attente");
clic("FrmEntete.CmdQuitter");
clic("FrmOptions.CmdAnnule");
clic("FrmDepart.CmdMedecins");
clic("FrmMedecins.CmdNouveau"); repondre("Dr Durand Luc");
clic("FrmMedecins.CmdQuitter");
aucuneBoite();
const second = valeur("CheminMedecin");
different(second, premier, "son répertoire");
egal(textes(feuille("FrmDepart")), ["Tel", "Fax"], "sa face");
faux(feuille("FrmDepart").some(i => i.genre === "image"), "sans logo");
egal([valeur("LogoActif"), valeur("FichierLogo"), valeur("SautPersonnalise"), valeur("TailleTitre")], [0, "", 0, 11], "ses options");
egal([valeur("NomSignature"), valeur("CouleurEntete"), valeur("DupliTexte")], ["Nom à afficher pour la signature électronique", 0, "DUPLICATA"], "signature, couleur, mot");
different(valeur("TailleCertif"), 12, "sa police de certificat");
clic("FrmDepart.CmdOptions");
clic("FrmOptions.CmdET");
egal(texte("FrmEntete.Txt(1)"), "*", "pas la frappe du premier");
clic("FrmEntete.CmdQuitter");
clic("FrmOptions.CmdMEP");
egal(texte("FrmConfOrdo.TxtSLP"), "", "pas de hauteur de saut");
egal(coche("FrmConfOrdo.ChKSLP"), 0, "ni de case");
clic("FrmConfOrdo.CmdRetour");
choisir("FrmOptions.TS", "Logo");
clic("FrmOptions.CmdAnnule");
choisir("FrmDepart.CboListeMed", 0);
egal(valeur("NomSignature"), "Docteur Anne Neibre", "le premier retrouve les siens");
clic("FrmDepart.CmdOptions");
clic("FrmOptions.CmdET");
egal(texte("FrmEntete.Txt(1)"), "en attente", "et sa frappe");
clic("FrmEntete.CmdQuitter");
clic("FrmOptions.CmdAnnule");
