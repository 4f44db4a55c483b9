// A certificate from the editor to the paper: macros, address, one sheet, no journal line.
installer();
ajouter("Medoc", "Patients",
        [1, "Monsieur", "MARTIN  Paul", "20/03/1953", "0", "", "", "", "1 rue Basse\r\nBât. C\r\n75000 PARIS", "", ""]);
const chemin = valeur("CheminMedecin");
const champs = lire(chemin + "/Options.cfg").split(",");
champs[champs.length - 5] = "1"; // a journal is kept
clic("FrmDepart.CmdQuitter");
ecrire(chemin + "/Options.cfg", champs.join(","));
lancer();
clic("FrmChoixBase.CmdSuite");
clic("FrmDepart.CmdNO");
const items = () => feuille("FrmOrdo.PctOrdo").filter(i => i.genre === "texte");
const item = mot => items().find(i => i.texte.trim() === mot);

clic("FrmOrdo.CmdCertif");
vrai(ouverte("FrmPatient"), "sans patient, la liste s'ouvre");
doubleClic("FrmPatient.LstPatient", 0);
vrai(ouverte("FrmCertif"), "puis l'éditeur");
saisir("FrmCertif.TxtCert", "Je soussigné <DR> certifie\r\nque <N>* né le <DN> demeurant <AD> va bien\r\n<DJ> <EL>");
clic("FrmCertif.CmdEcrire");
faux(ouverte("FrmCertif"), "l'éditeur se cache");
egal(valeur("ModeApercu"), 1, "un certificat est sur la page");
faux(actif("FrmOrdo.ChkCiv"), "la civilité est grisée");
egal(item("Je").x, valeur("MargeGaucheOrdo"), "au bord du corps");
proche(item("Je").y, valeur("MargeHauteOrdo") / 2, 0.01, "à la moitié sur l'aperçu");
vrai(item("Monsieur  MARTIN  Paul").gras, "un marqueur collé à une macro");
proche(item("Bât. C").x, item("1 rue Basse").x, 0.01, "l'adresse en colonne");
proche(item("va").y, item("1 rue Basse").y, 0.01, "la suite au niveau de sa première ligne");
vrai(item("20/11/2026").y > item("75000 PARIS").y, "la ligne suivante sous l'adresse");
vrai(item("(Signature électronique)") !== undefined, "la mention de signature");

clic("FrmOrdo.CmdImprime");
if (ouverte("FrmOptions")) cocher("FrmOptions.Chkimp", true);
egal(travaux().length, 1, "un travail");
egal(travaux()[0].pages.length, 1, "d'une feuille");
const papier = travaux()[0].pages[0].filter(i => i.genre === "texte");
proche(papier.find(i => i.texte === "Je").y, valeur("MargeHauteOrdo"), 0.01, "à sa hauteur sur le papier");
egal(papier.filter(i => i.texte === "Monsieur  MARTIN  Paul").length, 1, "le nom dans le texte seul");
egal(lister(chemin).filter(nom => nom.startsWith("Journal_")), [], "aucune ligne au journal");
capture("page_macros");
