#include "outside/Processus.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QProcess>
#include <QTimer>

#include <exception>

namespace outside {

namespace {

constexpr int kPouls = 50; // milliseconds

/// One run. What a receiver throws must not cross the delivery of events: it waits in `panne_`.
class Suivi
{
public:
    Suivi(const Tache& tache, const std::function<bool(const QByteArray&)>& recoit,
          const std::function<bool()>& poursuit)
        : tache_(tache), recoit_(recoit), poursuit_(poursuit)
    {
        processus_.setWorkingDirectory(tache.Dossier);
        processus_.setStandardInputFile(QProcess::nullDevice());
        processus_.setStandardErrorFile(QProcess::nullDevice());
        silence_.setSingleShot(true);
        silence_.setInterval(tache.SilenceMax);
        pouls_.setInterval(kPouls);
    }

    IssueTache Execute()
    {
        QObject::connect(&processus_, &QProcess::readyReadStandardOutput, &ici_, [this] { Lit(); });
        QObject::connect(&processus_, &QProcess::finished, &ici_, [this] { Finit(); });
        QObject::connect(&processus_, &QProcess::errorOccurred, &ici_, [this](QProcess::ProcessError erreur) {
            if (erreur == QProcess::FailedToStart) {
                Arrete(FinTache::NonLancee);
            }
        });
        QObject::connect(&silence_, &QTimer::timeout, &ici_, [this] { Arrete(FinTache::Muette); });
        QObject::connect(&pouls_, &QTimer::timeout, &ici_, [this] { Tente(poursuit_); });
        processus_.start(tache_.Programme, tache_.Arguments, QIODevice::ReadOnly);
        silence_.start();
        pouls_.start();
        while (!fini_) {
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        }
        Tue();
        if (panne_) {
            std::rethrow_exception(panne_);
        }
        return issue_;
    }

private:
    void Lit()
    {
        silence_.start();
        const QByteArray morceau = processus_.readAllStandardOutput();
        if (!fini_ && !morceau.isEmpty()) {
            Tente([&] { return recoit_(morceau); });
        }
    }
    void Finit()
    {
        Lit();
        const bool normale = processus_.exitStatus() == QProcess::NormalExit;
        issue_.Code = normale ? processus_.exitCode() : 0;
        Arrete(normale && issue_.Code == 0 ? FinTache::Bonne : FinTache::Mauvaise);
    }
    template <typename Appel> void Tente(Appel&& appel)
    {
        try {
            if (!appel()) {
                Arrete(FinTache::Interrompue);
            }
        } catch (...) {
            panne_ = std::current_exception();
            Arrete(FinTache::Interrompue);
        }
    }
    void Arrete(FinTache fin)
    {
        if (!fini_) {
            fini_ = true;
            issue_.Fin = fin;
        }
    }
    void Tue()
    {
        if (processus_.state() != QProcess::NotRunning) {
            processus_.kill();
            processus_.waitForFinished();
        }
    }

    const Tache& tache_;
    const std::function<bool(const QByteArray&)>& recoit_;
    const std::function<bool()>& poursuit_;
    QObject ici_; ///< the connections end with it
    QProcess processus_;
    QTimer silence_;
    QTimer pouls_;
    std::exception_ptr panne_;
    IssueTache issue_;
    bool fini_ = false;
};

} // namespace

IssueTache SuitTache(const Tache& tache, const std::function<bool(const QByteArray&)>& recoit,
                     const std::function<bool()>& poursuit)
{
    return Suivi(tache, recoit, poursuit).Execute();
}

} // namespace outside
