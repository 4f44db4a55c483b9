#pragma once

#include <QString>

/// What the bank's import says.
namespace banque::messages {

inline QString Colonnes(qsizetype trouvees, int attendues)
{
    return QStringLiteral("%1 colonne(s) au lieu de %2").arg(trouvees).arg(attendues);
}

inline QString ValeurIllisible(const QString& quoi, const QString& valeur)
{
    return QStringLiteral("%1 illisible : « %2 »").arg(quoi, valeur);
}

inline QString ValeurLaissee(const QString& quoi, const QString& valeur)
{
    return QStringLiteral("%1 illisible ou invraisemblable, laissé(e) vide : « %2 »").arg(quoi, valeur);
}

inline QString ValeurAbsente(const QString& quoi)
{
    return QStringLiteral("%1 absent(e)").arg(quoi);
}

inline QString HonorairesDeplaces()
{
    return QStringLiteral("honoraires trouvés dans la colonne du prix total, remis à leur place");
}

inline QString DejaLue(const QString& cle)
{
    return QStringLiteral("« %1 » figure déjà dans une ligne précédente").arg(cle);
}

inline QString Doublon()
{
    return QStringLiteral("ligne identique à une précédente");
}

inline QString SansSpecialite()
{
    return QStringLiteral("spécialité absente de la base publique");
}

inline QString PresentationSansSpecialite()
{
    return QStringLiteral("présentation sans spécialité : gardée, mais absente de la recherche");
}

inline QString DossierAbsent(const QString& dossier)
{
    return QStringLiteral("Le répertoire « %1 » n'existe pas.").arg(dossier);
}

inline QString FichierAbsent(const QString& nom, const QString& dossier)
{
    return QStringLiteral("Le fichier « %1 » manque dans le répertoire « %2 ».").arg(nom, dossier);
}

inline QString FichierFacultatifAbsent(const QString& nom)
{
    return QStringLiteral("Le fichier « %1 » est absent : la banque n'en contient pas les données.").arg(nom);
}

inline QString FichierInconnu(const QString& nom)
{
    return QStringLiteral("Le fichier « %1 » est inconnu : il n'a pas été lu.").arg(nom);
}

inline QString FichierVide(const QString& nom)
{
    return QStringLiteral("Le fichier « %1 » ne contient aucune ligne lisible. "
                          "La banque n'a pas été remplacée.")
        .arg(nom);
}

inline QString TropDeRefus(const QString& nom, int refusees, int lues, int ligne, const QString& motif)
{
    return QStringLiteral("Le fichier « %1 » n'a pas la forme attendue : %2 lignes sur %3 sont refusées, la "
                          "première à la ligne %4 (%5). La banque n'a pas été remplacée.")
        .arg(nom)
        .arg(refusees)
        .arg(lues)
        .arg(ligne)
        .arg(motif);
}

inline QString FichierCoupe(const QString& nom, int ligne)
{
    return QStringLiteral("Le fichier « %1 » est coupé à sa dernière ligne (%2) : téléchargez-le de nouveau. "
                          "La banque n'a pas été remplacée.")
        .arg(nom)
        .arg(ligne);
}

inline QString ThesaurusVide()
{
    return QStringLiteral("Le fichier des interactions ne contient aucune interaction lisible. "
                          "La banque n'a pas été remplacée.");
}

inline QString ThesaurusIllisible(int sansNiveau, int imprimees)
{
    return QStringLiteral(
               "Le fichier des interactions n'a pas la forme attendue : %1 interactions sur %2 n'ont "
               "pas de niveau lisible. La banque n'a pas été remplacée.")
        .arg(sansNiveau)
        .arg(imprimees);
}

inline QString ThesaurusCoupe(int uniques, int couples)
{
    return QStringLiteral("Le fichier des interactions n'est pas entier : %1 couples sur %2 n'y figurent que "
                          "d'un seul côté. La banque n'a pas été remplacée.")
        .arg(uniques)
        .arg(couples);
}

inline QString RienDeCommercialise(const QString& nom)
{
    return QStringLiteral(
               "Aucune présentation du fichier « %1 » n'est commercialisée : il n'a pas la forme attendue. "
               "La banque n'a pas été remplacée.")
        .arg(nom);
}

inline QString DateInconnue()
{
    return QStringLiteral("Aucune date ne dit de quand sont ces données. La banque n'a pas été remplacée.");
}

inline QString ImportEnCours(const QString& nom)
{
    return QStringLiteral("Un autre import écrit déjà la banque « %1 ».").arg(nom);
}

inline QString BanqueRefusee(const QString& nom)
{
    return QStringLiteral("La banque « %1 » ne peut pas être écrite : l'accès est refusé.").arg(nom);
}

inline QString DisquePlein(const QString& nom)
{
    return QStringLiteral("Le disque de la banque « %1 » est plein : la banque n'a pas été remplacée.")
        .arg(nom);
}

inline QString DisqueEnPanne(const QString& nom)
{
    return QStringLiteral(
               "Le disque de la banque « %1 » ne répond pas correctement : la banque n'a pas été remplacée.")
        .arg(nom);
}

inline QString EcritureRefusee(const QString& nom, const QString& cause)
{
    return QStringLiteral("La banque « %1 » a refusé une écriture (%2) : elle n'a pas été remplacée.")
        .arg(nom, cause);
}

inline QString LectureRefusee(const QString& nom, const QString& cause)
{
    return QStringLiteral("La banque « %1 » ne peut pas être lue (%2).").arg(nom, cause);
}

inline QString Interrompu()
{
    return QStringLiteral("Import interrompu : la banque n'a pas été remplacée.");
}

} // namespace banque::messages
