// Les ordonnances mémorisées : sans modèle, un message ; avec un modèle, leur fenêtre.
installer();
clic("FrmDepart.CmdNO");
clic("FrmOrdo.CmdPharma");
egal(texte("FrmMedoc.LblOrdoMem"), "Ordonnances Mémorisées", "LblOrdoMem");
clic("FrmMedoc.LblOrdoMem");
egal(boite().genre, "information", "une information");
boites([["Aucun modèle d'ordonnance n'est enregistré.", "OK"]]);
vrai(ouverte("FrmMedoc"), "la pharmacie reste");

// Le modèle d'un autre patient n'en est pas un pour celui-ci.
ajouter("Medoc", "ListeOrdos", ["HTA", "Monsieur  L'ÉTÉ  \"Paul\"", 0, "20/03/1953"]);
clic("FrmMedoc.LblOrdoMem");
boites([["Aucun modèle d'ordonnance n'est enregistré.", "OK"]]);

// Un modèle pour tous.
ajouter("Medoc", "ListeOrdos", ["Rhume", "*", 0, "0"]);
clic("FrmMedoc.LblOrdoMem");
egal(lignes("FrmMemo.LstMemo(0)"), ["1- Rhume"], "il est proposé");
egal(lignes("FrmMemo.LstMemo(1)"), [], "celui de l'autre patient ne l'est pas");
clic("FrmMemo.CmdQuitter");
vrai(ouverte("FrmMedoc"), "retour à la pharmacie");
clic("FrmMedoc.CmdAnnule");
