#include "scenario/Relais.h"

#include "scenario/Echec.h"

#include <QCoreApplication>
#include <QScopeGuard>
#include <QSemaphore>
#include <QThread>
#include <QTimerEvent>
#include <optional>

namespace scenario {

namespace {

/// How many times the loop must come to its last event and to its timers before it counts as idle.
constexpr int kTours = 3;

} // namespace

struct Relais::Action
{
    std::function<void()> Fait;
    int Niveau = 0; ///< of the event loop that runs it
    std::optional<Echec> Manque;
    QSemaphore Oisif;
};

class Relais::EvenementSonde : public QEvent
{
public:
    explicit EvenementSonde(const Relais::Sonde& sonde) : QEvent(QEvent::User), Demande(sonde) {}

    Relais::Sonde Demande;
};

Relais::Relais(QObject* parent) : QObject(parent) {}

Relais::~Relais() = default;

QVariant Relais::Lit(const std::function<QVariant()>& lecture)
{
    QVariant valeur;
    std::optional<Echec> manque;
    QMetaObject::invokeMethod(
        this,
        [&] {
            try {
                valeur = lecture();
            } catch (const Echec& echec) {
                manque = echec;
            }
        },
        Qt::BlockingQueuedConnection);
    if (manque) {
        throw *manque;
    }
    return valeur;
}

void Relais::Agit(const std::function<void()>& fait)
{
    auto action = std::make_shared<Action>();
    action->Fait = fait;
    QMetaObject::invokeMethod(
        this, [this, action] { Execute(action); }, Qt::QueuedConnection);
    action->Oisif.acquire();
    if (action->Manque) {
        throw *action->Manque;
    }
}

void Relais::Execute(const std::shared_ptr<Action>& action)
{
    action->Niveau = QThread::currentThread()->loopLevel();
    enCours_.append(action);
    const auto fin = qScopeGuard([this, action] { enCours_.removeOne(action); });
    Lance({action, kTours});
    SurAction();
    try {
        action->Fait();
    } catch (const Echec& echec) {
        action->Manque = echec;
    }
}

void Relais::Lance(const Sonde& sonde)
{
    QCoreApplication::postEvent(this, new EvenementSonde(sonde), Qt::LowEventPriority);
}

void Relais::customEvent(QEvent* evenement)
{
    minuteries_.insert(startTimer(0), static_cast<EvenementSonde*>(evenement)->Demande);
}

void Relais::timerEvent(QTimerEvent* evenement)
{
    killTimer(evenement->timerId());
    Sonde sonde = minuteries_.take(evenement->timerId());
    if (Calme() && Presse()) {
        sonde.Tours = kTours + 1;
    }
    if (--sonde.Tours > 0 || !Calme()) {
        sonde.Tours = std::max(sonde.Tours, 1);
        Lance(sonde);
        return;
    }
    sonde.Pour->Oisif.release();
}

bool Relais::Calme() const
{
    return enCours_.isEmpty() || QThread::currentThread()->loopLevel() > enCours_.last()->Niveau;
}

} // namespace scenario
