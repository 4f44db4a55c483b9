// Both zones of a sheet for a long-term illness, in order, on one page.
installer();
ajouter("Medoc", "Patients", [1, "Madame", "BRUN  Anne", "01/02/1960", "0", "", "", "", "", "", ""]);
ajouter("Medoc", "BddMed", [5001, null, null, null, "1 matin", "ZZTEST 500 MG"]);
ajouter("Medoc", "BddMed", [5002, null, null, null, "2 soir*", "ZZAUTRE 10 MG"]);
clic("FrmDepart.CmdNO");
clic("FrmOrdo.CmdNouvelle");
doubleClic("FrmPatient.LstPatient", 0);
cocher("FrmMedoc.ChkALD", true);
clic("FrmMedoc.TV", "ZZTEST 500 MG");
clic("FrmMedoc.CmdAjouter2");
clic("FrmMedoc.TV", "ZZAUTRE 10 MG");
clic("FrmMedoc.CmdAjouter1");
clic("FrmMedoc.CmdOrdo");
clic("FrmOrdo.CmdImprime");
egal(travaux()[0].pages.length, 1, "une feuille");
const page = travaux()[0].pages[0].filter(i => i.genre === "texte");
const ordre = ["Madame  BRUN  Anne",
               "Prescriptions relatives au traitement de l'affection de longue durée reconnue (liste ou hors liste)",
               "(AFFECTION EXONERANTE)", "ZZAUTRE 10 MG",
               "Prescriptions SANS RAPPORT avec l'affection de longue durée", "(MALADIES INTERCURRENTES)",
               "ZZTEST 500 MG"];
egal(page.map(i => i.texte).filter(t => ordre.includes(t)), ordre, "le patient, puis zone après zone");
const hauteurs = ordre.map(t => page.find(i => i.texte === t).y);
egal([...hauteurs].sort((a, b) => a - b), hauteurs, "de haut en bas");
egal(page[0].texte, "Tel", "l'en-tête vient d'abord");
egal(page[page.length - 1].texte,
     "Membre d'une association agréée. Règlement des honoraires par chèque accepté.", "le bas de page à la fin");
