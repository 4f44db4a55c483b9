// F2 montre les notes d'un médicament.
installer();
vider("Medoc", "BddMed");
ajouter("Medoc", "BddMed", [1, null, null, "à prendre\nà jeun", null, "DOLIPRANE"]);
ajouter("Medoc", "BddMed", [2, null, null, null, null, "AMLOR"]);
clic("FrmDepart.CmdNO");
clic("FrmOrdo.CmdPharma");
touche("FrmMedoc.TxtCherche", "F2");
faux(ouverte("FrmIAM"), "rien avant un clic");
clic("FrmMedoc.TV", "AMLOR");
touche("FrmMedoc.TxtMedoc", "F2");
faux(ouverte("FrmIAM"), "rien sans notes");
clic("FrmMedoc.TV", "DOLIPRANE");
touche("FrmMedoc.TxtMedoc", "F2");
egal(fenetreActive(), "FrmIAM", "les notes sont devant");
egal(texte("FrmIAM.Txt"), "à prendre\nà jeun", "les notes");
touche("FrmIAM.Txt", "Echap");
egal(fenetreActive(), "FrmMedoc", "Echap revient à la pharmacie");
egal(texte("FrmMedoc.TxtMedoc"), "DOLIPRANE", "le médicament est toujours choisi");

// Des notes vides ne sont pas nulles : la fenêtre s'ouvre.
ajouter("Medoc", "BddMed", [3, null, null, "", null, "ZYLORIC"]);
touche("FrmMedoc.TxtCherche", "Entree");
touche("FrmMedoc.TxtCherche", "F2");
faux(ouverte("FrmIAM"), "rien après une relecture");
clic("FrmMedoc.TV", "ZYLORIC");
touche("FrmMedoc.TxtPoso", "F2");
egal(fenetreActive(), "FrmIAM", "des notes vides se montrent");
egal(texte("FrmIAM.Txt"), "", "elles sont vides");
clic("FrmIAM.CmdFermer");
clic("FrmMedoc.CmdAnnule");
