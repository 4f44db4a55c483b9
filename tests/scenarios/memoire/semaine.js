// Une semaine au cabinet : ce qui est mémorisé un jour revient un autre, mot pour mot, sur le papier aussi.
installer();
vider("Medoc", "BddMed");
const noms = ["AMLOR 5 MG", "DOLIPRANE 1 G", "METFORMINE 1 G", "L'ÉCORCE 50 % \"FORTE\"; _"];
noms.forEach(function (nom, i) {
    ajouter("Medoc", "BddMed", [i + 1, null, null, null, (i + 1) + " matin* et soir", nom]);
});
ajouter("Medoc", "Patients", [1, "Monsieur", "MARTIN  Paul", "20/03/1953", "0", null, null, null, null, null, null]);
ajouter("Medoc", "Patients", [2, "Monsieur", "MARTIN  Paul", "01/01/1990", "0", null, null, null, null, null, null]);
ajouter("Medoc", "Patients", [3, "Madame", "O'BRIEN  Zoé", "01/02/1960", "0", null, null, null, null, null, null]);
function patient(rang) {
    clic("FrmOrdo.CmdNouvelle");
    clic("FrmPatient.LstPatient", rang);
    clic("FrmPatient.CmdOK");
}
function prescrit(rang, bouton) {
    clic("FrmMedoc.TV", noms[rang]);
    clic("FrmMedoc." + bouton);
}
function memorise(titre, reponse) {
    clic("FrmOrdo.CmdEnr");
    boites([["Donnez un nom à cette ordonnance mémorisée :", titre],
        [/^Voulez-vous que cette ordonnance soit spécifique à .* \?$/, reponse]]);
    vrai(visible("FrmOrdo.ImgMemo"), titre + " est mémorisée");
}
function rappelle(liste, rang) {
    clic("FrmMedoc.LblOrdoMem");
    doubleClic("FrmMemo.LstMemo(" + liste + ")", rang);
    aucuneBoite();
}
function imprime() {
    const avant = travaux().length;
    clic("FrmOrdo.CmdImprime");
    if (ouverte("FrmOptions")) cocher("FrmOptions.Chkimp", true);
    aucuneBoite();
    egal(travaux().length, avant + 1, "une feuille sort");
    return travaux()[avant].pages;
}
function lendemain(jour) {
    fermer("FrmOrdo");
    vrai(fini(), "le programme se ferme");
    horloge(jour);
    lancer();
    if (ouverte("FrmChoixBase")) clic("FrmChoixBase.CmdSuite");
    clic("FrmDepart.CmdNO");
}
const titre = "L'HTA 100 % \"d'Anne\"; _";
const martin = "Monsieur  MARTIN  Paul";
const naissance = rang => ["20/03/1953", "01/01/1990"][rang];
function changeDeMedecin() {
    fermer("FrmOrdo");
    lancer();
    if (ouverte("FrmChoixBase")) clic("FrmChoixBase.CmdSuite");
    clic("FrmDepart.CmdMedecins");
    clic("FrmMedecins.CmdNouveau");
    repondre("Dr durand");
    clic("FrmMedecins.CmdQuitter");
    clic("FrmDepart.CmdNO");
    egal(texte("FrmOrdo.CboMed"), "DR DURAND", "l'autre médecin");
}
const zones = () => [lignes("FrmMedoc.LstChoix1"), lignes("FrmMedoc.LstChoix2")].map(l => l.map(t => t.slice(0, -10).trim()));
// Le corps de la feuille : ce qui change d'un jour et d'un patient à l'autre est au-dessus.
const corps = pages => pages.map(items => items.slice(items.findIndex(item => /^Prescriptions relatives/.test(item.texte || ""))));
const enregistrees = () => table("Medoc", "ListeOrdos").map(l => [l[0], l[1], l[2], l[3]]);

// Lundi : deux zones, un saut de ligne dans chacune, un titre difficile.
horloge("16/11/2026");
clic("FrmDepart.CmdNO");
patient(0);
cocher("FrmMedoc.ChkALD", true);
prescrit(0, "CmdAjouter1");
clic("FrmMedoc.CmdSaut");
repondre("Oui");
prescrit(1, "CmdAjouter1");
prescrit(2, "CmdAjouter2");
clic("FrmMedoc.CmdSaut");
repondre("Non");
prescrit(3, "CmdAjouter2");
const lundi = zones();
clic("FrmMedoc.CmdOrdo");
const feuilleLundi = imprime();
memorise(titre, "Non");

// Mardi : la même, pour la patiente au nom à apostrophe ; la feuille est celle de la veille.
lendemain("17/11/2026");
patient(2);
rappelle(0, 0);
egal(zones(), lundi, "les deux zones reviennent");
clic("FrmMedoc.CmdOrdo");
const feuilleMardi = imprime();
egal(corps(feuilleMardi), corps(feuilleLundi), "le même corps, élément par élément");

