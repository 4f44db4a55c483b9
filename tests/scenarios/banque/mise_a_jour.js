// The update of the open bank: folder and thesaurus chosen, summary read and copied, the former bank replaced.
function attendFin() {
    while (!actif("FrmMajBanque.CmdLance")) {}
}

installer();
const banque = programme + "/banque.sqlite";
const avant = lireOctets(banque);
const sources = utilisateur + "/téléchargés";
copier(extrait, sources);
copier(extrait + "/thesaurus/interactions.txt", sources + "/thesaurus.txt");

clic("FrmDepart.mnuMajBanque");
egal(titre("FrmMajBanque"), "Mise à jour de la base publique", "la fenêtre");
contient(texte("FrmMajBanque.LblFichiers"), "Base de données publique des médicaments", "d'où viennent les fichiers");
contient(texte("FrmMajBanque.LblFichiers"), "CIS_bdpm.txt, CIS_CIP_bdpm.txt, CIS_COMPO_bdpm.txt, CIS_GENER_bdpm.txt", "et lesquels");
contient(texte("FrmMajBanque.LblEtat"), "Base en place : données du ", "celle qui est là");
contient(texte("FrmMajBanque.LblAvertissement"), "ce n'est pas la base entière", "un extrait");
faux(actif("FrmMajBanque.CmdAnnule"), "rien à annuler");
capture("maj_banque");
clic("FrmMajBanque.CmdSite");
egal(documents(), ["https://base-donnees-publique.medicaments.gouv.fr/"], "le site officiel s'ouvre");

clic("FrmMajBanque.CmdLance");
egal(texte("FrmMajBanque.LblAvertissement"), "Choisissez d'abord le dossier des fichiers.", "sans dossier");
clic("FrmMajBanque.CmdDossier");
egal(boite().genre, "dossier", "la boîte du système");
repondre(null);
egal(texte("FrmMajBanque.TxtDossier"), "", "annulée");
clic("FrmMajBanque.CmdDossier");
repondre(sources);
egal(texte("FrmMajBanque.TxtDossier"), sources, "choisi");
saisir("FrmMajBanque.TxtThesaurus", sources + "/rien.txt");
clic("FrmMajBanque.CmdLance");
contient(texte("FrmMajBanque.LblAvertissement"), "rien.txt » n'existe pas", "thésaurus absent");
egal(lireOctets(banque), avant, "la base d'avant est intacte");
clic("FrmMajBanque.CmdThesaurus");
egal([boite().genre, boite().filtre], ["fichier", "Textes (*.txt)|*.txt"], "le texte du thésaurus");
repondre(sources + "/thesaurus.txt");

clic("FrmMajBanque.CmdLance");
attendFin();
contient(texte("FrmMajBanque.LblEtat"), "La base publique est à jour : données du ", "à jour");
contient(texte("FrmMajBanque.LblEtat"), "ligne(s) refusée(s)", "les refus sont annoncés");
const bilan = texte("FrmMajBanque.TxtBilan");
contient(bilan, "CIS_bdpm.txt : ", "les lignes de chaque fichier");
contient(bilan, "refusée : ", "chaque refus avec sa raison");
contient(bilan, "Interactions lues : ", "le thésaurus lu");
contient(bilan, "Couples dont les deux côtés sont liés à une substance : ", "lié");
contient(bilan, "Spécialités commercialisées, hors homéopathie, dont une substance est liée : ", "vérifiable");
faux(bilan.includes("thesaurus.txt » est inconnu"), "le thésaurus du même dossier n'est pas inconnu");
contient(texte("FrmMajBanque.LblAvertissement"), "elle ne contient que ", "un dossier tronqué ne passe pas pour la base entière");
capture("maj_banque_bilan");
clic("FrmMajBanque.CmdCopie");
saisir("FrmMajBanque.TxtDossier", "");
touche("FrmMajBanque.TxtDossier", "Ctrl+V");
contient(texte("FrmMajBanque.TxtDossier"), "Interactions lues : ", "le bilan est copié");
different(lireOctets(banque), avant, "la nouvelle base est en place");
egal(lister(programme).filter(n => n.startsWith("banque.sqlite")), ["banque.sqlite"], "rien ne reste à côté");

saisir("FrmMajBanque.TxtDossier", sources);
saisir("FrmMajBanque.TxtThesaurus", "");
clic("FrmMajBanque.CmdLance");
attendFin();
contient(texte("FrmMajBanque.LblAvertissement"), "aucune interaction", "sans thésaurus, on le dit");
faux(texte("FrmMajBanque.LblAvertissement").includes("plus anciennes"), "les mêmes données");
for (const nom of ["CIS_bdpm.txt", "CIS_CIP_bdpm.txt", "CIS_CIP_Dispo_Spec.txt"]) {
    ecrire(sources + "/" + nom, lire(sources + "/" + nom).replace(/\/202\d/g, "/2019"));
}
clic("FrmMajBanque.CmdLance");
attendFin();
contient(texte("FrmMajBanque.LblAvertissement"), "plus anciennes que celles qu'elles remplacent, du 18/05/2026.", "un vieux téléchargement se voit");
clic("FrmMajBanque.CmdFerme");
faux(ouverte("FrmMajBanque"), "fermée");
