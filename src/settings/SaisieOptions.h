#pragma once

#include "application/Contexte.h"
#include "settings/Reglages.h"

namespace settings {

/// What the options dialogue gives back on its cancel: twenty switches and three texts, no more.
struct Instantane
{
    settings::Options Options;
    qint32 ProduitBanque = 0;
    QString TypeBase;
    QString CheminMedecin;
};

Instantane PrendInstantane(const application::Contexte& contexte);

/// `CmdAnnule`: puts the snapshot back, the doctor of that time included, and repaints the page.
void RestaureInstantane(application::Contexte& contexte, const Instantane& instantane);

/// The rest of `CmdOK` when every tab has left its values in the variables: "Base.cfg", "Options.cfg",
/// "Dupli.cfg" in the doctor's directory, in that order, then page and face. Without a doctor no file is
/// written and no page painted. Throws `Erreur`.
void EnregistreOptions(application::Contexte& contexte);

} // namespace settings
