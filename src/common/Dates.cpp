#include "common/Dates.h"

#include <QRegularExpression>
#include <array>

namespace common {

namespace {

constexpr int kPremiereAnnee = 100;

constexpr std::array<const char16_t*, 7> kJours = {u"lundi",    u"mardi",  u"mercredi", u"jeudi",
                                                   u"vendredi", u"samedi", u"dimanche"};
constexpr std::array<const char16_t*, 12> kMois = {u"janv.", u"févr.", u"mars",  u"avr.", u"mai",  u"juin",
                                                   u"juil.", u"août",  u"sept.", u"oct.", u"nov.", u"déc."};

int AnneeSaisie(QStringView chiffres)
{
    const int annee = chiffres.toInt();
    if (chiffres.size() > 2) {
        return annee;
    }
    return annee < 30 ? 2000 + annee : 1900 + annee;
}

} // namespace

std::optional<QDate> DateSaisie(QStringView texte)
{
    static const QRegularExpression forme(
        QStringLiteral(R"(^\s*(\d{1,2})\s*[-/. ]\s*(\d{1,2})\s*[-/. ]\s*(\d{4}|\d{2})\s*$)"));
    const auto trouve = forme.match(texte);
    if (!trouve.hasMatch()) {
        return std::nullopt;
    }
    const QDate date(AnneeSaisie(trouve.capturedView(3)), trouve.capturedView(2).toInt(),
                     trouve.capturedView(1).toInt());
    if (!date.isValid() || date.year() < kPremiereAnnee) {
        return std::nullopt;
    }
    return date;
}

QString TexteDate(const QDate& date)
{
    return date.toString(u"dd/MM/yyyy");
}

QString TexteDateLongue(const QDate& date)
{
    if (!date.isValid()) {
        return {};
    }
    return QStringLiteral("%1  %2  %3  %4")
        .arg(QStringView(kJours[date.dayOfWeek() - 1]))
        .arg(date.day())
        .arg(QStringView(kMois[date.month() - 1]))
        .arg(date.year());
}

} // namespace common
