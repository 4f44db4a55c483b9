// attendu : banque.js:2 : banque : une description
banque("Vidal");
