// attendu : pas_lance.js:2 : le programme n'est pas lancé
clic("FrmEssai.CmdMenu");
