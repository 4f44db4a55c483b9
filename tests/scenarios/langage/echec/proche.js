// attendu : ECHEC - trop loin (attendu 2 à 0.5 près, obtenu 1)
proche(1, 2, 0.5, "trop loin");
proche(1, 2, 1, "assez près");
