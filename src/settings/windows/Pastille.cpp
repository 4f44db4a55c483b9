#include "settings/windows/Pastille.h"

#include "page/CouleurQt.h"

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
    QPalette palette = this->palette();
    palette.setColor(backgroundRole(), page::CouleurQt(couleur));
    setPalette(palette);
}

} // namespace settings
