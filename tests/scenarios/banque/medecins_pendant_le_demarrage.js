// The doctor changes while the library of the one before still starts: its start is given up, the other bank opens.
banque({attentes: 1000000, packs: [{cip: "34", id: 11, produit: 101, nom: "DOLIPRANE"}]});
installer();
const neibre = valeur("CheminMedecin");
clic("FrmDepart.CmdMedecins");
clic("FrmMedecins.CmdNouveau");
repondre("Dr durand");
clic("FrmMedecins.CmdNouveau");
repondre("Dr local");
clic("FrmMedecins.CmdQuitter");
ecrire(neibre + "/Base.cfg", "\"TVS\",0,2\r\n");
ecrire(neibre.replace("DR NEIBRE", "DR DURAND") + "/Base.cfg", "\"BDP\",0,3\r\n");
ecrire(neibre.replace("DR NEIBRE", "DR LOCAL") + "/Base.cfg", "\"BIP\",0,-1\r\n");
choisir("FrmDepart.CboListeMed", "DR NEIBRE");
const compte = nom => appels().filter(appel => appel.nom === nom).length;

clic("FrmDepart.CmdNO");
egal([valeur("RetourInitBanque"), valeur("BanqueInitialisee"), visible("FrmI")], [14, 0, 1], "un démarrage qui n'en finit pas");
fermer("FrmI");
vrai(visible("FrmI"), "sa fenêtre ne se ferme pas");

choisir("FrmOrdo.CboMed", "DR LOCAL");
egal([valeur("TypeBase"), visible("FrmI")], ["BIP", 1], "la base locale n'y touche pas");
choisir("FrmOrdo.CboMed", "DR DURAND");
egal([valeur("TypeBase"), valeur("RetourInitBanque"), valeur("BanqueInitialisee")], ["BDP", 0, 1], "l'autre banque est ouverte");
contient(valeur("MessageBanque"), "Pharmacie initialisée", "et le dit");
faux(visible("FrmI"), "plus rien n'est en cours");
egal([compte("VidalAPI_asyncInit"), compte("VidalAPI_release")], [1, 0], "ce qui démarre encore n'est pas rendu");
clic("FrmOrdo.CmdPharma");
saisir("FrmMedoc.TxtCherche", "PARACETAMOL");
touche("FrmMedoc.TxtCherche", "Entree");
vrai(lignes("FrmMedoc.TV").length > 0, "elle répond");
clic("FrmMedoc.CmdAnnule");

choisir("FrmOrdo.CboMed", "DR NEIBRE");
egal([compte("VidalAPI_asyncInit"), valeur("RetourInitBanque"), visible("FrmI.CmdAnnuler")], [2, 14, 1], "de retour, le démarrage recommence");
clic("FrmOrdo.CmdPharma");
saisir("FrmMedoc.TxtCherche", "PARACETAMOL");
touche("FrmMedoc.TxtCherche", "Entree");
egal([lignes("FrmMedoc.TV"), visible("FrmMedoc.LblSansBanque")], [[], 1], "l'autre banque ne répond pas à sa place");
contient(texte("FrmMedoc.LblSansBanque"), "La banque de médicaments démarre", "et la fenêtre dit ce qu'elle attend");
clic("FrmI.CmdAnnuler");
contient(texte("FrmMedoc.LblSansBanque"), "la banque de médicaments ne répond pas", "puis qu'il n'y a plus rien à attendre");
clic("FrmMedoc.CmdAnnule");
clic("FrmOrdo.CmdFermer");
vrai(fini(), "le programme se ferme");
egal(compte("VidalAPI_release"), 0, "rien n'est rendu de force");
