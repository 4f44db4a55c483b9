#pragma once

#include "settings/Reglages.h"

namespace page {

/// The sheet's sizes and the places that depend on them, in millimetres.

constexpr double kCentreFeuille = 105; ///< of an A4 sheet; titles and headings are centred on it in A5 too

/// 297, or 210 in A5.
double HauteurPage(const settings::Options& options);
/// 210, or 148 in A5.
double LargeurPage(const settings::Options& options);

/// Where the footer's line begins on the sheet, from the top edge.
double YBasDePage(const settings::Reglages& reglages);

/// The lowest place, from the sheet's top edge, that the prescription may reach without being lost on
/// paper: the footer's line or the sheet's end, whichever comes first.
double LimiteDuCorps(const settings::Reglages& reglages);

} // namespace page
