// A picture that bears the name of the logo takes its place at once; the former one comes back unless CmdOK.
const n = (v, t) => [...Array(t).keys()].map(i => String.fromCharCode(v >> 8 * i & 255)).join("");
const bmp = (largeur, point) => "BM" + n(54 + 8 * 4, 4) + n(0, 4) + n(54, 4) + n(40, 4) + n(largeur, 4) + n(4, 4) + n(1, 2) +
      n(24, 2) + n(0, 4) + n(8 * 4, 4) + n(0, 16) + n(point, 1).repeat(8 * 4);
installer();
const logos = valeur("CheminMedecin") + "/Logo";
const logo = () => lireOctets(logos + "/logo.bmp").slice(108, 110);
creerDossier(utilisateur + "/autre");
ecrire(utilisateur + "/logo.bmp", bmp(2, 17));
ecrire(utilisateur + "/autre/logo.bmp", bmp(1, 34));
const choisit = (...sources) => {
  clic("FrmDepart.mnuLogo");
  for (const source of sources) {
    clic("FrmOptions.CmdChemin");
    repondre(utilisateur + source);
  }
};
clic("FrmDepart.mnuLogo");
cocher("FrmOptions.ChkLog", true);
clic("FrmOptions.CmdChemin");
repondre(utilisateur + "/logo.bmp");
saisir("FrmOptions.TxtH", "10");
clic("FrmOptions.CmdOK");
egal(logo(), "11", "le premier logo");

choisit("/autre/logo.bmp");
egal([logo(), valeur("RatioLogo")], ["22", 0.25], "l'autre image prend sa place");
clic("FrmOptions.CmdAnnule");
egal(logo(), "11", "annulé, le premier revient");
egal(lister(logos), ["logo.bmp"], "et rien d'autre");

choisit("/autre/logo.bmp", "/logo.bmp", "/autre/logo.bmp");
touche("FrmOptions", "Echap");
egal(logo(), "11", "celui d'avant la fenêtre, quel que soit le nombre de choix");

choisit("/autre/logo.bmp");
saisir("FrmOptions.TxtH", "10");
clic("FrmOptions.CmdOK");
egal(logo(), "22", "enregistré, l'autre reste");
egal(lister(logos), ["logo.bmp"], "seul");

clic("FrmDepart.CmdNO");
clic("FrmOrdo.mnuOptions");
choisir("FrmOptions.TS", "Logo");
clic("FrmOptions.CmdChemin");
repondre(utilisateur + "/logo.bmp");
egal(logo(), "11", "une image que rien ne confirme");
icone("droit");
clic("FrmDepart.mnuQuitter");
vrai(fini(), "le programme finit");
lancer();
egal(logo(), "22", "le logo enregistré est revenu");
egal(lister(logos), ["logo.bmp"], "seul");
