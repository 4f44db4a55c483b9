#pragma once

#include <QString>

/// What the outer edge says to the doctor.
namespace outside::messages {

inline QString Panne(const QString& phrase, const QString& lieu)
{
    return phrase + QLatin1Char('\n') + lieu;
}

inline QString Remplacer(const QString& nom)
{
    return QStringLiteral("« %1 » existe déjà.\nVoulez-vous le remplacer ?").arg(nom);
}

inline QString PdfNonEcrit(const QString& fichier)
{
    return QStringLiteral("Le fichier PDF n'a pas pu être écrit :\n%1").arg(fichier);
}

inline QString PdfSansLecteur(const QString& fichier)
{
    return QStringLiteral("Aucun programme n'ouvre les fichiers PDF sur cet ordinateur.\n"
                          "L'ordonnance est enregistrée ici :\n%1")
        .arg(fichier);
}

inline QString ImprimanteAbsente(const QString& imprimante)
{
    return QStringLiteral("L'imprimante « %1 » n'est plus installée sur cet ordinateur.").arg(imprimante);
}

inline QString ImprimanteNeRepondPas(const QString& imprimante)
{
    return QStringLiteral("L'imprimante « %1 » ne répond pas. Vérifiez qu'elle est allumée et reliée.")
        .arg(imprimante);
}

} // namespace outside::messages
