// Le journal sans la souris : chaque ligne s'atteint par les flèches et par ce que l'on tape.
installer();
const fichier = valeur("CheminMedecin") + "/Journal_Docteur NEIBRE.log";
ecrire(fichier,
    "19/11/2026*MARTIN  Paul*20/03/1953*SPASFON\r\n" +
    "20/11/2026*DURAND  Renée*01/02/1960*METFORMINE\r\n" +
    "20/11/2026*MARTIN  Paul*20/03/1953*VENTOLINE\r\n" +
    "21/11/2026*MARTIN  Paul*20/03/1953*AMLOR\r\n");
clic("FrmDepart.CmdOptions");
choisir("FrmOptions.TS", "Options générales");
cocher("FrmOptions.ChkJournal", true);
clic("FrmOptions.CmdOK(1)");
clic("FrmDepart.mnuJournal");
clic("FrmJournal.CmdOuvrir");
repondre(fichier);
taper("FrmJournal.LstDate", "20/11");
egal(selection("FrmJournal.LstDate"), 1, "une date se tape sans son blanc");
focus("FrmJournal.LstPat");
touche("FrmJournal.LstPat", "Bas");
egal([selection("FrmJournal.LstPat"), texte("FrmJournal.TxtPresc")], [0, "\n  METFORMINE\n"], "la première ligne s'atteint par Bas");
touche("FrmJournal.LstPat", "Bas");
egal([selection("FrmJournal.LstPat"), texte("FrmJournal.TxtPresc")], [1, "\n  VENTOLINE\n"], "puis la seconde");
focus("FrmJournal.LstDate");
touche("FrmJournal.LstDate", "Haut");
egal([selection("FrmJournal.LstDate"), lignes("FrmJournal.LstPat")], [0, ["MARTIN  Paul   (20/03/1953)"]], "la veille");
clic("FrmJournal.OptPatient");
taper("FrmJournal.LstPat", "mar");
egal([selection("FrmJournal.LstPat"), lignes("FrmJournal.LstDate").length], [1, 3], "un patient se tape");
touche("FrmJournal.LstPat", "Echap");
faux(ouverte("FrmJournal"), "Échap ferme");