// Elle répond Oui : la sienne, du même titre, vit à côté de celle de tous.
clic("FrmOrdo.CmdPharma");
clic("FrmMedoc.LstChoix1", 0);
clic("FrmMedoc.ImgDown");
clic("FrmMedoc.CmdOrdo");
clic("FrmOrdo.CmdEnr");
boites([["Enregistrer les modifications de " + titre + " ?", "Non"]]);
egal(table("Medoc", "OrdoEnr").map(l => l[1]), ["AMLOR 5 MG", "##", "DOLIPRANE 1 G", "METFORMINE 1 G", "##", noms[3]], "Non ne change rien");
clic("FrmOrdo.CmdEnr");
boites([["Enregistrer les modifications de " + titre + " ?", "Oui"]]);
egal(table("Medoc", "OrdoEnr").map(l => l[1]), ["##", "AMLOR 5 MG", "DOLIPRANE 1 G", "METFORMINE 1 G", "##", noms[3]], "l'ordre changé est enregistré");
egal(enregistrees(), [[titre, "*", 1, "0"]], "la liste garde sa ligne");

// Mercredi : deux homonymes, le même titre chacun ; aucun ne voit l'ordonnance de l'autre.
lendemain("18/11/2026");
[0, 1].forEach(function (rang) {
    patient(rang);
    prescrit(rang, "CmdAjouter1");
    clic("FrmMedoc.CmdOrdo");
    memorise(titre, "Oui");
});
egal(enregistrees(), [[titre, "*", 1, "0"], [titre, martin, 0, naissance(0)], [titre, martin, 0, naissance(1)]], "trois du même titre");
[0, 1].forEach(function (rang) {
    patient(rang);
    rappelle(1, 0);
    egal(valeur("OrdoZone1").map(e => e.Titre), [["AMLOR 5 MG", "DOLIPRANE 1 G"][rang]], "chacun la sienne");
    prescrit(2, "CmdAjouter1");
    clic("FrmMedoc.CmdOrdo");
    clic("FrmOrdo.CmdEnr");
    boites([["Enregistrer les modifications de " + titre + " ?", "Oui"]]);
});
egal(table("Medoc", "OrdoEnr").filter(l => l[4] === martin).map(l => [l[1], l[5]]),
    [["AMLOR 5 MG", naissance(0)], ["METFORMINE 1 G", naissance(0)], ["DOLIPRANE 1 G", naissance(1)], ["METFORMINE 1 G", naissance(1)]],
    "modifiées sans se mêler");

// Jeudi : un autre médecin du cabinet, la même base ; il ne supprime que celle d'un homonyme.
lendemain("19/11/2026");
changeDeMedecin();
patient(1);
clic("FrmMedoc.LblOrdoMem");
egal([lignes("FrmMemo.LstMemo(0)"), lignes("FrmMemo.LstMemo(1)")], [["1- " + titre], ["1- " + titre]], "les ordonnances sont à tout le cabinet");
taper("FrmMemo.TxtRecherche", "100 % \"d");
egal(lignes("FrmMemo.LstMemo(0)"), ["1- " + titre], "la recherche n'a pas de joker");
saisir("FrmMemo.TxtRecherche", "");
clic("FrmMemo.LstMemo(1)", 0);
touche("FrmMemo.LstMemo(1)", "Suppr");
egal(boite().defaut, "Non", "Non d'abord");
boites([["Supprimer  " + titre + "  ?", "Oui"]]);
clic("FrmMemo.CmdQuitter");
egal(enregistrees(), [[titre, "*", 1, "0"], [titre, martin, 0, naissance(0)]], "celle de l'homonyme reste");
egal(table("Medoc", "OrdoEnr").filter(l => l[4] === martin).map(l => l[5]), [naissance(0), naissance(0)], "avec ses lignes");
clic("FrmMedoc.CmdAnnule");

// Vendredi : celle de tous, rappelée sans patient, supprimée pendant qu'elle est en main ; la page reste.
lendemain("20/11/2026");
clic("FrmOrdo.CmdPharma");
rappelle(0, 0);
const vendredi = zones();
clic("FrmMedoc.CmdOrdo");
clic("FrmOrdo.CmdSupp");
boites([["Supprimer " + titre + " des ordonnances mémorisées ?", "Oui"], ["Voulez-vous effacer l'ordonnance actuelle ?", "Non"]]);
faux(visible("FrmOrdo.ImgMemo"), "elle n'est plus mémorisée");
egal(enregistrees(), [[titre, martin, 0, naissance(0)]], "celle du patient reste");
clic("FrmOrdo.CmdSupp");
boites([["Ce raccourci ne peut que supprimer une ordonnance mémorisée.", "OK"]]);
clic("FrmOrdo.CmdPharma");
egal(zones(), vendredi, "ses lignes restent en main");
clic("FrmMedoc.CmdOrdo");
clic("FrmOrdo.CmdEnr");
boites([["Donnez un nom à cette ordonnance mémorisée :", titre]]);
egal(enregistrees()[1], [titre, "*", 1, "0"], "sans patient elle est à tous");
lendemain("21/11/2026");
patient(0);
rappelle(0, 0);
egal(zones(), vendredi, "et revient le lendemain");
clic("FrmMedoc.CmdOrdo");
const feuilleSamedi = imprime();
egal(corps(feuilleSamedi)[0].map(i => i.texte).sort(), corps(feuilleLundi)[0].map(i => i.texte).sort(), "tout ce qui fut prescrit lundi");
