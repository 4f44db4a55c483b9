#pragma once

#include "application/Contexte.h"
#include "upgrade/MajBases.h"

#include <QString>
#include <functional>

namespace startup {

/// "2.3.25": major, minor and revision of the program.
QString Version();

/// What the load shows. A missing function is passed over.
struct Ecrans
{
    /// The font name of `FrmDepart`: that of the word on the copies until it is chosen.
    QString PoliceFenetre;
    /// Shows `FrmChoixBase` modally with that row of `CboBase` selected (-1: none) and row `IndexMedecin`
    /// of `CboMed`. True when `CmdSuite` let it go on, false when the program ends.
    std::function<bool(int rangStockage)> MontreChoixBase;
    /// What the upgrade of the databases shows.
    upgrade::EcransMaj Maj;
    /// Loads `FrmConfOrdo`.
    std::function<void()> ChargeConfOrdo;
    /// Sets the state of `FrmDepart` to minimised.
    std::function<void()> Minimise;
    /// Loads `FrmEntete`, `FrmConfOrdo`, `FrmPatient` and `FrmPoso`, lets events through and configures
    /// the picker for the current base. May throw `Erreur`; it is shown and the load goes on.
    std::function<void()> ChargeFenetres;
};

/// The load of `FrmDepart`: takes an installation from nothing to a state of work.
class Demarrage
{
public:
    Demarrage(application::Contexte& contexte, Ecrans ecrans);

    /// Runs the whole load. False when an answer of the doctor ends the program. Throws `Erreur` when
    /// the data cannot be prepared; nothing guards the program against that.
    bool Execute();
    /// Whether this load made the data tree: nothing in it is worth a safety copy yet.
    bool Premier() const { return premier_; }

private:
    bool PrepareDonnees();
    bool RegleTravail();
    bool RegleDepuisOptions();
    void TermineChargement();

    application::Contexte& contexte_;
    Ecrans ecrans_;
    bool premier_ = false;
};

} // namespace startup
