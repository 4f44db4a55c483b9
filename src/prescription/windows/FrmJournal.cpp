#include "prescription/windows/FrmJournal.h"

#include "application/windows/Sablier.h"
#include "outside/Boites.h"
#include "prescription/messages.h"
#include "startup/Chemins.h"

#include <QLabel>
#include <QListView>
#include <QMouseEvent>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>

namespace prescription {

namespace {

/// The selected row, -1 for none.
int Selection(const QListView& liste)
{
    const QModelIndexList choisies = liste.selectionModel()->selectedRows();
    return choisies.isEmpty() ? -1 : choisies.front().row();
}

} // namespace

FrmJournal::FrmJournal(application::Contexte& contexte, application::Fenetres&)
    : contexte_(contexte), dates_(JournalEntrees_, RangJournal::Date),
      patients_(JournalEntrees_, RangJournal::Patient)
{
    setObjectName(QStringLiteral("FrmJournal"));
    setWindowTitle(QStringLiteral("Journal des ordonnances"));
    Dispose();
    Branche();
}

void FrmJournal::Branche()
{
    connect(CmdOuvrir_, &QPushButton::clicked, this, &FrmJournal::Ouvre);
    connect(CmdQuitter_, &QPushButton::clicked, this, &FrmJournal::reject);
    connect(OptDate_, &QRadioButton::toggled, this, &FrmJournal::Remplit);
    connect(LstDate_->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &FrmJournal::ChoisitDate);
    connect(LstPat_->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &FrmJournal::ChoisitPatient);
    Label1_->installEventFilter(this);
    Label2_->installEventFilter(this);
}

bool FrmJournal::eventFilter(QObject* objet, QEvent* event)
{
    if (event->type() == QEvent::MouseButtonPress &&
        static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton) {
        (objet == Label1_ ? OptDate_ : OptPatient_)->setChecked(true);
    }
    return QDialog::eventFilter(objet, event);
}

void FrmJournal::Ouvre()
{
    const auto chemin = contexte_.Dehors.Boites.Ouvre({.Titre = messages::TitreOuvreJournal(),
                                                       .Filtre = messages::FiltreJournal(),
                                                       .Depart = contexte_.Chemins.CheminMedecin});
    if (chemin) {
        Lit(*chemin);
    }
}

void FrmJournal::Lit(const QString& chemin)
{
    const application::Sablier sablier;
    dates_.Vide();
    patients_.Vide();
    LblDr_->setText(MedecinDuJournal(chemin));
    LblEtat_->clear();
    PB_->setValue(0);
    PB_->show();
    layout()->activate(); // the bar is painted in its place
    const bool entier = JournalEntrees_.Lit(chemin, [this](qint64 lus, qint64 total) { Avance(lus, total); });
    PB_->hide();
    LblEtat_->setText(entier ? messages::JournalLu(JournalEntrees_.Nombre())
                             : messages::JournalLuEnPartie(JournalEntrees_.Nombre()));
    Remplit();
    (OptDate_->isChecked() ? LstDate_ : LstPat_)->setFocus();
}

void FrmJournal::Avance(qint64 lus, qint64 total)
{
    PB_->setValue(static_cast<int>(lus * PB_->maximum() / total));
    PB_->repaint(); // no other event until the file is read
}

void FrmJournal::Remplit()
{
    const application::Sablier sablier;
    dates_.Vide();
    patients_.Vide();
    TxtPresc_->clear();
    OptDate_->isChecked() ? RemplitParDate() : RemplitParPatient();
}

void FrmJournal::RemplitParDate()
{
    dates_.Remplit(JournalEntrees_.Dates(), false);
}

void FrmJournal::RemplitParPatient()
{
    patients_.Remplit(JournalEntrees_.Patients(), false);
    if (!JournalEntrees_.Vide()) {
        LstPat_->setCurrentIndex(patients_.index(0));
    }
}

void FrmJournal::ChoisitDate()
{
    const int rang = Selection(*LstDate_);
    if (rang < 0) {
        return;
    }
    if (OptDate_->isChecked()) {
        TxtPresc_->clear();
        patients_.Remplit(JournalEntrees_.DuJour(dates_.Numero(rang)), true);
    } else {
        MontrePrescription(dates_.Numero(rang));
    }
}

void FrmJournal::ChoisitPatient()
{
    const int rang = Selection(*LstPat_);
    if (rang < 0) {
        return;
    }
    if (OptDate_->isChecked()) {
        MontrePrescription(patients_.Numero(rang));
    } else {
        TxtPresc_->clear();
        dates_.Remplit(JournalEntrees_.DuPatient(patients_.Numero(rang)), true);
    }
}

void FrmJournal::MontrePrescription(int numero)
{
    TxtPresc_->setPlainText(JournalEntrees_.Prescription(numero));
}

} // namespace prescription
