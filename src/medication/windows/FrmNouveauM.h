#pragma once

#include "application/windows/Fenetres.h"
#include "medication/ListePersonnelle.h"
#include "medication/Noeud.h"

#include <QDialog>

class QLabel;
class QLineEdit;
class QListView;
class QPlainTextEdit;
class QPushButton;

namespace medication {

/// A new medication of the local pharmacy, or in the bank mode a new title of the personal one, whose
/// titles it lists. It is loaded fresh for each use.
class FrmNouveauM : public QDialog
{
    Q_OBJECT

public:
    FrmNouveauM(application::Contexte& contexte, application::Fenetres& fenetres);

    /// Words the captions for the personal pharmacy.
    void NommeBibliotheque();

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void Dispose();
    QWidget* FaitListe();
    QWidget* FaitSaisie();
    void Branche();
    void ConfigureModeBase();

    void Enregistre();
    void Supprime();
    void DitAstuces();

    application::Contexte& contexte_;
    ListePersonnelle liste_;
    QLabel* lblPharma_ = nullptr;
    QListView* lstP_ = nullptr;
    QLabel* renvoi_ = nullptr; ///< where the medications of the local mode are
    QPushButton* cmdSupp_ = nullptr;
    QLabel* lblTitre_ = nullptr;
    QLineEdit* txtNom_ = nullptr;
    QLabel* lblPoso_ = nullptr;
    QPlainTextEdit* txtPoso_ = nullptr;
    QPushButton* lblAS_ = nullptr;
    QPushButton* cmdAnnuler_ = nullptr;
    QPushButton* cmdOK_ = nullptr;
};

} // namespace medication
