// A session from the choice of the base to the closing of the editor: what is asked of the libraries, once.
banque({attentes: 3, version: "3.2", expiration: "2027-03-31",
    packs: [{cip: "3400930000011", id: 11, produit: 101, nom: "DOLIPRANE 1 000 mg cp : B/8", prix: 1.16}]});
installer();
egal(appels(), ["VidalHelper_getVidalAPIPath", "DatabaseInfoService_getExpiryDate"].map((nom, i) =>
    ({nom, arguments: i ? [0] : [2, null, 255]})), "au lancement, la date sans session");
egal([valeur("DateExpirationBase"), valeur("TypeBase"), valeur("ModuleAide")], ["31/03/2027", "BIP", 1], "lue d'avance");
clic("FrmDepart.CmdNO");
egal([valeur("DispositionFaite"), valeur("BanqueInitialisee")], [0, 0], "sans banque choisie, rien");
clic("FrmOrdo.CmdAccueil");
clic("FrmDepart.mnuBase");
clic("FrmOptions.OptB(1)");
clic("FrmOptions.CmdOK(3)");
egal(valeur("TypeBase"), "TVS", "la banque choisie");
const avant = appels().length;
clic("FrmDepart.CmdNO");
egal(valeur("DispositionFaite"), 1, "à l'activation de l'éditeur");
egal(appels().slice(avant).map(appel => [appel.nom, appel.arguments]), [
    ["VidalHelper_getVidalAPIPath", [2, null, 255]], ["VidalAPI_asyncInit", [null, 2]],
    ["VidalAPI_asyncStartResult", [77, 1]], ["VidalAPI_asyncStartResult", [77, 1]], ["VidalAPI_asyncStartResult", [77, 1]],
    ["VidalAPI_getVersion", [null, 64]], ["DatabaseInfoService_getExpiryDate", [77]]], "le démarrage, pas à pas");
egal([valeur("BanqueInitialisee"), valeur("RetourInitBanque"), valeur("ChargementBanque"), valeur("SessionBanque")],
    [1, 0, 1, 77], "la session est ouverte");
egal(valeur("MessageBanque"), "Pharmacie initialisée\nDate d'expiration = 31/03/2027", "ce qui a été dit");
faux(visible("FrmI"), "la fenêtre est partie");

clic("FrmOrdo.CmdAccueil");
clic("FrmDepart.CmdNO");
egal(appels().filter(appel => appel.nom === "VidalAPI_asyncInit").length, 1, "une seule fois");
clic("FrmOrdo.CmdPharma");
contient(texte("FrmMedoc.LblDatExp"), "31/03/2027", "jusqu'à quand");
taper("FrmMedoc.TxtCherche", "doli");
touche("FrmMedoc.TxtCherche", "Entree");
contient(lignes("FrmMedoc.TV").join("|"), "DOLIPRANE 1 000 mg cp : B/8", "la banque répond");
clic("FrmMedoc.CmdCopyright");
egal([texte("FrmCopyright.Label1"), texte("FrmCopyright.LblVersion")],
    ["Dictionnaire VIDAL EXPERT", "vidalapi.dll   version 3.2"], "d'où viennent les médicaments");
clic("FrmCopyright.CmdQuitter");
clic("FrmMedoc.CmdAnnule");
faux(appels().some(appel => appel.nom === "VidalAPI_release"), "encore ouverte");
clic("FrmOrdo.CmdFermer");
vrai(fini(), "le programme est terminé");
egal(appels().filter(appel => appel.nom === "VidalAPI_release").map(appel => appel.arguments), [[77]], "et la session close");
egal(fuites(), 0, "rien n'est resté dehors");
