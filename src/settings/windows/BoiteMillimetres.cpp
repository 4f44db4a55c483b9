#include "settings/windows/BoiteMillimetres.h"

namespace settings {

namespace {

constexpr int kLargeur = 84;  ///< in pixels at 100 %
constexpr int kLongueur = 12; ///< characters

} // namespace

BoiteMillimetres::BoiteMillimetres(const char* nom, QWidget* parent) : ChampMesure(parent)
{
    setObjectName(QLatin1String(nom));
    setFixedWidth(kLargeur);
    setMaxLength(kLongueur);
    setAlignment(Qt::AlignRight);
}

} // namespace settings
