#include "backup/Rotation.h"

#include <algorithm>
#include <functional>

namespace backup {

namespace {

constexpr int kJours = 7;
constexpr int kSemaines = 4;
constexpr int kMois = 12;

int Semaine(const QDate& jour)
{
    int annee = 0;
    const int semaine = jour.weekNumber(&annee);
    return annee * 100 + semaine;
}

int Mois(const QDate& jour)
{
    return jour.year() * 100 + jour.month();
}

/// Keeps the newest day of each of the first periods; the days come newest first.
template <typename Periode>
void Garde(const QList<QDate>& jours, int nombre, Periode periode, QSet<QDate>& gardes)
{
    QSet<decltype(periode(QDate()))> vues;
    for (const QDate& jour : jours) {
        if (vues.contains(periode(jour))) {
            continue;
        }
        if (vues.size() == nombre) {
            return;
        }
        vues.insert(periode(jour));
        gardes.insert(jour);
    }
}

} // namespace

QSet<QDate> JoursGardes(QList<QDate> jours, const QDate& aujourdhui)
{
    std::ranges::sort(jours, std::ranges::greater());
    const auto passes = std::ranges::find_if(jours, [&](const QDate& jour) { return jour <= aujourdhui; });
    QSet<QDate> gardes(jours.begin(), passes);
    jours.erase(jours.begin(), passes);
    Garde(
        jours, kJours, [](const QDate& jour) { return jour; }, gardes);
    Garde(jours, kSemaines, Semaine, gardes);
    Garde(jours, kMois, Mois, gardes);
    return gardes;
}

} // namespace backup
