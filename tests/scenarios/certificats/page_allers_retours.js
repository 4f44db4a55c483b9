// The text that goes to the page and comes back is the same, however often.
installer();
ajouter("Medoc", "Patients", [1, "Monsieur", "MARTIN  Paul", "20/03/1953", "0", "", "", "", "", "", ""]);
const tmp = valeur("CheminTravail") + "/Certificats/Tmp.txt";
const question = "Pour le patient en cours (Monsieur  MARTIN  Paul) ?";
clic("FrmDepart.CmdNO");
clic("FrmOrdo.CmdCertif");
doubleClic("FrmPatient.LstPatient", 0);
saisir("FrmCertif.TxtCert", "Repos\n\n<DR>   ");
clic("FrmCertif.CmdEcrire");
egal(lire(tmp), "Repos\r\n\r\n<DR>\r\n", "sans blancs à la fin, une fin de ligne");
const page = feuille("FrmOrdo.PctOrdo");
for (let tour = 1; tour <= 3; ++tour) {
  clic("FrmOrdo.CmdCertif");
  boites([[question, "Oui"]]);
  egal(texte("FrmCertif.TxtCert"), "Repos\n\n<DR>\n", "le texte de la page, tour " + tour);
  clic("FrmCertif.CmdEcrire");
  egal(lire(tmp), "Repos\r\n\r\n<DR>\r\n", "rien ne s'est ajouté, tour " + tour);
}
egal(feuille("FrmOrdo.PctOrdo"), page, "la page est la même");

clic("FrmOrdo.CmdCertif");
boites([[question, "Non"]]);
fermer("FrmPatient");
faux(ouverte("FrmCertif"), "la liste fermée sans patient, pas de certificat");
egal([valeur("ModeApercu"), valeur("PatientCourant")], [0, ""], "ni d'ancien patient");
