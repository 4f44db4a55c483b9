#include "settings/FichiersReglages.h"

#include "common/Fichiers.h"
#include "settings/ChampsReglages.h"
#include "settings/Enregistrement.h"
#include "settings/HauteurSaut.h"

namespace settings {

using common::Joint;

namespace {

QString CheminOptions(const QString& chemin)
{
    return Joint(chemin, QStringLiteral("Options.cfg"));
}

QString CheminMarges(const QString& chemin)
{
    return Joint(chemin, QStringLiteral("Marges.cfg"));
}

QString CheminDupli(const QString& chemin)
{
    return Joint(chemin, QStringLiteral("Dupli.cfg"));
}

QString CheminBaseCfg(const QString& chemin)
{
    return Joint(chemin, QStringLiteral("Base.cfg"));
}

} // namespace

void ChargeReglages(Reglages& reglages, const QString& chemin)
{
    LitOptions(reglages.Options, chemin);
    LitEnregistrement(CheminMarges(chemin), ChampsMarges(reglages.Marges));
    LitEnregistrement(CheminDupli(chemin), ChampsDupli(reglages.Dupli));
    reglages.TxtSLP = TexteSautPersonnalise(reglages);
}

bool LitOptions(Options& options, const QString& chemin)
{
    return LitEnregistrement(CheminOptions(chemin), ChampsOptions(options)) != Lecture::Absente;
}

void EcritOptions(const Options& options, const QString& chemin)
{
    EcritEnregistrement(CheminOptions(chemin), ChampsOptions(options));
}

void EcritMarges(const Marges& marges, const QString& chemin)
{
    EcritEnregistrement(CheminMarges(chemin), ChampsMarges(marges));
}

void EcritDupli(const Dupli& dupli, const QString& chemin)
{
    EcritEnregistrement(CheminDupli(chemin), ChampsDupli(dupli));
}

bool LitBaseCfg(drugbank::Banque& banque, const QString& chemin)
{
    return LitEnregistrement(CheminBaseCfg(chemin), ChampsBase(banque)) != Lecture::Absente;
}

void EcritBaseCfg(const drugbank::Banque& banque, const QString& chemin)
{
    EcritEnregistrement(CheminBaseCfg(chemin), ChampsBase(banque));
}

} // namespace settings
