#include "settings/windows/Pastille.h"

#include <QPalette>

namespace settings {

namespace {

constexpr QSize kTaillePastille(48, 26);

} // namespace

Pastille::Pastille(QWidget* parent) : QWidget(parent)
{
    setFixedSize(kTaillePastille);
    setAutoFillBackground(true);
}

void Pastille::Montre(page::Couleur couleur)
{
    constexpr page::Couleur kOctet = 255;
    QPalette palette = this->palette();
    palette.setColor(backgroundRole(),
                     QColor(static_cast<int>(couleur & kOctet), static_cast<int>(couleur >> 8 & kOctet),
                            static_cast<int>(couleur >> 16 & kOctet)));
    setPalette(palette);
}

} // namespace settings
