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

protected:
    void paintEvent(QPaintEvent* evenement) override;
    void resizeEvent(QResizeEvent* evenement) override;

private:
    QWidget* CarteDeLaListe();
    QLayout* ColonneDesBoutons();
    void Branche();
    void MontreMedecins();
    void ChoixChange();
    void RemplitListe();
    void Quitte();
    void MontreAide();

    application::Contexte& contexte_;
    FondPeint fond_;
    QList<Medecin> liste_; // as shown
    QListWidget* LstMed_ = nullptr;
    QLabel* LblMed_ = nullptr;
};

} // namespace startup
