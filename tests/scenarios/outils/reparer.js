// La réparation est le travail d'un autre programme : celui-ci s'arrête d'abord.
installer();
clic("FrmDepart.mnuRepare");
const conseil = boite();
egal([conseil.genre, conseil.texte], ["information",
    "Pensez à réparer et compacter les bases de données sur les différents postes et supports (clefs)."], "un conseil");
repondre("OK");
egal([boite().genre, boite().boutons], ["question", ["Oui", "Non"]], "une question");
boites([["Réparer et compacter les bases de données ?", "Non"]]);
faux(fini(), "non : rien ne se passe");
egal(relances(), [], "rien n'est lancé");
clic("FrmDepart.mnuRepare");
boites([[/Pensez/, "OK"], [/Réparer/, "Oui"]]);
vrai(fini(), "le programme s'arrête");
egal(relances().length, 1, "et lance l'autre");
contient(JSON.stringify(relances()[0]), programme + "/Utile", "celui du répertoire du programme");
