// The bank follows the doctor: opened by a change in the active editor, closed by what ends the program.
banque({packs: [{cip: "34", id: 11, produit: 101, nom: "DOLIPRANE"}]});
installer();
const neibre = valeur("CheminMedecin");
clic("FrmDepart.CmdMedecins");
clic("FrmMedecins.CmdNouveau");
repondre("Dr durand");
clic("FrmMedecins.CmdQuitter");
const durand = neibre.replace("DR NEIBRE", "DR DURAND");
ecrire(durand + "/Base.cfg", "\"TVS\",2,2\r\n");
ecrire(neibre + "/Base.cfg", "\"BIP\",2,-1\r\n");
choisir("FrmDepart.CboListeMed", "DR NEIBRE");
const compte = nom => appels().filter(appel => appel.nom === nom).length;

clic("FrmDepart.CmdNO");
choisir("FrmOrdo.CboMed", "DR DURAND");
egal([valeur("TypeBase"), valeur("BanqueInitialisee"), compte("VidalAPI_asyncInit")], ["TVS", 1, 1], "ouverte par le changement");
choisir("FrmOrdo.CboMed", "DR NEIBRE");
egal([valeur("TypeBase"), valeur("SessionBanque")], ["BIP", 77], "la session attend le médecin suivant");
choisir("FrmOrdo.CboMed", "DR DURAND");
egal(compte("VidalAPI_asyncInit"), 1, "elle n'est pas rouverte");
clic("FrmOrdo.CmdAccueil");
clic("FrmDepart.CmdQuitter");
vrai(fini(), "terminé");
egal(compte("VidalAPI_release"), 1, "la fenêtre de départ ferme la session");

lancer();
clic("FrmChoixBase.CmdSuite");
choisir("FrmDepart.CboListeMed", "DR DURAND");
egal(compte("VidalAPI_asyncInit"), 1, "hors de l'éditeur rien ne s'ouvre");
clic("FrmDepart.CmdNO");
egal(compte("VidalAPI_asyncInit"), 2, "à son activation oui");
choisir("FrmOrdo.CboMed", "DR NEIBRE");
clic("FrmOrdo.CmdFermer");
vrai(fini(), "terminé");
egal(compte("VidalAPI_release"), 1, "la base locale n'a pas de session à fermer");
