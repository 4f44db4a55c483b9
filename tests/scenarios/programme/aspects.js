// The look of labels, buttons, boxes, rows and entries.
installer();
egal(aspect("FrmDepart.CmdNO").fond, 237 + 256 * 244 + 65536 * 252, "le fond du bouton");
egal(aspect("FrmDepart.Label1").fond, 16777215, "un libellé laisse voir celui de sa carte");
clic("FrmDepart.CmdMedecins");
egal(aspect("FrmMedecins.LstMed").police, "Courier New", "la police d'une liste");
egal(aspect("FrmMedecins.LstMed", 0), aspect("FrmMedecins.LstMed", "DR NEIBRE"), "une rangée, par son rang ou son texte");
clic("FrmMedecins.CmdQuitter");
clic("FrmDepart.CmdNO");
clic("FrmOrdo.CmdPharma");
const titre = aspect("FrmMedoc.TxtMedoc");
egal([titre.police, titre.taille, titre.gras], [valeur("PoliceTitre"), valeur("TailleTitre"), valeur("GrasTitre")],
    "la case du titre");
egal(aspect("FrmMedoc.TV", 0).gras, false, "un nœud");
egal(Object.keys(titre).sort(), ["couleur", "fond", "gras", "italique", "police", "souligne", "taille"], "tout y est");
clic("FrmMedoc.CmdAnnule");
clicDroit("FrmOrdo.PctOrdo");
egal(aspect("FrmOrdo.mnuQuitter").gras, true, "l'entrée par défaut");
egal(aspect("FrmOrdo.mnuAP").gras, false, "une autre");
touche("FrmOrdo", "Echap");
