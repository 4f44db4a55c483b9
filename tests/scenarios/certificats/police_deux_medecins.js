// The certificates' font that one doctor has just chosen is not that of a doctor who chose none.
installer();
clic("FrmDepart.CmdMedecins");
clic("FrmMedecins.CmdNouveau");
repondre("Dr durand");
clic("FrmMedecins.CmdQuitter");
vider(valeur("CheminMedecin") + "/Ordo.mdb", "Certificat");
const police = () => [valeur("PoliceCertif"), valeur("TailleCertif"), valeur("GrasCertif")];
choisir("FrmDepart.CboListeMed", 0);
choisir("FrmDepart.CboListeMed", 1);
const premiere = police();
choisir("FrmDepart.CboListeMed", 0);
ajouter("Medoc", "Patients", [1, "Monsieur", "MARTIN  Paul", "20/03/1953", "0", "", "", "", "", "", ""]);

function ouvreEditeur(patient) {
    clic("FrmOrdo.CmdCertif");
    patient();
}
function quitteEditeur() {
    clic("FrmCertif.CmdAnn");
    if (ouverte("FrmMedoc")) {
        clic("FrmMedoc.CmdOrdo");
        repondre("OK");
    }
}
clic("FrmDepart.CmdNO");
ouvreEditeur(() => doubleClic("FrmPatient.LstPatient", 0));
clic("FrmCertif.CmdPolice");
repondre({nom: "Times New Roman", taille: 16, gras: true, italique: false, souligne: false});
egal(police(), ["Times New Roman", 16, 1], "choisie");
egal(aspect("FrmCertif.TxtCert").taille, 16, "le texte la montre");
quitteEditeur();
choisir("FrmOrdo.CboMed", 1);
egal(police(), premiere, "le second garde la sienne");
ouvreEditeur(() => repondre("Oui"));
egal(aspect("FrmCertif.TxtCert").taille, premiere[1], "et son texte aussi");
quitteEditeur();
choisir("FrmOrdo.CboMed", 0);
egal(police(), ["Times New Roman", 16, 1], "le premier retrouve celle qu'il a choisie");
