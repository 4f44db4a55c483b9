#pragma once

#include "application/windows/Fenetres.h"
#include "prescription/windows/Commande.h"
#include "prescription/windows/MenusOrdo.h"

#include <QList>

class QCheckBox;
class QComboBox;
class QLabel;

namespace prescription {

class BarreCommandes;
class VueFeuille;

/// The doctor's desk: the preview of the document in hand, the doctor's selector and the commands of the
/// day. It holds nothing of the document.
class FrmOrdo : public QWidget
{
    Q_OBJECT

public:
    FrmOrdo(application::Contexte& contexte, application::Fenetres& fenetres);

    /// Presses a command of the bar in use by its name, "CmdPharma".
    void Execute(const QString& nom);

protected:
    bool event(QEvent* evenement) override;
    void changeEvent(QEvent* evenement) override;
    void closeEvent(QCloseEvent* evenement) override;
    void contextMenuEvent(QContextMenuEvent* evenement) override;
    void keyPressEvent(QKeyEvent* evenement) override;
    void showEvent(QShowEvent* evenement) override;

private:
    QList<Commande> CommandesDuDocument();
    QList<Commande> CommandesDuProgramme();
    ActionsMenus ActionsDesMenus();
    QWidget* CreeEntete();
    void Dispose();
    void Raccourcis(const QList<Commande>& commandes);
    void EcouteSignaux();

    void Nouvelle();
    void Patient();
    void Pharma();
    void Date();
    void Certificat();
    void Imprime();
    void Supprime();
    void Accueil();
    void MontreAide();
    void OuvreOptions();
    void APropos();

    void SuitMedecins();
    void SuitReglages();
    void SuitApercu();
    void SuitImprimante();
    void SuitOrdonnance();
    void Active();
    void SuitReduction();
    BarreCommandes& BarreEnUsage() const;

    application::Contexte& contexte_;
    application::Fenetres& fenetres_;
    QList<Commande> commandes_;
    BarreCommandes* PctMenu1_;
    BarreCommandes* PctMenu2_;
    QWidget* PctMemo_ = nullptr;
    QLabel* ImgMemo_ = nullptr;
    QLabel* titreMemo_ = nullptr;
    QLabel* deborde_ = nullptr;
    QLabel* imprimante_ = nullptr;
    QCheckBox* ChkCiv_ = nullptr;
    QComboBox* CboMed_ = nullptr;
    VueFeuille* vue_;
    MenusOrdo menus_;
};

} // namespace prescription
