// The patient block by hand: every Y falls MargeHauteEntete lower than its number, on the preview the name
// stands at 20 and the age and the date keep their distance from it.
installer();
ajouter("Medoc", "BddMed", [5001, null, null, null, "1 matin", "ZZTEST 500 MG"]);
const chemin = valeur("CheminMedecin");
clic("FrmDepart.CmdQuitter");
const marges = lire(chemin + "/Marges.cfg").trim().split(",");
const regle = places => {
  for (const rang in places) marges[rang] = places[rang];
  ecrire(chemin + "/Marges.cfg", marges.join(",") + "\r\n");
};
regle({1: 12, 6: 70, 7: 95, 9: 60, 10: 0, 11: 80, 12: 30}); // entête, patient, date, date de naissance
lancer();
clic("FrmChoixBase.CmdSuite");
clic("FrmDepart.CmdNO");
clic("FrmOrdo.CmdNouvelle");
clic("FrmPatient.CmdNouveauPatient");
clic("FrmNouveauP.Opt(0)");
taper("FrmNouveauP.Txt(0)", "martin");
taper("FrmNouveauP.Txt(1)", "paul");
taper("FrmNouveauP.MEB", "20/03/1953");
taper("FrmNouveauP.Txt(3)", "82");
clic("FrmNouveauP.CmdOK");
clic("FrmPatient.CmdOK");
clic("FrmMedoc.TV", "ZZTEST 500 MG");
clic("FrmMedoc.CmdAjouter1");
clic("FrmMedoc.CmdOrdo");

const textes = surface => surface.filter(item => item.genre === "texte");
const verifie = (surface, nom, age, date, ou) => {
  const trouve = texte => textes(surface).find(item => item.texte === texte);
  const lignes = {nom: trouve("Monsieur  MARTIN  Paul"), age: trouve("né(e) le 20/03/1953   (73 ans)"),
                  poids: trouve("82 kg"), date: trouve("vendredi  20  nov.  2026")};
  const place = (item, x, y, quoi) => {
    proche(item.x, x, 0.01, quoi + " en largeur, " + ou);
    proche(item.y, y, 0.01, quoi + " en hauteur, " + ou);
    egal(item.couleur, 0, quoi + " en noir, " + ou);
  };
  place(lignes.nom, 95, nom, "le nom");
  place(lignes.age, 30, age, "l'âge");
  place(lignes.poids, 95, age + lignes.age.hauteur, "le poids");
  place(lignes.date, 0, date, "la date");
  vrai(lignes.nom.souligne && lignes.nom.gras, "le nom dans la police des titres, souligné, " + ou);
  faux(lignes.date.gras, "la date maigre, " + ou);
};
verifie(feuille("FrmOrdo.PctOrdo"), 12 + 20, 12 + 80 - 70 + 20, 12 + 60 - 70 + 20, "sur l'aperçu");
clic("FrmOrdo.CmdImprime");
choisir("FrmOptions.CboPrint", "Bureau");
cocher("FrmOptions.Chkimp", true);
verifie(travaux()[0].pages[0], 12 + 70, 12 + 80, 12 + 60, "sur papier");

// The options: nothing but the name and two blank lines
clic("FrmOrdo.CmdAccueil");
clic("FrmDepart.CmdQuitter");
const options = lire(chemin + "/Options.cfg").trim().split(",");
for (const rang of [1, 2, 3, 25, 26]) options[rang] = "0";
ecrire(chemin + "/Options.cfg", options.join(",") + "\r\n");
lancer();
clic("FrmChoixBase.CmdSuite");
clic("FrmDepart.CmdNO");
clic("FrmOrdo.CmdNouvelle");
clic("FrmPatient.LstPatient", 0);
clic("FrmPatient.CmdOK");
clic("FrmMedoc.TV", "ZZTEST 500 MG");
clic("FrmMedoc.CmdAjouter1");
clic("FrmMedoc.CmdOrdo");
const seul = textes(feuille("FrmOrdo.PctOrdo")).filter(item => item.y < 50);
egal(seul.map(item => item.texte), ["Monsieur  MARTIN  Paul"], "le nom seul");
faux(seul[0].souligne, "sans souligné");
