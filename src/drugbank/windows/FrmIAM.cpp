#include "drugbank/windows/FrmIAM.h"

#include "application/windows/Style.h"

#include <QPlainTextEdit>
#include <QVBoxLayout>

namespace drugbank {

namespace style = application::style;

FrmIAM::FrmIAM(application::Contexte&, application::Fenetres&) : txt_(new QPlainTextEdit(this))
{
    setObjectName(QStringLiteral("FrmIAM"));
    setWindowTitle(QStringLiteral("Notes"));
    txt_->setObjectName(QStringLiteral("Txt"));
    txt_->setAccessibleName(QStringLiteral("Notes du médicament"));
    txt_->setReadOnly(true);
    txt_->setTabChangesFocus(true);
    auto* fermer = style::BoutonPrincipal(QStringLiteral("CmdFermer"), QStringLiteral("&Fermer"), {}, this);
    connect(fermer, &QPushButton::clicked, this, &QDialog::accept);
    QVBoxLayout* disposition = style::Fenetre(this);
    disposition->addWidget(txt_, 1);
    disposition->addWidget(fermer, 0, Qt::AlignRight);
    style::Dimensionne(this, 640, 420);
}

void FrmIAM::Montre(const QString& texte)
{
    txt_->setPlainText(texte);
    txt_->moveCursor(QTextCursor::End);
    exec();
}

} // namespace drugbank
