#pragma once

#include "support/DehorsFeint.h"

#include <QTimer>

namespace scenario {

/// The clock of a scenario. What is to run later runs at once, in its order, as soon as the window thread is
/// idle: a minute of it after each action of the script, then in real time. The hour of the day stands still.
class HorlogeScenario : public support::HorlogeFixe
{
public:
    HorlogeScenario();

    void Dans(int ms, QObject* contexte, std::function<void()> suite) override;
    /// The script acts.
    void Repart();
    /// True while something is left that runs at once.
    bool Presse() const;

    /// False while a handler has not returned and waits in no loop of its own: nothing runs then.
    std::function<bool()> Calme = [] { return true; };

private:
    QList<Attente>::const_iterator Prochaine() const;
    void Arme();
    void Avance();

    qint64 limite_;
    QTimer minuterie_;
};

} // namespace scenario
