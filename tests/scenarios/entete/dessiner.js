// The letterhead designed with mouse and keyboard: indentation, font, colour, margins, order, saving, test
// print, and the way back to the options.
installer();
const ouvre = () => {
  clic("FrmDepart.CmdOptions");
  clic("FrmOptions.CmdET");
};
const mots = surface => feuille("FrmEntete." + surface).map(item => item.texte);
const chemin = valeur("CheminMedecin");
const premiers = table("Ordo", "Entete");
ouvre();
egal(titre("FrmEntete"), "   En-tête ordonnance", "le titre");
egal([0, 5, 6, 7, 21].map(rang => texte("FrmEntete.Txt(" + rang + ")")), ["*", "Tel", "*", "Fax", "*"], "les rangs");
egal(["TxtMG", "TxtMH", "TxtMB"].map(nom => texte("FrmEntete." + nom)), ["10", "4", "10"], "les marges");
egal(coche("FrmEntete.Opt(0)"), 1, "l'ordre");
faux(visible("FrmEntete.LblModifie"), "rien de modifié");
egal(mots("PctEntete"), ["Tel", "Fax"], "l'en-tête enregistrée");

// The close box and Escape leave the window where it is.
fermer("FrmEntete");
touche("FrmEntete.Txt(0)", "Echap");
vrai(ouverte("FrmEntete"), "la fenêtre ne se ferme pas");

// Blanks at the head of a row are its indentation.
saisir("FrmEntete.Txt(0)", "");
clic("FrmEntete.Txt(0)");
egal([valeur("LigneCourante"), valeur("TexteAvantCurseur")], [0, ""], "au début du rang 0");
taper("FrmEntete.Txt(0)", "    ");
touche("FrmEntete.Txt(0)", "Retour");
egal([valeur("EspacesLigne")[0], texte("FrmEntete.Txt(0)")], [3, ""], "le retrait, sans texte");
taper("FrmEntete.Txt(0)", "12 rue des Lilas");
egal([valeur("EspacesLigne")[0], texte("FrmEntete.Txt(0)")], [3, "12 rue des Lilas"], "le texte garde ses blancs");
caret("FrmEntete.Txt(0)", 0);
touche("FrmEntete.Txt(0)", "Suppr");
egal(texte("FrmEntete.Txt(0)"), "12 rue des Lilas", "Suppr ne fait rien au début");
caret("FrmEntete.Txt(0)", 2);
egal(valeur("TexteAvantCurseur"), "12", "le texte avant le curseur");
touche("FrmEntete.Txt(0)", "Suppr");
egal(texte("FrmEntete.Txt(0)"), "12rue des Lilas", "ailleurs il efface");
taper("FrmEntete.Txt(0)", " ");
egal([valeur("EspacesLigne")[0], texte("FrmEntete.Txt(0)")], [3, "12 rue des Lilas"], "un blanc dans le texte");

// The sheet follows, the stored rows do not.
vrai(visible("FrmEntete.LblModifie"), "modifications non enregistrées");
proche(feuille("FrmEntete.PctFeuille").find(item => item.texte === "12 rue des Lilas").x, 13, 0.01, "la feuille suit");
egal(mots("PctEntete"), ["Tel", "Fax"], "l'en-tête enregistrée reste");
egal(table("Ordo", "Entete"), premiers, "et la base");

// A font for one row, Cancel for another.
clic("FrmEntete.Txt(10)");
saisir("FrmEntete.Txt(10)", "Docteur NEIBRE");
clic("FrmEntete.CmdPolice");
egal(boite().genre, "police", "la police");
repondre({nom: "Times New Roman", taille: 18, gras: true, italique: false, souligne: true});
const aspectNom = aspect("FrmEntete.Txt(10)");
egal([aspectNom.police, aspectNom.taille, aspectNom.gras, aspectNom.souligne], ["Times New Roman", 18, true, true], "du rang 10");
clic("FrmEntete.Txt(11)");
clic("FrmEntete.CmdPolice");
repondre(null);
egal(aspect("FrmEntete.Txt(11)").taille, 10, "Annuler ne change rien");

// The colour of the whole letterhead.
const annonce = "Seule la couleur du texte de l'entête, et de toute l'entête, est prise en considération dans cette boite de dialogue.";
clic("FrmEntete.CmdCouleur");
boites([[annonce, "OK"]]);
repondre(null);
egal(valeur("CouleurEntete"), 0, "Annuler garde la couleur");
clic("FrmEntete.CmdCouleur");
boites([[annonce, "OK"]]);
repondre(128 * 65536);
egal([valeur("CouleurEntete"), aspect("FrmEntete.LblColor").fond], [128 * 65536, 128 * 65536], "la couleur");

