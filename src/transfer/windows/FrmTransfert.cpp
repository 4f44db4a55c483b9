#include "transfer/windows/FrmTransfert.h"

#include "application/windows/Style.h"
#include "transfer/messages.h"

#include <QCoreApplication>
#include <QLabel>
#include <QProgressBar>
#include <QVBoxLayout>

namespace transfer {

namespace style = application::style;

FrmTransfert::FrmTransfert(QWidget* parent)
    : QDialog(parent), LblFichier_(style::Legende(QStringLiteral("LblFichier"), {}, this)),
      PB_(new QProgressBar(this))
{
    setObjectName(QStringLiteral("FrmTransfert"));
    setWindowTitle(QStringLiteral("Transfert des données"));
    setModal(true);
    PB_->setObjectName(QStringLiteral("PB"));
    PB_->setAccessibleName(QStringLiteral("Transfert des données"));
    QVBoxLayout* fenetre = style::Fenetre(this);
    fenetre->addWidget(style::Titre({}, QStringLiteral("Copie des données en cours…"), this));
    fenetre->addWidget(LblFichier_);
    fenetre->addWidget(PB_);
    style::Dimensionne(this, 420, 130);
}

void FrmTransfert::Avance(int fichier, int nombre)
{
    LblFichier_->setText(messages::Progression(fichier, nombre));
    PB_->setMaximum(nombre);
    PB_->setValue(fichier);
    show();
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

} // namespace transfer
