#pragma once

#include "outside/DemarrageSysteme.h"
#include "outside/Horloge.h"
#include "outside/Lanceur.h"
#include "outside/Plateau.h"

#include <QList>

namespace scenario {

/// A clock that stands still.
class HorlogeScenario : public outside::Horloge
{
public:
    QDateTime Maintenant() const override { return Instant; }

    QDateTime Instant{QDate(2026, 11, 20), QTime(10, 0)};
};

class PlateauScenario : public outside::Plateau
{
public:
    bool Present() const override { return Existe; }
    void Ajoute(const QString& bulle) override;
    void Retire() override { Icone = false; }
    void Ecoute(std::function<void(Clic)> receveur) override { receveur_ = std::move(receveur); }

    /// A click on the icon. Throws `Echec` when there is none.
    void Clique(Clic clic);

    bool Existe = true;
    bool Icone = false;
    QString Bulle;

private:
    std::function<void(Clic)> receveur_;
};

class DemarrageScenario : public outside::DemarrageSysteme
{
public:
    void Active(const QString& programme) override { Programme = programme; }
    void Desactive() override { Programme.clear(); }

    QString Programme; ///< empty: nothing starts with the system
};

class LanceurScenario : public outside::Lanceur
{
public:
    struct Lancement
    {
        QString Chemin;
        QStringList Arguments;
    };

    bool Lance(const QString& programme, const QStringList& arguments) override;
    bool Ouvre(const QString& documentOuAdresse) override;

    QList<Lancement> Relances;
    QStringList Documents;
};

} // namespace scenario
