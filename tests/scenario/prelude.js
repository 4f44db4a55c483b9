"use strict";
// The script's side of the language: each call of the runner as a global function, then what is said best in
// the language itself.
(function (global) {
    const langage = __langage;
    for (const nom of __appels) {
        global[nom] = (...valeurs) => langage.appel(nom, new Error().stack, valeurs);
    }
    delete global.__langage;
    delete global.__appels;

    function montre(valeur) {
        if (typeof valeur === "number" && !isFinite(valeur) || typeof valeur === "function") return String(valeur);
        return valeur === undefined ? "undefined" : JSON.stringify(valeur);
    }

    // A state may be read as 0 and 1 or as false and true.
    function memeEtat(a, b) {
        return typeof a === "boolean" && typeof b === "number" && Number(a) === b;
    }

    function memeCompte(a, b) {
        return Array.isArray(a) && typeof b === "number" && a.valueOf() === b;
    }

    function memes(a, b) {
        if (a === b || a !== a && b !== b || memeEtat(a, b) || memeEtat(b, a)) return true;
        if (memeCompte(a, b) || memeCompte(b, a)) return true;
        if (typeof a !== "object" || typeof b !== "object" || a === null || b === null) return false;
        if (Array.isArray(a) !== Array.isArray(b)) return false;
        const cles = Object.keys(a);
        return cles.length === Object.keys(b).length &&
            cles.every(cle => Object.prototype.hasOwnProperty.call(b, cle) && memes(a[cle], b[cle]));
    }

    function estObjet(valeur) {
        return valeur !== null && typeof valeur === "object" && !Array.isArray(valeur);
    }

    function litEnTexte(valeur) {
        return estObjet(valeur) && Object.prototype.hasOwnProperty.call(valeur, "toString");
    }

    // Of an object the keys that are named, of a list an element that is or has the part.
    function dedans(tout, partie) {
        if (typeof tout === "string") return tout.includes(partie);
        if (Array.isArray(tout)) {
            return tout.some(element => memes(element, partie) || estObjet(partie) && dedans(element, partie) ||
                typeof partie === "string" && litEnTexte(element) && String(element).includes(partie));
        }
        if (!estObjet(tout)) return false;
        if (!estObjet(partie)) return String(tout).includes(partie);
        return Object.keys(partie).every(cle => memes(tout[cle], partie[cle]));
    }

    function abrege(texte) {
        const debut = texte.trim().split("\n")[0];
        return debut.length > 70 ? debut.slice(0, 70) + "..." : debut;
    }

    function controle(reussi, texte, attendu, obtenu) {
        const nom = texte === undefined ? "sans texte" : String(texte);
        langage.controle(reussi, nom, "attendu " + attendu + ", obtenu " + montre(obtenu), new Error().stack);
        return reussi;
    }

    global.egal = (a, b, texte) => controle(memes(a, b), texte, montre(b), a);
    global.different = (a, b, texte) => controle(!memes(a, b), texte, "autre que " + montre(b), a);
    global.proche = (a, b, tolerance, texte) => controle(
        typeof a === "number" && Math.abs(a - b) <= tolerance, texte, montre(b) + " à " + tolerance + " près", a);
    global.vrai = (x, texte) => controle(!!x, texte, "vrai", x);
    global.faux = (x, texte) => controle(!x, texte, "faux", x);
    global.contient = (tout, partie, texte) =>
        controle(dedans(tout, partie), texte, "contenant " + montre(partie), tout);

    // An object that reads as one text too, and as a list of what the text is made of.
    function litComme(objet, texte, elements) {
        const cache = (nom, value) => Object.defineProperty(objet, nom, {value});
        cache("toString", texte);
        for (const nom of ["includes", "startsWith", "endsWith", "indexOf", "match"]) {
            cache(nom, (...valeurs) => texte()[nom](...valeurs));
        }
        elements.forEach((element, rang) => cache(rang, element));
        cache(Symbol.iterator, () => elements[Symbol.iterator]());
        return objet;
    }

    // A program started: its path, then its arguments.
    const programmes = global.relances;
    global.relances = () => programmes().map(lance => {
        const elements = [lance.chemin, ...lance.arguments];
        return litComme(lance, () => elements.join(" "), elements);
    });

    // A call of the bank: PackService_searchByCip(77, "3400930000011").
    const journal = global.appels;
    global.appels = () => journal().map(appel => litComme(appel,
        () => appel.nom + "(" + appel.arguments.map(montre).join(", ") + ")", [appel.nom, ...appel.arguments]));

    // What leaks is a list, and counts as its length where a number is expected.
    const perdues = global.fuites;
    global.fuites = () => {
        const liste = perdues().map(fuite => litComme(fuite, () => fuite.appel + " : " + fuite.poignee, []));
        return Object.defineProperty(liste, "valueOf", {value: () => liste.length});
    };

    function enTexte(valeur) {
        if (typeof valeur !== "string" && typeof valeur !== "number") throw new Error("un texte est attendu");
        return String(valeur);
    }

    // The first key goes to the control, the others to whatever has the focus by then.
    global.taper = (nom, texte) =>
        [...enTexte(texte)].forEach((caractere, rang) => __caractere(nom, caractere, rang > 0));

    const saisit = global.saisir;
    global.saisir = (nom, texte) => saisit(nom, enTexte(texte));

    global.boites = liste => {
        for (const [attendu, reponse] of liste) {
            const texte = boite().texte;
            const convient = attendu instanceof RegExp ? attendu.test(texte) : attendu === texte;
            controle(convient, "boîte « " + abrege(texte) + " »",
                attendu instanceof RegExp ? String(attendu) : montre(attendu), texte);
            repondre(reponse);
        }
    };

    global.aucuneBoite = texte => {
        const ouverte = __boiteOuverte();
        controle(ouverte === null, texte === undefined ? "aucune boîte" : texte, "aucune boîte", ouverte);
    };

    function accepte(attendu, reponse) {
        const b = boite();
        if (!attendu.test(b.texte)) {
            throw new Error("installer : boîte « " + b.texte + " », attendu " + attendu);
        }
        repondre(reponse);
    }

    global.installer = () => {
        lancer();
        accepte(/Sélectionnez le répertoire où seront enregistrées/, "OK");
        accepte(/Sélectionnez uniquement le répertoire à votre NOM/, utilisateur);
        accepte(/Vous devez renseigner le nom du MEDECIN UTILISATEUR/, "OK");
        accepte(/Inscrire les nom et prénom du médecin/, "DR NEIBRE");
        accepte(/Vous utilisez ce programme pour la première fois/, "OK");
        choisir("FrmChoixBase.CboBase", 0);
        clic("FrmChoixBase.CmdSuite");
        if (!ouverte("FrmDepart")) throw new Error("installer : FrmDepart n'est pas montrée");
        __confirmeImprimante();
    };
})(this);
