#include "settings/ChoixPharmacie.h"

#include "drugbank/Banque.h"
#include "drugbank/BanquePublique.h"
#include "drugbank/Chargement.h"
#include "outside/Horloge.h"
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

constexpr int kPublique = 3;

constexpr std::array<Pharmacie, kNbPharmacies> kPharmacies = {
    {{QLatin1String("BIP"), -1, QLatin1String("Scriptelle")},
     {QLatin1String("TVS"), 2, QLatin1String("VIDAL Expert")},
     {QLatin1String("VDE"), 1, QLatin1String("VIDAL Dentaire")},
     {QLatin1String("BDP"), drugbank::kProduitPublic, QLatin1String("Base publique")}}};

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

QString EtatBasePublique(const application::Contexte& contexte)
{
    const bool presente = drugbank::BanquePubliquePresente(contexte.Chemins);
    const auto information = drugbank::LitBanquePublique(contexte.Chemins);
    if (!presente || !information) {
        return messages::BasePubliqueNonInstallee(presente ? messages::SansFichierDeBanque()
                                                           : messages::SansBibliotheque());
    }
    const QString jour = drugbank::JourAffiche(information->DateDonnees);
    const QStringList reserves = drugbank::Reserves(*information, contexte.Dehors.Horloge.Aujourdhui());
    QStringList phrases = QStringList{messages::BasePubliqueInstallee(jour)} + reserves;
    if (!reserves.isEmpty()) {
        phrases.append(messages::OuMettreAJour());
    }
    return phrases.join(u'\n');
}

ChoixPharmacie ChoisitPharmacie(application::Contexte& contexte, int rang)
{
    drugbank::Banque& banque = contexte.Banque;
    const Pharmacie& pharmacie = kPharmacies.at(static_cast<std::size_t>(rang));
    Prend(banque, pharmacie);
    if (rang == 0) {
        return {0, messages::BaseScriptelle(), false};
    }
    if (rang == kPublique) {
        return {rang, EtatBasePublique(contexte), true};
    }
    if (!banque.ModuleAide) {
        Prend(banque, kPharmacies.front());
        return {0, messages::SansModuleAide(), false};
    }
    const QString nom = pharmacie.Nom;
    return {rang, EstInstallee(banque) ? messages::BaseInstallee(nom) : messages::BaseNonInstallee(nom),
            true};
}

qint32 ProduitDeBase(const QString& typeBase)
{
    const auto place = std::ranges::find(kPharmacies, typeBase, &Pharmacie::TypeBase);
    return place == kPharmacies.end() ? drugbank::Banque().ProduitBanque : place->ProduitBanque;
}

int RangPharmacie(const QString& typeBase)
{
    const auto place = std::ranges::find(kPharmacies, typeBase, &Pharmacie::TypeBase);
    return place == kPharmacies.end() ? -1 : static_cast<int>(place - kPharmacies.begin());
}

} // namespace settings
