// Les précautions : saisies l'une après l'autre, retirées d'un double clic, dites avant la prescription.
installer();
clic("FrmDepart.CmdNO");
clic("FrmOrdo.CmdNouvelle");
clic("FrmPatient.CmdNouveauPatient");
taper("FrmNouveauP.Txt(0)", "martin");
taper("FrmNouveauP.Txt(1)", "paul");
taper("FrmNouveauP.MEB", "20/03/1953");
clic("FrmNouveauP.CmdCI");
egal(boite().texte, "Indiquez les allergies, contre-indications, ou pathologies... \n" +
     "susceptibles d'influencer les prescritions :\n\nCliquez sur annuler pour terminer.", "l'invite");
for (const reponse of ["iode", "l'aspirine", "a*b"]) {
    repondre(reponse);
}
repondre("");
aucuneBoite();
egal(lignes("FrmNouveauP.LstCi"), ["iode", "l'aspirine", "a*b"], "trois précautions");
doubleClic("FrmNouveauP.LstCi", 0);
egal(boite().genre, "question", "le genre");
boites([["Supprimer la précaution iode ?", "Non"]]);
egal(lignes("FrmNouveauP.LstCi").length, 3, "Non la garde");
doubleClic("FrmNouveauP.LstCi", 0);
boites([["Supprimer la précaution iode ?", "Oui"]]);
egal(lignes("FrmNouveauP.LstCi"), ["l'aspirine", "a*b"], "Oui la retire");
clic("FrmNouveauP.LstCi", 1);
touche("FrmNouveauP.LstCi", "Suppr");
boites([["Supprimer la précaution a*b ?", "Non"]]);
clic("FrmNouveauP.CmdOK");
egal(table("Medoc", "Patients")[0][5], "l'aspirine*a*b", "jointes par une étoile");
clic("FrmPatient.CmdOK");
const message = boite();
egal([message.genre, message.texte],
     ["simple", "Précautions à prendre en compte pour une prescription à\nMARTIN  Paul\n\n" +
      "o   l'aspirine\no   a\no   b\n"], "l'étoile en a fait deux");
repondre("OK");
vrai(ouverte("FrmMedoc"), "puis les médicaments");
