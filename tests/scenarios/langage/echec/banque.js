// attendu : banque.js:2 : banque : 
banque({produits: {1: true}});
