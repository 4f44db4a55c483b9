#pragma once

#include <QString>

/// What the transfer of the data and the way to the repair say to the doctor.
namespace transfer::messages {

inline QString PensezAReparer()
{
    return QStringLiteral("Pensez à réparer et compacter les bases de données sur les différents postes et "
                          "supports (clefs).");
}

inline QString DemandeReparation()
{
    return QStringLiteral("Réparer et compacter les bases de données ?");
}

inline QString UtileAbsent(const QString& programme)
{
    return QStringLiteral("« %1 » n'a pas pu être démarré.").arg(programme);
}

inline QString Ecrasement()
{
    return QStringLiteral(
        "ATTENTION !\n\nVous avez bien conscience que les données transférées vont écraser\n"
        "(c'est à dire remplacer) celles du répertoire de destination.\n\nContinuer ?");
}

inline QString OuSontLesRepertoires()
{
    return QStringLiteral("Les répertoires \"Source\" et \"Destination\" sont toujours, sur les supports "
                          "choisis, \"\\...\\...\\DataScriptelle\".");
}

inline QString IndiquezLaSource()
{
    return QStringLiteral("Indiquez le répertoire source où se trouvent les données à tranfèrer.");
}

inline QString TitreSource()
{
    return QStringLiteral("Sélectionnez le répertoire source où se trouvent les données à copier.");
}

inline QString IndiquezLaDestination()
{
    return QStringLiteral("Puis indiquez le répertoire de destination où seront tranfèrées les données.");
}

inline QString TitreDestination()
{
    return QStringLiteral("Désignez le répertoire de destination dans lequel seront transférées les données");
}

inline QString Annulee()
{
    return QStringLiteral("Procédure annulée !");
}

inline QString MauvaisRepertoire()
{
    return QStringLiteral("Vous avez choisi un mauvais répertoire ; procédure annulée !");
}

inline QString MemesRepertoires()
{
    return QStringLiteral("La source et la destination sont le même répertoire ; procédure annulée !");
}

inline QString RepertoiresImbriques()
{
    return QStringLiteral("La source et la destination sont l'une dans l'autre ; procédure annulée !");
}

inline QString Lancer()
{
    return QStringLiteral("Lancer le transfert ?");
}

inline QString Reussi()
{
    return QStringLiteral(
        "Les données ont été transférées avec succès.\n\nVous devez relancez votre programme.");
}

inline QString Echoue(const QString& phrase)
{
    return QStringLiteral("Le transfert a échoué.\n\n") + phrase;
}

inline QString SeraFini(const QString& phrase)
{
    return phrase +
           QStringLiteral("\n\nLa copie est entière, mais tous les fichiers n'ont pas pu prendre leur "
                          "place. Le prochain démarrage sur ces données, ou le prochain transfert, "
                          "l'achèvera.");
}

inline QString CopieDifferente(const QString& nom)
{
    return QStringLiteral("La copie de « %1 » n'est pas pareille à son original.").arg(nom);
}

inline QString NonRemplace(const QString& nom)
{
    return QStringLiteral("« %1 » n'a pas pu prendre sa place : il est peut-être ouvert ailleurs.").arg(nom);
}

inline QString NomEnDouble(const QString& nom)
{
    return QStringLiteral(
               "« %1 » ne diffère d'un autre nom que par ses majuscules : la destination ne peut pas "
               "garder les deux.")
        .arg(nom);
}

inline QString SourceVide(const QString& source)
{
    return QStringLiteral("Il n'y a aucun fichier à copier dans « %1 ».").arg(source);
}

inline QString SourceInachevee(const QString& source)
{
    return QStringLiteral("« %1 » attend la fin d'un transfert ou d'une restauration : démarrez d'abord le "
                          "programme sur ces données.")
        .arg(source);
}

inline QString Progression(int fichier, int nombre)
{
    return QStringLiteral("Fichier %1 sur %2").arg(fichier + 1).arg(nombre);
}

} // namespace transfer::messages
