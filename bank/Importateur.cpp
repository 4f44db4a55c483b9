#include "bank/Importateur.h"

#include "bank/Ecriture.h"
#include "bank/Remplissage.h"
#include "bank/Schema.h"
#include "bank/Sources.h"
#include "bank/ThesaurusEcriture.h"
#include "bank/messages.h"
#include "common/Fichiers.h"

#include <QFileInfo>

namespace banque {

namespace {

constexpr int kMoisDeValidite = 12;

void EcritInformation(Ecriture& ecriture, const QDate& date, const QString& nature)
{
    Insertion information = ecriture.Prepare(QStringLiteral("information"));
    information.Ajoute({QStringLiteral("date_donnees"), date.toString(Qt::ISODate)});
    information.Ajoute({QStringLiteral("expiration"), date.addMonths(kMoisDeValidite).toString(Qt::ISODate)});
    information.Ajoute(
        {QStringLiteral("source"),
         QStringLiteral("Base de données publique des médicaments (ANSM, HAS, Assurance Maladie)")});
    information.Ajoute({QStringLiteral("version"), QString::number(kVersionBanque)});
    if (!nature.isEmpty()) {
        information.Ajoute({QStringLiteral("nature"), nature});
    }
}

void LitThesaurus(Ecriture& ecriture, const Demande& demande, Bilan& bilan, const Avancement& avancement)
{
    const auto annonce = [&](qint64 lignes) {
        if (avancement && !avancement(QFileInfo(demande.Interactions).fileName(), lignes, lignes)) {
            throw Interruption(messages::Interrompu(), common::CheminAffiche(demande.Interactions));
        }
    };
    annonce(0);
    const QByteArray texte = common::LitFichier(demande.Interactions);
    const ChiffresThesaurus chiffres = ImporteThesaurus(ecriture.Base(), texte);
    bilan.Interactions = chiffres.Lignes() + chiffres.Desaccords;
    annonce(texte.count('\n'));
}

} // namespace

Bilan Importe(const Demande& demande, const Avancement& avancement)
{
    const Sources sources(demande.Dossier);
    Bilan bilan;
    bilan.Avertissements = sources.Avertissements(demande.Interactions);
    Ecriture ecriture(demande.Vers);
    Remplissage remplissage(ecriture, sources, bilan, avancement);
    remplissage.Tout();
    const QDate date = demande.DateDonnees.isValid() ? demande.DateDonnees : remplissage.DateLaPlusRecente();
    if (!date.isValid()) {
        throw common::Erreur(messages::DateInconnue(), common::CheminAffiche(demande.Dossier));
    }
    EcritInformation(ecriture, date, demande.Nature);
    bilan.DateDonnees = date.toString(Qt::ISODate);
    if (!demande.Interactions.isEmpty()) {
        LitThesaurus(ecriture, demande, bilan, avancement);
    }
    ecriture.Valide(demande.AvantRemplacement);
    return bilan;
}

} // namespace banque
