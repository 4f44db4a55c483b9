// What a margin's text may hold: nothing, letters, blanks, too much; and what stops the saving.
installer();
const chemin = valeur("CheminMedecin");
const fichiers = () => ["Marges.cfg", "Options.cfg"].map(nom => lire(chemin + "/" + nom));
clic("FrmDepart.CmdOptions");
clic("FrmOptions.CmdMEP");
for (const nom of ["TxtM", "TxtL", "TxtE", "TxtG", "TxtHD", "TxtGD", "TxtHddn", "TxtGddn"]) {
  const avant = fichiers();
  const valable = texte("FrmConfOrdo." + nom);
  for (const trop of ["40000", "-40000", "1e39"]) {
    saisir("FrmConfOrdo." + nom, trop);
    clic("FrmConfOrdo.CmdEnregistrer");
    egal(boite().genre, "stop", nom + " " + trop);
    boites([[/est trop grande/, "OK"]]);
    egal(fichiers(), avant, "rien n'est écrit");
  }
  saisir("FrmConfOrdo." + nom, valable);
}
saisir("FrmConfOrdo.TxtM", "x".repeat(100000));
saisir("FrmConfOrdo.TxtL", "165 mm");
saisir("FrmConfOrdo.TxtE", "-32768");
saisir("FrmConfOrdo.TxtG", "99,9");
saisir("FrmConfOrdo.TxtHD", "");
saisir("FrmConfOrdo.TxtGD", " 30");
saisir("FrmConfOrdo.TxtHddn", "-4");
saisir("FrmConfOrdo.TxtGddn", "😀 ' \" % _");
clic("FrmConfOrdo.CmdEnregistrer");
boites([["Mise en page enregistrée !", "OK"]]);
egal(fichiers()[0], "10,4,10,0,100,165,-32768,99,0,0,30,-4,0\r\n", "le préfixe numérique, sinon zéro");
fermer("FrmConfOrdo");
touche("FrmConfOrdo.TxtM", "Echap");
vrai(ouverte("FrmConfOrdo"), "ni la case de fermeture ni Échap ne la ferment");
