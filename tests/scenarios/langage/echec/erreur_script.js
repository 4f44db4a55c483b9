// attendu : erreur_script.js:3 : inconnu is not defined
function essaie() {
    inconnu(1);
}
essaie();
