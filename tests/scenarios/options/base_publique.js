// Tab 4: the open bank needs no helper; its text says what is there, and what the data are worth.
const bibliotheque = programme + "/scriptelle-bdp.so";
copier(bibliotheque, utilisateur + "/bibliotheque");
effacer(bibliotheque);
installer();
egal(valeur("TypeBase"), "BIP", "une installation neuve prend la pharmacie personnelle");
clic("FrmDepart.mnuBase");
clic("FrmOptions.OptB(3)");
egal(texte("FrmOptions.LblBase"), "La base publique des médicaments n'est pas correctement installée ! " +
     "Sa bibliothèque « scriptelle-bdp » manque à côté du programme.", "sans bibliothèque");
egal([coche("FrmOptions.OptB(3)"), valeur("TypeBase"), valeur("ProduitBanque")], [1, "BDP", 3], "le choix reste, comme pour un VIDAL absent");
copier(utilisateur + "/bibliotheque", bibliotheque);
clic("FrmOptions.OptB(3)");
contient(texte("FrmOptions.LblBase"), "La base publique des médicaments est correctement installée ! Données du ", "présente");
contient(texte("FrmOptions.LblBase"), "Attention, ce n'est pas la base entière : extrait d'essai aux médicaments et interactions inventés", "l'extrait le dit");
capture("options_base_publique");
vrai(actif("FrmOptions.ChKMedU"), "le relief est offert");
clic("FrmOptions.CmdAnnule(3)");
egal([valeur("TypeBase"), valeur("ProduitBanque")], ["BIP", 2], "annulé");

clic("FrmDepart.mnuBase");
clic("FrmOptions.OptB(3)");
cocher("FrmOptions.ChKMedU", true);
choisir("FrmOptions.TS", "Interactions");
clic("FrmOptions.OptN(1)");
clic("FrmOptions.CmdOK(4)");
egal(lire(valeur("CheminMedecin") + "/Base.cfg"), "\"BDP\",1,3\r\n", "enregistré");
egal(valeur("ReliefMedUtilises"), 1, "avec le relief");

clic("FrmDepart.mnuBase");
egal(coche("FrmOptions.OptB(3)"), 1, "montré à l'ouverture");
contient(texte("FrmOptions.LblBase"), "est correctement installée", "avec son état");
clic("FrmOptions.OptB(1)");
egal([coche("FrmOptions.OptB(0)"), valeur("TypeBase")], [1, "BIP"], "le VIDAL absent laisse toujours Scriptelle");
clic("FrmOptions.CmdAnnule(3)");
egal([valeur("TypeBase"), valeur("ProduitBanque")], ["BDP", 3], "l'annulation rend la base publique");

effacer(programme + "/banque.sqlite");
clic("FrmDepart.mnuBase");
contient(texte("FrmOptions.LblBase"), "Son fichier « banque.sqlite » manque", "sans fichier");
ecrire(programme + "/banque.sqlite", "autre chose");
clic("FrmOptions.OptB(3)");
contient(texte("FrmOptions.LblBase"), "ou n'est pas lisible", "un fichier abîmé n'est pas une base");
clic("FrmOptions.CmdAnnule(3)");
