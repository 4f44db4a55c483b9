// Les posologies offertes : dièses et blancs du titre, répétées, longues, sur deux lignes.
installer();
vider("Medoc", "BddMed");
ajouter("Medoc", "BddMed", [1, null, null, null, "1 matin*", "AMLOR"]);
ajouter("Medoc", "BddMed", [2, null, null, null, null, "DOLIPRANE 1000 MG"]);
clic("FrmDepart.CmdNO");
clic("FrmOrdo.CmdPharma");


function ecrite(titre, posologie) { ajouter("Medoc", "OrdoEnr", ["m", titre, posologie, 1, "*", "0", 1, 1]); }
const poso = "FrmMedoc.TxtPoso", liste = "FrmMedoc.LstOffres";
ecrite("AMLOR", "1 le soir"); ecrite("AMLOR", "1 le soir"); ecrite("AMLOR", "1 le soir tard");
ecrite("#AMLOR", "2 centré*"); ecrite("AMLOR#", "3 non compté"); ecrite("#AMLOR#", "4 les deux");
ecrite("AMLOR" + " ".repeat(30) + "NSP", "5 après blancs");
ecrite("AMLOR", null); ecrite("AMLOR", ""); ecrite("AMLOR", "   ");
ecrite("AMLOR", "6 ligne\r\nautre ligne"); ecrite("AMLOR", "6 ligne\nautre ligne");
ecrite("AMLOR", "7 " + "très long ".repeat(1000));
ecrite("AMLOR", "8 si <5 mg> & plus");
ecrite("AMLORIDINE", "9 autre");
ecrite("Amlor", "1 casse");
// remplissage par le programme
clic("FrmMedoc.TV", 0);
faux(visible(liste), "le clic ne montre rien");
egal(texte(poso), "1 matin*", "ni n'insère");
touche(poso, "Ctrl+A"); taper(poso, "1");
egal(lignes(liste), ["1 le soir", "1 casse", "1 le soir tard", "1 matin*"], "fréquence puis ordre");
egal(fenetreActive(), "FrmMedoc", "fenêtre");
taper(poso, " le soir");
egal(lignes(liste), ["1 le soir", "1 le soir tard"], "deux");
touche(poso, "Bas"); touche(poso, "Entree");
egal(texte(poso), "1 le soir", "prise de la même");
faux(visible(liste), "la liste se ferme même si le texte est déjà celui-là");
function offre(medoc, tape) { saisir("FrmMedoc.TxtMedoc", medoc); saisir(poso, ""); taper(poso, tape); return visible(liste) ? lignes(liste) : []; }
egal(offre("AMLOR", "2"), ["2 centré*"], "titre centré");
egal(offre("AMLOR", "3"), ["3 non compté"], "titre non compté");
egal(offre("AMLOR", "4"), ["4 les deux"], "les deux");
egal(offre("AMLOR", "5 a"), ["5 après blancs"], "texte après les blancs");
egal(offre("#AMLOR", "1 le soir t"), ["1 le soir tard"], "avec dièse devant");
egal(offre("AMLOR#", "1 le soir t"), ["1 le soir tard"], "dièse derrière");
egal(offre("# AMLOR #", "1 le soir t"), ["1 le soir tard"], "dièses");
egal(offre("AMLOR" + " ".repeat(30), "1 le soir t"), ["1 le soir tard"], "blancs de F4");
egal(offre("AMLOR" + " ".repeat(30) + "NSP", "1 le soir t"), ["1 le soir tard"], "blancs et texte");
egal(offre("#", "1"), [], "un saut");
egal(offre("AML", "1"), [], "un début de nom");
egal(offre("AMLOR", "6").length, 1, "fins de ligne : une seule");
touche(poso, "Bas"); touche(poso, "Entree");
egal(texte(poso), "6 ligne\nautre ligne", "deux lignes");
vrai(offre("AMLOR", "7")[0].length < 1000, "une longue se montre raccourcie");
touche(poso, "Bas"); touche(poso, "Entree");
egal(texte(poso).length, 2 + 9999, "et se prend entière");
egal(offre("AMLOR", "8"), ["8 si <5 mg> & plus"], "signes");
touche(poso, "Echap");
faux(visible(liste), "Echap");
// F4 au clavier
clic("FrmMedoc.TV", 0);
touche("FrmMedoc.TxtMedoc", "F4");
saisir(poso, ""); taper(poso, "1 le soir t");
egal(lignes(liste), ["1 le soir tard"], "après F4");
touche(poso, "Echap");
// reprise d'une ligne : remplissage par le programme pendant que la liste est ouverte
clic("FrmMedoc.TV", 0); saisir(poso, ""); taper(poso, "1"); vrai(visible(liste), "ouverte");
clic("FrmMedoc.TV", 1); faux(visible(liste), "un autre médicament ferme");
clic("FrmMedoc.TV", 0); saisir(poso, ""); taper(poso, "1"); 
clic("FrmMedoc.LblPoso");
egal(texte("FrmPoso.TxtPoso"), "1", "FrmPoso prend ce qui est tapé");
clic("FrmPoso.CmdQuitter");
faux(visible(liste), "rien au retour de FrmPoso");
