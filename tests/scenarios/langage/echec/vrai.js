// attendu : ECHEC - pas vrai (attendu vrai, obtenu 0)
vrai(0, "pas vrai");
