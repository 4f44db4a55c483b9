#include "medication/windows/FrmPoso.h"

#include "medication/messages.h"
#include "medication/windows/BoiteCboP.h"
#include "medication/windows/ChampPosologie.h"
#include "outside/Boites.h"

#include <QLabel>
#include <QPushButton>
#include <QTextDocument>

namespace medication {

FrmPoso::FrmPoso(application::Contexte& contexte, application::Fenetres&) : contexte_(contexte)
{
    setObjectName(QStringLiteral("FrmPoso"));
    setWindowTitle(QStringLiteral("Posologie"));
    Dispose();
    Branche();
}

void FrmPoso::Branche()
{
    for (int i = 0; i < kNbCboP; ++i) {
        connect(cboP_[size_t(i)], &BoiteCboP::Change, this,
                [this, i](const QString& texte) { Change(i, texte); });
        connect(cboP_[size_t(i)], &BoiteCboP::Defait, txtPoso_, &QPlainTextEdit::undo);
    }
    connect(txtPoso_, &QPlainTextEdit::textChanged, this,
            [this] { lblX_->setVisible(ResteUnX(txtPoso_->toPlainText())); });
    connect(cmdAide_, &QPushButton::clicked, this,
            [this] { contexte_.Dehors.Boites.Information(messages::Aide()); });
    connect(cmdAnnule_, &QPushButton::clicked, this, &QDialog::reject);
    connect(cmdQuitter_, &QPushButton::clicked, this, [this] { Rend(Etiquette::Rien); });
    connect(cmdEnregistrer_, &QPushButton::clicked, this, [this] { Rend(Etiquette::Enregistre); });
    connect(cmdAjouter_, &QPushButton::clicked, this, [this] { Rend(Etiquette::Ajoute); });
}

FrmPoso::Reponse FrmPoso::Compose(const QString& nom, const QString& txtPoso, bool enregistrable)
{
    reponse_ = {};
    composition_ = CommencePosologie(txtPoso);
    lblNomMed_->setText(nom);
    lblNomMed_->setToolTip(Qt::convertFromPlainText(nom));
    cmdEnregistrer_->setEnabled(enregistrable);
    txtPoso_->setPlainText(txtPoso);
    Montre();
    cboP_[kForme]->setFocus();
    exec();
    return reponse_;
}

void FrmPoso::Change(int indice, const QString& texte)
{
    composition_.TxtPoso = txtPoso_->toPlainText();
    ChangeCboP(composition_, contexte_.Choix, indice, texte, [this](const QString& invite) {
        Montre();
        return contexte_.Dehors.Boites.Demande(
            {.Invite = invite, .Valeur = QStringLiteral("1"), .Titre = messages::TitreQuantite()});
    });
    Montre();
}

void FrmPoso::Montre()
{
    for (int i = 0; i < kNbCboP; ++i) {
        cboP_[size_t(i)]->Montre(composition_.CboP[size_t(i)]);
        cboP_[size_t(i)]->setEnabled(composition_.QuantitesActives || !EstQuantite(i));
    }
    txtPoso_->Remplace(composition_.TxtPoso);
}

void FrmPoso::Rend(Etiquette etiquette)
{
    reponse_ = {etiquette, PosologieRendue(txtPoso_->toPlainText())};
    accept();
}

} // namespace medication
