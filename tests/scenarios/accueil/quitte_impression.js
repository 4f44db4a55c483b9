// The end of the program under the confirmation of the printer prints nothing.
lancer();
boites([[/Sélectionnez/, "OK"], [/Sélectionnez/, utilisateur], [/MEDECIN UTILISATEUR/, "OK"], [/Inscrire/, "Dr Neibre"], [/première fois/, "OK"]]);
choisir("FrmChoixBase.CboBase", 0);
clic("FrmChoixBase.CmdSuite");
clic("FrmDepart.CmdNO");
clic("FrmOrdo.CmdImprime");
vrai(ouverte("FrmOptions"), "l'imprimante est demandée");
icone("droit");
clic("FrmDepart.mnuQuitter");
vrai(fini(), "le programme est terminé");
egal(travaux(), [], "rien n'est imprimé");
