#pragma once

#include "application/Contexte.h"
#include "settings/windows/Onglet.h"

class QCheckBox;
class QComboBox;

namespace settings {

/// Tab 3: the printer of the doctor, and its confirmation at the first print of a run.
class OngletImprimantes : public Onglet
{
    Q_OBJECT

public:
    OngletImprimantes(application::Contexte& contexte, QWidget* parent);

    int Numero() const override { return 3; }
    QString Titre() const override { return QStringLiteral("Imprimantes"); }
    void Lit(SaisieOptions& saisie) const override;

    void MontreConfirmation();

private:
    void Charge();
    void Confirme(bool coche);

    application::Contexte& contexte_;
    QComboBox* CboPrint_;
    QCheckBox* Chkimp_;
};

} // namespace settings
