#pragma once

#include "application/windows/Fenetres.h"

#include <QDialog>

class QPlainTextEdit;

namespace drugbank {

/// A text to read: the notes kept with a medication, or the interactions of a prescription.
class FrmIAM : public QDialog
{
    Q_OBJECT

public:
    FrmIAM(application::Contexte& contexte, application::Fenetres& fenetres);

    /// Shows the text modally from its beginning, the caret at its end, and returns when the doctor has
    /// closed it.
    void Montre(const QString& texte);
    /// The same for a report of interactions.
    void MontreInteractions(const QString& rapport);

protected:
    void showEvent(QShowEvent* evenement) override;

private:
    void Nomme(const QString& titre, const QString& nomAccessible);
    void Ouvre(const QString& texte);

    QPlainTextEdit* txt_;
};

} // namespace drugbank
