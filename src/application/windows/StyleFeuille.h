#pragma once

#include <QRgb>

/// How a sheet of paper looks on the screen.
namespace application::style {

constexpr int kBordFeuille = 12;  ///< ground left around the sheet for its shadow, in pixels at 100 %
constexpr int kEtendueOmbre = 4;  ///< rings of the shadow, a pixel each
constexpr int kDescenteOmbre = 2; ///< how much lower than the sheet the shadow lies
constexpr QRgb kOmbre = qRgba(0, 20, 60, 6); ///< of each ring
constexpr QRgb kPapier = qRgb(255, 255, 255);
constexpr QRgb kBordDuPapier = qRgb(197, 211, 230);
constexpr QRgb kMarqueInterdit = qRgb(176, 32, 32);
constexpr QRgb kHorsDuPapier = qRgba(176, 32, 32, 16); ///< over what is lost on paper
constexpr double kPoliceMarque = 9;                    ///< points

} // namespace application::style
