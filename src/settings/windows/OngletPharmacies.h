#pragma once

#include "application/Contexte.h"
#include "settings/ChoixPharmacie.h"
#include "settings/windows/Onglet.h"

#include <array>

class QCheckBox;
class QLabel;
class QRadioButton;

namespace settings {

/// Tab 4: where medications come from.
class OngletPharmacies : public Onglet
{
    Q_OBJECT

public:
    OngletPharmacies(application::Contexte& contexte, QWidget* parent);

    int Numero() const override { return 4; }
    QString Titre() const override { return QStringLiteral("Pharmacies"); }
    void Lit(SaisieOptions& saisie) const override;

private:
    void Dispose();
    void Charge();
    void Choisit(int rang);

    application::Contexte& contexte_;
    std::array<QRadioButton*, kNbPharmacies> OptB_ = {};
    QLabel* LblBase_ = nullptr;
    QCheckBox* ChKMedU_ = nullptr;
};

} // namespace settings
