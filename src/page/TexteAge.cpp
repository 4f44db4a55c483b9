#include "common/Dates.h"
#include "page/Peintres.h"

namespace page {

namespace {

constexpr int kMoisParAn = 12;
constexpr int kAgeSansMois = 20;
constexpr int kJoursParMois = 30;

int MoisEntre(const QDate& debut, const QDate& fin)
{
    return (fin.year() - debut.year()) * kMoisParAn + fin.month() - debut.month();
}

QString Age(const QDate& naissance, const QDate& aujourdhui)
{
    const int mois = MoisEntre(naissance, aujourdhui);
    const qint64 jours = naissance.daysTo(aujourdhui);
    const int ans = mois / kMoisParAn;
    if (ans >= kAgeSansMois) {
        return QStringLiteral("%1 ans").arg(ans);
    }
    if (ans >= 1) {
        return QStringLiteral("%1 %2 et %3 mois")
            .arg(QString::number(ans), ans == 1 ? QStringLiteral("an") : QStringLiteral("ans"),
                 QString::number(mois % kMoisParAn));
    }
    if (jours >= kJoursParMois) {
        return QStringLiteral("%1 mois et %2 jours").arg(jours / kJoursParMois).arg(jours % kJoursParMois);
    }
    return QStringLiteral("%1 jours").arg(jours);
}

} // namespace

QString TexteAge(const QString& date, const settings::Options& options, const QDate& aujourdhui)
{
    const auto naissance = common::DateSaisie(date);
    if (!naissance) {
        return date;
    }
    if (options.AfficheDDN != 1) {
        return options.AfficheAge == 1 ? Age(*naissance, aujourdhui) : QString();
    }
    const QString ddn = QStringLiteral("né(e) le ") + date;
    if (options.AfficheAge != 1) {
        return ddn;
    }
    return ddn + QStringLiteral("   (%1)").arg(Age(*naissance, aujourdhui));
}

} // namespace page
