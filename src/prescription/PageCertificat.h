#pragma once

#include "application/Contexte.h"
#include "page/Peintres.h"

#include <optional>

namespace prescription {

/// The text handed to the page, "Tmp.txt" of the directory of work; nothing when it is missing or cannot be
/// read.
std::optional<QString> TexteDuCertificat(const startup::Chemins& chemins);

/// Paints the text of a certificate alone, without the patient block.
void PeintCorpsCertificat(page::Surface& cible, page::Modele& modele, application::Contexte& contexte,
                          const QString& texte);

/// Paints a certificate and the footer.
void PeintPageCertificat(page::Surface& cible, page::Modele& modele, application::Contexte& contexte,
                         const QString& texte);

} // namespace prescription
