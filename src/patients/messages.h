#pragma once

#include <QString>

/// What the patients' windows and procedures say to the doctor.
namespace patients::messages {

inline QString SelectionnezUnNom()
{
    return QStringLiteral("Sélectionnez un nom dans la liste,\nou enregistrez un nouveau patient.");
}

inline QString QuelPatientModifier()
{
    return QStringLiteral("Quel patient modifier ?");
}

inline QString QuelPatientSupprimer()
{
    return QStringLiteral("Quel patient supprimer ?");
}

/// `texte` is the list entry's text, with its blanks.
inline QString SupprimerPatient(const QString& texte)
{
    return QStringLiteral("Supprimer ") + texte + QStringLiteral(", et les ordonnances associées ?");
}

/// The heading of the precautions; the items follow.
inline QString PrecautionsPour(const QString& nom)
{
    return QStringLiteral("Précautions à prendre en compte pour une prescription à\n") + nom +
           QStringLiteral("\n\n");
}

inline QString UnePrecaution(const QString& precaution)
{
    return QStringLiteral("o   ") + precaution + QLatin1Char('\n');
}

/// Another workstation deleted the row meanwhile.
inline QString PatientDisparu()
{
    return QStringLiteral("Ce patient n'est plus dans la base : il a été supprimé depuis un autre poste.");
}

inline QString IndiquezNom()
{
    return QStringLiteral("Indiquez le nom du patient !");
}

inline QString IndiquezPrenom()
{
    return QStringLiteral("Indiquez le prénom du patient !");
}

inline QString IndiquezDateNaissance()
{
    return QStringLiteral("Indiquez la date de naissance du patient\n"
                          "au format jj/mm/aaaa (ex.: 20/03/1953) !");
}

inline QString InvitePrecautions()
{
    return QStringLiteral("Indiquez les allergies, contre-indications, ou pathologies... \n"
                          "susceptibles d'influencer les prescritions :\n\n"
                          "Cliquez sur annuler pour terminer.");
}

inline QString SupprimerPrecaution(const QString& precaution)
{
    return QStringLiteral("Supprimer la précaution ") + precaution + QStringLiteral(" ?");
}

inline QString AideListe()
{
    return QStringLiteral(
        "Tapez les premières lettres du nom : le premier patient qui commence ainsi est sélectionné.\n"
        "Les flèches haut et bas parcourent la liste, Entrée confirme le patient.\n\n"
        "« Nouveau patient » enregistre une fiche, « Patient de passage » établit une ordonnance sans rien "
        "enregistrer.\n"
        "« Modifier » et « Supprimer » concernent le patient sélectionné.");
}

} // namespace patients::messages
