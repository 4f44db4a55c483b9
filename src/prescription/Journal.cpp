#include "prescription/Journal.h"

#include "common/Erreur.h"
#include "common/Fichiers.h"
#include "common/Texte8.h"
#include "outside/FinDeLigne.h"
#include "prescription/messages.h"

namespace prescription {

QString CheminJournal(const QString& cheminMedecin, const QString& nomSignature)
{
    const QString nom = QStringLiteral("Journal_%1.log").arg(nomSignature);
    if (!common::NomDeFichierSur(nom)) {
        throw common::Erreur(messages::NomDeJournalRefuse(nom), nom);
    }
    return common::Joint(cheminMedecin, nom);
}

void TientJournal(const QString& chemin, const QString& ligne)
{
    QString seule = ligne;
    seule.replace(QLatin1Char('\r'), QLatin1Char(' ')).replace(QLatin1Char('\n'), QLatin1Char(' '));
    common::AjouteAuFichier(chemin, common::VersWindows1252(seule) + outside::kFinDeLigne);
}

} // namespace prescription
