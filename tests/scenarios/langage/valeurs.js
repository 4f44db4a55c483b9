// What the checks and the script's own language take.
egal(true, 1, "un état se lit vrai ou 1");
egal([0, {gras: false}], [false, {gras: 0}], "en profondeur aussi");
different(2, true, "2 n'est pas un état");
different("1", 1, "un texte n'est pas un nombre");
different(null, "", "rien n'est pas un texte vide");
contient([{texte: "DUPLICATA", x: 35, gras: true}], {texte: "DUPLICATA", gras: 1}, "une partie d'un élément");
contient({a: [1], b: 2}, {a: [1]}, "une partie d'un objet");
egal([[1, [2]], [3]].flat(), [1, [2], 3], "flat");
egal([[1, [2]], [3]].flat(2), [1, 2, 3], "flat sur deux niveaux");
egal([1, 2].flatMap(x => [x, [x]]), [1, [1], 2, [2]], "flatMap");
egal([[1, 2].at(-1), "abc".at(0)], [2, "a"], "at");
egal("a-b-c".replaceAll("-", "+"), "a+b+c", "replaceAll");
egal(" a ".trimStart() + " b ".trimEnd(), "a  b", "trimStart et trimEnd");
egal(Object.fromEntries([["a", 1]]), {a: 1}, "fromEntries");
egal([programme, programme + "/absent"].map(existe), [true, false], "un appel passe ce qu'il ne prend pas");
