// Le patient de passage : jamais stocké, sa date est facultative, ses précautions ne sont dites nulle part.
installer();
ajouter("Medoc", "Patients", [1, "", "MARTIN  Paul", "20/03/1953", "0", "iode", "", "", "", "", ""]);
const avant = table("Medoc", "Patients");
const textes = () => feuille("FrmOrdo.PctOrdo").filter(item => item.genre === "texte").map(item => item.texte);
clic("FrmDepart.CmdNO");
clic("FrmOrdo.CmdPatient");
taper("FrmPatient.TxtCherche", "mar");
clic("FrmPatient.CmdPassage");
faux(visible("FrmNouveauP.Lbl"), "pas de marque rouge à la date");
clic("FrmNouveauP.CmdOK");
boites([["Indiquez le nom du patient !", "OK"]]);
clic("FrmNouveauP.CmdAnnuler");
vrai(ouverte("FrmPatient"), "un abandon revient à la liste");
egal(valeur("ModePatient"), 3, "le mode d'un abandon");
clic("FrmPatient.CmdPassage");
fermer("FrmNouveauP");
egal([valeur("ModePatient"), ouverte("FrmPatient")], [3, true], "la case de fermeture aussi");
clic("FrmPatient.CmdNouveauPatient");
vrai(visible("FrmNouveauP.Lbl"), "la marque rouge revient pour un patient à stocker");
clic("FrmNouveauP.CmdAnnuler");

clic("FrmPatient.CmdPassage");
clic("FrmNouveauP.Opt(1)");
taper("FrmNouveauP.Txt(0)", "durand");
taper("FrmNouveauP.Txt(1)", "anne");
taper("FrmNouveauP.MEB", "31/02/2000");
clic("FrmNouveauP.CmdCI");
repondre("iode");
repondre(null);
clic("FrmNouveauP.CmdOK");
// Sans date, l'âge est demandé une fois en peignant l'aperçu ; aucune précaution n'est montrée avant.
egal([boite().genre, boite().titre], ["saisie", "Age"], "l'âge");
repondre("");
aucuneBoite();
faux(ouverte("FrmPatient"), "la fenêtre se cache");
egal(valeur("PatientCourant"), "Madame  DURAND  Anne", "avec sa civilité");
egal(valeur("NomSeul"), "DURAND  Anne", "le nom seul");
egal([valeur("DateNaissance"), valeur("AgePatient")], ["", ""], "la date impossible tombe");
egal(valeur("DateOrdo"), "20/11/2026", "la date du jour");
contient(textes(), "Madame  DURAND  Anne", "l'aperçu");
egal(table("Medoc", "Patients"), avant, "rien n'est stocké");

// Sans civilité, et dans une nouvelle ordonnance : le choix des médicaments suit.
clic("FrmOrdo.CmdNouvelle");
clic("FrmPatient.CmdPassage");
taper("FrmNouveauP.Txt(0)", "petit");
taper("FrmNouveauP.Txt(1)", "luc");
taper("FrmNouveauP.MEB", "01/02/1960");
clic("FrmNouveauP.CmdOK");
aucuneBoite();
egal(valeur("PatientCourant"), valeur("NomSeul"), "sans civilité les deux noms sont égaux");
vrai(ouverte("FrmMedoc"), "les médicaments suivent");
egal(table("Medoc", "Patients"), avant, "toujours rien de stocké");
