// Les deux zones d'une ordonnance ALD.
installer();
vider("Medoc", "BddMed");
ajouter("Medoc", "BddMed", [1, null, null, null, "1 matin*", "AMLOR"]);
ajouter("Medoc", "BddMed", [2, null, null, null, "2 le soir", "DOLIPRANE"]);
clic("FrmDepart.CmdNO");
clic("FrmOrdo.CmdPharma");

cocher("FrmMedoc.ChkALD", true);
egal(texte("FrmMedoc.CmdAjouter1"), "Ajouter ALD", "CmdAjouter1");
egal(texte("FrmMedoc.CmdAjouter2"), "Ajouter non ALD", "CmdAjouter2");
vrai(visible("FrmMedoc.LstChoix2") && visible("FrmMedoc.CmdAjouter2"), "la seconde zone");
egal(valeur("ChkALD"), 1, "l'état");
doubleClic("FrmMedoc.TV", 0);
egal(lignes("FrmMedoc.LstChoix1"), [], "un double clic n'ajoute pas en ALD");
clic("FrmMedoc.CmdAjouter1");
clic("FrmMedoc.TV", 1);
clic("FrmMedoc.CmdAjouter2");
egal(lignes("FrmMedoc.LstChoix1").length, 1, "zone ALD");
egal(lignes("FrmMedoc.LstChoix2"), ["  DOLIPRANE" + " ".repeat(100) + "1"], "zone non ALD");

// Une ligne reprise ne revient que dans sa zone.
doubleClic("FrmMedoc.LstChoix2", 0);
clic("FrmMedoc.CmdAjouter1");
egal(lignes("FrmMedoc.LstChoix1").length, 1, "pas dans l'autre zone");
egal(lignes("FrmMedoc.LstChoix2"), [], "elle reste dehors");
clic("FrmMedoc.TV", 1);
clic("FrmMedoc.CmdAjouter2");

// Choisir dans une liste ôte la sélection de l'autre.
clic("FrmMedoc.LstChoix1", 0);
clic("FrmMedoc.LstChoix2", 0);
egal(selection("FrmMedoc.LstChoix1"), -1, "une seule sélection");

// De zone en zone à la souris.
glisser("FrmMedoc.LstChoix1", 0, "FrmMedoc.LstChoix2");
egal(lignes("FrmMedoc.LstChoix1"), [], "la ligne a quitté sa zone");
egal(lignes("FrmMedoc.LstChoix2")[1], "  AMLOR" + " ".repeat(100) + "1", "le texte entier de la rangée");
egal(donnees("FrmMedoc.LstChoix2"), [1, 2], "un nouvel indice");
egal(texte("FrmMedoc.TxtMedoc"), "", "les cadres sont vidés");
faux(visible("FrmMedoc.Txt"), "l'étiquette flottante est cachée");
clic("FrmMedoc.LstChoix2", 1);
egal(texte("FrmMedoc.TxtPoso"), "1 matin*", "la posologie a suivi");
glisser("FrmMedoc.LstChoix2", 0, "FrmMedoc.TV");
egal(lignes("FrmMedoc.LstChoix2").length, 2, "lâchée ailleurs, la ligne reste");
egal(selection("FrmMedoc.LstChoix2"), -1, "sans sélection");
glisser("FrmMedoc.LstChoix2", 0, "FrmMedoc.LstChoix1");
egal(lignes("FrmMedoc.LstChoix1").length, 1, "et dans l'autre sens");

// Au clavier.
clic("FrmMedoc.LstChoix2", 0);
touche("FrmMedoc.LstChoix2", "Alt+Gauche");
egal(lignes("FrmMedoc.LstChoix1").length, 2, "Alt+Gauche passe la ligne");

// Le saut de ligne demande sa zone.
clic("FrmMedoc.CmdSaut");
egal(boite().boutons, ["Oui", "Non", "Annuler"], "trois réponses");
boites([["Zone ALD, tapez oui.\n\nZone non ALD, tapez non.", "Annuler"]]);
egal(lignes("FrmMedoc.LstChoix1").length + lignes("FrmMedoc.LstChoix2").length, 2, "Annuler n'ajoute rien");
clic("FrmMedoc.CmdSaut");
repondre("Oui");
egal(lignes("FrmMedoc.LstChoix1").length, 3, "Oui : zone ALD");
clic("FrmMedoc.CmdSaut");
repondre("Non");
egal(lignes("FrmMedoc.LstChoix2").length, 1, "Non : zone non ALD");

// Les copies.
cocher("FrmMedoc.ChkDup", true);
cocher("FrmMedoc.ChkTri", true);
egal(coche("FrmMedoc.ChkDup"), 0, "triplicata ôte duplicata");
clic("FrmMedoc.Label6");
egal(coche("FrmMedoc.ChkTri"), 0, "duplicata ôte triplicata");
egal(coche("FrmMedoc.ChkDup"), 1, "un clic sur les mots coche");

// Sans ALD la seconde zone n'est pas peinte, mais gardée.
cocher("FrmMedoc.ChkALD", false);
faux(visible("FrmMedoc.LstChoix2"), "la seconde zone est cachée");
egal(lignes("FrmMedoc.LstChoix2").length, 1, "mais gardée");
clic("FrmMedoc.CmdOrdo");
egal(valeur("NbMedZone1"), 2, "les médicaments de la première zone");
