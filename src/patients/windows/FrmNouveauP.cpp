#include "patients/windows/FrmNouveauP.h"

#include "outside/Tente.h"
#include "patients/Patient.h"
#include "patients/TexteSaisie.h"
#include "patients/messages.h"
#include "patients/windows/ChampSelectionne.h"

#include <QLabel>
#include <QListView>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QShortcut>

namespace patients {

namespace {

QString Capitales(const QString& texte)
{
    return texte.toUpper();
}

using Forme = QString (*)(const QString&);

/// What `Txt(numero)` makes of its text when it is left; null when it stays as typed.
Forme FormeDe(size_t numero)
{
    constexpr std::array<Forme, 5> kFormes = {Capitales, PremiereMajuscule, MasqueTelephone, nullptr,
                                              MasqueTelephone};
    return kFormes[numero];
}

} // namespace

FrmNouveauP::FrmNouveauP(application::Contexte& contexte, application::Fenetres&) : contexte_(contexte)
{
    setObjectName(QStringLiteral("FrmNouveauP"));
    setWindowTitle(QStringLiteral("       Nouveau patient"));
    Dispose();
    Branche();
    opt_[kSansCivilite]->setFocus();
}

void FrmNouveauP::Branche()
{
    for (QRadioButton* option : opt_) {
        connect(option, &QRadioButton::clicked, txt_[0], qOverload<>(&QWidget::setFocus));
    }
    for (const size_t numero : {0U, 1U, 2U, 4U}) {
        connect(txt_[numero], &QLineEdit::editingFinished, this, [this, numero] { MetEnForme(numero); });
    }
    connect(cmdCI_, &QPushButton::clicked, this, &FrmNouveauP::AjoutePrecautions);
    connect(lstCi_, &QListView::doubleClicked, this, &FrmNouveauP::RetirePrecaution);
    auto* suppression = new QShortcut(QKeySequence(Qt::Key_Delete), lstCi_);
    suppression->setContext(Qt::WidgetShortcut);
    connect(suppression, &QShortcut::activated, this, &FrmNouveauP::RetirePrecaution);
    connect(cmdOK_, &QPushButton::clicked, this, &FrmNouveauP::Valide);
    connect(cmdAnnuler_, &QPushButton::clicked, this, &FrmNouveauP::reject);
}

void FrmNouveauP::Remplit(int index, const SaisiePatient& saisie)
{
    indexChange_ = index;
    origine_ = saisie.Origine;
    cmdOK_->setText(QStringLiteral("Enregistrer"));
    opt_[kSansCivilite]->setAutoExclusive(false);
    opt_[kSansCivilite]->setChecked(false);
    opt_[kSansCivilite]->setAutoExclusive(true);
    if (saisie.Option >= 0) {
        opt_[size_t(saisie.Option)]->setChecked(true);
        opt_[size_t(saisie.Option)]->setFocus();
    }
    txt_[0]->setText(saisie.Nom);
    txt_[1]->setText(saisie.Prenom);
    txt_[2]->setText(saisie.Telephone1);
    txt_[3]->setText(saisie.Poids);
    txt_[4]->setText(saisie.Telephone2);
    for (QLineEdit* champ : txt_) {
        champ->home(false);
    }
    meb_->setText(saisie.DateNaissance);
    precautions_.setStringList(saisie.Precautions);
    txtAdr_->setPlainText(saisie.Notes);
    txtAtcd_->setPlainText(saisie.Antecedents);
    txtAdrV_->setPlainText(saisie.Adresse);
}

void FrmNouveauP::RendDateFacultative()
{
    lbl_->hide();
}

SaisiePatient FrmNouveauP::Saisie() const
{
    const auto option = std::ranges::find_if(opt_, &QRadioButton::isChecked);
    return {.Option = option == opt_.end() ? -1 : static_cast<int>(option - opt_.begin()),
            .Nom = txt_[0]->text(),
            .Prenom = txt_[1]->text(),
            .DateNaissance = meb_->text(),
            .Poids = txt_[3]->text(),
            .Precautions = precautions_.stringList(),
            .Notes = txtAdr_->toPlainText(),
            .Antecedents = txtAtcd_->toPlainText(),
            .Adresse = txtAdrV_->toPlainText(),
            .Telephone1 = txt_[2]->text(),
            .Telephone2 = txt_[4]->text(),
            .Origine = origine_};
}

void FrmNouveauP::MetEnForme(size_t numero)
{
    if (const auto forme = FormeDe(numero)) {
        txt_[numero]->setText(forme(txt_[numero]->text()));
    }
}

void FrmNouveauP::AjoutePrecautions()
{
    for (;;) {
        outside::Saisie demande;
        demande.Invite = messages::InvitePrecautions();
        const QString reponse = contexte_.Dehors.Boites.Demande(demande).value_or(QString());
        if (reponse.isEmpty()) {
            return;
        }
        precautions_.setStringList(precautions_.stringList() << reponse);
    }
}

void FrmNouveauP::RetirePrecaution()
{
    const QModelIndex choisie = lstCi_->currentIndex();
    if (!lstCi_->selectionModel()->isSelected(choisie)) {
        return;
    }
    const QString question = messages::SupprimerPrecaution(choisie.data().toString());
    if (contexte_.Dehors.Boites.Question(question)) {
        precautions_.removeRow(choisie.row());
    }
}

void FrmNouveauP::Valide()
{
    for (size_t numero = 0; numero < txt_.size(); ++numero) {
        if (txt_[numero]->isModified()) { // typed, and not left yet
            MetEnForme(numero);
        }
    }
    patients::FinDeSaisie fin;
    if (!outside::Tente(contexte_.Dehors.Boites,
                        [&] { fin = TermineSaisie(contexte_, Saisie(), indexChange_); })) {
        return;
    }
    if (fin.Refus) {
        MontreRefus(*fin.Refus);
        return;
    }
    indexEcrit_ = fin.Index;
    accept();
}

void FrmNouveauP::MontreRefus(const Refus& refus)
{
    contexte_.Dehors.Boites.Information(refus.Message);
    switch (refus.Controle) {
    case Champ::Nom:
        txt_[0]->setFocus();
        break;
    case Champ::Prenom:
        txt_[1]->setFocus();
        break;
    case Champ::DateNaissance:
        meb_->setFocus();
        break;
    case Champ::Aucun:
        break;
    }
}

void FrmNouveauP::reject()
{
    contexte_.Patient.ModePatient = 3;
    QDialog::reject();
}

} // namespace patients
