#pragma once

#include <QString>

/// What the prescription's procedures say to the doctor.
namespace prescription::messages {

inline QString InviteDate()
{
    return QStringLiteral("Date de l'ordonnance :\nformat : jj/mm/aaaa");
}

inline QString FormatDate()
{
    return QStringLiteral("Indiquez la date de l'ordonnance\nau format jj/mm/aaaa (ex.: 07/01/2010) !");
}

inline QString CertificatNonMemorise()
{
    return QStringLiteral("On ne peut pas enregistrer un certificat \ndans cette fenêtre.");
}

inline QString RienAMemoriser()
{
    return QStringLiteral("Aucune ordonnance n'est à enregistrer !");
}

inline QString CertificatNonSupprime()
{
    return QStringLiteral("On ne peut pas supprimer un certificat \ndans cette fenêtre.");
}

inline QString PasUneMemorisee()
{
    return QStringLiteral("Ce raccourci ne peut que supprimer une ordonnance mémorisée.");
}

inline QString PourLePatientEnCours(const QString& patient)
{
    return QStringLiteral("Pour le patient en cours (%1) ?").arg(patient);
}

inline QString CertificatIllisible()
{
    return QStringLiteral("Le texte du certificat est introuvable ou illisible. Rien n'est imprimé.");
}

inline QString ImprimanteIntrouvable(const QString& choisie, const QString& utilisee)
{
    return QStringLiteral("« %1 » n'est plus installée : impression sur « %2 »").arg(choisie, utilisee);
}

inline QString LignesHorsDeLaFeuille(int nombre, bool certificat)
{
    const QString document = certificat ? QStringLiteral("du certificat") : QStringLiteral("de l'ordonnance");
    const QString debut = nombre == 1 ? QStringLiteral("Une ligne %1 dépasse le bas de la feuille "
                                                       "et ne sera pas imprimée.")
                                            .arg(document)
                                      : QStringLiteral("%1 lignes %2 dépassent le bas de la feuille "
                                                       "et ne seront pas imprimées.")
                                            .arg(nombre)
                                            .arg(document);
    return debut + QStringLiteral("\n\nImprimer quand même ?");
}

inline QString Deborde(bool certificat)
{
    return certificat ? QStringLiteral("Le certificat dépasse le bas de la feuille")
                      : QStringLiteral("L'ordonnance dépasse le bas de la feuille");
}

inline QString ImpressionEchouee(const QString& imprimante, const QString& cause)
{
    return QStringLiteral("L'impression sur « %1 » a échoué.\n%2").arg(imprimante, cause);
}

inline QString EnteteIllisible(const QString& cause)
{
    return QStringLiteral("L'en-tête du médecin ne peut pas être lu. Rien n'est imprimé.\n%1").arg(cause);
}

inline QString JournalNonEcrit(const QString& cause)
{
    return QStringLiteral("L'ordonnance est imprimée, mais elle n'a pas pu être inscrite au journal.\n%1")
        .arg(cause);
}

inline QString NomDeJournalRefuse(const QString& nom)
{
    return QStringLiteral("« %1 » ne peut pas servir de nom de fichier.").arg(nom);
}

inline QString HauteurNonEcrite(const QString& cause)
{
    return QStringLiteral(
               "La hauteur choisie vaut jusqu'à la fermeture du programme, mais elle n'a pas pu être "
               "enregistrée.\n%1")
        .arg(cause);
}

inline QString LogoIllisible(const QString& chemin)
{
    return QStringLiteral("Le logo « %1 » n'est pas une image lisible ou est trop grand.\n"
                          "L'en-tête est imprimé sans logo.")
        .arg(chemin);
}

inline QString EnregistrerModifications(const QString& titre)
{
    return QStringLiteral("Enregistrer les modifications de ") + titre + QStringLiteral(" ?");
}

inline QString TitreNomMemo()
{
    return QStringLiteral("Ordonnance mémorisée");
}

inline QString InviteNomMemo()
{
    return QStringLiteral("Donnez un nom à cette ordonnance mémorisée :");
}

inline QString NonMemorisee()
{
    return QStringLiteral("L'ordonnance ne sera pas mémorisée.");
}

inline QString Specifique(const QString& patient)
{
    return QStringLiteral("Voulez-vous que cette ordonnance soit spécifique à ") + patient +
           QStringLiteral(" ?");
}

inline QString SupprimerDesMemorisees(const QString& titre)
{
    return QStringLiteral("Supprimer ") + titre + QStringLiteral(" des ordonnances mémorisées ?");
}

inline QString EffacerActuelle()
{
    return QStringLiteral("Voulez-vous effacer l'ordonnance actuelle ?");
}

inline QString SelectionnezMemo()
{
    return QStringLiteral("Sélectionnez une ordonnance .");
}

inline QString MemoDisparue(const QString& titre)
{
    return QStringLiteral(
               "L'ordonnance mémorisée « %1 » n'est plus dans la base : elle a été supprimée depuis un "
               "autre poste.")
        .arg(titre);
}

inline QString SupprimerMemo(const QString& titre)
{
    return QStringLiteral("Supprimer  ") + titre + QStringLiteral("  ?");
}

inline QString PlusDeMemo()
{
    return QStringLiteral("Plus d'ordonnance enregistrée !");
}

inline QString AideSuppression()
{
    return QStringLiteral("Pour supprimer une ordonnance enregistrée, il faut la sélectionner dans la "
                          "liste, et taper sur la touche 'Suppr' du clavier.");
}

inline QString TitreOuvreJournal()
{
    return QStringLiteral("Chemin du Fichier Journal");
}

inline QString FiltreJournal()
{
    return QStringLiteral("Journaux (*.log)|*.log");
}

inline QString JournalLu(int nombre)
{
    return nombre == 0   ? QStringLiteral("Ce journal est vide")
           : nombre == 1 ? QStringLiteral("Une ligne")
                         : QStringLiteral("%L1 lignes").arg(nombre);
}

inline QString JournalLuEnPartie(int nombre)
{
    return QStringLiteral("Ce fichier n'a pas pu être lu en entier : ") + JournalLu(nombre).toLower();
}

} // namespace prescription::messages
