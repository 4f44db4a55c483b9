#pragma once

#include <QDialog>

class QLabel;
class QProgressBar;

namespace transfer {

/// How far the transfer is. It takes no click: the copy ends by itself.
class FrmTransfert : public QDialog
{
    Q_OBJECT

public:
    explicit FrmTransfert(QWidget* parent);

    /// Shows the window from the first file on and lets it paint.
    void Avance(int fichier, int nombre);

    /// Escape and the close box do nothing.
    void reject() override {}

private:
    QLabel* LblFichier_;
    QProgressBar* PB_;
};

} // namespace transfer
