// Tabs 4 and 5: without the helper library the choice falls back; the level acts at once and stays.
installer();
clic("FrmDepart.mnuBase");
egal(selection("FrmOptions.TS"), 3, "sur son onglet");
vrai(coche("FrmOptions.OptB(0)"), "la base de Scriptelle");
clic("FrmOptions.OptB(1)");
egal(texte("FrmOptions.LblBase"), "Le VIDAL Expert n'est pas correctement installé. La base Scriptelle sera utilisée. !",
     "pas de banque");
egal([coche("FrmOptions.OptB(0)"), coche("FrmOptions.OptB(1)")], [1, 0], "le choix revient");
egal([valeur("TypeBase"), valeur("ProduitBanque")], ["BIP", -1], "les variables aussi");
egal([coche("FrmOptions.ChKMedU"), actif("FrmOptions.ChKMedU")], [0, false], "sans relief");
clic("FrmOptions.OptB(2)");
vrai(coche("FrmOptions.OptB(0)"), "pour la base dentaire de même");
clic("FrmOptions.OptB(0)");
egal(texte("FrmOptions.LblBase"), "La base Scriptelle sera utilisée.", "la base de Scriptelle");
clic("FrmOptions.CmdAnnule(3)");
egal(valeur("ProduitBanque"), 2, "annulé");
clic("FrmDepart.mnuBase");
clic("FrmOptions.OptB(0)");
choisir("FrmOptions.TS", "Interactions");
clic("FrmOptions.OptN(2)");
egal(valeur("NiveauInteraction"), 2, "aussitôt");
clic("FrmOptions.CmdAnnule(4)");
egal(valeur("NiveauInteraction"), 2, "et l'annulation ne le rend pas");
clic("FrmDepart.mnuBase");
clic("FrmOptions.OptB(0)");
clic("FrmOptions.CmdOK(3)");
egal(lire(valeur("CheminMedecin") + "/Base.cfg"), "\"BIP\",2,-1\r\n", "enregistré");
