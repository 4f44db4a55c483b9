#include "medication/Interactions.h"

#include "drugbank/Banque.h"
#include "drugbank/Rapport.h"
#include "medication/messages.h"
#include "prescription/Ordonnance.h"

namespace medication {

namespace {

bool SansContenu(const QString& rapport)
{
    return rapport.isEmpty() || rapport == QLatin1String("\r\n");
}

QList<prescription::Ligne> LignesEnMain(const prescription::Ordonnance& ordonnance)
{
    return ordonnance.LstChoix1.Lignes() + ordonnance.LstChoix2.Lignes();
}

/// What the bank is asked about, row by row; empty for a row without a product.
QStringList Identifiants(const QList<prescription::Ligne>& lignes)
{
    QStringList identifiants;
    for (const prescription::Ligne& ligne : lignes) {
        const bool ancien = !prescription::CodeAncien(ligne).isEmpty();
        identifiants.append(ancien ? QString() : prescription::IdentifiantDeLigne(ligne.Texte));
    }
    return identifiants;
}

QString LignesNonVerifiees(const QList<prescription::Ligne>& lignes)
{
    QString texte;
    for (const prescription::Ligne& ligne : lignes) {
        if (!prescription::CodeAncien(ligne).isEmpty()) {
            texte += messages::LigneNonVerifiee(prescription::TitreDeLigne(ligne.Texte));
        }
    }
    return texte;
}

} // namespace

void CalculeInteractions(application::Contexte& contexte)
{
    drugbank::Banque& banque = contexte.Banque;
    const QList<prescription::Ligne> lignes = LignesEnMain(contexte.Ordonnance);
    banque.RapportInteractions.clear();
    banque.InteractionsNonVerifiees = !drugbank::BanqueRepond(banque);
    if (banque.Acces) {
        banque.RapportInteractions = banque.Acces->Interactions(
            drugbank::ProduitsPrescrits(Identifiants(lignes)), banque.NiveauInteraction);
    }
    if (!banque.InteractionsNonVerifiees) {
        banque.RapportInteractions += LignesNonVerifiees(lignes);
    }
}

bool AInteractions(const drugbank::Banque& banque)
{
    return !SansContenu(banque.RapportInteractions);
}

bool InteractionsARefaire(const drugbank::Banque& banque)
{
    return banque.InteractionsNonVerifiees && drugbank::BanqueRepond(banque);
}

QString TexteInteractions(drugbank::Banque& banque, Clic clic)
{
    if (AInteractions(banque)) {
        return banque.RapportInteractions;
    }
    if (banque.InteractionsNonVerifiees || !drugbank::BanqueRepond(banque)) {
        return messages::InteractionsNonVerifiees();
    }
    banque.RapportInteractions =
        clic == Clic::AniGIFI ? messages::AucuneInteractionImage() : messages::AucuneInteraction();
    return banque.RapportInteractions;
}

} // namespace medication
