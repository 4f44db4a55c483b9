#include "prescription/windows/FrmMemo.h"

#include "outside/Tente.h"
#include "patients/Patient.h"
#include "prescription/messages.h"
#include "prescription/windows/ChampRecherche.h"
#include "prescription/windows/ListeTitres.h"

#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>

namespace prescription {

FrmMemo::FrmMemo(application::Contexte& contexte, application::Fenetres&) : contexte_(contexte)
{
    setObjectName(QStringLiteral("FrmMemo"));
    setWindowTitle(QStringLiteral("Ordonnances mémorisées"));
    Dispose();
    Branche();
}

void FrmMemo::Branche()
{
    for (int rang : {0, 1}) {
        ListeTitres* liste = LstMemo_[static_cast<size_t>(rang)];
        connect(liste->selectionModel(), &QItemSelectionModel::selectionChanged, this,
                [this, rang] { Choisit(rang); });
        connect(liste, &ListeTitres::Presse, CmdEditer_, qOverload<>(&QWidget::setFocus));
        connect(liste, &ListeTitres::DoubleClic, this, &FrmMemo::Charge);
        connect(liste, &ListeTitres::Ferme, this, &FrmMemo::reject);
        connect(liste, &ListeTitres::Haut, TxtRecherche_, qOverload<>(&QWidget::setFocus));
    }
    connect(TxtRecherche_, &QLineEdit::textChanged, this, &FrmMemo::Recherche);
    connect(TxtRecherche_, &ChampRecherche::Bas, this, &FrmMemo::VaAuxListes);
    connect(CmdEditer_, &QPushButton::clicked, this, &FrmMemo::Charge);
    connect(CmdQuitter_, &QPushButton::clicked, this, &FrmMemo::reject);
    connect(lblAS_, &QPushButton::clicked, this,
            [this] { contexte_.Dehors.Boites.Information(messages::AideSuppression()); });
}

bool FrmMemo::Ouvre(const QList<Memorisee>& memorisees)
{
    enMain_ = RetientMemo(contexte_.Ordonnance);
    Remplit(memorisees);
    if (exec() == QDialog::Accepted) {
        return true;
    }
    RendMemo(contexte_.Ordonnance, enMain_);
    return false;
}

void FrmMemo::Remplit(const QList<Memorisee>& memorisees)
{
    std::array<QList<Memorisee>, 2> parts;
    for (const Memorisee& memorisee : memorisees) {
        parts[memorisee.Cle.Generique() ? 0 : 1].append(memorisee);
    }
    for (size_t rang : {size_t(0), size_t(1)}) {
        memos_[rang].Remplit(parts[rang]);
    }
    if (!contexte_.Patient.PatientCourant.isEmpty()) {
        HLB_->setText(TitreDuPatient(contexte_.Patient.PatientCourant));
        LstMemo_[1]->setAccessibleName(HLB_->text());
    }
    TxtRecherche_->setFocus();
}

void FrmMemo::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Delete) {
        outside::Tente(contexte_.Dehors.Boites, [this] { Supprime(); });
        return;
    }
    QDialog::keyPressEvent(event);
}

int FrmMemo::ListeChoisie() const
{
    return LstMemo_[0]->Selection() >= 0 ? 0 : LstMemo_[1]->Selection() >= 0 ? 1 : -1;
}

void FrmMemo::Choisit(int liste)
{
    const auto place = static_cast<size_t>(liste);
    const int rang = LstMemo_[place]->Selection();
    if (rang >= 0) {
        LstMemo_[1 - place]->Selectionne(-1);
        ChoisitMemo(contexte_.Ordonnance, memos_[place], rang);
    }
}

void FrmMemo::Recherche(const QString& texte)
{
    for (size_t place : {size_t(0), size_t(1)}) {
        const int numero = memos_[place].Numero(LstMemo_[place]->Selection());
        LstMemo_[place]->SuitRecherche(!texte.trimmed().isEmpty() && !memos_[place].Vide());
        memos_[place].Filtre(texte);
        LstMemo_[place]->Selectionne(memos_[place].RangDe(numero));
    }
    if (!texte.trimmed().isEmpty() && memos_[0].rowCount() + memos_[1].rowCount() == 1) {
        LstMemo_[memos_[0].rowCount() == 1 ? 0 : 1]->Selectionne(0);
    }
}

void FrmMemo::VaAuxListes()
{
    const int choisie = ListeChoisie();
    const size_t place = choisie >= 0 ? static_cast<size_t>(choisie) : memos_[0].rowCount() > 0 ? 0 : 1;
    LstMemo_[place]->setFocus();
    if (choisie < 0 && memos_[place].rowCount() > 0) {
        LstMemo_[place]->Selectionne(0);
    }
}

void FrmMemo::Charge()
{
    const int liste = ListeChoisie();
    if (liste < 0) {
        contexte_.Dehors.Boites.Information(messages::SelectionnezMemo());
        return;
    }
    const auto place = static_cast<size_t>(liste);
    if (outside::Tente(contexte_.Dehors.Boites,
                       [&] { ChargeMemo(contexte_, memos_[place].ALD(LstMemo_[place]->Selection())); })) {
        accept();
    }
}

void FrmMemo::Supprime()
{
    const int liste = ListeChoisie();
    if (liste < 0) {
        return;
    }
    const auto place = static_cast<size_t>(liste);
    if (!SupprimeMemo(contexte_, memos_[place], LstMemo_[place]->Selection(), enMain_)) {
        return;
    }
    LstMemo_[place]->Selectionne(-1);
    LstMemo_[place]->setFocus();
    if (memos_[0].Vide() && memos_[1].Vide()) {
        contexte_.Dehors.Boites.Information(messages::PlusDeMemo());
        reject();
    }
}

} // namespace prescription
