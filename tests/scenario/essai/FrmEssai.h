#pragma once

#include "application/Contexte.h"
#include "page/windows/PorteDessin.h"

#include <QDialog>

class QLabel;

namespace scenario {

/// A window with one control of each kind, to try the language on.
class FrmEssai : public QWidget
{
    Q_OBJECT

public:
    FrmEssai(const application::Dehors& dehors, const QString& cheminProgramme);

Q_SIGNALS:
    void Quitte();

protected:
    void closeEvent(QCloseEvent* evenement) override;

private:
    QWidget* Champs();
    QWidget* Listes();
    QWidget* Onglets();
    QWidget* Boutons();
    QWidget* Attentes();
    void Sonde();
    void DemandeALaBanque();
    void Bouton(QWidget* parent, const QString& nom, const std::function<void()>& fait);
    void Ecris(const QString& texte);
    void OuvreModale();
    void OuvreMenu();
    void MontreDialogues();

    application::Dehors dehors_;
    QString cheminProgramme_;
    int sondes_ = -1; // while it asks for nothing
    QLabel* trace_ = nullptr;
};

} // namespace scenario
