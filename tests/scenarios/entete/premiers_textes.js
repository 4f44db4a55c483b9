// The twenty-four rows as a fresh installation shows them.
installer();
clic("FrmDepart.CmdOptions");
clic("FrmOptions.CmdET");
vrai(ouverte("FrmEntete"), "l'en-tête est ouvert");
egal(titre("FrmEntete"), "   En-tête ordonnance", "le titre");
faux(ouverte("FrmOptions"), "les options sont cachées");
for (let i = 0; i < 24; ++i) {
    let attendu = "*";
    if (i === 5) attendu = "Tel";
    if (i === 7) attendu = "Fax";
    if (i === 22) attendu = "Membre d'une association agréée. Règlement des honoraires par chèque accepté.\r\n";
    if (i === 23) attendu = "Nom à afficher pour la signature électronique";
    egal(texte("FrmEntete.Txt(" + i + ")").replace(/\r?\n/g, "\r\n"), attendu, "ligne " + i);
}
egal(texte("FrmEntete.Opt(0)"), "Adresse avant praticien", "Opt(0)");
egal(texte("FrmEntete.Opt(1)"), "Praticien avant adresse", "Opt(1)");
egal(coche("FrmEntete.Opt(0)"), 1, "ordre par défaut");
egal(texte("FrmEntete.TxtMG"), "10", "marge gauche");
egal(texte("FrmEntete.TxtMH"), "4", "marge haute");
egal(texte("FrmEntete.TxtMB"), "10", "marge basse");
egal(aspect("FrmEntete.LblColor").fond, 0, "couleur noire");
egal(valeur("CouleurEntete"), 0, "CouleurEntete");
for (const c of ["CmdPolice", "CmdCouleur", "CmdEnregistrer", "CmdImpression", "CmdQuitter", "CmdAide"])
    vrai(visible("FrmEntete." + c), c + " est là");
aucuneBoite();
clic("FrmEntete.CmdQuitter");
faux(ouverte("FrmEntete"), "refermé");
vrai(ouverte("FrmOptions"), "retour aux options");
clic("FrmOptions.CmdAnnule");
