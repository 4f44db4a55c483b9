#pragma once

#include "application/windows/Fenetres.h"
#include "settings/SaisieOptions.h"

#include <QDialog>

class QPushButton;
class QStackedWidget;
class QTabBar;

namespace settings {

class Onglet;
class OngletImprimantes;

/// The preferences of the current doctor, a tab strip over one page a tab. It is made for each use and
/// unloads itself at its end.
class FrmOptions : public QDialog
{
    Q_OBJECT

public:
    FrmOptions(application::Contexte& contexte, application::Fenetres& fenetres);

    /// Opens modally on a tab, 1 to 7; one that does not stand yet opens the first one that does.
    /// In an open window it only shows the tab.
    void Ouvre(int onglet);
    /// Opens on the printers: the doctor has to choose, and there is no way back. False when the program
    /// ended meanwhile.
    bool OuvrePourPremiereImpression();

protected:
    void closeEvent(QCloseEvent* evenement) override;
    void reject() override;

private:
    struct Boutons
    {
        QPushButton* OK;
        QPushButton* Annule;
    };

    void AjouteOnglet(Onglet* onglet);
    void Selectionne(int onglet);
    void MontreCadre(int rang);
    void Enregistre();
    void Annule();
    void Termine();

    application::Contexte& contexte_;
    application::Fenetres& fenetres_;
    QTabBar* TS_;
    QStackedWidget* cadres_;
    QPushButton* CmdFoc_;
    OngletImprimantes* imprimantes_;
    QList<Onglet*> onglets_;
    QList<Boutons> boutons_;
    Instantane instantane_;
};

} // namespace settings
