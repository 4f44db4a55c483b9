#pragma once

#include "application/windows/Fenetres.h"

#include <QDialog>
#include <QStringListModel>
#include <optional>

namespace medication {

class ListeGeneriques;

/// The generics of the pack last clicked, with their prices. A click on one closes the window.
class FrmGEN : public QDialog
{
    Q_OBJECT

public:
    FrmGEN(application::Contexte& contexte, application::Fenetres& fenetres);

    /// Shows the rows of `LstGen` as they stand.
    void Remplit();
    /// Opens modally: the text of the row taken, nothing when the window was closed without.
    std::optional<QString> Choisit(const QString& titre);

protected:
    void showEvent(QShowEvent* event) override;
    bool eventFilter(QObject* objet, QEvent* event) override;

private:
    application::Contexte& contexte_;
    QStringListModel rangs_;
    ListeGeneriques* LstGen_;
    QWidget* Cmd_;
    std::optional<QString> pris_;
};

} // namespace medication
