#include "bank/bibliotheque/Session.h"

#include "bank/bibliotheque/Statut.h"
#include "common/Erreur.h"

namespace banque::bibliotheque {

namespace {

/// Who asks in a hurry still leaves the loading its time, and no window feels this.
constexpr std::chrono::milliseconds kPatience(5);

} // namespace

Session::Session(const QString& fichier)
    : fichier_(fichier),
      chargement_(std::async(std::launch::async, &Session::Charge, fichier, std::cref(arret_))),
      statut_(kDemarrage)
{}

Session::~Session()
{
    arret_ = true;
    Attends();
}

Session::Chargement Session::Charge(const QString& fichier, const std::atomic<bool>& arret)
try {
    const Connexion connexion(fichier);
    return {kPrete, std::make_unique<const Contenu>(connexion.Base(), arret)};
} catch (const Refus& refus) {
    return {refus.Statut, nullptr};
} catch (const common::Erreur&) {
    return {kFichierIllisible, nullptr};
} catch (const std::exception&) {
    return {kEchec, nullptr};
}

Entier Session::Statut()
{
    const bool fini = !chargement_.valid() || chargement_.wait_for(kPatience) == std::future_status::ready;
    return fini ? Attends() : kDemarrage;
}

Entier Session::Attends()
{
    if (chargement_.valid()) {
        Chargement charge = chargement_.get();
        statut_ = charge.Statut;
        contenu_ = std::move(charge.Lu);
    }
    return statut_;
}

const QSqlDatabase& Session::Base()
{
    const QSqlDatabase& base =
        connexions_.try_emplace(std::this_thread::get_id(), fichier_).first->second.Base();
    if (!base.isOpen()) {
        connexions_.erase(std::this_thread::get_id());
        throw Refus{kFichierIllisible};
    }
    return base;
}

} // namespace banque::bibliotheque
