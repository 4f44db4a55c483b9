// attendu : ECHEC - manque (attendu contenant "z", obtenu "abc")
contient("abc", "z", "manque");
