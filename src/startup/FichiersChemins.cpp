#include "startup/FichiersChemins.h"

#include "common/Fichiers.h"

namespace startup {

using common::Joint;

namespace {

QString FichierData(const Chemins& chemins)
{
    return Joint(chemins.CheminInstallation, QStringLiteral("CheminData.cfg"));
}

QString FichierBase(const Chemins& chemins)
{
    return Joint(chemins.CheminInstallation, QStringLiteral("CheminBase.cfg"));
}

/// The fields of "CheminBase.cfg" in file order; the path in the system's manner.
struct EnregistrementBase
{
    quint8 IndexStockage = 0;
    QString CheminBase;
    qint16 NumMedecinDefaut = 1;

    auto Champs() { return std::tie(IndexStockage, CheminBase, NumMedecinDefaut); }
};

} // namespace

void LitCheminData(Chemins& chemins)
{
    QString chemin;
    const auto lecture = settings::LitEnregistrement(FichierData(chemins), std::tie(chemin));
    chemins.CheminData = lecture == settings::Lecture::Complete ? Joint(chemin, QString()) : QString();
}

void EcritCheminData(const Chemins& chemins)
{
    const QString chemin = common::CheminAffiche(chemins.CheminData);
    settings::EcritEnregistrement(FichierData(chemins), std::tie(chemin));
}

settings::Lecture LitCheminBase(Chemins& chemins, Medecins& medecins)
{
    EnregistrementBase lu{chemins.IndexStockage, chemins.CheminBase, medecins.NumMedecinDefaut};
    const auto lecture = settings::LitEnregistrement(FichierBase(chemins), lu.Champs());
    chemins.IndexStockage = lu.IndexStockage;
    chemins.CheminBase = Joint(lu.CheminBase, QString());
    medecins.NumMedecinDefaut = lu.NumMedecinDefaut;
    return lecture;
}

void EcritCheminBase(const Chemins& chemins, const Medecins& medecins)
{
    EnregistrementBase aEcrire{chemins.IndexStockage, common::CheminAffiche(chemins.CheminBase),
                               medecins.NumMedecinDefaut};
    settings::EcritEnregistrement(FichierBase(chemins), aEcrire.Champs());
}

} // namespace startup
