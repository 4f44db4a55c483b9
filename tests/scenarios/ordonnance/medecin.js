// Another doctor from the desk: his settings and menus, an empty sheet.
installer();
const neibre = valeur("CheminMedecin");
clic("FrmDepart.CmdMedecins");
clic("FrmMedecins.CmdNouveau");
repondre("Dr durand");
clic("FrmMedecins.CmdQuitter");
const champs = lire(neibre + "/Options.cfg").split(",");
for (const rang of [10, 12, 22, 24]) {
  champs[rang] = "1";
}
ecrire(neibre + "/Options.cfg", champs.join(","));
clic("FrmDepart.CmdNO");
egal(lignes("FrmOrdo.CboMed"), ["DR NEIBRE", "DR DURAND"], "les deux médecins");
egal(donnees("FrmOrdo.CboMed"), [1, 2], "et leurs numéros");
egal(texte("FrmOrdo.CboMed"), "DR DURAND", "le dernier inscrit est courant");
vrai(visible("FrmOrdo.PctMenu1"), "sa barre est la première");
clic("FrmOrdo.CmdDate");
repondre("01/02/2026");
vrai(feuille("FrmOrdo.PctOrdo").length > 0, "une feuille est montrée");

choisir("FrmOrdo.CboMed", 0);
egal(valeur("CheminMedecin"), neibre, "l'autre médecin est courant");
egal(feuille("FrmOrdo.PctOrdo"), [], "la feuille est vidée");
egal(valeur("DateOrdo"), "01/02/2026", "le document reste en main");
egal(selection("FrmDepart.CboListeMed"), 0, "la fenêtre d'accueil suit");
egal(valeur("IndexMedecin"), 1, "l'index prend son numéro");
vrai(visible("FrmOrdo.PctMenu2"), "sa barre est la seconde");
faux(visible("FrmOrdo.PctMenu1"), "à la place de la première");
vrai(feuille("FrmOrdo.PctRegle").length > 0, "sa règle est peinte");
vrai(actif("FrmOrdo.mnuHauteurN"), "sa hauteur personnelle peut être quittée");
vrai(actif("FrmDepart.mnuHauteurN"), "dans les deux fenêtres");
vrai(actif("FrmDepart.mnuJournal"), "il tient un journal");

choisir("FrmOrdo.CboMed", "DR DURAND");
egal(feuille("FrmOrdo.PctRegle"), [], "l'autre n'a pas de règle");
vrai(visible("FrmOrdo.PctMenu1"), "et retrouve sa barre");
faux(actif("FrmOrdo.mnuHauteurN"), "ses sauts sont normaux");
faux(actif("FrmDepart.mnuJournal"), "et il ne tient pas de journal");

// Le médecin déjà choisi, choisi de nouveau, reprend ses réglages des fichiers.
const siens = valeur("CheminMedecin") + "\\Options.cfg";
const lus = lire(siens).split(",");
lus[12] = "1";
ecrire(siens, lus.join(","));
egal(feuille("FrmOrdo.PctRegle"), [], "le fichier seul ne change rien");
choisir("FrmOrdo.CboMed", 1);
vrai(feuille("FrmOrdo.PctRegle").length > 0, "sa règle est peinte");
lus[12] = "0";
ecrire(siens, lus.join(","));
clic("FrmOrdo.CmdAccueil");
choisir("FrmDepart.CboListeMed", 1);
egal(feuille("FrmOrdo.PctRegle"), [], "de l'accueil aussi");
