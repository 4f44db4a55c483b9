#include "Valeurs.h"

#include <QDateTime>

#include <algorithm>
#include <charconv>
#include <cmath>

namespace jet {

double DoubleDe(float simple)
{
    if (!std::isfinite(simple)) {
        return 0;
    }
    char decimal[32];
    const auto fin = std::to_chars(decimal, decimal + sizeof decimal, simple).ptr;
    double valeur = 0;
    std::from_chars(decimal, fin, valeur);
    return valeur;
}

std::string TexteDeDate(double jours)
{
    constexpr double kSecondesParJour = 86400;
    constexpr double kBorne = 1e6;
    const double bornes = std::isfinite(jours) ? std::clamp(jours, -kBorne, kBorne) : 0;
    const QDateTime origine(QDate(1899, 12, 30), QTime(0, 0), Qt::UTC);
    const QDateTime instant = origine.addSecs(std::llround(bornes * kSecondesParJour));
    const bool sansHeure = instant.time() == QTime(0, 0);
    return instant.toString(sansHeure ? QStringLiteral("dd/MM/yyyy") : QStringLiteral("dd/MM/yyyy hh:mm:ss"))
        .toStdString();
}

} // namespace jet
