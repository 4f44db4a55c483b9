// Le journal du médecin : relu par date, puis par patient.
horloge("20/11/2026");
installer();
const medecin = valeur("CheminMedecin");
const fichier = medecin + "/Journal_Docteur NEIBRE.log";
ecrire(fichier,
    "02/01/2027*MARTIN  Paul*20/03/1953*DOLIPRANE1000MG*AMLOR5MG\r\n" +
    "20/11/2026*MARTIN  Paul*20/03/1953*SPASFON\r\n" +
    "20/11/2026*DURAND  Renée*01/02/1960*METFORMINE\r\n" +
    "20/11/2026*MARTIN  Paul*20/03/1953*VENTOLINE\r\n" +
    "une ligne abîmée\r\n" +
    "21/11/2026*MARTIN  Paul*21/03/1953\r\n");
faux(actif("FrmDepart.mnuJournal"), "sans journal tenu, l'entrée dort");
clic("FrmDepart.CmdOptions");
choisir("FrmOptions.TS", "Options générales");
cocher("FrmOptions.ChkJournal", true);
clic("FrmOptions.CmdOK(1)");
vrai(actif("FrmDepart.mnuJournal"), "le journal est tenu");

clic("FrmDepart.mnuJournal");
egal(fenetreActive(), "FrmJournal", "la fenêtre s'ouvre");
egal([coche("FrmJournal.OptDate"), lignes("FrmJournal.LstDate"), texte("FrmJournal.LblDr")], [1, [], ""], "vide, par date");
clic("FrmJournal.CmdOuvrir");
const choix = boite();
egal([choix.genre, choix.titre, choix.filtre, choix.depart],
    ["fichier", "Chemin du Fichier Journal", "Journaux (*.log)|*.log", medecin], "le choix du fichier");
repondre(fichier);
egal(texte("FrmJournal.LblDr"), "Docteur NEIBRE", "le médecin");
egal(lignes("FrmJournal.LstDate"), [" 20/11/2026", " 21/11/2026", " 02/01/2027", " une ligne abîmée"], "les dates");
egal(lignes("FrmJournal.LstPat"), [], "aucun patient encore");
choisir("FrmJournal.LstDate", 0);
egal(lignes("FrmJournal.LstPat"),
    ["DURAND  Renée   (01/02/1960)", "MARTIN  Paul   (20/03/1953)", "MARTIN  Paul   (20/03/1953)"], "ceux du jour");
egal(donnees("FrmJournal.LstPat"), [2, 1, 3], "leurs numéros");
choisir("FrmJournal.LstPat", 1);
egal(texte("FrmJournal.TxtPresc"), "\n  SPASFON\n", "la première ordonnance du jour");
choisir("FrmJournal.LstPat", 2);
egal(texte("FrmJournal.TxtPresc"), "\n  VENTOLINE\n", "la seconde");
capture("journal_par_date");
choisir("FrmJournal.LstDate", 2);
egal(texte("FrmJournal.TxtPresc"), "", "un autre jour vide le texte");
choisir("FrmJournal.LstPat", 0);
egal(texte("FrmJournal.TxtPresc"), "\n  DOLIPRANE1000MG\n\n  AMLOR5MG\n", "tous les médicaments");
choisir("FrmJournal.LstDate", 3);
egal(lignes("FrmJournal.LstPat"), ["   ()"], "la ligne abîmée ne cache rien");

clic("FrmJournal.Label2");
egal([coche("FrmJournal.OptDate"), coche("FrmJournal.OptPatient")], [0, 1], "par patient");
egal(lignes("FrmJournal.LstPat"),
    ["   ()", "DURAND  Renée   (01/02/1960)", "MARTIN  Paul   (20/03/1953)", "MARTIN  Paul   (21/03/1953)"], "les patients");
egal([selection("FrmJournal.LstPat"), lignes("FrmJournal.LstDate")], [0, [" une ligne abîmée"]], "le premier est choisi");
choisir("FrmJournal.LstPat", 2);
egal(lignes("FrmJournal.LstDate"), [" 20/11/2026", " 20/11/2026", " 02/01/2027"], "ses dates");
egal(donnees("FrmJournal.LstDate"), [1, 3, 0], "leurs numéros");
choisir("FrmJournal.LstDate", 1);
egal(texte("FrmJournal.TxtPresc"), "\n  VENTOLINE\n", "l'ordonnance");
capture("journal_par_patient");
choisir("FrmJournal.LstPat", 3);
egal(texte("FrmJournal.TxtPresc"), "", "un autre patient vide le texte");
choisir("FrmJournal.LstDate", 0);
egal(texte("FrmJournal.TxtPresc"), "", "une ordonnance sans médicament");
clic("FrmJournal.Label1");
egal([lignes("FrmJournal.LstDate").length, lignes("FrmJournal.LstPat")], [4, []], "de nouveau par date");

clic("FrmJournal.CmdOuvrir");
repondre(null);
egal(lignes("FrmJournal.LstDate").length, 4, "renoncer garde le journal ouvert");
choisir("FrmJournal.LstDate", 2);
egal(lignes("FrmJournal.LstPat").length, 1, "et il se lit encore");

ecrire(utilisateur + "/copie.log", "20/11/2026*A*1*B");
clic("FrmJournal.CmdOuvrir");
repondre(utilisateur + "/copie.log");
egal(lignes("FrmJournal.LstDate"), [" 20/11/2026"], "un fichier nommé autrement se lit aussi");
clic("FrmJournal.CmdQuitter");
faux(ouverte("FrmJournal"), "fermée");
egal(lire(fichier).length > 0 && existe(fichier), true, "le journal est intact");
