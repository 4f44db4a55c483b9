#pragma once

#include <QString>

/// What the subsystem says to the doctor.
namespace drugbank::messages {

inline QString Initialisation()
{
    return QStringLiteral("\n Initialisation de la pharmacie Vidal en cours ... veuillez patienter");
}

inline QString InitialisationPublique()
{
    return QStringLiteral(
        "\n Initialisation de la base publique des médicaments en cours ... veuillez patienter");
}

inline QString PharmacieNonInstallee()
{
    return QStringLiteral("\n\nPharmacie non installée");
}

inline QString BanqueNonChargee()
{
    return QStringLiteral("\n\nvidalapi dll ne peut être chargée !");
}

inline QString PubliqueNonChargee()
{
    return QStringLiteral("\n\nLa base publique des médicaments ne peut être chargée !");
}

inline QString EchecInitialisation(const QString& ancien, int retour)
{
    return ancien + QStringLiteral("\n\nRetour init = %1   =>  Echec initialisation").arg(retour);
}

inline QString PharmacieInitialisee(const QString& expiration)
{
    return QStringLiteral("Pharmacie initialisée\nDate d'expiration = ") + expiration;
}

inline QString NomVidal()
{
    return QStringLiteral("Dictionnaire VIDAL EXPERT");
}

inline QString VersionVidal(const QString& version)
{
    return QStringLiteral("vidalapi.dll   version ") + version;
}

inline QString NomPublique()
{
    return QStringLiteral("Base publique des médicaments");
}

inline QString SourcePublique()
{
    return QStringLiteral("Source : base de données publique des médicaments (ANSM, HAS, Assurance Maladie)");
}

inline QString VersionPublique(const QString& version)
{
    return QStringLiteral("scriptelle-bdp   version ") + version;
}

} // namespace drugbank::messages
