#pragma once

#include "application/windows/Fenetres.h"
#include "page/LignesEntete.h"
#include "settings/MiseEnPage.h"

#include <QDialog>
#include <QImage>

class QBoxLayout;
class QCheckBox;
class QComboBox;
class QGridLayout;
class QLabel;
class QPushButton;

namespace page {
class VueAjustee;
} // namespace page

namespace settings {

class ChampMesure;
class LibelleCoupe;

/// The page layout designer: where the parts of the printed page stand, and the fonts of the prescription
/// lines, with a sample and the whole sheet. It stays loaded, hidden between its uses, and then follows the
/// settings. The one way out is `CmdRetour`.
class FrmConfOrdo : public QDialog
{
    Q_OBJECT

public:
    FrmConfOrdo(application::Contexte& contexte, application::Fenetres& fenetres);

    /// Escape: nothing.
    void reject() override {}

protected:
    void closeEvent(QCloseEvent* evenement) override;
    void showEvent(QShowEvent* evenement) override;
    void hideEvent(QHideEvent* evenement) override;

private:
    void Dispose();
    QWidget* FaitPrescriptions();
    QBoxLayout* FaitTailleFeuille(QWidget* carte);
    void AjouteSauts(QGridLayout* grille, QWidget* carte);
    QWidget* FaitPatient();
    QWidget* FaitPolices();
    QWidget* FaitEchantillon();
    QWidget* FaitFeuille();
    QBoxLayout* FaitPied();
    ChampMesure* FaitChamp(const QString& nom, QWidget* carte);
    void AjouteMarge(QGridLayout* grille, size_t rang, QWidget* carte);
    void OrdonneTabulations();
    void Branche();
    void BrancheTextes();

    SaisieMiseEnPage Saisie() const;
    void Charge();
    void MontreMarges(const SaisieMiseEnPage& saisie);
    void MontreSautPersonnalise();
    void MontrePolice(size_t rang);
    /// Another hand changed the settings: all of it while hidden, the personal height while shown.
    void SuitReglages();
    /// The sample.
    void Peint();
    /// The whole sheet, and whether something is not stored yet.
    void Suit();

    void DesigneTexte(size_t rang);
    void ChoisitPolice();
    void CliqueChKSLP(bool coche);
    /// The leave handler of `TxtSLP`, if it was left or may be; false when the focus went back to it.
    bool FinitTxtSLP();
    void Enregistre();
    void Retourne();

    application::Contexte& contexte_;
    application::Fenetres& fenetres_;
    Reglages stockes_;                ///< what the files hold, read at each showing and saving
    QList<page::LigneEntete> entete_; ///< of the sheet, as `logo_`
    QImage logo_;
    std::array<page::Police, 2> polices_; ///< of `Txt(0)` and `Txt(1)`
    bool sortieTxtSLP_ = false;           ///< left, its handler still to run

    QComboBox* CboInt_ = nullptr;
    QComboBox* CboM_ = nullptr;
    std::array<ChampMesure*, 8> marges_ = {}; // in the order of `CasesMarges`
    QCheckBox* ChkS_ = nullptr;
    QCheckBox* ChKSLP_ = nullptr;
    ChampMesure* TxtSLP_ = nullptr;
    ChampMesure* TxtLF_ = nullptr;
    ChampMesure* TxtHF_ = nullptr;
    std::array<ChampMesure*, 2> Txt_ = {};
    std::array<LibelleCoupe*, 2> LblMed_ = {};
    page::VueAjustee* PctMeP_ = nullptr;
    page::VueAjustee* PctFeuille_ = nullptr;
    QLabel* LblModifie_ = nullptr;
    QPushButton* CmdPolice_ = nullptr;
    QPushButton* CmdEnregistrer_ = nullptr;
    QPushButton* CmdRetour_ = nullptr;
};

} // namespace settings
