// One to three sheets in one job, the copies marked.
const textes = page => page.filter(i => i.genre === "texte").map(i => i.texte);

installer();
ajouter("Medoc", "Patients", [1, "Monsieur", "MARTIN  Paul", "20/03/1953", "0", "", "", "", "", "", ""]);
ajouter("Medoc", "BddMed", [5001, null, null, null, "1 comprimé matin* et soir", "ZZTEST 500 MG"]);
clic("FrmDepart.CmdNO");
clic("FrmOrdo.CmdNouvelle");
doubleClic("FrmPatient.LstPatient", 0);
clic("FrmMedoc.TV", "ZZTEST 500 MG");
clic("FrmMedoc.CmdAjouter1");
clic("FrmMedoc.CmdOrdo");

clic("FrmOrdo.CmdImprime");
egal(travaux().length, 1, "un travail");
egal(travaux()[0].imprimante, "Bureau", "sur l'imprimante choisie");
egal(travaux()[0].pages.length, 1, "une feuille");
contient(textes(travaux()[0].pages[0]), "ZZTEST 500 MG", "le médicament");
faux(textes(travaux()[0].pages[0]).includes("DUPLICATA"), "sans marque");
egal(travauxAbandonnes().length, 0, "l'imprimante était confirmée");

clic("FrmOrdo.CmdPharma");
cocher("FrmMedoc.ChkDup", true);
clic("FrmMedoc.CmdOrdo");
clic("FrmOrdo.CmdImprime");
egal(travaux()[1].pages.length, 2, "deux feuilles");

clic("FrmOrdo.CmdPharma");
cocher("FrmMedoc.ChkTri", true);
clic("FrmMedoc.CmdOrdo");
clic("FrmOrdo.CmdImprime");
const pages = travaux()[2].pages;
egal(pages.length, 3, "trois feuilles dans un travail");
egal(travaux().length, 3, "aucun travail de plus");
faux(textes(pages[0]).includes("DUPLICATA"), "l'original n'a pas de marque");
for (const copie of [pages[1], pages[2]]) {
  egal(copie[0].texte, "DUPLICATA", "la marque vient d'abord");
  proche(copie[0].x, 35, 0.01, "à sa place en largeur");
  proche(copie[0].y, 140, 0.01, "à sa place en hauteur");
  egal(copie[0].taille, 48, "dans sa taille");
  egal(textes(copie).slice(1), textes(pages[0]), "le reste est celui de l'original");
}
faux(existe(valeur("CheminMedecin") + "/Journal_Docteur NEIBRE.log"), "pas de journal demandé");
