// The selection goes to the clipboard, the font to the doctor's database.
installer();
ajouter("Medoc", "Patients", [1, "Monsieur", "MARTIN  Paul", "20/03/1953", "72", "", "", "", "", "", ""]);
clic("FrmDepart.CmdNO");
clic("FrmOrdo.CmdCertif");
doubleClic("FrmPatient.LstPatient", "MARTIN  Paul");

saisir("FrmCertif.TxtCert", "Apte au judo");
clic("FrmCertif.CmdPP");
egal(boite().genre, "exclamation", "rien n'est sélectionné");
boites([["Pas de texte sélectionné !", "OK"]]);
touche("FrmCertif.TxtCert", "Ctrl+A");
clic("FrmCertif.CmdPP");
boites([["Sélection copiée dans Presse-pappiers !", "OK"]]);
saisir("FrmCertif.TxtCert", "");
touche("FrmCertif.TxtCert", "Ctrl+V");
egal(texte("FrmCertif.TxtCert"), "Apte au judo", "le presse-papiers tient la sélection");

const avant = texte("FrmCertif.LblF");
clic("FrmCertif.CmdPolice");
egal(boite().genre, "police", "la police des certificats");
repondre(null);
egal(texte("FrmCertif.LblF"), avant, "annuler ne change rien");
clic("FrmCertif.CmdPolice");
repondre({nom: "Times New Roman", taille: 12, gras: true, italique: false, souligne: true});
egal(texte("FrmCertif.LblF"), "Times New Roman  (12  G    U)", "son libellé");
egal(table("Ordo", "Certificat").map(r => [r[0], r[1]]), [["Times New Roman", 12]], "une seule rangée");
egal([valeur("PoliceCertif"), valeur("TailleCertif"), valeur("GrasCertif"), valeur("ItaliqueCertif"), valeur("SouligneCertif")],
     ["Times New Roman", 12, 1, 0, 1], "les cinq variables");
const vue = aspect("FrmCertif.TxtCert");
egal([vue.police, vue.taille, vue.gras], ["Times New Roman", 12, true], "le texte la porte");
egal(texte("FrmCertif.TxtCert"), "Apte au judo", "sans changer");
