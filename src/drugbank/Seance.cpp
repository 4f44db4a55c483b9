#include "drugbank/Seance.h"

#include "application/Signaux.h"
#include "drugbank/AccesBanque.h"
#include "drugbank/Banque.h"
#include "drugbank/Chargement.h"
#include "outside/Horloge.h"

#include <utility>

namespace drugbank {

using application::Contexte;

Seance::~Seance()
{
    if (module_ && (etape_ == Etape::Demarre || (place_ && *place_ != 0))) {
        module_->Garde(); // the end of the program leaves a session alone that nothing closed
    }
}

void Seance::Charge(Contexte& contexte)
{
    Banque& banque = contexte.Banque;
    aide_ = ChargeAide(contexte.Chemins);
    banque.ModuleAide = aide_ != nullptr;
    if (aide_) {
        banque.VidalHelper_getVidalAPIPath = [aide = aide_](qint32 produit) {
            QString chemin;
            return aide->CheminDeBanque(produit, chemin);
        };
    }
    if (EstPublique(banque)) {
        PrendPublique(contexte.Chemins);
    } else if (!aide_) {
        banque.TypeBase = QStringLiteral("BIP");
    } else if (banque.ProduitBanque != -1 &&
               aide_->CheminDeBanque(banque.ProduitBanque, banque.CheminBanque) == 0) {
        Prend(banque.CheminBanque);
    }
    if (module_) {
        banque.DateExpirationBase = DateExpiration(*module_, 0);
    }
}

void Seance::Plus(Contexte& contexte, int ms, void (Seance::*suite)(Contexte&))
{
    contexte.Dehors.Horloge.Dans(ms, this, [this, &contexte, suite, tour = tour_] {
        if (tour == tour_) {
            (this->*suite)(contexte);
        }
    });
}

/// Loads that library, unless it is the one in hand. A library that is still starting is never unloaded.
bool Seance::Prend(const QString& chemin)
{
    if (!module_ || cheminModule_ != chemin) {
        module_.reset(); // one holder at a time: the first that lets a library go unloads it
        module_ = ChargeBanque(chemin);
        cheminModule_ = chemin;
    }
    if (module_ && gardees_.contains(chemin)) {
        module_->Garde();
    }
    return module_ != nullptr;
}

bool Seance::PrendPublique(const startup::Chemins& chemins)
{
    const bool prise = Prend(CheminBanquePublique(chemins));
    if (prise) {
        ChoisitFichierPublic(*module_, chemins);
    }
    return prise;
}

/// The start is over, its window goes.
void Seance::Acheve(Contexte& contexte)
{
    ++tour_;
    etape_ = Etape::Repos;
    contexte.Banque.BanqueInitialisee = 1;
    contexte.Banque.Statut = {};
    Q_EMIT contexte.Signaux.StatutBanqueChange();
}

bool Seance::EnAttente(const Contexte& contexte) const
{
    return dansAppel_ || (etape_ == Etape::Demarre && contexte.Banque.RetourInitBanque == kStatutEnCours);
}

void Seance::Annule(Contexte& contexte)
{
    if (dansAppel_) {
        annulationDemandee_ = true;
    } else if (EnAttente(contexte)) {
        Abandonne(contexte);
    }
}

/// Nobody waits for the library any more; it still runs, and may write its handle.
void Seance::Abandonne(Contexte& contexte)
{
    annulationDemandee_ = false;
    gardees_.append(cheminModule_);
    module_->Garde();
    module_.reset();
    place_ = nullptr;
    contexte.Banque.Acces.reset();
    contexte.Banque.ProduitDuCip = {};
    contexte.Banque.SessionBanque = 0;
    contexte.Banque.SessionManquee = true;
    Acheve(contexte);
    if (std::exchange(oubliDemande_, false)) {
        Oublie(contexte);
        if (std::exchange(suiteDemandee_, false)) {
            Demarre(contexte);
        }
    }
}

void Seance::Ferme(Contexte& contexte)
{
    oubliDemande_ = suiteDemandee_ = false;
    if (EnAttente(contexte)) {
        Annule(contexte);
        return;
    }
    Banque& banque = contexte.Banque;
    LibereModule(contexte);
    banque.VidalHelper_getVidalAPIPath = {};
    banque.ModuleAide = false;
    aide_.reset();
}

void Seance::LibereModule(Contexte& contexte)
{
    Banque& banque = contexte.Banque;
    banque.Acces.reset();
    banque.ProduitDuCip = {};
    place_ = nullptr;
    const Poignee session = std::exchange(banque.SessionBanque, 0);
    if (const auto module = std::exchange(module_, nullptr); module && session != 0) {
        module->VidalAPI_release(session);
    }
    if (etape_ != Etape::Repos) {
        Acheve(contexte);
    }
}

void Seance::Libere(Contexte& contexte)
{
    if (EnAttente(contexte)) {
        oubliDemande_ = dansAppel_;
        Annule(contexte);
    } else {
        LibereModule(contexte);
    }
    Oublie(contexte);
}

/// As if no start had been run. What the bank before said of the lines is to be asked again.
void Seance::Oublie(Contexte& contexte)
{
    contexte.Banque.InteractionsNonVerifiees = true;
    contexte.Banque.BanqueInitialisee = 0;
    contexte.Banque.SessionManquee = false;
    contexte.Banque.DateExpirationBase.clear();
    Q_EMIT contexte.Signaux.StatutBanqueChange();
}

void Seance::LiberePublique(Contexte& contexte)
{
    if (EstPublique(contexte.Banque) ||
        (module_ && cheminModule_ == CheminBanquePublique(contexte.Chemins))) {
        Libere(contexte);
    }
}

void Seance::SuitBase(Contexte& contexte)
{
    const Banque& banque = contexte.Banque;
    const bool autre = (produit_ == kProduitPublic) != EstPublique(banque);
    if (EnModeBanque(banque) && produit_ != 0 && autre) {
        produit_ = 0;
        Libere(contexte);
    }
}

} // namespace drugbank
