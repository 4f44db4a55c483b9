#include "startup/ChoixBase.h"

#include "outside/Tente.h"
#include "startup/FichiersChemins.h"
#include "startup/messages.h"

namespace startup {

QStringList LignesCboBase()
{
    return {QStringLiteral("Le répertoire présent sur le disque de votre ordinateur"),
            QStringLiteral("Un  support amovible  (ex : clef USB)"),
            QStringLiteral("Le répertoire sur le serveur lors d'une utilisation réseau")};
}

void ChoisitStockage(application::Contexte& contexte, int rang)
{
    if (rang >= 0 && rang < LignesCboBase().size()) {
        contexte.Chemins.IndexStockage = static_cast<quint8>(rang);
    }
}

void ChoisitMedecinDuJour(application::Contexte& contexte, int rang)
{
    if (rang >= 0 && rang < contexte.Medecins.Liste.size()) {
        contexte.Medecins.IndexMedecin = static_cast<qint16>(rang);
    }
}

SuiteChoix ValideChoixBase(application::Contexte& contexte, int rang)
{
    if (rang < 0) {
        const bool poursuit = contexte.Dehors.Boites.QuestionInformation(messages::ChoixObligatoire());
        return poursuit ? SuiteChoix::Reste : SuiteChoix::Termine;
    }
    outside::Tente(contexte.Dehors.Boites, [&] { EcritCheminBase(contexte.Chemins, contexte.Medecins); });
    contexte.Chemins.TypeStockage = static_cast<quint8>(rang + 1);
    return SuiteChoix::Poursuit;
}

} // namespace startup
