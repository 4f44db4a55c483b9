// attendu : (attendu "Autre", obtenu "Nom")
lancer();
clic("FrmEssai.CmdBoite");
boites([[/Vraiment/, "Oui"], ["Autre", null]]);
