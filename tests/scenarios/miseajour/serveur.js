// A new version where the data stand on a server: that tree alone is upgraded; and what stops an upgrade
installer();
const data = utilisateur + "/DataVelmont/DataScriptelle";
const serveur = utilisateur + "/serveur/DataScriptelle";
ajouter("Medoc", "Biblio", ["titre", "posologie"]);
clic("FrmDepart.CmdQuitter");
copier(data, serveur);
const avant = lireOctets(data + "/Medoc.mdb");
copier(programme + "/BasesInstal/Copie de Medoc.mdb", programme + "/Copie de Medoc.mdb");
const due = /^Le programme doit faire la mise à jour des bases de données\./;
const choix = 'Sélectionnez le répertoire "DataScriptelle" à mettre à jour';

lancer();
boites([[due, "OK"], [choix, utilisateur], [/^Ce n'est pas le bon répertoire/, "Non"],
    [" Procédure interrompue ; vous devrez relancer le programme et refaire le choix du répertoire de votre base de travail.", "OK"]]);
vrai(fini(), "sans répertoire le programme finit");
vrai(existe(data + "/Copie de Medoc.mdb"), "la mise à jour reste due");

ecrire(serveur + "/DR NEIBRE/Ordo.mdb", "pas une base");
const octets = lireOctets(serveur + "/Medoc.mdb");
lancer();
boites([[due, "OK"], [choix, serveur], [/situées dans le répertoire sélectionné sur votre support externe\.\nPatientez/, "OK"]]);
egal(boite().genre, "stop", "un échec est dit");
contient(boite().texte, "« Ordo.mdb » n'est pas une base de données de Scriptelle", "avec le nom du fichier");
contient(boite().texte, "vos bases de données sont telles qu'elles étaient", "et ce qu'il en est");
repondre("OK");
vrai(ouverte("FrmChoixBase"), "le travail peut reprendre sans elle");
clic("FrmChoixBase.CmdAnn");
vrai(fini(), "ou attendre");
vrai(existe(data + "/Copie de Medoc.mdb"), "la mise à jour reste due");
egal(lireOctets(serveur + "/Medoc.mdb"), octets, "rien n'a changé");
faux(existe(serveur + "/Ancien_Medoc.mdb") || existe(serveur + "/Copie de Medoc.mdb") || existe(serveur + "/MiseAJour.cfg"),
    "rien ne reste");

copier(data + "/DR NEIBRE/Ordo.mdb", serveur + "/DR NEIBRE/Ordo.mdb");
lancer();
boites([[due, "OK"], [choix, serveur], [/^Le programme va faire la mise à jour de vos bases de données, situées dans le répertoire sélectionné sur votre support externe\.\nPatientez \.\.\.$/, "OK"],
    ["Mise à jour des bases terminée.", "OK"],
    ["Si vous désirez utiliser un autre support pour travailler (clef, disque,serveur) , il faudra penser, en premier lieu, à tranférer les données du support utilisé vers le nouveau support. \n\nFaites cela à partir du bouton 'Outils / Transfert de données'", "OK"],
    ["Le programme doit redémarrer après la mise à jour.", "OK"]]);
vrai(fini(), "le programme est fini");
egal(table(serveur + "/Medoc.mdb", "Biblio"), [["titre", "posologie"]], "les données du serveur");
vrai(existe(serveur + "/Ancien_Medoc.mdb"), "l'arbre du serveur est à jour");
vrai(existe(serveur + "/DR NEIBRE/Ancien_Ordo.mdb"), "avec le médecin");
egal(lireOctets(data + "/Medoc.mdb"), avant, "celui du disque n'a pas changé");
faux(existe(data + "/Copie de Medoc.mdb"), "et n'est plus à mettre à jour");
