// Les sorties sans patient : le bouton, Échap, la case de fermeture ; et une liste vide.
installer();
clic("FrmDepart.CmdNO");
clic("FrmOrdo.CmdPatient");
egal(lignes("FrmPatient.LstPatient"), [], "aucun patient");
clic("FrmPatient.CmdOK");
boites([["Sélectionnez un nom dans la liste,\nou enregistrez un nouveau patient.", "OK"]]);
clic("FrmPatient.CmdAide");
vrai(boite().texte.length > 0, "l'aide dit quelque chose");
repondre("OK");
clic("FrmPatient.CmdNouveauPatient");
taper("FrmNouveauP.Txt(0)", "martin");
touche("FrmNouveauP.Txt(0)", "Echap");
faux(ouverte("FrmNouveauP"), "Échap quitte la saisie");
clic("FrmPatient.CmdNouveauPatient");
egal(texte("FrmNouveauP.Txt(0)"), "", "la fenêtre est neuve à chaque fois");
taper("FrmNouveauP.Txt(0)", "martin");
taper("FrmNouveauP.Txt(1)", "paul");
taper("FrmNouveauP.MEB", "20/03/1953");
taper("FrmNouveauP.Txt(3)", "80");
touche("FrmNouveauP.Txt(3)", "Entree");
egal(lignes("FrmPatient.LstPatient"), ["  MARTIN  Paul"], "Entrée valide la saisie");

const vide = ["PatientCourant", "DateNaissance", "AgePatient", "DateOrdo"];
const sorties = [() => clic("FrmPatient.CmdAnnule"), () => touche("FrmPatient.TxtCherche", "Echap"),
                 () => fermer("FrmPatient")];
for (const sortie of sorties) {
    taper("FrmPatient.TxtCherche", "mar");
    egal(valeur("PoidsPatient"), "80", "un patient est choisi");
    sortie();
    faux(ouverte("FrmPatient"), "la fenêtre se cache");
    egal(vide.map(nom => valeur(nom)), ["", "", "", ""], "plus de patient");
    egal(valeur("PoidsPatient"), "0", "ni de poids");
    egal(valeur("ModeApercu"), 0, "l'aperçu d'une ordonnance");
    clic("FrmOrdo.CmdPatient");
    egal(texte("FrmPatient.TxtCherche"), "  ", "la recherche vidée");
    egal([selection("FrmPatient.LstPatient"), texte("FrmPatient.LblTitre"), texte("FrmPatient.LblPatient")],
         [-1, "", ""], "ni choix ni textes");
}
taper("FrmPatient.TxtCherche", "mar");
touche("FrmPatient.TxtCherche", "Entree");
faux(ouverte("FrmPatient"), "Entrée confirme");
faux(ouverte("FrmMedoc"), "sans nouvelle ordonnance les médicaments ne suivent pas");
egal(valeur("PatientCourant"), "MARTIN  Paul", "le patient confirmé");

// Sans civilité, la feuille ne garde pas le nom d'avant : celui d'un patient, ni l'âge tapé d'un passant.
if (coche("FrmOrdo.ChkCiv")) {
    clic("FrmOrdo.ChkCiv");
}
const textes = () => feuille("FrmOrdo.PctOrdo").filter(item => item.genre === "texte").map(item => item.texte);
clic("FrmOrdo.CmdPatient");
clic("FrmPatient.CmdPassage");
taper("FrmNouveauP.Txt(0)", "durand");
taper("FrmNouveauP.Txt(1)", "anne");
clic("FrmNouveauP.CmdOK");
repondre("40 ans environ");
contient(textes(), "DURAND  Anne", "le passant");
contient(textes(), "40 ans environ", "son âge");
clic("FrmOrdo.CmdPatient");
clic("FrmPatient.CmdAnnule");
faux(textes().some(texte => /DURAND|40 ans/.test(texte)), "rien du passant");

clic("FrmOrdo.CmdNouvelle");
doubleClic("FrmPatient.LstPatient", 0);
vrai(ouverte("FrmMedoc"), "un double clic confirme, et les médicaments suivent");
