// Les ordonnances mémorisées : sans modèle, un message.
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

// Un modèle pour tous : la fenêtre n'est pas encore là, et cela se dit.
ajouter("Medoc", "ListeOrdos", ["Rhume", "*", 0, "0"]);
clic("FrmMedoc.LblOrdoMem");
boites([["Cette fonction n'est pas encore disponible dans cette version.", "OK"]]);
clic("FrmMedoc.CmdAnnule");
