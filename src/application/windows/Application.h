#pragma once

#include "application/Etat.h"
#include "application/windows/Fenetres.h"

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
    /// there, by an answer of the doctor or for a restart.
    bool Demarre();

    application::Contexte& Contexte() { return contexte_; }
    application::Fenetres& Fenetres() { return fenetres_; }

    /// Says what failed in French, closes the databases and keeps the prescription in hand in a file.
    void ArretSurErreur(const QString& phrase, const QString& lieu);

Q_SIGNALS:
    /// Everything is unloaded but this object: the event loop may end.
    void Termine();

private:
    application::Etat etat_;
    application::Contexte contexte_;
    application::Fenetres fenetres_;
};

} // namespace application
