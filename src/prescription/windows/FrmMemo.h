#pragma once

#include "application/windows/Fenetres.h"
#include "prescription/ChoixMemo.h"
#include "prescription/ListeMemo.h"

#include <QDialog>
#include <array>

class QLabel;
class QPushButton;

namespace prescription {

class ChampRecherche;
class ListeTitres;

/// The memorised prescriptions: on the left those for all patients, on the right those of the current one.
/// The doctor loads one into the prescription in hand, or deletes some.
class FrmMemo : public QDialog
{
    Q_OBJECT

public:
    FrmMemo(application::Contexte& contexte, application::Fenetres& fenetres);

    /// Shows them modally. True when one was loaded.
    bool Ouvre(const QList<Memorisee>& memorisees);
    /// Fills both lists without showing the window.
    void Remplit(const QList<Memorisee>& memorisees);

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void Dispose();
    QWidget* FaitListe(int rang, const QString& nomTitre, const QString& titre, const QString& vide);
    QLayout* FaitPied();
    void Branche();

    /// The list with a selected row, -1 for none.
    int ListeChoisie() const;
    void Choisit(int liste);
    void Recherche(const QString& texte);
    void VaAuxListes();
    void Charge();
    void Supprime();

    application::Contexte& contexte_;
    std::array<ListeMemo, 2> memos_;
    MemoEnMain enMain_; ///< when the window opened
    std::array<ListeTitres*, 2> LstMemo_{};
    QLabel* HLB_ = nullptr;
    ChampRecherche* TxtRecherche_ = nullptr;
    QPushButton* lblAS_ = nullptr;
    QPushButton* CmdEditer_ = nullptr;
    QPushButton* CmdQuitter_ = nullptr;
};

} // namespace prescription
