#include "drugbank/windows/FrmI.h"

#include "application/windows/Style.h"
#include "drugbank/Banque.h"
#include "drugbank/Seance.h"

#include <QApplication>
#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QTimer>
#include <QVBoxLayout>
#include <QWindow>

namespace drugbank {

namespace style = application::style;

namespace {

constexpr int kLargeur = 600;
constexpr int kHauteur = 210;
constexpr int kImage = 40;

QLabel* Image(QWidget* parent)
{
    auto* image = new QLabel(parent);
    image->setObjectName(QStringLiteral("Image"));
    image->setPixmap(style::Icone(QStringLiteral("capsule")).pixmap(kImage, kImage));
    return image;
}

} // namespace

FrmI::FrmI(application::Contexte& contexte, application::Fenetres&)
    : contexte_(contexte), Out_(new QLabel(contexte.Banque.MessageBanque, this)), PG_(new QProgressBar(this)),
      CmdAnnuler_(style::Bouton(QStringLiteral("CmdAnnuler"), QStringLiteral("&Annuler"),
                                QStringLiteral("x-lg"), this))
{
    setObjectName(QStringLiteral("FrmI"));
    setWindowTitle(QStringLiteral("Scriptelle - Pharmacie"));
    setWindowFlags(Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint);
    setAttribute(Qt::WA_ShowWithoutActivating);
    Out_->setObjectName(QStringLiteral("Out"));
    Out_->setTextFormat(Qt::PlainText);
    Out_->setWordWrap(true);
    PG_->setObjectName(QStringLiteral("PG"));
    PG_->setAccessibleName(QStringLiteral("Initialisation de la pharmacie"));
    PG_->setRange(0, kFinDeBarre);
    PG_->setTextVisible(false);
    CmdAnnuler_->setToolTip(QStringLiteral("Renoncer à la pharmacie jusqu'au prochain lancement"));
    CmdAnnuler_->setAutoDefault(false);
    connect(CmdAnnuler_, &QPushButton::clicked, this, [this] { contexte_.Seance.Annule(contexte_); });
    QWidget* carte = style::Carte(this);
    auto* rang = style::DansCarte<QHBoxLayout>(carte);
    rang->setSpacing(style::kEntreGroupes);
    rang->addWidget(Image(carte), 0, Qt::AlignVCenter);
    rang->addWidget(Out_, 1);
    QVBoxLayout* disposition = style::Fenetre(this);
    disposition->addWidget(carte, 1);
    disposition->addWidget(PG_);
    disposition->addWidget(CmdAnnuler_, 0, Qt::AlignRight);
    style::Dimensionne(this, kLargeur, kHauteur);
}

void FrmI::Montre()
{
    const Banque& banque = contexte_.Banque;
    Out_->setText(banque.MessageBanque);
    PG_->setVisible(banque.Statut.BarreVisible);
    PG_->setValue(banque.Statut.PG);
    CmdAnnuler_->setVisible(banque.Statut.Annulable);
    if (!isVisible()) {
        show();
        ResteAuDessus();
    }
}

bool FrmI::event(QEvent* evenement)
{
    if (evenement->type() == QEvent::WindowBlocked || evenement->type() == QEvent::WindowUnblocked) {
        QTimer::singleShot(0, this, &FrmI::ResteAuDessus);
    }
    return QDialog::event(evenement);
}

/// A modal window that opens meanwhile would keep the doctor from giving the start up: this one is its own.
void FrmI::ResteAuDessus()
{
    const QWidget* modale = QApplication::activeModalWidget();
    const QWidget* dessous = modale ? modale : QApplication::activeWindow();
    if (dessous && dessous != this && windowHandle()) {
        windowHandle()->setTransientParent(dessous->windowHandle());
        raise();
    }
}

} // namespace drugbank
