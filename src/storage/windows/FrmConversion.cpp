#include "storage/windows/FrmConversion.h"

#include "application/windows/Style.h"
#include "storage/messages.h"

#include <QFileInfo>
#include <QLabel>
#include <QProgressBar>
#include <QVBoxLayout>

namespace storage {

namespace style = application::style;

namespace {

constexpr int kLargeur = 540;

} // namespace

FrmConversion::FrmConversion(application::Contexte&, application::Fenetres&)
    : titre_(style::Titre(QStringLiteral("LblFichier"), QString(), this)),
      lignes_(style::Legende(QStringLiteral("LblLignes"), QString(), this)), barre_(new QProgressBar(this)),
      annule_(style::Bouton(QStringLiteral("CmdAnnuler"), QStringLiteral("&Abandonner"),
                            QStringLiteral("x-lg"), this))
{
    setObjectName(QStringLiteral("FrmConversion"));
    setWindowTitle(QStringLiteral("Scriptelle"));
    setModal(true);
    titre_->setWordWrap(true);
    lignes_->setWordWrap(true);
    barre_->setObjectName(QStringLiteral("Barre"));
    barre_->setAccessibleName(QStringLiteral("Avancement de la conversion"));
    barre_->setTextVisible(false);
    annule_->setToolTip(QStringLiteral("Laisser la base telle qu'elle est (Échap)"));
    // The window appears by itself: a key meant for another one must not give the conversion up.
    annule_->setAutoDefault(false);
    annule_->setFocusPolicy(Qt::TabFocus);
    setFocusPolicy(Qt::StrongFocus);
    connect(annule_, &QPushButton::clicked, this, &FrmConversion::reject);
    auto* carte = style::Carte(this);
    auto* textes = style::DansCarte(carte);
    textes->addWidget(titre_);
    textes->addWidget(lignes_);
    textes->addWidget(barre_);
    auto* disposition = style::Fenetre(this);
    disposition->addWidget(carte);
    disposition->addWidget(annule_, 0, Qt::AlignRight);
    setMinimumWidth(kLargeur);
}

void FrmConversion::MontreFichier(const QString& chemin)
{
    titre_->setText(messages::ConversionDe(QFileInfo(chemin).fileName()));
    lignes_->setText(messages::LaConversionGarde());
    barre_->setRange(0, 0);
    abandonnee_ = false;
    annule_->setEnabled(true);
    setFocus();
    show();
}

void FrmConversion::MontreAttente()
{
    lignes_->setText(messages::AttendAutrePoste());
}

void FrmConversion::MontreLignes(const QString& table, qint64 lignes, qint64 sur)
{
    lignes_->setText(messages::LignesLues(table, lignes, sur));
    barre_->setRange(0, static_cast<int>(std::max<qint64>(sur, 1)));
    barre_->setValue(static_cast<int>(lignes));
}

void FrmConversion::reject()
{
    abandonnee_ = true;
    annule_->setEnabled(false);
}

} // namespace storage
