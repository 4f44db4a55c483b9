#include "medication/windows/FrmGEN.h"

#include "application/windows/Style.h"
#include "medication/Choix.h"
#include "medication/windows/ListeGeneriques.h"

#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace medication {

namespace {

namespace style = application::style;

constexpr int kLargeur = 980;
constexpr int kHauteur = 460;

/// Has no caption and does nothing: it takes the focus at the opening, so that no row is chosen yet.
QWidget* HorsDeVue(QWidget* parent)
{
    auto* bouton = new QPushButton(parent);
    bouton->setObjectName(QStringLiteral("Cmd"));
    bouton->setAccessibleName(QStringLiteral("Génériques"));
    bouton->setAutoDefault(false);
    bouton->setFixedSize(0, 0);
    bouton->move(-kLargeur, -kHauteur);
    return bouton;
}

} // namespace

FrmGEN::FrmGEN(application::Contexte& contexte, application::Fenetres&)
    : contexte_(contexte), LstGen_(new ListeGeneriques(this)), Cmd_(HorsDeVue(this))
{
    setObjectName(QStringLiteral("FrmGEN"));
    setWindowTitle(QStringLiteral("                     Génériques du médicament sélectionné ..."));
    LstGen_->setModel(&rangs_);
    LstGen_->setAccessibleName(QStringLiteral("Génériques du médicament sélectionné"));
    QPushButton* fermer =
        style::BoutonPrincipal(QStringLiteral("CmdFermer"), QStringLiteral("&Fermer"), {}, this);
    connect(fermer, &QPushButton::clicked, this, &QDialog::reject);
    connect(LstGen_, &ListeGeneriques::Prise, this, [this](int rang) {
        pris_ = rangs_.stringList().value(rang);
        accept();
    });
    QVBoxLayout* disposition = style::Fenetre(this);
    disposition->addWidget(style::Legende(
        {}, QStringLiteral("&Un clic met le générique à la place du médicament choisi."), this, LstGen_));
    disposition->addWidget(LstGen_, 1);
    disposition->addWidget(fermer, 0, Qt::AlignRight);
    Cmd_->installEventFilter(this);
    style::OrdreTab({Cmd_, LstGen_, fermer});
    style::Dimensionne(this, kLargeur, kHauteur);
    Remplit();
}

void FrmGEN::Remplit()
{
    rangs_.setStringList(contexte_.Choix.LstGen);
}

std::optional<QString> FrmGEN::Choisit(const QString& titre)
{
    pris_.reset();
    setWindowTitle(titre);
    exec();
    return pris_;
}

void FrmGEN::showEvent(QShowEvent* event)
{
    QDialog::showEvent(event);
    Cmd_->setFocus();
}

// The arrows lead from there to the first pack.
bool FrmGEN::eventFilter(QObject* objet, QEvent* event)
{
    if (objet == Cmd_ && event->type() == QEvent::KeyPress) {
        const int touche = static_cast<QKeyEvent*>(event)->key();
        if (touche == Qt::Key_Down || touche == Qt::Key_Up) {
            LstGen_->VaAuPremierPack();
            return true;
        }
    }
    return QDialog::eventFilter(objet, event);
}

} // namespace medication
