#include "application/windows/BarreAttente.h"

#include "application/windows/Style.h"

#include <QCoreApplication>
#include <QDialog>
#include <QLabel>
#include <QProgressBar>
#include <QVBoxLayout>

namespace application {

namespace {

constexpr qint64 kAttente = 2000;
constexpr int kTout = 1000;
constexpr int kLargeur = 420;

} // namespace

BarreAttente::BarreAttente()
{
    depuis_.start();
}

BarreAttente::~BarreAttente() = default;

void BarreAttente::Ouvre()
{
    fenetre_ = std::make_unique<QDialog>(nullptr, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint);
    fenetre_->setObjectName(QStringLiteral("BarreAttente"));
    fenetre_->setWindowTitle(QStringLiteral("Scriptelle"));
    auto* disposition = style::Fenetre(fenetre_.get());
    mot_ = style::Legende(QStringLiteral("Mot"), {}, fenetre_.get());
    barre_ = new QProgressBar(fenetre_.get());
    barre_->setObjectName(QStringLiteral("Barre"));
    barre_->setRange(0, kTout);
    barre_->setTextVisible(false);
    disposition->addWidget(mot_);
    disposition->addWidget(barre_);
    fenetre_->setFixedWidth(kLargeur);
    fenetre_->show();
}

void BarreAttente::Montre(int milliemes, const QString& mot)
{
    if (!fenetre_ && depuis_.elapsed() >= kAttente) {
        Ouvre();
    }
    if (fenetre_) {
        barre_->setValue(milliemes);
        if (!mot.isEmpty()) {
            mot_->setText(mot);
        }
    }
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

} // namespace application
