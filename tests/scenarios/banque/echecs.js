// Starts that fail, each in a run of its own: what the doctor is told, and what stands afterwards.
banque({});
installer();
const base = valeur("CheminMedecin") + "/Base.cfg";
clic("FrmDepart.CmdQuitter");

function ouvre(description, produit) {
    banque(description);
    ecrire(base, "\"TVS\",2," + (produit || 2) + "\r\n");
    lancer();
    clic("FrmChoixBase.CmdSuite");
    clic("FrmDepart.CmdNO");
}
function ferme() {
    aucuneBoite();
    faux(visible("FrmI"), "la fenêtre du démarrage est partie");
    clic("FrmOrdo.CmdFermer");
    vrai(fini(), "le programme se ferme");
}
const enCours = "\n Initialisation de la pharmacie Vidal en cours ... veuillez patienter";

ouvre({aide: false});
egal([valeur("TypeBase"), valeur("BanqueInitialisee"), valeur("MessageBanque")], ["BIP", 0, ""], "sans aide, la base locale");
ferme();

ouvre({produits: {1: true}});
egal(valeur("MessageBanque"), "\n\nPharmacie non installée\n\nRetour init = 21   =>  Echec initialisation", "pas installée");
egal([valeur("TypeBase"), valeur("RetourInitBanque"), valeur("BanqueInitialisee"), valeur("ModuleAide")], ["TVS", 21, 1, 0],
    "les bibliothèques sont rendues");
ferme();

ouvre({chargeable: false});
egal(valeur("MessageBanque"),
    "\n\nvidalapi dll ne peut être chargée !\n\nRetour init = 16   =>  Echec initialisation", "illisible");
egal([valeur("RetourInitBanque"), valeur("ChargementBanque"), valeur("BanqueInitialisee")], [16, 0, 1], "et c'est tout");
ferme();

ouvre({retourVersion: 3});
egal([valeur("MessageBanque"), valeur("RetourInitBanque"), valeur("ChargementBanque"), valeur("BanqueInitialisee")],
    [enCours, 3, 1, 1], "la version refusée, rien n'est dit");
egal(valeur("SessionBanque"), 77, "la session reste ce qu'elle est");
ferme();

let avant = appels().length;
ouvre({asynchrone: false});
egal([valeur("MessageBanque"), valeur("RetourInitBanque")],
    ["Pharmacie initialisée\nDate d'expiration = 31/03/2027", 0], "sans démarrage en arrière-plan");
contient(appels().slice(avant).map(appel => appel.nom), "VidalAPI_init", "par l'appel qui attend");
ferme();

avant = appels().length;
ouvre({copieBornee: false, packs: [{cip: "34", id: 11, produit: 101, nom: "DOLIPRANE"}]});
clic("FrmOrdo.CmdPharma");
taper("FrmMedoc.TxtCherche", "doli");
touche("FrmMedoc.TxtCherche", "Entree");
egal(lignes("FrmMedoc.TV"), ["DOLIPRANE"], "les noms sans leur NUL");
contient(appels().slice(avant).map(appel => appel.nom), "CopyString", "par la copie d'autrefois");
clic("FrmMedoc.CmdAnnule");
ferme();
egal(fuites(), 0, "rien n'est resté dehors");
