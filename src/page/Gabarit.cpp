#include "page/Gabarit.h"

#include <algorithm>

namespace page {

double HauteurPage(const settings::Options& options)
{
    return options.FormatA4 == 1 ? 297 : 210;
}

double LargeurPage(const settings::Options& options)
{
    return options.FormatA4 == 1 ? 210 : 148;
}

double YBasDePage(const settings::Reglages& reglages)
{
    const settings::Marges& marges = reglages.Marges;
    return HauteurPage(reglages.Options) - marges.MargeBasEntete + marges.MargeHauteEntete;
}

double LimiteDuCorps(const settings::Reglages& reglages)
{
    return std::min(HauteurPage(reglages.Options), YBasDePage(reglages));
}

} // namespace page
