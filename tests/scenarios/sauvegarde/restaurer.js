// La sauvegarde du jour, et le retour à ses données.
installer();
const data = valeur("CheminData");
vider("Medoc", "BddMed");
ajouter("Medoc", "BddMed", [1, null, null, null, "1 matin", "DOLIPRANE 1000 MG"]);
faux(existe(data + "/Sauvegardes"), "rien à sauvegarder le premier jour");
clic("FrmDepart.mnuRestaure");
contient(lignes("FrmRestaure.LstSauvegardes")[0], "pas encore de sauvegarde", "il n'y en a pas");
faux(actif("FrmRestaure.CmdOK"), "rien à restaurer");
touche("FrmRestaure.CmdAnnuler", "Echap");
clic("FrmDepart.CmdQuitter");

horloge("21/11/2026");
lancer();
clic("FrmChoixBase.CmdSuite");
clic("FrmDepart.mnuRestaure");
egal(lignes("FrmRestaure.LstSauvegardes"), ["Sauvegarde du 21/11/2026"], "celle du jour");
egal(lister(data + "/Sauvegardes"), ["Sauvegarde 2026-11-21.sqlar"], "un fichier");
touche("FrmRestaure.CmdAnnuler", "Echap");
ajouter("Medoc", "BddMed", [2, null, null, null, "1 soir", "AMLOR 5 MG"]);
clic("FrmDepart.CmdQuitter");

lancer();
clic("FrmChoixBase.CmdSuite");
clic("FrmDepart.mnuRestaure");
choisir("FrmRestaure.LstSauvegardes", 0);
capture("restaurer");
clic("FrmRestaure.CmdOK");
const question = boite();
egal([question.genre, question.defaut], ["question", "Non"], "une question");
contient(question.texte, "Sauvegarde du 21/11/2026", "qui nomme la date");
repondre("Non");
egal(table("Medoc", "BddMed").length, 2, "non : rien ne change");
clic("FrmRestaure.CmdOK");
boites([[/Sauvegarde du 21\/11\/2026/, "Oui"], [/les données sont restaurées.\n\nLe programme va redémarrer/, "OK"]]);
vrai(fini(), "le programme s'arrête");
egal(relances().length, 1, "et demande à redémarrer");
egal(table("Medoc", "BddMed").map(l => l[5]), ["DOLIPRANE 1000 MG"], "les données de la sauvegarde");

lancer();
clic("FrmChoixBase.CmdSuite");
clic("FrmDepart.mnuRestaure");
egal(lignes("FrmRestaure.LstSauvegardes").length, 2, "l'état d'avant est là aussi");
contient(lignes("FrmRestaure.LstSauvegardes")[0], "Avant la restauration du 21/11/2026", "en premier");
choisir("FrmRestaure.LstSauvegardes", 0);
clic("FrmRestaure.CmdOK");
boites([[/Avant la restauration/, "Oui"], [/restaurées/, "OK"]]);
egal(table("Medoc", "BddMed").length, 2, "et l'on y revient");
