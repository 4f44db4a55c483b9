// The date of the document.
const invite = "Date de l'ordonnance :\nformat : jj/mm/aaaa";
const rappel = "Indiquez la date de l'ordonnance\nau format jj/mm/aaaa (ex.: 07/01/2010) !";
const textes = () => feuille("FrmOrdo.PctOrdo").filter(i => i.genre === "texte").map(i => i.texte);

installer();
clic("FrmDepart.CmdNO");
clic("FrmOrdo.CmdDate");
egal(boite().valeur, "20/11/2026", "la valeur proposée est aujourd'hui");
boites([[invite, "7/1/10"], [rappel, "OK"], [invite, "07/01/2010"]]);
egal(valeur("DateOrdo"), "07/01/2010", "la date saisie");
contient(textes(), "jeudi  7  janv.  2010", "la date sur la feuille");

clic("FrmOrdo.CmdDate");
boites([[invite, "0"]]);
egal(valeur("DateOrdo"), "", "zéro retire la date");
faux(textes().some(t => t.includes("2010")), "la feuille n'a plus de date");

clic("FrmOrdo.CmdDate");
boites([[invite, "31/02/2026"]]);
egal(valeur("DateOrdo"), "31/02/2026", "seule la longueur est vérifiée");

clic("FrmOrdo.CmdDate");
boites([[invite, null]]);
egal(valeur("DateOrdo"), "20/11/2026", "annuler revient à aujourd'hui");
aucuneBoite();
