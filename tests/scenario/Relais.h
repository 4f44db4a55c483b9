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
    /// False while a handler runs, or only lets events through; its loop level is then that of its action.
    bool Calme() const;

    std::function<void()> SurAction = [] {};             ///< called before each action
    std::function<bool()> Presse = [] { return false; }; ///< true while idleness has to wait

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

    QList<std::shared_ptr<Action>> enCours_;
    QHash<int, Sonde> minuteries_;
};

} // namespace scenario
