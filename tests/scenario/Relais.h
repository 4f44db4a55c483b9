#pragma once

#include <QHash>
#include <QObject>
#include <QVariant>
#include <functional>
#include <memory>

namespace scenario {

/// Carries the script's calls to the window thread, in which it lives. `Lit` and `Agit` are called from
/// the script's thread and rethrow the `Echec` of what they run.
class Relais : public QObject
{
public:
    explicit Relais(QObject* parent = nullptr);
    ~Relais() override;

    /// The answer of a function that runs no loop.
    QVariant Lit(const std::function<QVariant()>& lecture);
    /// Runs an action and returns when the window thread is idle: the action, and whatever handler it
    /// let go on, has returned or waits in the loop of a box or modal window.
    void Agit(const std::function<void()>& action);

protected:
    void customEvent(QEvent* evenement) override;
    void timerEvent(QTimerEvent* evenement) override;

private:
    struct Action;
    struct Sonde
    {
        std::shared_ptr<Action> Pour;
        int Tours = 0;
    };
    class EvenementSonde;

    void Execute(const std::shared_ptr<Action>& action);
    void Lance(const Sonde& sonde);
    bool Calme() const;

    QList<std::shared_ptr<Action>> enCours_;
    QHash<int, Sonde> minuteries_;
};

} // namespace scenario
