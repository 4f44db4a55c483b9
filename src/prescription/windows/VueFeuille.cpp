#include "prescription/windows/VueFeuille.h"

#include "application/windows/Style.h"
#include "application/windows/StyleFeuille.h"
#include "page/Peintres.h"
#include "page/Surface.h"
#include "page/windows/Feuille.h"

#include <QContextMenuEvent>
#include <QCoreApplication>
#include <QGridLayout>
#include <QMouseEvent>
#include <QScrollBar>
#include <QWheelEvent>

#include <QtMath>
#include <algorithm>

namespace prescription {

namespace style = application::style;

namespace {

constexpr double kLargeurFeuille = 210;
constexpr double kHauteurFeuille = 297;
constexpr double kHauteurRegle = 6;
constexpr double kPlusPetit = 0.5;
constexpr double kPlusGrand = 3;
constexpr double kPasDeZoom = 1.1;
constexpr int kPasDeLigne = 5; // millimetres

} // namespace

VueFeuille::VueFeuille(QWidget* parent)
    : QWidget(parent), PctRegle_(new page::Feuille(this)), PctPere_(new QWidget(this)),
      PctOrdo_(new page::Feuille(PctPere_)), Vsb_(new QScrollBar(Qt::Vertical, this)),
      pixelsParMm_(page::kPixelsParMillimetre)
{
    PctRegle_->setObjectName(QStringLiteral("PctRegle"));
    PctRegle_->AvecPapier(false);
    PctPere_->setObjectName(QStringLiteral("PctPere"));
    PctOrdo_->setObjectName(QStringLiteral("PctOrdo"));
    PctOrdo_->installEventFilter(this);
    style::Nomme(PctOrdo_, QStringLiteral("Aperçu de l'ordonnance"));
    PctOrdo_->setToolTip({});
    Vsb_->setObjectName(QStringLiteral("Vsb"));
    Vsb_->setSingleStep(kPasDeLigne);
    style::Nomme(Vsb_, QStringLiteral("Défilement de la feuille"));
    Vsb_->setToolTip({});

    auto* grille = new QGridLayout(this);
    grille->setContentsMargins({});
    grille->setSpacing(0);
    grille->setRowMinimumHeight(0, qCeil(kHauteurRegle * page::kPixelsParMillimetre));
    grille->addWidget(PctPere_, 1, 0);
    grille->addWidget(Vsb_, 1, 1);
    grille->setRowStretch(1, 1);
    grille->setColumnStretch(0, 1);
    connect(Vsb_, &QScrollBar::valueChanged, this, &VueFeuille::Deplace);
}

void VueFeuille::Montre(const page::Dessin& dessin, double bas)
{
    PctOrdo_->Montre(dessin);
    PctOrdo_->MarqueBas(bas);
}

void VueFeuille::MontreRegle(bool oui)
{
    page::Surface regle(page::Cible::Autre, kLargeurFeuille, kHauteurRegle);
    if (oui) {
        page::PeintRegle(regle);
    }
    PctRegle_->Montre(regle.Resultat());
    Deplace();
}

void VueFeuille::RevientEnHaut()
{
    Vsb_->setValue(0);
}

void VueFeuille::Page(int sens)
{
    Vsb_->setValue(Vsb_->value() + sens * Vsb_->pageStep());
}

bool VueFeuille::eventFilter(QObject* objet, QEvent* evenement)
{
    if (evenement->type() == QEvent::MouseButtonRelease) {
        const auto* souris = static_cast<QMouseEvent*>(evenement);
        if (souris->button() == Qt::RightButton) {
            Q_EMIT MenuDemande(souris->globalPosition().toPoint());
            return true;
        }
    }
    return QWidget::eventFilter(objet, evenement);
}

void VueFeuille::resizeEvent(QResizeEvent* evenement)
{
    QWidget::resizeEvent(evenement);
    Dispose();
}

void VueFeuille::wheelEvent(QWheelEvent* evenement)
{
    if (evenement->modifiers().testFlag(Qt::ControlModifier)) {
        Agrandit(evenement->angleDelta().y() > 0 ? kPasDeZoom : 1 / kPasDeZoom);
    } else {
        QCoreApplication::sendEvent(Vsb_, evenement);
    }
    evenement->accept();
}

void VueFeuille::Agrandit(double facteur)
{
    zoom_ = std::clamp(zoom_ * facteur, kPlusPetit, kPlusGrand);
    Dispose();
}

void VueFeuille::Dispose()
{
    constexpr int kBords = 2 * style::kBordFeuille;
    const double place = (PctPere_->width() - kBords) / kLargeurFeuille;
    if (place <= 0) {
        return;
    }
    pixelsParMm_ = std::min(page::kPixelsParMillimetre * zoom_, place);
    PctOrdo_->Zoom(pixelsParMm_);
    PctRegle_->Zoom(pixelsParMm_);
    const double interieur = (PctPere_->height() - kBords) / pixelsParMm_;
    Vsb_->setRange(0, std::max(0, qCeil(kHauteurFeuille - interieur)));
    Vsb_->setPageStep(std::max(1, qFloor(interieur)));
    Deplace();
}

void VueFeuille::Deplace()
{
    const int gauche = std::max(0, (PctPere_->width() - PctOrdo_->width()) / 2);
    PctOrdo_->move(gauche, -qRound(Vsb_->value() * pixelsParMm_));
    PctRegle_->move(PctPere_->x() + gauche + style::kBordFeuille, PctPere_->y() - PctRegle_->height());
}

} // namespace prescription
