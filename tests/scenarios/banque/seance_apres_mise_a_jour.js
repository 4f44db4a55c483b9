// The session on the open bank is closed while its file is replaced, and opens on the new one without a new start.
function cherche(nom) {
    saisir("FrmMedoc.TxtCherche", nom);
    touche("FrmMedoc.TxtCherche", "Entree");
    return lignes("FrmMedoc.TV").filter(ligne => ligne.includes(nom));
}
function choisitMedicaments() {
    clic("FrmDepart.CmdNO");
    if (!ouverte("FrmMedoc")) { clic("FrmOrdo.CmdPharma"); }
}

installer();
clic("FrmDepart.mnuBase");
clic("FrmOptions.OptB(3)");
clic("FrmOptions.CmdOK(3)");
choisitMedicaments();
egal([valeur("BanqueInitialisee"), valeur("RetourInitBanque")], [1, 0], "la base publique répond");
vrai(cherche("PARACETAMOL VELMONT").length > 0, "une recherche y trouve");
egal(cherche("NOUVEAUTE"), [], "pas encore");
clic("FrmMedoc.CmdAnnule");
clic("FrmOrdo.CmdAccueil");

const sources = utilisateur + "/sources";
copier(extrait, sources);
ecrire(sources + "/CIS_bdpm.txt", lire(sources + "/CIS_bdpm.txt").replace("PARACETAMOL VELMONT 500 mg", "NOUVEAUTE VELMONT 500 mg"));
clic("FrmDepart.mnuMajBanque");
saisir("FrmMajBanque.TxtDossier", sources);
clic("FrmMajBanque.CmdLance");
while (!actif("FrmMajBanque.CmdLance")) {}
contient(texte("FrmMajBanque.LblEtat"), "La base publique est à jour", "remplacée");
egal([valeur("BanqueInitialisee"), valeur("SessionBanque")], [0, 0], "la session est fermée");
clic("FrmMajBanque.CmdFerme");

choisitMedicaments();
egal([valeur("BanqueInitialisee"), valeur("RetourInitBanque")], [1, 0], "rouverte sans relancer le programme");
vrai(cherche("NOUVEAUTE").length > 0, "sur la nouvelle base");
clic("FrmMedoc.CmdAnnule");
clic("FrmOrdo.CmdAccueil");

// A failure leaves the session alone.
clic("FrmDepart.mnuMajBanque");
saisir("FrmMajBanque.TxtDossier", utilisateur);
clic("FrmMajBanque.CmdLance");
while (!actif("FrmMajBanque.CmdLance")) {}
contient(texte("FrmMajBanque.LblAvertissement"), "La base d'avant reste en place.", "refusée");
egal(valeur("BanqueInitialisee"), 1, "la session reste ouverte");
clic("FrmMajBanque.CmdFerme");

// With another base chosen since, the file is not held either.
clic("FrmDepart.mnuBase");
clic("FrmOptions.OptB(0)");
clic("FrmOptions.CmdOK(3)");
clic("FrmDepart.mnuMajBanque");
saisir("FrmMajBanque.TxtDossier", sources);
clic("FrmMajBanque.CmdLance");
while (!actif("FrmMajBanque.CmdLance")) {}
egal(valeur("SessionBanque"), 0, "la session oubliée est fermée aussi");
clic("FrmMajBanque.CmdFerme");
