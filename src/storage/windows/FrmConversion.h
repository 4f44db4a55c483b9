#pragma once

#include "application/windows/Fenetres.h"

#include <QDialog>

class QLabel;
class QProgressBar;
class QPushButton;

namespace storage {

/// The window of a conversion: which file, which table, how many rows; and the way out of it.
class FrmConversion : public QDialog
{
    Q_OBJECT

public:
    FrmConversion(application::Contexte& contexte, application::Fenetres& fenetres);

    void MontreFichier(const QString& chemin);
    void MontreAttente();
    void MontreLignes(const QString& table, qint64 lignes, qint64 sur);
    bool EstAbandonnee() const { return abandonnee_; }

    /// Escape and the close box are `CmdAnnuler`.
    void reject() override;

private:
    QLabel* titre_;
    QLabel* lignes_;
    QProgressBar* barre_;
    QPushButton* annule_;
    bool abandonnee_ = false;
};

} // namespace storage
