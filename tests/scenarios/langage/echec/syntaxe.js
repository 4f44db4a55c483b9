// attendu : syntaxe.js:3 : 
egal(1, 1, "jamais joué");
let a = ;
