// attendu : ECHEC - la trace (attendu "b", obtenu "a")
egal("a", "b", "la trace");
vrai(true, "le script continue");
