#include "scenario/HorlogeScenario.h"

#include <algorithm>

namespace scenario {

namespace {

constexpr qint64 kDureeVirtuelle = 60'000;

} // namespace

HorlogeScenario::HorlogeScenario() : limite_(kDureeVirtuelle)
{
    minuterie_.setSingleShot(true);
    minuterie_.setTimerType(Qt::PreciseTimer);
    QObject::connect(&minuterie_, &QTimer::timeout, &minuterie_, [this] { Avance(); });
}

void HorlogeScenario::Dans(int ms, QObject* contexte, std::function<void()> suite)
{
    HorlogeFixe::Dans(ms, contexte, std::move(suite));
    Arme();
}

void HorlogeScenario::Repart()
{
    limite_ = Ecoule + kDureeVirtuelle;
    Arme();
}

QList<support::HorlogeFixe::Attente>::const_iterator HorlogeScenario::Prochaine() const
{
    return std::min_element(Attentes.begin(), Attentes.end(),
                            [](const Attente& a, const Attente& b) { return a.Echeance < b.Echeance; });
}

bool HorlogeScenario::Presse() const
{
    return std::any_of(Attentes.begin(), Attentes.end(), [this](const Attente& attente) {
        return attente.Contexte && attente.Echeance <= limite_;
    });
}

void HorlogeScenario::Arme()
{
    Attentes.removeIf([](const Attente& attente) { return !attente.Contexte; });
    if (Attentes.isEmpty()) {
        minuterie_.stop();
        return;
    }
    const qint64 echeance = Prochaine()->Echeance;
    minuterie_.start(echeance <= limite_ ? 0 : static_cast<int>(echeance - Ecoule));
}

void HorlogeScenario::Avance()
{
    if (!Calme()) {
        minuterie_.start(1);
        return;
    }
    const auto prochaine = Prochaine();
    if (prochaine == Attentes.end()) {
        return;
    }
    const Attente due = Attentes.takeAt(prochaine - Attentes.begin());
    Ecoule = std::max(Ecoule, due.Echeance);
    Arme(); // what runs now may stay in a loop of its own
    if (due.Contexte) {
        due.Suite();
    }
}

} // namespace scenario
