#include "prescription/Envoi.h"

#include "common/Erreur.h"
#include "common/Fichiers.h"
#include "outside/Boites.h"
#include "prescription/messages.h"
#include "settings/Reglages.h"
#include "startup/Chemins.h"

namespace prescription {

QString ImprimanteEnUsage(application::Contexte& contexte)
{
    const QString choisie = contexte.Reglages.Options.Imprimante;
    if (contexte.Dehors.Imprimantes.Noms().contains(choisie)) {
        return choisie;
    }
    return contexte.Dehors.Imprimantes.ParDefaut();
}

QString AvisImprimante(application::Contexte& contexte)
{
    const QString& choisie = contexte.Reglages.Options.Imprimante;
    if (choisie.isEmpty()) {
        return {};
    }
    const QString utilisee = ImprimanteEnUsage(contexte);
    return utilisee == choisie ? QString() : messages::ImprimanteIntrouvable(choisie, utilisee);
}

QString DossierPdf(const startup::Chemins& chemins)
{
    return common::Joint(chemins.CheminTravail, QStringLiteral("PDF"));
}

bool Envoie(application::Contexte& contexte, const QString& imprimante, const outside::Travail& travail)
{
    try {
        if (imprimante == outside::NomFichierPdf()) {
            common::CreeDossier(travail.CheminPdf);
        }
        contexte.Dehors.Imprimantes.Imprime(imprimante, travail);
        return true;
    } catch (const common::Erreur& erreur) {
        contexte.Dehors.Boites.Stop(messages::ImpressionEchouee(imprimante, erreur.Phrase()));
        return false;
    }
}

} // namespace prescription
