// attendu : ECHEC - rien ne doit être ouvert (attendu aucune boîte, obtenu "Vraiment ?
lancer();
clic("FrmEssai.CmdBoite");
aucuneBoite("rien ne doit être ouvert");
boites([[/Vraiment/, "Oui"], ["Nom", null]]);
