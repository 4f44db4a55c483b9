// attendu : boucle_script.js:2 : plus de 6 s
lancer();
for (;;) { }
