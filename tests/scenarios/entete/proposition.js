// A first letterhead is offered on the main window, beside the face, and never asked for: taken or left in
// one click.
installer();
const face = () => feuille("FrmDepart").filter(item => item.genre === "texte").map(item => item.texte);
aucuneBoite();
vrai(visible("FrmDepart.CartePropose"), "la proposition");
egal(face(), ["Tel", "Fax"], "la face reste celle du premier emploi");
const filet = "_".repeat(60);
egal(feuille("FrmDepart.PctPropose").map(item => item.texte), ["Docteur", "NEIBRE", filet], "l'aperçu");
const chemin = valeur("CheminMedecin");
const avant = table("Ordo", "Entete");

clic("FrmDepart.CmdLaisseEntete");
faux(visible("FrmDepart.CartePropose"), "laissée");
egal(table("Ordo", "Entete"), avant, "rien n'est écrit");
clic("FrmDepart.CmdQuitter");
lancer();
clic("FrmChoixBase.CmdSuite");
faux(visible("FrmDepart.CartePropose"), "et laissée pour de bon");
clic("FrmDepart.CmdQuitter");

// Taken: the name alone is printed, without the words of first use.
effacer(chemin + "/EntetePropose.cfg");
lancer();
clic("FrmChoixBase.CmdSuite");
clic("FrmDepart.CmdUtiliseEntete");
aucuneBoite();
faux(visible("FrmDepart.CartePropose"), "prise");
egal(face(), ["Docteur", "NEIBRE", filet], "la face la montre");
const rangs = table("Ordo", "Entete");
egal(rangs.length, 24, "les 24 rangs");
egal(rangs[12].slice(1, 5), ["NEIBRE", "Arial", 20, 1], "le nom en gras");
egal(valeur("ModeEntete"), 1, "l'adresse viendra sous le nom");
egal([rangs[0][1], rangs[6][1], rangs[22][1]], ["*", "*", ""], "rien d'inconnu");
egal(valeur("NomSignature"), "Docteur NEIBRE", "la signature");
clic("FrmDepart.CmdNO");
clic("FrmOrdo.CmdImprime");
choisir("FrmOptions.CboPrint", "Bureau");
cocher("FrmOptions.Chkimp", true);
egal(travaux()[0].pages[0].map(item => item.texte).filter(texte => !/^\d|2026/.test(texte)),
     ["Docteur", "NEIBRE", filet], "sur le papier");
