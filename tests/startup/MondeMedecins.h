#pragma once

#include "settings/FichiersReglages.h"
#include "startup/GestionMedecins.h"
#include "support/Monde.h"

/// The text of a message as it stands in the test.
inline QString T(const char* texte)
{
    return QString::fromUtf8(texte);
}

inline const char* const kInvite =
    "Inscrire les nom et prénom du médecin.\n(Ignorez la casse, le nom sera mis en "
    "majuscules.)\n\nRespectez le format\"Dr/un espace/Nom Prenom (Prenom facultatif)\"";

/// A tree with the root copies of the settings and the doctors named, numbered from 1; the first is current.
struct MondeMedecins : support::Monde
{
    explicit MondeMedecins(const QStringList& noms)
    {
        Installe();
        const QString& data = Etat.Chemins.CheminData;
        common::CreeDossierPrive(data);
        settings::EcritOptions(Etat.Reglages.Options, data);
        settings::EcritMarges(Etat.Reglages.Marges, data);
        settings::EcritDupli(Etat.Reglages.Dupli, data);
        QByteArray ini = " " + QByteArray::number(noms.size()) + " \r\n";
        for (int i = 0; i < noms.size(); ++i) {
            ini += noms[i].toLatin1() + '-' + QByteArray::number(i + 1) + "\r\n";
            CreeMedecin(noms[i]);
        }
        common::EcritFichier(Ini(), ini);
        startup::LitMedecins(Contexte);
        startup::ChangeMedecin(Contexte, 0);
    }

    void CreeMedecin(const QString& nom) const
    {
        common::CreeDossier(Medecin(nom));
        common::CopieFichier(Chemin(QStringLiteral("programme/BasesInstal/Ordo.mdb")),
                             common::Joint(Medecin(nom), QStringLiteral("Ordo.mdb")));
    }

    QString Ini() const { return common::Joint(Etat.Chemins.CheminTravail, QStringLiteral("Medecin.ini")); }
    QString Medecin(const QString& nom) const { return common::Joint(Etat.Chemins.CheminTravail, nom); }

    void AttendNom(const char* saisie)
    {
        Boites.AttendSaisie(T(kInvite), saisie ? support::BoitesScript::Texte(T(saisie)) : std::nullopt,
                            QStringLiteral("Dr "));
    }
};

inline const QString kA = QStringLiteral("DR A");
inline const QString kB = QStringLiteral("DR B");
inline const QString kC = QStringLiteral("DR C");
