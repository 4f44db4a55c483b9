// Une sauvegarde qui échoue est dite sur la fenêtre et ne retient personne.
installer();
const data = valeur("CheminData");
clic("FrmDepart.CmdQuitter");
ecrire(data + "/Sauvegardes", "un fichier à la place du dossier");
lancer();
clic("FrmChoixBase.CmdSuite");
aucuneBoite();
clic("FrmDepart.mnuRestaure");
touche("FrmRestaure.CmdAnnuler", "Echap");
vrai(visible("FrmDepart.LblSauvegarde"), "le mot sur la fenêtre");
contient(texte("FrmDepart.LblSauvegarde"), "La sauvegarde du jour n'a pas pu être faite.", "ce qui manque");
capture("echec");
