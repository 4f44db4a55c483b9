#include "drugbank/BanquePublique.h"

#include "common/Dates.h"
#include "common/Fichiers.h"
#include "drugbank/messagesMaj.h"
#include "startup/Chemins.h"

namespace drugbank {

namespace {

/// Fewer medications than this are no whole public base, which has some 15 000.
constexpr int kSpecialitesEntiere = 5000;

QString NomDuFichier()
{
    return QStringLiteral("banque.sqlite");
}

} // namespace

QString FichierBanquePublique(const startup::Chemins& chemins)
{
    const QString recente = CheminBanqueMiseAJour(chemins);
    return common::FichierExiste(recente) ? recente : common::Joint(chemins.CheminProgramme, NomDuFichier());
}

QString CheminBanqueMiseAJour(const startup::Chemins& chemins)
{
    return common::Joint(chemins.CheminInstallation, NomDuFichier());
}

std::optional<banque::InformationBanque> LitBanquePublique(const startup::Chemins& chemins)
{
    return banque::LitInformation(FichierBanquePublique(chemins));
}

QStringList Reserves(const banque::InformationBanque& information, const QDate& aujourdhui)
{
    QStringList reserves;
    if (!information.Nature.isEmpty()) {
        reserves.append(messages::BaseExtrait(information.Nature));
    } else if (information.Specialites < kSpecialitesEntiere) {
        reserves.append(messages::BaseIncomplete(information.Specialites));
    }
    if (information.Interactions == 0) {
        reserves.append(messages::BaseSansInteraction());
    }
    if (information.Expiration.isValid() && information.Expiration < aujourdhui) {
        reserves.append(messages::BaseExpiree(JourAffiche(information.Expiration)));
    }
    return reserves;
}

QString JourAffiche(const QDate& jour)
{
    return jour.isValid() ? common::TexteDate(jour) : QStringLiteral("date inconnue");
}

} // namespace drugbank
