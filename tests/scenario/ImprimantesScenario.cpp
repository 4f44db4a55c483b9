#include "scenario/ImprimantesScenario.h"

#include "common/Erreur.h"
#include "outside/TravailPdf.h"
#include "outside/messages.h"

namespace scenario {

QStringList ImprimantesScenario::Noms() const
{
    return QStringList(Systeme) << outside::NomFichierPdf();
}

QString ImprimantesScenario::ParDefaut() const
{
    return Systeme.contains(Defaut) ? Defaut : outside::NomFichierPdf();
}

void ImprimantesScenario::Imprime(const QString& nom, const outside::Travail& travail)
{
    if (!Noms().contains(nom)) {
        throw common::Erreur(outside::messages::ImprimanteAbsente(nom), nom);
    }
    Recus.append({nom, travail});
    if (nom == outside::NomFichierPdf()) {
        outside::ImprimeEnPdf(travail, horloge_, lanceur_, boites_);
    } else if (!DossierPdf.isEmpty()) {
        outside::EcritPdf(travail, QStringLiteral("%1/travail-%2.pdf").arg(DossierPdf).arg(Recus.size()));
    }
}

} // namespace scenario
