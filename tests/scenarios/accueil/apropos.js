// The about box: the version, and links that lead somewhere.
installer();
clic("FrmDepart.CmdAP");
egal(texte("FrmAPROPOS.Lblversion"), "[Version 2.3.25]", "la version");
clic("FrmAPROPOS.Label1");
clic("FrmAPROPOS.Label2");
egal(documents().length, 2, "les deux liens ouvrent quelque chose");
contient(documents()[0], "Aide.pdf", "le document d'aide");
egal(documents()[1], "mailto:?subject=Scriptelle%202.3.25", "un message sans destinataire");
clic("FrmAPROPOS.Bouton_VL_XP1");
faux(ouverte("FrmAPROPOS"), "la fenêtre est fermée");

// Asked for twice from beside the clock, it stands once.
clic("FrmDepart.CmdNO");
icone("droit");
clic("FrmDepart.mnuAPropos");
icone("droit");
clic("FrmDepart.mnuAPropos");
vrai(ouverte("FrmAPROPOS"), "elle reste ouverte");
egal(fenetreActive(), "FrmAPROPOS", "et devant");
touche("FrmAPROPOS.Bouton_VL_XP1", "Echap");
faux(ouverte("FrmAPROPOS"), "Échap la ferme");
