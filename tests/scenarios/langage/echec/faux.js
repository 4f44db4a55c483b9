// attendu : ECHEC - pas faux (attendu faux, obtenu "x")
faux("x", "pas faux");