// The order shows at once.
const yTel = () => feuille("FrmEntete.PctEntete").find(item => item.texte === "Tel").y;
const avant = yTel();
clic("FrmEntete.Opt(1)");
vrai(yTel() > avant, "le praticien avant l'adresse");
egal(valeur("ModeEntete"), 1, "ModeEntete");
clic("FrmEntete.Opt(0)");

// Saving.
saisir("FrmEntete.TxtMG", "12,5");
saisir("FrmEntete.TxtMB", "bas");
saisir("FrmEntete.Txt(23)", " Docteur Anne NEIBRE ");
clic("FrmEntete.CmdEnregistrer");
egal([boite().genre, boite().texte], ["information", "En-tête enregistrée !"], "enregistrée");
repondre("OK");
const rangs = table("Ordo", "Entete");
egal(rangs.map(rang => rang[0]), Array.from({length: 24}, (_, rang) => rang), "24 rangs en ordre");
egal(rangs[0], [0, "12 rue des Lilas", "Arial", 10, 0, 0, 0, 3], "le rang 0");
egal(rangs[1][1], "*", "une étoile reste une étoile");
egal(rangs[10], [10, "Docteur NEIBRE", "Times New Roman", 18, 1, 0, 1, 0], "le rang 10");
egal(rangs[22][1], "Membre d'une association agréée. Règlement des honoraires par chèque accepté.\r\n", "le pied");
egal(table("Ordo", "CouleurPET"), [[128 * 65536]], "la couleur");
egal(lire(chemin + "/Marges.cfg").split(",").slice(0, 3), ["12", "4", "0"], "12,5 se lit 12, un mot se lit 0");
egal(valeur("NomSignature"), "Docteur Anne NEIBRE", "la signature");
faux(visible("FrmEntete.LblModifie"), "plus rien de modifié");
vrai(mots("PctEntete").includes("Docteur NEIBRE"), "l'en-tête enregistrée suit");
vrai(feuille("FrmDepart").some(item => item.texte === "Docteur NEIBRE"), "et la face");

// The test print: one page, and the foot from the bottom edge.
clic("FrmEntete.CmdImpression");
const papier = travaux()[0].pages;
egal(papier.length, 1, "une page");
const rue = papier[0].find(item => item.texte === "12 rue des Lilas");
proche(rue.x, 15, 0.01, "marge et retrait");
const sur = feuille("FrmEntete.PctFeuille").find(item => item.texte === "12 rue des Lilas");
egal([rue.x, rue.y, rue.police, rue.taille, rue.couleur], [sur.x, sur.y, sur.police, sur.taille, sur.couleur], "comme la feuille");
const pied = papier[0].find(item => item.texte.startsWith("Membre"));
proche(pied.y, 297 - 0 + 4, 0.01, "le pied");
egal(pied.couleur, 128 * 65536, "dans sa couleur");

// The way back: nothing is asked, nothing is stored, and what was typed waits in the window.
saisir("FrmEntete.Txt(12)", "Sur rendez-vous");
clic("FrmEntete.CmdQuitter");
aucuneBoite();
vrai(ouverte("FrmOptions"), "retour aux options");
faux(ouverte("FrmEntete"), "la fenêtre est fermée");
egal(table("Ordo", "Entete"), rangs, "rien n'est enregistré en partant");
clic("FrmOptions.CmdET");
egal([texte("FrmEntete.Txt(10)"), texte("FrmEntete.Txt(12)")], ["Docteur NEIBRE", "Sur rendez-vous"], "la frappe attendait");
vrai(visible("FrmEntete.LblModifie"), "toujours à enregistrer");
clic("FrmEntete.CmdRevient");
egal([boite().genre, boite().defaut], ["question", "Non"], "revenir se demande");
repondre("Oui");
egal([texte("FrmEntete.Txt(10)"), texte("FrmEntete.Txt(12)")], ["Docteur NEIBRE", "*"], "les rangs enregistrés");
egal(valeur("EspacesLigne")[0], 3, "avec leur retrait");
clic("FrmEntete.CmdAide");
contient(boite().texte, "*", "l'aide");
repondre("OK");
clic("FrmEntete.CmdQuitter");
clic("FrmOptions.CmdAnnule(0)");
