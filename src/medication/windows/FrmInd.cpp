#include "medication/windows/FrmInd.h"

#include "application/windows/Style.h"

#include <QBoxLayout>
#include <QLabel>
#include <QPlainTextEdit>

namespace medication {

namespace style = application::style;

FrmInd::FrmInd(application::Contexte&, application::Fenetres&)
    : medicament_(style::Titre(QStringLiteral("Lbl"), {}, this)), txt_(new QPlainTextEdit(this))
{
    setObjectName(QStringLiteral("FrmInd"));
    setWindowTitle(QStringLiteral("Documents de la banque"));
    medicament_->setTextFormat(Qt::PlainText);
    medicament_->setWordWrap(true);
    txt_->setObjectName(QStringLiteral("Txt"));
    txt_->setAccessibleName(QStringLiteral("Documents de la banque pour ce médicament"));
    txt_->setReadOnly(true);
    txt_->setTabChangesFocus(true);
    auto* fermer = style::BoutonPrincipal(QStringLiteral("CmdFerme"), QStringLiteral("&Fermer"), {}, this);
    connect(fermer, &QPushButton::clicked, this, &QDialog::accept);
    QVBoxLayout* disposition = style::Fenetre(this);
    disposition->addWidget(medicament_);
    disposition->addWidget(txt_, 1);
    disposition->addWidget(fermer, 0, Qt::AlignRight);
    style::Dimensionne(this, 520, 340);
}

void FrmInd::Montre(const QString& medicament, const QString& texte)
{
    medicament_->setText(medicament);
    txt_->setPlainText(texte);
    exec();
}

} // namespace medication
