// The two-zone sheet on the page: headings on one line each, in the font of the box; the line gap compared as text.
installer();
ajouter("Medoc", "Patients", [1, "Monsieur", "MARTIN  Paul", "20/03/1953", "0", "", "", "", "", "", ""]);
const tmp = valeur("CheminTravail") + "/Certificats/Tmp.txt";
const items = () => feuille("FrmOrdo.PctOrdo").filter(i => i.genre === "texte");
const item = mot => items().find(i => i.texte === mot);
clic("FrmDepart.CmdNO");
clic("FrmOrdo.CmdPatient");
doubleClic("FrmPatient.LstPatient", 0);
clic("FrmOrdo.CmdCertif");
boites([[/patient en cours/, "Oui"]]);
cocher("FrmCertif.ChkALD", true);
clic("FrmCertif.CmdEcrire");
egal(valeur("CertifALD"), 1, "une feuille à deux zones");
egal(items().filter(i => i.texte === "_".repeat(85)).length, 4, "quatre filets");
proche(item("Prescriptions").y, item("liste)").y, 0.01, "le premier titre tient sur une ligne");
vrai(item("AFFECTION").gras && item("INTERCURRENTES").gras, "les mots marqués");
vrai(items().every(i => i.x + i.largeur < 190), "rien ne dépasse la mesure");
capture("page_ald");

ecrire(tmp, "un\r\n\r\ndeux\r\n");
clic("FrmOrdo.CmdDate");
repondre("01/01/2020");
const pas = 2 * item("un").hauteur + 1;
proche(item("deux").y - item("un").y, 2 * pas, 0.01, "une ligne vide compte comme une autre");
egal(item("un").police, valeur("PoliceCertif"), "la police des certificats");
