// The document of a pack: the monograph beside the lines, "zeromono.htm" where there is none, nothing elsewhere.
installer();
vider("Medoc", "Biblio");
ajouter("Medoc", "Biblio", ["QSP 3 mois", "en tout"]);
const page = utilisateur + "/doliprane.htm";
ecrire(page, "<html><head><title>Fiche</title></head><body><h1>DOLIPRANE 1 000 mg</h1><p>Une prise de 1 g, espacée de 4 heures." +
    "<script>document.write('jamais')</script></p></body></html>");
banque({
    packs: [{cip: "3400930000011", id: 11, produit: 101, nom: "DOLIPRANE 1 000 mg cp : B/8", prix: 1.16},
        {cip: "3400930000028", id: 12, produit: 102, nom: "DOLIPRANE 500 mg cp : B/16", prix: 1.16},
        {cip: "3400930000035", id: 13, produit: 103, nom: "DOLIPRANE 300 mg suppos : B/10", prix: 1.5},
        {cip: "3400930000042", id: 14, produit: 104, nom: "DOLIPRANE EXTERNE", prix: 2}],
    produitsBanque: [{id: 101, nom: "DOLIPRANE 1 000 mg", dci: "paracétamol*;caféine*"}],
    documents: [{pack: 11, id: 5, nom: "Doliprane 1 000", type: 2, url: "file://" + page},
        {pack: 11, id: 6, nom: "Avis", type: 17, url: "file:///rien"},
        {pack: 12, id: 7, nom: "Fiche ALD", type: 16, url: "file://" + page},
        {pack: 14, id: 8, nom: "Externe", type: 4, url: "https://example.org/fiche"}]
});
ajouter("Medoc", "Patients", [1, "Monsieur", "MARTIN  Paul", "20/03/1953", "0", null, null, null, null, null, null]);
ecrire(valeur("CheminMedecin") + "/Base.cfg", "\"TVS\",0,2\r\n");
clic("FrmDepart.CmdQuitter");
lancer();
clic("FrmChoixBase.CmdSuite");
clic("FrmDepart.CmdNO");
clic("FrmOrdo.CmdNouvelle");
choisir("FrmPatient.LstPatient", "MARTIN  Paul");
clic("FrmPatient.CmdOK");

const vierge = () => egal([texte("FrmMedoc.WB"), valeur("AdresseWB")], ["", "about:blank"], "rien n'est montré");
const sansDocument = () => {
    contient(texte("FrmMedoc.WB"), "Il n'y a pas de document pour ce médicament.", "la page de l'absence");
    contient(valeur("AdresseWB"), "/zeromono.htm", "du dossier du programme");
};
function cherche(texte) {
    saisir("FrmMedoc.TxtCherche", texte);
    touche("FrmMedoc.TxtCherche", "Entree");
}

vierge();
clic("FrmMedoc.TV", 0);
sansDocument();
cherche("DOLIPRANE");
vierge();

const avant = appels().length;
clic("FrmMedoc.TV", 0);
contient(texte("FrmMedoc.WB"), "Une prise de 1 g, espacée de 4 heures.", "la monographie");
faux(texte("FrmMedoc.WB").includes("jamais"), "aucun script");
contient(valeur("AdresseWB"), "doliprane.htm", "son adresse");
egal(appels().slice(avant).map(appel => appel.nom).filter(nom => /^Document/.test(nom)),
    ["DocumentService_getAllDocumentForPackId", "DocumentList_getCount",
        "DocumentList_getItem", "Document_getId", "Document_getName", "Document_getType", "Document_release",
        "DocumentList_getItem", "Document_getId", "Document_getName", "Document_getType", "Document_release",
        "DocumentList_release", "DocumentService_getMonoForPackId", "Document_getId", "Document_getName",
        "Document_getURL", "Document_release"], "ce qui est demandé, dans l'ordre");
clic("FrmMedoc.CmdNavigateur");
contient(documents(), page, "la page s'ouvre dans le navigateur");
clic("FrmMedoc.CmdDocuments");
egal([texte("FrmInd.Lbl"), texte("FrmInd.Txt")],
    ["DOLIPRANE 1 000 mg cp : B/8", "Saumon : Doliprane 1 000\nAvis"], "les documents de la banque");
capture("documents");
clic("FrmInd.CmdFerme");

clic("FrmMedoc.TV", 1);
sansDocument();
clic("FrmMedoc.TV", 2);
sansDocument();
clic("FrmMedoc.TV", 3);
contient(texte("FrmMedoc.WB"), "Ce document est hors de ce poste : https://example.org/fiche", "une adresse d'ailleurs");
clic("FrmMedoc.CmdNavigateur");
contient(documents(), "https://example.org/fiche", "s'ouvre hors du programme");

clic("FrmMedoc.TV", 0);
capture("monographie");
clic("FrmMedoc.ChkMono");
vierge();
faux(visible("FrmMedoc.WB"), "sa place revient aux listes");
egal(valeur("EtatChkMono"), 0, "l'option suit");
clic("FrmMedoc.TV", 0);
vierge();
clic("FrmMedoc.ChkMono");
contient(texte("FrmMedoc.WB"), "Une prise de 1 g", "la monographie revient");
saisir("FrmMedoc.TxtCherche", "DO");
vierge();

cherche("DOLIPRANE");
clic("FrmMedoc.ChkDCI");
clic("FrmMedoc.TV", 0);
egal(texte("FrmMedoc.TxtMedoc"), "PARACÉTAMOL, caféine", "la DCI");
clic("FrmMedoc.ChkDCI");
egal(texte("FrmMedoc.TxtMedoc"), "DOLIPRANE 1 000 mg cp : B/8", "et le nom de nouveau");
clic("FrmMedoc.ChkDCI");
clic("FrmMedoc.TV", 1);
boites([["Ce produit n'a pas de DCI.", "OK"]]);
egal(texte("FrmMedoc.TxtMedoc"), "DOLIPRANE 500 mg cp : B/16", "le nom du produit");
clic("FrmMedoc.CmdAjouter1");
vierge();
egal(fuites(), 0, "tout est rendu");
