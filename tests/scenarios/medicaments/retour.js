// Ce que la pharmacie garde quand on la quitte et qu'on y revient.
installer();
vider("Medoc", "BddMed");
["AMLOR", "DOLIPRANE", "METFORMINE"].forEach(function (nom, i) {
    ajouter("Medoc", "BddMed", [i + 1, null, null, null, "1 matin", nom]);
});
clic("FrmDepart.CmdNO");
clic("FrmOrdo.CmdPharma");

// La recherche reste, même sans ligne ni patient.
taper("FrmMedoc.TxtCherche", "met");
clic("FrmMedoc.CmdOrdo");
repondre("OK");
clic("FrmOrdo.CmdPharma");
egal(texte("FrmMedoc.TxtCherche"), "MET", "la recherche reste");
egal(selection("FrmMedoc.TV"), 2, "et son nœud");

// Le saut de ligne rend la main à la recherche, sans la choisir.
clic("FrmMedoc.CmdSaut");
taper("FrmMedoc.TxtCherche", "f");
egal(texte("FrmMedoc.TxtCherche"), "METF", "on tape à la suite");

// Après un ajout, la recherche est choisie : on tape par-dessus.
clic("FrmMedoc.TV", 1);
clic("FrmMedoc.CmdAjouter1");
taper("FrmMedoc.TxtCherche", "a");
egal(texte("FrmMedoc.TxtCherche"), "A", "on tape par-dessus");

// Une base changée entre-temps n'est pas relue : Entrée la relit.
ajouter("Medoc", "BddMed", [9, null, null, null, null, "AAA"]);
clic("FrmMedoc.CmdOrdo");
clic("FrmOrdo.CmdPharma");
egal(lignes("FrmMedoc.TV").length, 3, "l'arbre reste tel quel");
clic("FrmMedoc.CmdAnnule");

// Une nouvelle ordonnance vide la recherche, la liste et ALD.
clic("FrmOrdo.CmdPharma");
cocher("FrmMedoc.ChkALD", true);
saisir("FrmMedoc.TxtCherche", "DOL");
clic("FrmMedoc.CmdSaut");
repondre("Oui");
clic("FrmMedoc.CmdOrdo");
clic("FrmOrdo.CmdNouvelle");
fermer("FrmPatient");
clic("FrmOrdo.CmdPharma");
egal(texte("FrmMedoc.TxtCherche"), "", "la recherche est vidée");
egal(lignes("FrmMedoc.LstChoix1"), [], "la liste aussi");
egal(coche("FrmMedoc.ChkALD"), 0, "ALD est décoché");
faux(visible("FrmMedoc.LstChoix2"), "une seule zone");
clic("FrmMedoc.CmdAnnule");
