// The settings of one doctor and the next
installer();
const data = utilisateur + "/DataVelmont/DataScriptelle";
const inviteNouveau = /^Inscrire les nom et prénom/;

function nouveau(nom, suite) {
    clic("FrmMedecins.CmdNouveau");
    boites([[inviteNouveau, nom]].concat(suite || []));
}

clic("FrmDepart.CmdMedecins");
for (const nom of ["Dr 漢字", 'Dr "A"', "Dr A/B", "Dr A\\B", "Dr A.", "Dr " + "a".repeat(200), "  dr", "Docteur A"]) {
    nouveau(nom, [["Mauvais format d'inscription !", "OK"]]);
}
nouveau("  dr o'neil 100% d'été  ");
egal(texte("FrmMedecins.LblMed"), "DR O'NEIL 100% D'ÉTÉ", "apostrophe, pour cent et accents");
egal(valeur("TypeBase"), "BIP", "un nouveau médecin prend sa pharmacie personnelle");
faux(existe(data + "/DR O'NEIL 100% D'ÉTÉ/Base.cfg"), "sans fichier de choix");
clic("FrmMedecins.CmdQuitter");

ecrire(data + "/DR NEIBRE/Marges.cfg", "12.5,.5,11,22,101,171,71,101,3,1,2,3,4\r\n");
effacer(data + "/DR O'NEIL 100% D'ÉTÉ/Marges.cfg");
choisir("FrmDepart.CboListeMed", 0);
egal([valeur("MargeGaucheEntete"), valeur("MargeHauteEntete"), valeur("MargeGaucheDDN")], [12.5, 0.5, 4], "le point est lu");
choisir("FrmDepart.CboListeMed", 1);
egal(valeur("MargeGaucheEntete"), 12.5, "sans fichier, les marges d'avant restent");
faux(existe(data + "/DR O'NEIL 100% D'ÉTÉ/Marges.cfg"), "rien n'est écrit");
clic("FrmDepart.CmdMedecins");
ecrire(data + "/DR O'NEIL 100% D'ÉTÉ/Marges.cfg", "14");
choisir("FrmMedecins.LstMed", 1);
egal(valeur("MargeGaucheEntete"), 14, "choisi de nouveau, il reprend ses fichiers");
effacer(data + "/DR O'NEIL 100% D'ÉTÉ/Marges.cfg");
doubleClic("FrmMedecins.LstMed", 1);
faux(ouverte("FrmMedecins"), "le double clic quitte");
clic("FrmDepart.CmdQuitter");

// A directory that was left behind keeps what its doctor had.
creerDossier(data + "/DR REVENU");
ecrire(data + "/DR REVENU/Options.cfg", "0,0,0\r\n");
ecrire(data + "/Medecin.ini", " 7 \r\nDR NEIBRE-1\r\nDR MARTIN-DURAND PAUL-7\r\n");
ecrire(programme + "/CheminBase.cfg", '0,"",7\r\n');
lancer();
egal(lignes("FrmChoixBase.CboMed"), ["DR NEIBRE", "DR MARTIN"], "un trait d'union coupe le nom");
egal(donnees("FrmChoixBase.CboMed"), [1, 7], "les numéros");
egal(selection("FrmChoixBase.CboMed"), 1, "le médecin par défaut");
choisir("FrmChoixBase.CboMed", 0);
choisir("FrmChoixBase.CboBase", 0);
clic("FrmChoixBase.CmdSuite");
clic("FrmDepart.CmdMedecins");
nouveau("Dr Revenu");
egal(lire(data + "/DR REVENU/Options.cfg"), "0,0,0\r\n", "ses options restent");
egal(lister(data + "/DR REVENU"), ["Dupli.cfg", "Logo", "Marges.cfg", "Options.cfg", "Ordo.mdb"], "le reste est ajouté");
egal(valeur("AfficheAge"), 0, "et elles servent");
egal(lire(data + "/Medecin.ini"), " 8 \r\nDR NEIBRE-1\r\nDR MARTIN-DURAND PAUL-7\r\nDR REVENU-8\r\n", "la liste");
