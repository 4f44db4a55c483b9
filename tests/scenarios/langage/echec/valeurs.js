// attendu : valeurs.js:2 : clic prend 1 à 2 valeurs, pas 0
clic();
