#include "drugbank/Seance.h"

#include "application/Signaux.h"
#include "drugbank/Banque.h"
#include "drugbank/Chargement.h"
#include "drugbank/RequetesBanque.h"
#include "drugbank/messages.h"
#include "outside/Horloge.h"

#include <deque>

// The start of a session, step by step.
namespace drugbank {

using application::Contexte;

namespace {

constexpr qint32 kSansAide = 15;
constexpr qint32 kNonChargeable = 16;
constexpr qint32 kNonInstallee = 21;

constexpr int kEntreSondes = 50; // milliseconds, as all below
constexpr int kPasDeBarre = 1000;
constexpr int kAvantAnnuler = 30'000;
constexpr int kNonInstalleeMontree = 2000;
constexpr int kMessageMontre = 3000;

/// A place for a handle that a start in the background may still write when nobody waits for it any more.
Poignee* NouvellePlace()
{
    static auto* places = new std::deque<Poignee>();
    places->push_back(0);
    return &places->back();
}

void Annonce(Contexte& contexte)
{
    Q_EMIT contexte.Signaux.StatutBanqueChange();
}

void Montre(Contexte& contexte, bool barre)
{
    StatutBanque& statut = contexte.Banque.Statut;
    statut.Visible = true;
    statut.BarreVisible = barre;
    Annonce(contexte);
}

} // namespace

void Seance::Demarre(Contexte& contexte)
{
    Banque& banque = contexte.Banque;
    SuitBase(contexte);
    if (banque.BanqueInitialisee != 0 || etape_ != Etape::Repos) {
        suiteDemandee_ = oubliDemande_;
        return;
    }
    ++tour_;
    etape_ = Etape::Demarre;
    produit_ = banque.ProduitBanque;
    banque.RetourInitBanque = 0;
    banque.Statut = {};
    banque.MessageBanque =
        EstPublique(banque) ? messages::InitialisationPublique() : messages::Initialisation();
    Plus(contexte, 0, &Seance::Ouvre);
}

void Seance::Echoue(Contexte& contexte, qint32 retour, const QString& message, int ms)
{
    Banque& banque = contexte.Banque;
    banque.RetourInitBanque = retour;
    banque.ChargementBanque = 0;
    module_.reset();
    etape_ = Etape::Montre;
    if (!message.isEmpty()) {
        banque.MessageBanque = message;
        Montre(contexte, false);
    }
    ms > 0 ? Plus(contexte, ms, &Seance::Conclut) : Conclut(contexte);
}

bool Seance::TrouvePublique(Contexte& contexte)
{
    if (PrendPublique(contexte.Chemins)) {
        return true;
    }
    if (BanquePubliquePresente(contexte.Chemins)) {
        Echoue(contexte, kNonChargeable, messages::PubliqueNonChargee(), 0);
    } else {
        Echoue(contexte, kNonInstallee, messages::PharmacieNonInstallee(), kNonInstalleeMontree);
    }
    return false;
}

/// Finds the library and loads it. False when there is none: the start ends then.
bool Seance::Trouve(Contexte& contexte)
{
    if (produit_ == kProduitPublic) {
        return TrouvePublique(contexte);
    }
    QString chemin;
    if (!aide_) {
        Echoue(contexte, kSansAide, {}, 0);
    } else if (aide_->CheminDeBanque(produit_, chemin) != 0) {
        Echoue(contexte, kNonInstallee, messages::PharmacieNonInstallee(), kNonInstalleeMontree);
    } else if (!Prend(chemin)) {
        Echoue(contexte, kNonChargeable, messages::BanqueNonChargee(), 0);
    } else {
        return true;
    }
    return false;
}

void Seance::Ouvre(Contexte& contexte)
{
    if (!Trouve(contexte)) {
        return;
    }
    contexte.Banque.ChargementBanque = 1;
    place_ = NouvellePlace();
    Commence(contexte);
}

void Seance::Commence(Contexte& contexte)
{
    if (module_->VidalAPI_asyncInit.Existe()) {
        qint32 retour = 0;
        if (Appelle(contexte, [&] { retour = module_->VidalAPI_asyncInit(place_, produit_); })) {
            MontreBarre(contexte);
            Suit(contexte, retour);
        }
        return;
    }
    MontreBarre(contexte);
    if (module_->VidalAPI_init.Existe()) {
        Plus(contexte, kEntreSondes, &Seance::DemarreSansAttente); // the window is painted first
    } else {
        contexte.Banque.RetourInitBanque = kSansFonction;
        contexte.Banque.SessionManquee = true;
        etape_ = Etape::Montre;
    }
}

void Seance::DemarreSansAttente(Contexte& contexte)
{
    qint32 retour = 0;
    if (Appelle(contexte, [&] { retour = module_->VidalAPI_init(place_, produit_); })) {
        Suit(contexte, retour);
    }
}

/// Runs a call of the library. False when the start was given up meanwhile: a library may let window events
/// through.
template <typename Appel> bool Seance::Appelle(Contexte& contexte, Appel appel)
{
    const int tour = tour_;
    dansAppel_ = true;
    appel();
    dansAppel_ = false;
    contexte.Banque.SessionBanque = *place_;
    if (annulationDemandee_) {
        Abandonne(contexte);
    }
    return tour == tour_;
}

void Seance::Suit(Contexte& contexte, qint32 retour)
{
    Banque& banque = contexte.Banque;
    const bool commence = banque.RetourInitBanque != kStatutEnCours;
    banque.RetourInitBanque = retour;
    if (retour != kStatutEnCours) {
        Termine(contexte);
        return;
    }
    if (commence) {
        Plus(contexte, kAvantAnnuler, &Seance::OffreDAnnuler);
    }
    Plus(contexte, kEntreSondes, &Seance::Sonde);
}

void Seance::Sonde(Contexte& contexte)
{
    qint32 retour = kStatutEnCours;
    const auto demande = [&] {
        if (module_->VidalAPI_asyncStartResult.Existe()) {
            retour = module_->VidalAPI_asyncStartResult(*place_, 1);
        }
    };
    if (Appelle(contexte, demande)) {
        Suit(contexte, retour);
    }
}

void Seance::OffreDAnnuler(Contexte& contexte)
{
    if (etape_ == Etape::Demarre) {
        contexte.Banque.Statut.Annulable = true;
        Annonce(contexte);
    }
}

void Seance::Termine(Contexte& contexte)
{
    Banque& banque = contexte.Banque;
    banque.Statut.Annulable = false;
    if (!Appelle(contexte, [&] { Etablit(contexte); })) {
        return;
    }
    etape_ = Etape::Montre;
    Annonce(contexte);
    if (banque.Statut.PG >= kFinDeBarre) {
        Conclut(contexte);
    }
}

/// What the start came to, from here on that of the version's call. Without a handle there is no session,
/// whatever the version says.
void Seance::Etablit(Contexte& contexte)
{
    Banque& banque = contexte.Banque;
    banque.RetourInitBanque = LitVersion(*module_, banque.VersionBanque);
    banque.SessionManquee = banque.RetourInitBanque != 0 || banque.SessionBanque == 0;
    const auto requetes =
        std::make_shared<RequetesBanque>(module_, banque.SessionBanque, produit_ == kProduitPublic);
    banque.Acces = requetes;
    if (!banque.SessionManquee) {
        banque.ProduitDuCip = [requetes](const QString& cip) { return requetes->ProduitDuCip(cip); };
        banque.DateExpirationBase = DateExpiration(*module_, banque.SessionBanque);
    }
}

void Seance::MontreBarre(Contexte& contexte)
{
    Montre(contexte, true);
    Plus(contexte, kPasDeBarre, &Seance::AvanceBarre);
}

void Seance::AvanceBarre(Contexte& contexte)
{
    StatutBanque& statut = contexte.Banque.Statut;
    ++statut.PG;
    Annonce(contexte);
    if (statut.PG < kFinDeBarre) {
        Plus(contexte, kPasDeBarre, &Seance::AvanceBarre);
    } else if (etape_ == Etape::Montre) {
        Conclut(contexte);
    }
}

/// What the doctor is told of the outcome.
void Seance::Conclut(Contexte& contexte)
{
    Banque& banque = contexte.Banque;
    if (banque.ChargementBanque == 0) {
        banque.MessageBanque = messages::EchecInitialisation(banque.MessageBanque, banque.RetourInitBanque);
        Montre(contexte, false);
        Plus(contexte, kMessageMontre, &Seance::FermeApresEchec);
    } else if (banque.SessionManquee) {
        Acheve(contexte);
    } else {
        banque.MessageBanque = messages::PharmacieInitialisee(banque.DateExpirationBase);
        Montre(contexte, true);
        Plus(contexte, kMessageMontre, &Seance::Acheve);
    }
}

void Seance::FermeApresEchec(Contexte& contexte)
{
    if (produit_ != kProduitPublic) {
        Ferme(contexte);
    } else {
        Acheve(contexte); // the helper is not what failed
    }
}

} // namespace drugbank
