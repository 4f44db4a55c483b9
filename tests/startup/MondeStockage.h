#pragma once

#include "startup/DialoguesStockage.h"
#include "support/Monde.h"

/// The text of a message as it stands in the test.
inline QString T(const char* texte)
{
    return QString::fromUtf8(texte);
}

/// A world whose storage is settled, with the path files' directory.
struct MondeStockage : support::Monde
{
    explicit MondeStockage(quint8 type)
    {
        common::CreeDossier(Etat.Chemins.CheminInstallation);
        common::CreeDossier(Etat.Chemins.CheminData);
        Etat.Chemins.TypeStockage = type;
        Etat.Chemins.CheminTravail.clear();
        Etat.Chemins.IndexStockage = static_cast<quint8>(type - 1);
    }

    QString CheminBaseCfg() const
    {
        return common::Joint(Etat.Chemins.CheminInstallation, QStringLiteral("CheminBase.cfg"));
    }

    /// A directory below this world, made, with a file in it when `nom` is given.
    QString Fait(const QString& dossier, const QString& nom = {}) const
    {
        common::CreeDossier(Chemin(dossier));
        if (!nom.isEmpty()) {
            common::EcritFichier(common::Joint(Chemin(dossier), nom), "x");
        }
        return Chemin(dossier);
    }

    void Regle() { startup::RegleCheminTravail(Contexte); }
    QString Travail() const { return Etat.Chemins.CheminTravail; }
    QString Data() const { return Etat.Chemins.CheminData; }
};
