// Le changement d'une fiche : les ordonnances mémorisées gardent l'ancien nom, rien ne se perd.
installer();
ajouter("Medoc", "Patients", [1, "Monsieur", "MARTIN  Paul", "20/03/1953", "72", "iode*asthme", "note", "atcd",
                              "1 rue A\n75001 Paris", "01 02 03 04 05", null]);
ajouter("Medoc", "Patients", [2, "Maître", "ZOLA", "02/04/1940", "0", null, null, null, null, null, null]);
ajouter("Medoc", "ListeOrdos", ["Grippe", "Monsieur  MARTIN  Paul", 0, "20/03/1953"]);
clic("FrmDepart.CmdNO");
clic("FrmOrdo.CmdPatient");
clic("FrmPatient.CmdModifier");
boites([["Quel patient modifier ?", "OK"]]);

taper("FrmPatient.TxtCherche", "mar");
clic("FrmPatient.CmdModifier");
egal(texte("FrmNouveauP.CmdOK"), "Enregistrer", "le bouton");
vrai(coche("FrmNouveauP.Opt(0)"), "la civilité");
egal([texte("FrmNouveauP.Txt(0)"), texte("FrmNouveauP.Txt(1)"), texte("FrmNouveauP.MEB"),
      texte("FrmNouveauP.Txt(3)")], ["MARTIN", "Paul", "20/03/1953", "72"], "l'identité");
egal(lignes("FrmNouveauP.LstCi"), ["iode", "asthme"], "les précautions");
egal([texte("FrmNouveauP.TxtAdr"), texte("FrmNouveauP.TxtAtcd"), texte("FrmNouveauP.TxtAdrV"),
      texte("FrmNouveauP.Txt(2)"), texte("FrmNouveauP.Txt(4)")],
     ["note", "atcd", "1 rue A\n75001 Paris", "01 02 03 04 05", ""], "le reste");
saisir("FrmNouveauP.Txt(0)", "durand");
saisir("FrmNouveauP.Txt(2)", "");
clic("FrmNouveauP.CmdOK");
egal(table("Medoc", "Patients")[0], [1, "Monsieur", "DURAND  Paul", "20/03/1953", "72", "iode*asthme", "note", "atcd",
                                     "1 rue A\n75001 Paris", "", ""], "la fiche changée, les textes vides non nuls");
egal(table("Medoc", "ListeOrdos")[0][1], "Monsieur  MARTIN  Paul", "l'ordonnance reste à l'ancien nom");
egal(lignes("FrmPatient.LstPatient"), ["  DURAND  Paul", "  ZOLA"], "la liste relue");
egal(selection("FrmPatient.LstPatient"), -1, "plus de choix");
egal(texte("FrmPatient.LblTitre"), "", "et plus d'ancien nom affiché");

// Un nom sans deux blancs n'arrête rien ; un abandon ne change rien.
taper("FrmPatient.TxtCherche", "zola");
clic("FrmPatient.CmdModifier");
egal([texte("FrmNouveauP.Txt(0)"), texte("FrmNouveauP.Txt(1)")], ["ZOLA", ""], "le nom entier");
clic("FrmNouveauP.CmdAnnuler");
egal(table("Medoc", "Patients")[1].slice(1, 3), ["Maître", "ZOLA"], "un abandon");
egal(valeur("ModePatient"), 3, "son mode");
taper("FrmPatient.TxtCherche", "zola");
clic("FrmPatient.CmdModifier");
taper("FrmNouveauP.Txt(1)", "émile");
clic("FrmNouveauP.CmdOK");
egal(table("Medoc", "Patients")[1].slice(1, 3), ["Maître", "ZOLA  Émile"], "une civilité inconnue reste");

// Trois blancs en laissent deux : le prénom montré est faux, mais l'enregistrer tel quel ne perd rien.
clic("FrmPatient.CmdNouveauPatient");
taper("FrmNouveauP.Txt(0)", "le   gall");
taper("FrmNouveauP.Txt(1)", "yann");
taper("FrmNouveauP.MEB", "20/03/1953");
clic("FrmNouveauP.CmdOK");
egal(table("Medoc", "Patients")[2][2], "LE  GALL  Yann", "trois blancs");
clic("FrmPatient.CmdModifier");
egal([texte("FrmNouveauP.Txt(0)"), texte("FrmNouveauP.Txt(1)")], ["LE", "GALL"], "le faux prénom");
clic("FrmNouveauP.CmdOK");
egal(table("Medoc", "Patients")[2][2], "LE  GALL  Yann", "le nom stocké");
