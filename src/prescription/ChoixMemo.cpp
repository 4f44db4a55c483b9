#include "prescription/ChoixMemo.h"

#include "application/Signaux.h"
#include "common/Erreur.h"
#include "outside/Boites.h"
#include "prescription/ListeMemo.h"
#include "prescription/messages.h"
#include "startup/Chemins.h"
#include "storage/Base.h"
#include "storage/Bases.h"

#include <algorithm>

namespace prescription {

namespace {

constexpr int kBlancsRelue = 300;

void AjouteRelues(QList<Entree>& entrees, LignesZone& lignes, const QList<LigneMemorisee>& relues, int zone)
{
    QList<Ligne> rangees;
    rangees.reserve(relues.size());
    for (const LigneMemorisee& relue : relues) {
        if (relue.Zone == zone) {
            rangees.append({TexteDeLigne(relue.TitreLigne, kBlancsRelue, QString::number(relue.IdProduit)),
                            static_cast<int>(entrees.size()), relue.EstUnCode});
            entrees.append({relue.TitreLigne, relue.Posologie});
        }
    }
    lignes.AjouteToutes(rangees);
}

QList<LigneMemorisee> LignesChoisies(application::Contexte& contexte)
{
    const std::optional<CleMemo>& cle = contexte.Ordonnance.CleMemo;
    if (!cle) {
        return {};
    }
    storage::Base& medoc = contexte.Bases.Medoc(contexte.Chemins.CheminTravail);
    QList<LigneMemorisee> lignes = LitMemorisee(medoc, *cle);
    if (lignes.isEmpty() && !EstMemorisee(medoc, *cle)) {
        throw common::Erreur(messages::MemoDisparue(cle->Titre), medoc.Chemin());
    }
    return lignes;
}

} // namespace

MemoEnMain RetientMemo(const Ordonnance& ordonnance)
{
    return {ordonnance.TitreMemo, ordonnance.CleMemo};
}

void RendMemo(Ordonnance& ordonnance, const MemoEnMain& avant)
{
    if (ordonnance.OrdoMemorisee == 1) {
        ordonnance.TitreMemo = avant.TitreMemo;
        ordonnance.CleMemo = avant.CleMemo;
    }
}

QString TitreDuPatient(QString patient)
{
    patient.replace(QStringLiteral("Monsieur"), QStringLiteral("M."))
        .replace(QStringLiteral("Madame"), QStringLiteral("Mme"))
        .replace(QStringLiteral("Mademoiselle"), QStringLiteral("Mlle"))
        .replace(QStringLiteral("Enfant"), QStringLiteral("Enf"));
    return QStringLiteral("Ordonnances pour ") + patient;
}

void ChoisitMemo(Ordonnance& ordonnance, const ListeMemo& liste, int rang)
{
    if (rang >= 0 && rang < liste.rowCount()) {
        ordonnance.TitreMemo = liste.TitreChoisi(rang);
        ordonnance.CleMemo = liste.Cle(rang);
    }
}

void ChargeMemo(application::Contexte& contexte, quint8 ald)
{
    Ordonnance& ordonnance = contexte.Ordonnance;
    const QList<LigneMemorisee> lignes = LignesChoisies(contexte);
    ordonnance.ChkALD = ald;
    ordonnance.AncienFormat = std::ranges::any_of(lignes, &LigneMemorisee::AncienFormat);
    AjouteRelues(ordonnance.OrdoZone1, ordonnance.LstChoix1, lignes, 1);
    AjouteRelues(ordonnance.OrdoZone2, ordonnance.LstChoix2, lignes, 2);
    ordonnance.OrdoMemorisee = 1;
    Q_EMIT contexte.Signaux.MemoireChange();
}

bool SupprimeMemo(application::Contexte& contexte, ListeMemo& liste, int rang, const MemoEnMain& enMain)
{
    Ordonnance& ordonnance = contexte.Ordonnance;
    if (!contexte.Dehors.Boites.Question(messages::SupprimerMemo(ordonnance.TitreMemo),
                                         outside::Bouton::Non)) {
        return false;
    }
    const std::optional<CleMemo> cle = liste.Cle(rang);
    if (cle) {
        SupprimeMemorisee(contexte.Bases.Medoc(contexte.Chemins.CheminTravail), *cle);
        liste.Retire(rang);
        if (cle == enMain.CleMemo) {
            ordonnance.OrdoMemorisee = 0;
            Q_EMIT contexte.Signaux.MemoireChange();
        }
    }
    return cle.has_value();
}

} // namespace prescription
