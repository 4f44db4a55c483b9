#pragma once

#include "application/windows/Fenetres.h"
#include "backup/Sauvegarde.h"

#include <QDialog>

class QListWidget;
class QPushButton;

namespace backup {

/// The safety copies of the data in use: the doctor chooses one to put back. The program starts again then.
class FrmRestaure : public QDialog
{
    Q_OBJECT

public:
    FrmRestaure(application::Contexte& contexte, application::Fenetres& fenetres);

private:
    void Dispose();
    void Branche();
    void Remplit();
    void Restaure();
    /// False when nothing was changed: the doctor has read why.
    bool Remet(const Sauvegarde& sauvegarde, const QString& ligne);

    application::Contexte& contexte_;
    Lieu lieu_;
    QList<Sauvegarde> sauvegardes_;
    QListWidget* LstSauvegardes_ = nullptr;
    QPushButton* CmdOK_ = nullptr;
    QPushButton* CmdAnnuler_ = nullptr;
};

} // namespace backup
