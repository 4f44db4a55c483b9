#include "settings/ChoixPharmacie.h"

#include "settings/messages.h"

#include <algorithm>
#include <array>

namespace settings {

namespace {

struct Pharmacie
{
    QLatin1String TypeBase;
    qint32 ProduitBanque;
    QLatin1String Nom;
};

constexpr std::array<Pharmacie, 3> kPharmacies = {
    {{QLatin1String("BIP"), -1, QLatin1String("Scriptelle")},
     {QLatin1String("TVS"), 2, QLatin1String("VIDAL Expert")},
     {QLatin1String("VDE"), 1, QLatin1String("VIDAL Dentaire")}}};

void Prend(drugbank::Banque& banque, const Pharmacie& pharmacie)
{
    banque.TypeBase = pharmacie.TypeBase;
    banque.ProduitBanque = pharmacie.ProduitBanque;
}

bool EstInstallee(const drugbank::Banque& banque)
{
    return banque.VidalHelper_getVidalAPIPath &&
           banque.VidalHelper_getVidalAPIPath(banque.ProduitBanque) == 0;
}

} // namespace

ChoixPharmacie ChoisitPharmacie(drugbank::Banque& banque, int rang)
{
    const Pharmacie& pharmacie = kPharmacies.at(static_cast<std::size_t>(rang));
    Prend(banque, pharmacie);
    if (rang == 0) {
        return {0, messages::BaseScriptelle(), false};
    }
    if (!banque.ModuleAide) {
        Prend(banque, kPharmacies.front());
        return {0, messages::SansModuleAide(), false};
    }
    const QString nom = pharmacie.Nom;
    return {rang, EstInstallee(banque) ? messages::BaseInstallee(nom) : messages::BaseNonInstallee(nom),
            true};
}

int RangPharmacie(const QString& typeBase)
{
    const auto place = std::ranges::find(kPharmacies, typeBase, &Pharmacie::TypeBase);
    return place == kPharmacies.end() ? -1 : static_cast<int>(place - kPharmacies.begin());
}

} // namespace settings
