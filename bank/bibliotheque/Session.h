#pragma once

#include "bank/bibliotheque/Connexion.h"
#include "bank/bibliotheque/Contenu.h"
#include "bank/bibliotheque/Fiches.h"
#include "drugbank/InterfaceBanque.h"

#include <future>
#include <map>
#include <memory>
#include <thread>

namespace banque::bibliotheque {

using drugbank::Entier;

/// A session with one bank file, which loads on a thread of its own. Its destructor waits for that thread
/// and closes the file.
class Session
{
public:
    /// Begins to load.
    explicit Session(const QString& fichier);
    ~Session();
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;

    const QString& Fichier() const { return fichier_; }

    /// 14 while it loads, then what became of it. Waits for a few milliseconds.
    Entier Statut();
    /// The same once it has loaded.
    Entier Attends();

    /// What was loaded; the status is 0.
    const Contenu& Lu() const { return *contenu_; }
    /// The file, on the connection of the calling thread. Throws `Refus` when it can no longer be opened.
    const QSqlDatabase& Base();
    /// The pages written for this session.
    Fiches& Pages() { return pages_; }

private:
    struct Chargement
    {
        Entier Statut = 0;
        std::unique_ptr<const Contenu> Lu;
    };
    static Chargement Charge(const QString& fichier, const std::atomic<bool>& arret);

    QString fichier_;
    std::atomic<bool> arret_ = false;
    std::future<Chargement> chargement_;
    Entier statut_;
    std::unique_ptr<const Contenu> contenu_;
    std::map<std::thread::id, Connexion> connexions_;
    Fiches pages_;
};

} // namespace banque::bibliotheque
