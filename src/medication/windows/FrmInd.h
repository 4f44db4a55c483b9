#pragma once

#include "application/windows/Fenetres.h"

#include <QDialog>

class QLabel;
class QPlainTextEdit;

namespace medication {

/// A medication and a text about it, to read: the documents that the bank has on it.
class FrmInd : public QDialog
{
    Q_OBJECT

public:
    FrmInd(application::Contexte& contexte, application::Fenetres& fenetres);

    /// Shows both modally and returns when the doctor has closed it.
    void Montre(const QString& medicament, const QString& texte);

private:
    QLabel* medicament_;
    QPlainTextEdit* txt_;
};

} // namespace medication
