// The mark of the copies as the doctor set it, and without it.
const textes = page => page.filter(i => i.genre === "texte").map(i => i.texte);
const pages = () => travaux()[travaux().length - 1].pages;

installer();
const dupli = valeur("CheminMedecin") + "/Dupli.cfg";
clic("FrmDepart.CmdQuitter");
ecrire(dupli, "\"Arial\",24,1,1,200,12,200,1,\"COPIE D'ÉLÈVE\"");
lancer();
clic("FrmChoixBase.CmdSuite");
clic("FrmDepart.CmdNO");
clic("FrmOrdo.CmdPharma");
cocher("FrmMedoc.ChkDup", true);
clic("FrmMedoc.CmdOrdo");
boites([[/./, "OK"]]);
clic("FrmOrdo.CmdImprime");
cocher("FrmOptions.Chkimp", true);
egal(pages().length, 2, "deux feuilles");
faux(textes(pages()[0]).includes("COPIE D'ÉLÈVE"), "la première sans marque");
const marque = pages()[1][0];
egal(marque.texte, "COPIE D'ÉLÈVE", "la seconde la porte avant son contenu");
proche(marque.x, 12, 0.01, "à sa place");
proche(marque.y, 200, 0.01, "et à sa hauteur");
egal([marque.police, marque.taille, marque.gras, marque.italique, marque.couleur], ["Arial", 24, true, true, 200],
     "dans son écriture");
clic("FrmOrdo.CmdFermer");

ecrire(dupli, "\"Arial\",24,1,1,200,12,200,0,\"COPIE D'ÉLÈVE\"");
lancer();
clic("FrmChoixBase.CmdSuite");
clic("FrmDepart.CmdNO");
clic("FrmOrdo.CmdPharma");
cocher("FrmMedoc.ChkTri", true);
clic("FrmMedoc.CmdOrdo");
boites([[/./, "OK"]]);
clic("FrmOrdo.CmdImprime");
cocher("FrmOptions.Chkimp", true);
egal(pages().length, 3, "trois feuilles");
egal(pages()[1], pages()[0], "sans marque la copie est l'original");
egal(pages()[2], pages()[0], "la seconde aussi");
