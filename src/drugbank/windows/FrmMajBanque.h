#pragma once

#include "application/windows/Fenetres.h"
#include "drugbank/MiseAJourBanque.h"

#include <QDate>
#include <QDialog>

class QHBoxLayout;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QProgressBar;

namespace drugbank {

/// Brings the open bank up to date: the files that the doctor has downloaded become the bank file, while he
/// reads how far it is. Closing the window, or the program, gives the update up.
class FrmMajBanque : public QDialog
{
    Q_OBJECT

public:
    FrmMajBanque(application::Contexte& contexte, application::Fenetres& fenetres);

    void reject() override;

protected:
    void resizeEvent(QResizeEvent* evenement) override;

private:
    void Dispose();
    QWidget* CarteFichiers();
    QWidget* CarteBilan();
    QHBoxLayout* Rangee(QLineEdit* champ, const QList<QPushButton*>& boutons);
    QHBoxLayout* Boutons();
    void Branche();
    void ChoisitDossier();
    void ChoisitThesaurus();
    void OuvreSite();
    void Copie();
    void Lance();
    void MontreLaSuite();
    void Termine();
    void MontreBaseEnPlace();
    void Avertit(const QStringList& phrases);
    void GardeLesHauteurs();
    void Active(bool enCours);
    QStringList ReservesEnPlace() const;
    QStringList PlusAncienne() const;

    application::Contexte& contexte_;
    QLineEdit* TxtDossier_;
    QPushButton* CmdDossier_;
    QLineEdit* TxtThesaurus_;
    QPushButton* CmdThesaurus_;
    QPushButton* CmdSite_;
    QProgressBar* PrgMaj_;
    QLabel* LblEtat_;
    QLabel* LblAvertissement_;
    QPlainTextEdit* TxtBilan_;
    QPushButton* CmdCopie_;
    QPushButton* CmdLance_;
    QPushButton* CmdAnnule_;
    QPushButton* CmdFerme_;
    std::unique_ptr<MiseAJourBanque> maj_;
    bool fermetureDemandee_ = false;
    QDate datePrecedente_; ///< of the data that an update replaces; none for an extract
};

} // namespace drugbank
