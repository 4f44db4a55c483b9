"use strict";
// What scripts write today and the engine does not know yet.
(function () {
    function ajoute(objet, nom, fonction) {
        if (objet[nom] === undefined) Object.defineProperty(objet, nom, {value: fonction});
    }

    function aplatit(liste, niveau) {
        return liste.reduce((plat, element) => plat.concat(
            Array.isArray(element) && niveau > 1 ? aplatit(element, niveau - 1) : element), []);
    }

    function rang(i) {
        return this[i < 0 ? this.length + i : i];
    }

    ajoute(Array.prototype, "flat", function (niveau = 1) {
        return niveau < 1 ? this.slice() : aplatit(this, niveau);
    });
    ajoute(Array.prototype, "flatMap", function (fonction) { return aplatit(this.map(fonction), 1); });
    ajoute(Array.prototype, "at", rang);
    ajoute(String.prototype, "at", rang);
    ajoute(String.prototype, "replaceAll", function (ancien, nouveau) {
        return ancien instanceof RegExp ? this.replace(ancien, nouveau) : this.split(ancien).join(nouveau);
    });
    ajoute(String.prototype, "trimStart", function () { return this.replace(/^\s+/, ""); });
    ajoute(String.prototype, "trimEnd", function () { return this.replace(/\s+$/, ""); });
    ajoute(Object, "fromEntries", paires => {
        const objet = {};
        for (const [cle, valeur] of paires) objet[cle] = valeur;
        return objet;
    });
})();
