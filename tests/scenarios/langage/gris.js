// A click on what is greyed does nothing, as for a doctor.
lancer();
faux(actif("FrmEssai.TxtGris"), "la zone est grisée");
clic("FrmEssai.TxtGris");
egal(texte("FrmEssai.TxtGris"), "", "rien n'a changé");
clic("FrmEssai.CmdMenu");
faux(actif("FrmEssai.mnuGrise"), "l'entrée est grisée");
clic("FrmEssai.mnuGrise");
aucuneBoite();
