#pragma once

#include "application/Contexte.h"
#include "settings/windows/Onglet.h"

namespace settings {

/// Tab 1: the menu bar of the editor, and the way to the two designers.
class OngletConfiguration : public Onglet
{
    Q_OBJECT

public:
    OngletConfiguration(application::Contexte& contexte, QWidget* parent);

    int Numero() const override { return 1; }
    QString Titre() const override { return QStringLiteral("Configuration"); }
    void Lit(SaisieOptions& saisie) const override;

Q_SIGNALS:
    /// `CmdET`: the header designer is asked for.
    void EnteteDemandee();
    /// `CmdMEP`: the page layout designer is asked for.
    void MiseEnPageDemandee();

private:
    QWidget* CarteDuMenu();
    QWidget* CarteDesConcepteurs();

    application::Contexte& contexte_;
};

} // namespace settings
