// attendu : variable_absente.js:3 : la variable « CheminAbsent » n'existe pas
lancer();
valeur("CheminAbsent");
