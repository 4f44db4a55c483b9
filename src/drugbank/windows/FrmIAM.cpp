#include "drugbank/windows/FrmIAM.h"

#include "application/windows/Style.h"

#include <QPlainTextEdit>
#include <QScrollBar>
#include <QVBoxLayout>

namespace drugbank {

namespace style = application::style;

namespace {

constexpr int kLargeur = 860;
constexpr int kHauteur = 520;

} // namespace

FrmIAM::FrmIAM(application::Contexte&, application::Fenetres&) : txt_(new QPlainTextEdit(this))
{
    setObjectName(QStringLiteral("FrmIAM"));
    txt_->setObjectName(QStringLiteral("Txt"));
    Nomme(QStringLiteral("Notes"), QStringLiteral("Notes du médicament"));
    txt_->setReadOnly(true);
    txt_->setTabChangesFocus(true);
    auto* fermer = style::BoutonPrincipal(QStringLiteral("CmdFermer"), QStringLiteral("&Fermer"), {}, this);
    connect(fermer, &QPushButton::clicked, this, &QDialog::accept);
    QVBoxLayout* disposition = style::Fenetre(this);
    disposition->addWidget(txt_, 1);
    disposition->addWidget(fermer, 0, Qt::AlignRight);
    style::Dimensionne(this, kLargeur, kHauteur);
}

void FrmIAM::Nomme(const QString& titre, const QString& nomAccessible)
{
    setWindowTitle(titre);
    txt_->setAccessibleName(nomAccessible);
}

void FrmIAM::Montre(const QString& texte)
{
    Nomme(QStringLiteral("Notes"), QStringLiteral("Notes du médicament"));
    Ouvre(texte);
}

void FrmIAM::MontreInteractions(const QString& rapport)
{
    Nomme(QStringLiteral("Interactions médicamenteuses"), QStringLiteral("Interactions de l'ordonnance"));
    Ouvre(rapport);
}

void FrmIAM::Ouvre(const QString& texte)
{
    txt_->setPlainText(texte);
    txt_->moveCursor(QTextCursor::End);
    exec();
}

/// The view has followed the caret by now; the first interaction of a long report would be out of sight.
void FrmIAM::showEvent(QShowEvent* evenement)
{
    QDialog::showEvent(evenement);
    txt_->verticalScrollBar()->setValue(0);
}

} // namespace drugbank
