// An address of five lines beside the text, glued to other characters, and too wide for what follows it.
installer();
const adresse = ["1 rue A", "Bât. B", "Étage 3", "13000 MARSEILLE", "France"];
ajouter("Medoc", "Patients", [1, "Monsieur", "MARTIN  Paul", "20/03/1953", "0", "", "", "", adresse.join("\r\n"), "", ""]);
const items = () => feuille("FrmOrdo.PctOrdo").filter(i => i.genre === "texte");
const item = mot => items().find(i => i.texte.trim() === mot);
clic("FrmDepart.CmdNO");
clic("FrmOrdo.CmdCertif");
doubleClic("FrmPatient.LstPatient", 0);
saisir("FrmCertif.TxtCert", "demeurant <AD> suite ici\ndessous (<AD>) fin");
clic("FrmCertif.CmdEcrire");
const lignes5 = adresse.map(item);
vrai(lignes5.every(i => i !== undefined), "les cinq lignes sont imprimées");
vrai(lignes5.every(i => Math.abs(i.x - lignes5[0].x) < 0.01), "l'une sous l'autre");
vrai(lignes5.every((i, rang) => rang === 0 || i.y > lignes5[rang - 1].y), "dans leur ordre");
proche(item("demeurant").y, lignes5[0].y, 0.01, "la première au niveau du mot d'avant");
proche(item("suite").y, lignes5[0].y, 0.01, "la suite au même niveau");
vrai(item("suite").x >= lignes5[3].x + lignes5[3].largeur, "à droite de la plus large");
vrai(item("dessous").y > lignes5[4].y + lignes5[4].hauteur, "la ligne suivante sous la dernière");
vrai(item("(1 rue A") !== undefined && item("France)") !== undefined, "ce qui est collé à la macro reste");
proche(item("fin").y, item("dessous").y, 0.01, "et la suite revient au niveau");

clic("FrmOrdo.CmdCertif");
repondre("Oui");
saisir("FrmCertif.TxtCert", "<AD>");
clic("FrmCertif.CmdEcrire");
proche(item("1 rue A").x, valeur("MargeGaucheOrdo"), 0.01, "seule, elle commence à la marge");
