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

/// Names a line that the bank is not asked about, since its code would mean another product or none; empty
/// for any other.
QString NonVerifiee(const prescription::Ligne& ligne, const drugbank::AccesBanque& acces)
{
    const QString titre = prescription::TitreDeLigne(ligne.Texte);
    if (!prescription::CodeAncien(ligne).isEmpty()) {
        return messages::LigneNonVerifiee(titre);
    }
    bool entier = false;
    const qint32 produit = prescription::IdentifiantDeLigne(ligne.Texte).toInt(&entier);
    const bool aucun = !entier || produit == 0 || produit == 1;
    return aucun || acces.EstDIci(produit) ? QString() : messages::LigneDUneAutreBanque(titre);
}

struct Question
{
    QStringList Identifiants; ///< row by row; empty for one that is not asked about
    QString NonVerifiees;
};

Question PoseQuestion(const QList<prescription::Ligne>& lignes, const drugbank::AccesBanque& acces)
{
    Question question;
    for (const prescription::Ligne& ligne : lignes) {
        const QString reserve = NonVerifiee(ligne, acces);
        question.NonVerifiees += reserve;
        question.Identifiants.append(reserve.isEmpty() ? prescription::IdentifiantDeLigne(ligne.Texte)
                                                       : QString());
    }
    return question;
}

} // namespace

void CalculeInteractions(application::Contexte& contexte)
{
    drugbank::Banque& banque = contexte.Banque;
    banque.RapportInteractions.clear();
    banque.InteractionsNonVerifiees = !drugbank::BanqueRepond(banque);
    const std::shared_ptr<drugbank::AccesBanque> acces =
        banque.Acces; // a library may let the closing through
    if (!acces) {
        return;
    }
    const Question question = PoseQuestion(LignesEnMain(contexte.Ordonnance), *acces);
    banque.RapportInteractions =
        acces->Interactions(drugbank::ProduitsPrescrits(question.Identifiants), banque.NiveauInteraction);
    if (!banque.InteractionsNonVerifiees) {
        banque.RapportInteractions += question.NonVerifiees;
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
