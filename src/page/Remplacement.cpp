#include "page/Remplacement.h"

#include "page/Mesure.h"

#include <QFontDatabase>
#include <QFontInfo>
#include <QGuiApplication>
#include <algorithm>
#include <array>

namespace page {

namespace {

/// Families whose characters have the same widths, each entry a set of them between bars.
constexpr std::array kMemesLargeurs = {
    QLatin1String("|arial|helvetica|liberation sans|arimo|albany|albany amt|nimbus sans|nimbus sans l|"
                  "tex gyre heros|"),
    QLatin1String("|times new roman|times|liberation serif|tinos|thorndale|thorndale amt|nimbus roman|"
                  "nimbus roman no9 l|tex gyre termes|"),
    QLatin1String("|courier new|courier|liberation mono|cousine|cumberland|cumberland amt|nimbus mono ps|"
                  "nimbus mono l|nimbus mono|tex gyre cursor|"),
    QLatin1String("|arial narrow|helvetica narrow|liberation sans narrow|nimbus sans narrow|"
                  "tex gyre heros cn|"),
    QLatin1String("|dejavu sans|bitstream vera sans|"),
    QLatin1String("|calibri|carlito|"),
    QLatin1String("|cambria|caladea|"),
    QLatin1String("|georgia|gelasio|"),
    QLatin1String("|palatino|palatino linotype|book antiqua|p052|urw palladio l|tex gyre pagella|"),
    QLatin1String("|bookman|bookman old style|itc bookman|urw bookman|urw bookman l|tex gyre bonum|"),
    QLatin1String("|century gothic|itc avant garde gothic|avant garde|urw gothic|urw gothic l|"
                  "tex gyre adventor|"),
    QLatin1String("|century schoolbook|new century schoolbook|c059|century schoolbook l|tex gyre schola|")};

/// The name without the foundry that the system may put behind it, "Nimbus Sans [urw]".
QString SansFonderie(const QString& famille)
{
    return famille.section(QStringLiteral(" ["), 0, 0);
}

bool MemesLargeurs(const QString& une, const QString& autre)
{
    const auto contient = [](QLatin1String familles, const QString& famille) {
        return familles.contains(QLatin1Char('|') + famille.toLower() + QLatin1Char('|'));
    };
    return std::ranges::any_of(kMemesLargeurs, [&](QLatin1String familles) {
        return contient(familles, une) && contient(familles, autre);
    });
}

} // namespace

QString PoliceDeRemplacement(const QString& famille)
{
    // A program without a screen, as most tests of the core are, has no fonts to compare.
    if (!qobject_cast<QGuiApplication*>(QCoreApplication::instance()) || QFontDatabase::hasFamily(famille)) {
        return {};
    }
    const QString servie = SansFonderie(QFontInfo(PoliceQt({.Nom = famille})).family());
    return servie.compare(famille, Qt::CaseInsensitive) == 0 || MemesLargeurs(famille, servie) ? QString()
                                                                                               : servie;
}

} // namespace page
