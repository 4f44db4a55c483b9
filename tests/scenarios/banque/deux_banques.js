// Lines prescribed with one bank under another: their ids mean other medications there, and are not asked about.
banque({packs: [{cip: "1", id: 1, produit: 101, nom: "DOLA"}, {cip: "2", id: 2, produit: 102, nom: "DOLB"}]});
installer();

function choisitBanque(option) {
    clic("FrmDepart.mnuBase");
    clic("FrmOptions.OptB(" + option + ")");
    clic("FrmOptions.CmdOK(3)");
    clic("FrmDepart.CmdNO");
    clic("FrmOrdo.CmdPharma");
}
function prescrit(nom) {
    saisir("FrmMedoc.TxtCherche", nom);
    touche("FrmMedoc.TxtCherche", "Entree");
    clic("FrmMedoc.TV", 0);
    clic("FrmMedoc.CmdAjouter1");
}
function quitte() {
    clic("FrmMedoc.CmdOrdo");
    clic("FrmOrdo.CmdAccueil");
}
function demandes() {
    return appels().filter(appel => appel.nom.startsWith("InteractionService_")).map(appel => appel.arguments[1]);
}
const reserve = titre => "Interactions non vérifiées pour : " + titre + "\r\nCette ligne a été prescrite avec une autre banque";

choisitBanque(1);
prescrit("DOLA");
egal([demandes().pop(), valeur("RapportInteractions")], [[101], ""], "la ligne d'une banque");
quitte();

choisitBanque(3);
contient(valeur("RapportInteractions"), reserve("DOLA"), "dès que l'autre banque répond");
prescrit("PARACETAMOL VELMONT");
contient(valeur("RapportInteractions"), reserve("DOLA"), "sous la base publique elle est nommée");
faux(valeur("RapportInteractions").includes("vérifiées pour : PARACETAMOL"), "celle de la base publique ne l'est pas");
vrai(visible("FrmMedoc.AniGIFI"), "l'image le montre");
quitte();

choisitBanque(1);
prescrit("DOLB");
egal(demandes().pop(), [101, 102], "de retour, le code de la base publique n'est pas demandé");
contient(valeur("RapportInteractions"), "Interactions non vérifiées pour : PARACETAMOL VELMONT 500 mg", "et sa ligne est nommée");
faux(valeur("RapportInteractions").includes("vérifiées pour : DOL"), "les autres ne le sont pas");
clic("FrmMedoc.HlbI");
contient(texte("FrmIAM.Txt"), "Interactions non vérifiées pour : PARACETAMOL VELMONT", "le médecin le lit");
capture("deux_banques");
clic("FrmIAM.CmdFermer");
egal(fuites(), [], "tout est rendu");
