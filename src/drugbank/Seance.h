#pragma once

#include "application/Contexte.h"
#include "drugbank/LiaisonAide.h"
#include "drugbank/LiaisonBanque.h"

#include <QObject>
#include <QStringList>
#include <memory>

namespace drugbank {

/// The libraries of a bank and its session: start, status window, release. A start waits on timers, so that
/// windows paint and answer meanwhile; what it comes to stands in `Banque`, and `StatutBanqueChange` tells.
/// The context outlives this object's timers.
class Seance : public QObject
{
public:
    Seance() = default;
    ~Seance() override;

    /// At the start of the program, behind the reading of "Base.cfg": loads the helper, and the bank for its
    /// expiry date. Without a helper there is the personal pharmacy, or the open bank.
    void Charge(application::Contexte& contexte);

    /// `DemarreBanque`: the whole start, run once; what ends it is told by `BanqueInitialisee`.
    void Demarre(application::Contexte& contexte);

    /// Gives up a start that the library has not ended. It counts as failed, and the library stays in memory.
    void Annule(application::Contexte& contexte);

    /// `FermeBanque`: releases session and libraries. A start under way is given up instead.
    void Ferme(application::Contexte& contexte);

    /// `FermeBanque` without the helper, and the next `Demarre` starts anew: for a bank file that changes.
    void Libere(application::Contexte& contexte);

    /// The same where the session or the library in hand is the open bank's; any other stays.
    void LiberePublique(application::Contexte& contexte);

    /// After another base was chosen: a session of the open bank never answers for the other banks, whose
    /// ids mean other medications, nor the other way round.
    void SuitBase(application::Contexte& contexte);

private:
    enum class Etape { Repos, Demarre, Montre };

    void Plus(application::Contexte& contexte, int ms, void (Seance::*suite)(application::Contexte&));
    bool Prend(const QString& chemin);
    bool PrendPublique(const startup::Chemins& chemins);
    bool Trouve(application::Contexte& contexte);
    bool TrouvePublique(application::Contexte& contexte);
    void Echoue(application::Contexte& contexte, qint32 retour, const QString& message, int ms);
    void Ouvre(application::Contexte& contexte);
    void Commence(application::Contexte& contexte);
    void DemarreSansAttente(application::Contexte& contexte);
    void Suit(application::Contexte& contexte, qint32 retour);
    void Sonde(application::Contexte& contexte);
    void OffreDAnnuler(application::Contexte& contexte);
    void Termine(application::Contexte& contexte);
    void Etablit(application::Contexte& contexte);
    void MontreBarre(application::Contexte& contexte);
    void AvanceBarre(application::Contexte& contexte);
    void Conclut(application::Contexte& contexte);
    void FermeApresEchec(application::Contexte& contexte);
    void Acheve(application::Contexte& contexte);
    void Abandonne(application::Contexte& contexte);
    void LibereModule(application::Contexte& contexte);
    void Oublie(application::Contexte& contexte);
    bool EnAttente(const application::Contexte& contexte) const;
    template <typename Appel> bool Appelle(application::Contexte& contexte, Appel appel);

    std::shared_ptr<LiaisonAide> aide_;
    std::shared_ptr<LiaisonBanque> module_;
    QString cheminModule_;
    QStringList gardees_;      ///< paths of libraries that a start was given up in
    Poignee* place_ = nullptr; ///< where the library writes the handle, to the end of the process
    Etape etape_ = Etape::Repos;
    int tour_ = 0; ///< counts the starts and their ends: a timer of an earlier one does nothing
    qint32 produit_ = 0;
    bool dansAppel_ = false;
    bool annulationDemandee_ = false;
    bool oubliDemande_ = false;  ///< given up for another bank: the next start is a new one
    bool suiteDemandee_ = false; ///< and it was asked for meanwhile
};

} // namespace drugbank
