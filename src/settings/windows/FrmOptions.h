#pragma once

#include "application/windows/Fenetres.h"
#include "settings/SaisieOptions.h"

#include <QDialog>
#include <QPointer>

class QEventLoop;
class QPushButton;
class QStackedWidget;
class QTabBar;

namespace settings {

class Onglet;
class OngletImprimantes;

/// The preferences of the current doctor, a tab strip over one page a tab. It is made for each use and
/// unloads itself at its end; the designers that it opens hide it and bring it back.
class FrmOptions : public QDialog
{
    Q_OBJECT

public:
    FrmOptions(application::Contexte& contexte, application::Fenetres& fenetres);
    ~FrmOptions() override;

    /// Opens modally on a tab, 1 to 7. In a use that is under way it only brings the window back on the tab,
    /// or to the front the designer that stands in its place.
    void Ouvre(int onglet);
    /// Opens on the printers: the doctor has to choose, and there is no way back. False when the program
    /// ended meanwhile.
    bool OuvrePourPremiereImpression();

    void setVisible(bool visible) override;

protected:
    void resizeEvent(QResizeEvent* evenement) override;
    void closeEvent(QCloseEvent* evenement) override;
    void reject() override;

private:
    struct Boutons
    {
        QPushButton* OK;
        QPushButton* Annule;
    };

    void Dispose();
    void AjouteOnglets();
    void AjouteOnglet(Onglet* onglet);
    Boutons AjouteBoutons(QWidget* cadre, int membre);
    void Execute();
    template <typename Concepteur> void OuvreConcepteur();
    void Selectionne(int onglet);
    void MontreCadre(int rang);
    void PrendFocus(QWidget* controle);
    void Enregistre();
    void Refuse(const RefusOptions& refus);
    void Annule();
    void Termine();

    application::Contexte& contexte_;
    application::Fenetres& fenetres_;
    Instantane instantane_;
    QTabBar* TS_;
    QStackedWidget* cadres_;
    QPushButton* CmdFoc_;
    OngletImprimantes* imprimantes_ = nullptr;
    QList<Onglet*> onglets_;
    QList<Boutons> boutons_;
    QEventLoop* boucle_ = nullptr; ///< of the use under way
    bool terminee_ = false;        ///< confirmed or cancelled
    QPointer<QDialog> concepteur_; ///< the designer that stands in its place
};

} // namespace settings
