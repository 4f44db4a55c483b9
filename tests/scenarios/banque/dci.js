// Le nom commun : une poignée de 0, un nom vide, plusieurs noms.
banque({
    packs: [{cip: "1", id: 1, produit: 101, nom: "DOLIPRANE"}, {cip: "2", id: 2, produit: 102, nom: "DOLVIDE"},
        {cip: "3", id: 3, produit: 103, nom: "DOLRIEN"}, {cip: "4", id: 4, produit: 104, nom: "DOLDEUX"}],
    produitsBanque: [{id: 101, nom: "DOLIPRANE", dci: "paracétamol*"}, {id: 102, nom: "DOLVIDE", dci: ""},
        {id: 103, nom: "DOLRIEN"}, {id: 104, nom: "DOLDEUX", dci: "codéine*;paracétamol;caféine*"}]
});
installer();
clic("FrmDepart.mnuBase");
clic("FrmOptions.OptB(1)");
clic("FrmOptions.CmdOK(3)");
clic("FrmDepart.CmdNO");
clic("FrmOrdo.CmdPharma");
saisir("FrmMedoc.TxtCherche", "DOL");
touche("FrmMedoc.TxtCherche", "Entree");
egal(lignes("FrmMedoc.TV").length, 4, "les quatre");
cocher("FrmMedoc.ChkDCI", true);
clic("FrmMedoc.TV", "DOLIPRANE");
egal(texte("FrmMedoc.TxtMedoc"), "PARACÉTAMOL", "en capitales, sans étoile");
clic("FrmMedoc.TV", "DOLDEUX");
egal(texte("FrmMedoc.TxtMedoc"), "CODÉINE, paracétamol, caféine", "le premier en capitales");
clic("FrmMedoc.TV", "DOLVIDE");
aucuneBoite("un nom vide ne dit rien");
egal(texte("FrmMedoc.TxtMedoc"), "DOLVIDE", "le nom de la présentation à sa place");
clic("FrmMedoc.TV", "DOLRIEN");
boites([["Ce produit n'a pas de DCI.", "OK"]]);
egal(texte("FrmMedoc.TxtMedoc"), "DOLRIEN", "de même");
egal(fuites(), [], "tout est rendu");
