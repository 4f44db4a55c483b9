// attendu : boite_attendue.js:3 : aucune boîte n'est ouverte
lancer();
boite();
