// Rows added to a letterhead that stands: each at its number, and never the signature at the foot.
installer();
const ajoute = (rang, texte) => ajouter("Ordo", "Entete", [rang, texte, "Arial", 10, 0, 0, 0, 5]);
ajoute(0, "Docteur NEIBRE");
ajoute(10, "Médecine générale");
ajoute(22, "Sur rendez-vous");
ajoute(23, "Docteur N.");
clic("FrmDepart.CmdNO");
clic("FrmOrdo.CmdImprime");
const textes = travaux()[0].pages[0].map(item => item.texte);
egal(textes, ["Docteur NEIBRE", "Tel", "Fax", "Médecine générale", "Sur rendez-vous"], "chacun à son numéro");
clic("FrmOrdo.CmdDate");
repondre("0");
egal(feuille("FrmOrdo.PctOrdo").map(item => item.texte), ["Sur rendez-vous"], "le pied à l'aperçu aussi");

// The look as well: the later row counts.
ajouter("Ordo", "CouleurPET", [255]);
ajouter("Ordo", "Misenpage", [0, "Arial", 20, 0, 0, 0]);
ajouter("Ordo", "Certificat", ["Arial", 15, 0, 0, 0]);
choisir("FrmOrdo.CboMed", 0);
egal(["CouleurEntete", "TailleTitre"].map(valeur), [255, 20], "le dernier rang ajouté compte");
clic("FrmOrdo.CmdImprime");
egal(travaux()[1].pages[0].map(item => item.couleur), [255, 255, 255, 255, 255], "sur le papier");
