#pragma once

#include "application/windows/Fenetres.h"
#include "page/windows/PorteDessin.h"
#include "startup/Medecins.h"
#include "startup/windows/FondPeint.h"

#include <QDialog>

class QLabel;
class QListWidget;

namespace startup {

/// The doctors of the practice: inscription, deletion, default and change of the current one.
class FrmMedecins : public QDialog, public page::PorteDessin
{
    Q_OBJECT

public:
    FrmMedecins(application::Contexte& contexte, application::Fenetres& fenetres);

    const page::Dessin& DessinMontre() const override { return fond_.Dessin(); }
    /// Remembers the row that was chosen before a press in the list.
    bool eventFilter(QObject* objet, QEvent* evenement) override;

protected:
    void paintEvent(QPaintEvent* evenement) override;
    void resizeEvent(QResizeEvent* evenement) override;

private:
    QWidget* CarteDeLaListe();
    QLayout* ColonneDesBoutons();
    void Branche();
    void MontreMedecins();
    void ChoixChange();
    void ReprendChoix(int rang);
    int Rang() const;
    void RemplitListe();
    void Quitte();
    void MontreAide();

    application::Contexte& contexte_;
    FondPeint fond_;
    QList<Medecin> liste_; // as shown
    int rangAvant_ = -1;
    QListWidget* LstMed_ = nullptr;
    QLabel* LblMed_ = nullptr;
};

} // namespace startup
