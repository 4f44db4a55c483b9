// A certificate too long for its sheet is marked on the preview and asked about before it is printed.
installer();
ajouter("Medoc", "Patients", [1, "Monsieur", "MARTIN  Paul", "20/03/1953", "0", "", "", "", "", "", ""]);
clic("FrmDepart.CmdNO");
clic("FrmOrdo.CmdCertif");
doubleClic("FrmPatient.LstPatient", 0);
saisir("FrmCertif.TxtCert", "ligne\n".repeat(15));
clic("FrmCertif.CmdEcrire");
faux(visible("FrmOrdo.LblDeborde"), "quinze lignes tiennent");
clic("FrmOrdo.CmdCertif");
repondre("Oui");
saisir("FrmCertif.TxtCert", "ligne\n".repeat(25));
clic("FrmCertif.CmdEcrire");
vrai(visible("FrmOrdo.LblDeborde"), "vingt-cinq ne tiennent pas");
egal(texte("FrmOrdo.LblDeborde"), "Le certificat dépasse le bas de la feuille", "l'aperçu le dit");
touche("FrmOrdo", "PageBas");
capture("certificat_deborde");
clic("FrmOrdo.CmdImprime");
if (ouverte("FrmOptions")) cocher("FrmOptions.Chkimp", true);
egal(boite().defaut, "Non", "Non par défaut");
boites([[/lignes du certificat dépassent/, "Non"]]);
egal(travaux().length, 0, "rien n'est imprimé");

clic("FrmOrdo.CmdPharma");
fermer("FrmMedoc");
faux(visible("FrmOrdo.LblDeborde"), "l'ordonnance vide ne déborde pas");
