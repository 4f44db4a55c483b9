#pragma once

#include "application/windows/Fenetres.h"
#include "page/windows/PorteDessin.h"
#include "startup/windows/FondPeint.h"

#include <QDialog>

class QComboBox;
class QPushButton;

namespace startup {

/// The daily choice of storage and doctor. Accepted by `CmdSuite`; everything else ends the program.
class FrmChoixBase : public QDialog, public page::PorteDessin
{
    Q_OBJECT

public:
    FrmChoixBase(application::Contexte& contexte, application::Fenetres& fenetres);

    /// Selects a row of `CboBase`, -1 for none, and the doctor of the day in `CboMed`.
    void Selectionne(int rangStockage);

    /// After an upgrade: `CmdSuite` bears "Redémarrer", and the window restarts the program when it is shown.
    void AnnonceRedemarrage();

    const page::Dessin& DessinMontre() const override { return fond_.Dessin(); }

protected:
    void showEvent(QShowEvent* evenement) override;
    void paintEvent(QPaintEvent* evenement) override;
    void resizeEvent(QResizeEvent* evenement) override;

private:
    QWidget* CarteDesChoix();
    QLayout* LigneDesBoutons();
    void ChoisitBase(int rang);
    void Suit();
    void Redemarre();

    application::Contexte& contexte_;
    FondPeint fond_;
    QComboBox* CboBase_ = nullptr;
    QComboBox* CboMed_ = nullptr;
    QPushButton* CmdSuite_ = nullptr;
};

} // namespace startup
