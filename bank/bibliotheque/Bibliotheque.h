#pragma once

#include "bank/bibliotheque/Registre.h"
#include "bank/bibliotheque/Session.h"

#include <mutex>

namespace banque::bibliotheque {

/// All that the library keeps between two calls: the handles and at most one session.
class Bibliotheque
{
public:
    /// Writes the number of the session, a new one unless one of the same file runs or is
    /// starting; null is refused.
    Entier Demarre(Poignee* session);
    /// The session of a number, whatever became of its start; null when it is none.
    Session* Donne(Poignee session) const
    {
        return session_ && session == numero_ ? session_.get() : nullptr;
    }
    /// The same when it has started.
    Session* Prete(Poignee session) const;
    /// The one session, null without one.
    Session* Presente() const { return session_.get(); }
    /// Ends it, as far as the number is its own.
    void Libere(Poignee session);
    void FermeTout() { session_.reset(); }

    /// The file of the next start; null: `banque.sqlite` beside the library.
    void ChoisitFichier(const QString& fichier) { fichier_ = fichier; }
    QString Fichier() const;

    Registre Remis; ///< what was handed out

private:
    std::unique_ptr<Session> session_;
    Poignee numero_ = 0;
    QString fichier_;
};

Bibliotheque& LaBibliotheque();
std::mutex& Verrou();

/// Calls `appel` with the library, one call at a time. Nothing is thrown through: a failure answers zero.
template <typename R, typename Appel> R Demande(Appel&& appel) noexcept
{
    try {
        const std::lock_guard seul(Verrou());
        return appel(LaBibliotheque());
    } catch (...) {
        return R();
    }
}

} // namespace banque::bibliotheque
