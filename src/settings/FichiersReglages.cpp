#include "settings/FichiersReglages.h"

#include "common/Fichiers.h"
#include "drugbank/Banque.h"
#include "settings/ChampsReglages.h"
#include "settings/ChoixPharmacie.h"
#include "settings/Enregistrement.h"
#include "settings/HauteurSaut.h"

#include <utility>

namespace settings {

using common::Joint;

namespace {

constexpr qint32 kNiveauSur = 0; // every interaction is told
constexpr qint32 kNiveauMax = 3;

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
    const qint32 niveau = std::exchange(banque.NiveauInteraction, kNiveauSur);
    if (LitEnregistrement(CheminBaseCfg(chemin), ChampsBase(banque)) == Lecture::Absente) {
        banque.NiveauInteraction = niveau;
        return false;
    }
    if (banque.NiveauInteraction < kNiveauSur || banque.NiveauInteraction > kNiveauMax) {
        banque.NiveauInteraction = kNiveauSur;
    }
    const qint32 produit = ProduitDeBase(banque.TypeBase);
    if ((produit == drugbank::kProduitPublic) != drugbank::EstPublique(banque)) {
        banque.ProduitBanque = produit;
    }
    return true;
}

void EcritBaseCfg(const drugbank::Banque& banque, const QString& chemin)
{
    EcritEnregistrement(CheminBaseCfg(chemin), ChampsBase(banque));
}

} // namespace settings
