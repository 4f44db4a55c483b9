// Les documents d'une présentation : le dix-huitième n'est pas lu, un type hors de la table n'en est pas un.
const page = programme + "/mono.htm";
ecrire(page, "<p>La monographie</p>");
const documents = [{pack: 3, id: 30, type: 17, url: "file://" + page}, {pack: 3, id: 31, type: -1, url: "file://" + page},
    {pack: 4, id: 40, type: 2, url: "file://" + page}];
for (let i = 0; i < 18; i++) {
    documents.push({pack: 1, id: 10 + i, type: i < 17 ? 6 : 0, url: "file://" + page});
    documents.push({pack: 2, id: 50 + i, type: i !== 16 ? 6 : 0, url: "file://" + page});
}
banque({
    packs: [{cip: "1", id: 1, nom: "DOLDIXHUIT"}, {cip: "2", id: 2, nom: "DOLDIXSEPT"}, {cip: "3", id: 3, nom: "DOLHORS"},
        {cip: "4", id: 4, nom: "DOLSAUMON"}, {cip: "5", id: 5, nom: "DOLSANS"}],
    documents
});
installer();
clic("FrmDepart.mnuBase");
clic("FrmOptions.OptB(1)");
clic("FrmOptions.CmdOK(3)");
clic("FrmDepart.CmdNO");
clic("FrmOrdo.CmdPharma");
saisir("FrmMedoc.TxtCherche", "DOL");
touche("FrmMedoc.TxtCherche", "Entree");
cocher("FrmMedoc.ChkMono", true);

function montre(nom) {
    clic("FrmMedoc.TV", nom);
    return valeur("AdresseWB").replace(/^.*\//, "");
}

egal(montre("DOLDIXSEPT"), "mono.htm", "le dix-septième compte");
egal(montre("DOLDIXHUIT"), "zeromono.htm", "le dix-huitième ne compte pas");
egal(montre("DOLSAUMON"), "mono.htm", "une page saumon mène à la monographie");
egal(montre("DOLHORS"), "zeromono.htm", "des types inconnus");
egal(montre("DOLSANS"), "zeromono.htm", "sans document");
aucuneBoite();
egal(fuites(), [], "tout est rendu");
