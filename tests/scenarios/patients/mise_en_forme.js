// Chaque champ prend sa forme quand il est quitté, et lui seul ; ce que nul ne touche reste tel que stocké.
installer();
ajouter("Medoc", "Patients", [1, "Madame", "de Gaulle  yvonne", "22/05/1900", "60", "", "", "", "", "0320123456", ""]);
clic("FrmDepart.CmdNO");
clic("FrmOrdo.CmdPatient");
taper("FrmPatient.TxtCherche", "DE G");
clic("FrmPatient.CmdModifier");
taper("FrmNouveauP.TxtAtcd", "rien");
clic("FrmNouveauP.CmdOK");
egal(table("Medoc", "Patients")[0].slice(1), ["Madame", "de Gaulle  yvonne", "22/05/1900", "60", "", "", "rien", "",
                                             "0320123456", ""], "une importation garde sa forme");

clic("FrmPatient.CmdNouveauPatient");
clic("FrmNouveauP.Opt(2)");
taper("FrmNouveauP.Txt(0)", "o'brien");
egal(texte("FrmNouveauP.Txt(0)"), "o'brien", "tant qu'il a le focus, tel que tapé");
focus("FrmNouveauP.Txt(1)");
egal(texte("FrmNouveauP.Txt(0)"), "O'BRIEN", "quitté, en capitales");
taper("FrmNouveauP.Txt(1)", "éric JEAN");
taper("FrmNouveauP.MEB", "32/01/2000");
egal(texte("FrmNouveauP.Txt(1)"), "Éric JEAN", "la première lettre seule");
saisir("FrmNouveauP.Txt(2)", "612345678");
saisir("FrmNouveauP.Txt(4)", "33612345678");
saisir("FrmNouveauP.Txt(3)", "72.5 kg");
egal([texte("FrmNouveauP.Txt(2)"), texte("FrmNouveauP.Txt(4)")], ["06 12 34 56 78", "336 12 34 56 78"],
     "les téléphones");
clic("FrmNouveauP.CmdOK");
boites([[/^Indiquez la date de naissance/, "OK"]]);
taper("FrmNouveauP.MEB", "1-2-60");
egal(texte("FrmNouveauP.MEB"), "1-2-60", "la date refusée est remplacée par ce qui se tape");
touche("FrmNouveauP.MEB", "Entree");
egal(table("Medoc", "Patients")[1].slice(1, 5), ["Mademoiselle", "O'BRIEN  Éric JEAN", "1-2-60", "72.5"], "la fiche");
egal(texte("FrmPatient.LblPatient"), "72.5 kg - " + valeur("AgePatient"), "le poids à point");
egal(valeur("PrecautionsPatient"), "", "vidées quand la saisie se ferme");
