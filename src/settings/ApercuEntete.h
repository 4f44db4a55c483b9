#pragma once

#include "page/Dessin.h"
#include "settings/Entete.h"

namespace settings {

/// `PctEntete`: the stored rows as `PeintEntete` draws them, in the order and colour in force. As high as
/// what it shows. Empty without a doctor.
page::Dessin DessinEntete(application::Contexte& contexte);

/// The top left of a sheet printed with these rows, in this order of the blocks (`ModeEntete`), with the
/// margins and the colour in force and no logo.
page::Dessin HautDeFeuille(application::Contexte& contexte, const RangsEntete& rangs, quint8 ordre);

/// The whole sample sheet as it would be printed with this letterhead, stored or not.
page::Dessin FeuilleAvec(application::Contexte& contexte, const Entete& entete, const QImage& logo);

/// `CmdImpression`: the stored letterhead and the foot of the page on paper. A failure is told; false then.
bool ImprimeEntete(application::Contexte& contexte);

} // namespace settings
