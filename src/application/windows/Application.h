#pragma once

#include "application/Etat.h"
#include "application/windows/Fenetres.h"
#include "startup/Demarrage.h"
#include "storage/windows/ConversionMontree.h"

#include <QObject>

namespace application {

/// Owns everything of a run, in dependency order: the state, then the windows. The outer edge is given.
class Application : public QObject
{
    Q_OBJECT

public:
    /// `cheminInstallation`: where path files and an installer's databases are kept.
    Application(const Dehors& dehors, const QString& cheminProgramme, const QString& cheminInstallation);
    ~Application() override;

    /// The load of `FrmDepart`, from the first step to the painted face. False when the program ends
    /// there, by an answer of the doctor; `Termine` was emitted then. Runs inside the event loop.
    bool Demarre();

    application::Contexte& Contexte() { return contexte_; }
    application::Fenetres& Fenetres() { return fenetres_; }

    /// Says what failed in French, closes the databases, keeps the prescription in hand in a file and
    /// ends the program.
    void ArretSurErreur(const QString& phrase, const QString& lieu);

Q_SIGNALS:
    /// Every window is hidden: the event loop may end, then this object.
    void Termine();

private:
    startup::Ecrans Ecrans();
    bool MontreChoixBase(int rangStockage);
    void ChargeFenetres();
    /// The safety copy of the day, beside the doctor's work.
    void SauveDuJour();
    void SuitBanque();
    void Arrete();

    application::Etat etat_;
    application::Contexte contexte_;
    application::Fenetres fenetres_;
    storage::ConversionMontree conversion_;
    bool arretee_ = false;
};

} // namespace application
