// "Quitter" beside the clock ends the program once, whatever window is open.
installer();
clic("FrmDepart.CmdNO");
clic("FrmOrdo.CmdNouvelle");
vrai(ouverte("FrmPatient"), "la liste des patients est ouverte");
icone("droit");
clic("FrmDepart.mnuQuitter");
vrai(fini(), "le programme est terminé sous FrmPatient");
egal(travaux(), [], "rien n'est imprimé");

lancer();
clic("FrmChoixBase.CmdSuite");
clic("FrmDepart.CmdNO");
clic("FrmOrdo.CmdPharma");
vrai(ouverte("FrmMedoc"), "les médicaments sont ouverts");
icone("droit");
clic("FrmDepart.mnuQuitter");
vrai(fini(), "le programme est terminé sous FrmMedoc");

lancer();
clic("FrmChoixBase.CmdSuite");
clic("FrmDepart.CmdNO");
clic("FrmOrdo.CmdNouvelle");
clic("FrmPatient.CmdNouveauPatient");
icone("droit");
clic("FrmDepart.mnuQuitter");
vrai(fini(), "le programme est terminé sous deux fenêtres");

lancer();
clic("FrmChoixBase.CmdSuite");
clic("FrmDepart.CmdMedecins");
fermer("FrmMedecins");
fermer("FrmDepart");
vrai(fini(), "fermer l'accueil termine le programme");
