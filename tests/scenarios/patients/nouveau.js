// La saisie d'un nouveau patient : ce qu'elle refuse, ce qu'elle met en forme, ce qu'elle stocke.
installer();
clic("FrmDepart.CmdNO");
clic("FrmOrdo.CmdPatient");
clic("FrmPatient.CmdNouveauPatient");
egal(titre("FrmNouveauP"), "       Nouveau patient", "le titre");
egal(texte("FrmNouveauP.CmdOK"), "OK", "le bouton");
vrai(visible("FrmNouveauP.Lbl"), "la date est obligatoire");
egal(valeur("ModePatient"), 1, "le mode");

clic("FrmNouveauP.CmdOK");
boites([["Indiquez le nom du patient !", "OK"]]);
taper("FrmNouveauP.Txt(0)", "de  la tour");
clic("FrmNouveauP.CmdOK");
boites([["Indiquez le prénom du patient !", "OK"]]);
egal(texte("FrmNouveauP.Txt(0)"), "DE  LA TOUR", "le nom en capitales");
taper("FrmNouveauP.Txt(1)", "jean-luc");
taper("FrmNouveauP.MEB", "31/02/2000");
egal(texte("FrmNouveauP.Txt(1)"), "Jean-luc", "une capitale au prénom");
const refusDeDate = ["Indiquez la date de naissance du patient\nau format jj/mm/aaaa (ex.: 20/03/1953) !", "OK"];
clic("FrmNouveauP.CmdOK");
boites([refusDeDate]);
saisir("FrmNouveauP.MEB", "");
clic("FrmNouveauP.CmdOK");
boites([refusDeDate]);
egal(table("Medoc", "Patients"), [], "rien n'est stocké");

saisir("FrmNouveauP.MEB", "1/2/2030");
clic("FrmNouveauP.Opt(3)");
taper("FrmNouveauP.Txt(3)", "72,5");
taper("FrmNouveauP.Txt(2)", "0612345678");
taper("FrmNouveauP.Txt(4)", "bureau 12");
taper("FrmNouveauP.TxtAdrV", "12 rue des Lilas");
taper("FrmNouveauP.TxtAtcd", "aucun");
taper("FrmNouveauP.TxtAdr", "note");
egal(texte("FrmNouveauP.Txt(2)"), "06 12 34 56 78", "le téléphone par paires");
egal(texte("FrmNouveauP.Txt(4)"), "bureau 12", "un texte reste");
clic("FrmNouveauP.CmdOK");
const [index, ...fiche] = table("Medoc", "Patients")[0];
egal(fiche, ["Enfant", "DE LA TOUR  Jean-luc", "1/2/2030", "72", "", "note", "aucun", "12 rue des Lilas",
             "06 12 34 56 78", "bureau 12"], "la fiche, la date telle que saisie");
egal(lignes("FrmPatient.LstPatient"), ["  DE LA TOUR  Jean-luc"], "la liste");
egal(donnees("FrmPatient.LstPatient"), [index], "la clé");
egal(selection("FrmPatient.LstPatient"), 0, "il est choisi");
egal(valeur("PatientCourant"), "Enfant  DE LA TOUR  Jean-luc", "avec sa civilité");

// Le même une seconde fois : une rangée de plus, sans un mot. Le poids manque, la civilité aussi.
clic("FrmPatient.CmdNouveauPatient");
clic("FrmNouveauP.Opt(5)");
taper("FrmNouveauP.Txt(0)", "de la tour");
taper("FrmNouveauP.Txt(1)", "jean-luc");
taper("FrmNouveauP.MEB", "1/2/2030");
clic("FrmNouveauP.CmdOK");
aucuneBoite();
egal(lignes("FrmPatient.LstPatient").length, 2, "deux homonymes");
egal(table("Medoc", "Patients")[1].slice(1, 6), ["", "DE LA TOUR  Jean-luc", "1/2/2030", "0", ""],
     "ni civilité, ni poids, ni précaution");
egal(texte("FrmPatient.LblTitre"), "DE LA TOUR  Jean-luc", "le nom seul");
