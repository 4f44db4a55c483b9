#pragma once

#include "Arbres.h"

#include <QDialog>

#include <atomic>
#include <memory>

class QLabel;
class QPlainTextEdit;
class QProgressBar;
class QPushButton;
class QThread;
class QTreeWidget;
class QTreeWidgetItem;

namespace outside {
class Horloge;
}

namespace utile {

/// The one window of Utile: the databases before and after, and what became of the one in hand. The work
/// runs on a thread of its own.
class FrmUtile : public QDialog
{
    Q_OBJECT

public:
    FrmUtile(QList<Arbre> arbres, outside::Horloge& horloge);
    ~FrmUtile() override;

    bool Travaille() const { return travail_ != nullptr; }
    /// `CmdQuitter`, Escape and the close box: during the work, at the end of the database in hand.
    void reject() override;

private:
    void Dispose();
    QWidget* CarteBases();
    QWidget* CarteDetail();
    void Remplit();
    void Montre(int rang, const Bilan& bilan);
    void MontreDetail();
    void Commence();
    void Annonce(int rang);
    void Termine();

    QList<Arbre> arbres_;
    QList<BaseTrouvee> bases_;
    QList<Bilan> bilans_;
    QList<QTreeWidgetItem*> rangees_;
    outside::Horloge& horloge_;
    std::unique_ptr<QThread> travail_;
    std::atomic<bool> arret_ = false;
    bool ferme_ = false; ///< the window goes when the work has ended

    QTreeWidget* LstBases_ = nullptr;
    QPlainTextEdit* TxtDetail_ = nullptr;
    QLabel* LblEtat_ = nullptr;
    QProgressBar* Barre_ = nullptr;
    QPushButton* CmdRepare_ = nullptr;
    QPushButton* CmdQuitter_ = nullptr;
};

} // namespace utile
