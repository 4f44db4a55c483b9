#include "prescription/PageCertificat.h"

#include "certificates/Texte.h"
#include "common/Fichiers.h"
#include "common/Tolere.h"
#include "startup/Chemins.h"

namespace prescription {

std::optional<QString> TexteDuCertificat(const startup::Chemins& chemins)
{
    std::optional<QString> texte;
    if (!chemins.CheminTravail.isEmpty()) {
        // The preview stays empty then; the printing tells of it.
        common::Tolere(
            [&] { texte = certificates::LitTexte(certificates::CheminTmp(chemins.CheminTravail)); });
    }
    return texte;
}

void PeintCorpsCertificat(page::Surface& cible, page::Modele& modele, application::Contexte& contexte,
                          const QString& texte)
{
    certificates::Certificat sansIdentite = contexte.Certificat;
    sansIdentite.IdentiteCertif = 0;
    page::PeintCertificat(cible, modele, {sansIdentite, texte, contexte.Reglages.TxtSLP},
                          contexte.Dehors.Boites);
}

void PeintPageCertificat(page::Surface& cible, page::Modele& modele, application::Contexte& contexte,
                         const QString& texte)
{
    page::PeintCertificat(cible, modele, {contexte.Certificat, texte, contexte.Reglages.TxtSLP},
                          contexte.Dehors.Boites);
    page::PeintOrdo(cible, modele);
}

} // namespace prescription
