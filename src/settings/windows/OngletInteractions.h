#pragma once

#include "application/Contexte.h"
#include "settings/windows/Onglet.h"

namespace settings {

/// Tab 5: the lowest severity of an interaction that is reported.
class OngletInteractions : public Onglet
{
    Q_OBJECT

public:
    OngletInteractions(application::Contexte& contexte, QWidget* parent);

    int Numero() const override { return 5; }
    QString Titre() const override { return QStringLiteral("Interactions"); }
    void Lit(SaisieOptions& saisie) const override;

private:
    application::Contexte& contexte_;
};

} // namespace settings
