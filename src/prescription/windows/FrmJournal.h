#pragma once

#include "application/windows/Fenetres.h"
#include "prescription/JournalEntrees.h"
#include "prescription/ListeJournal.h"

#include <QDialog>

class QLabel;
class QListView;
class QPlainTextEdit;
class QProgressBar;
class QPushButton;
class QRadioButton;
class QVBoxLayout;

namespace prescription {

/// Reads a journal back: who got what on which day, by date or by patient. It changes nothing.
class FrmJournal : public QDialog
{
    Q_OBJECT

public:
    FrmJournal(application::Contexte& contexte, application::Fenetres& fenetres);

protected:
    bool eventFilter(QObject* objet, QEvent* event) override;

private:
    void Dispose();
    QLayout* FaitChoix();
    QLayout* FaitListes();
    QLayout* FaitPied();
    QLabel* FaitLegende(const char* nom, const QString& texte, QRadioButton* option);
    QListView* FaitListe(const char* nom, ListeJournal& rangs, QVBoxLayout* colonne, const QString& titre);
    void Branche();

    void Ouvre();
    void Lit(const QString& chemin);
    void Avance(qint64 lus, qint64 total);
    void Remplit();
    void RemplitParDate();
    void RemplitParPatient();
    void ChoisitDate();
    void ChoisitPatient();
    void MontrePrescription(int numero);

    application::Contexte& contexte_;
    prescription::JournalEntrees JournalEntrees_;
    ListeJournal dates_;
    ListeJournal patients_;
    QRadioButton* OptDate_ = nullptr;
    QRadioButton* OptPatient_ = nullptr;
    QLabel* Label1_ = nullptr;
    QLabel* Label2_ = nullptr;
    QLabel* LblDr_ = nullptr;
    QListView* LstDate_ = nullptr;
    QListView* LstPat_ = nullptr;
    QPlainTextEdit* TxtPresc_ = nullptr;
    QLabel* LblEtat_ = nullptr; ///< what became of the reading
    QProgressBar* PB_ = nullptr;
    QPushButton* CmdOuvrir_ = nullptr;
    QPushButton* CmdQuitter_ = nullptr;
};

} // namespace prescription
