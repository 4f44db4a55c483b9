#include "prescription/ChoixMemo.h"

#include "application/Signaux.h"
#include "outside/Boites.h"
#include "prescription/ListeMemo.h"
#include "prescription/messagesMemoire.h"
#include "startup/Chemins.h"
#include "storage/Bases.h"

namespace prescription {

namespace {

constexpr int kBlancsRelue = 300;

void AjouteRelue(Ordonnance& ordonnance, const LigneMemorisee& relue)
{
    const bool une = relue.Zone == 1;
    QList<Entree>& entrees = une ? ordonnance.OrdoZone1 : ordonnance.OrdoZone2;
    LignesZone& lignes = une ? ordonnance.LstChoix1 : ordonnance.LstChoix2;
    const QString identifiant = relue.IdProduit.isEmpty() ? QStringLiteral("1") : relue.IdProduit;
    entrees.append({relue.TitreLigne, relue.Posologie});
    lignes.Ajoute(
        {TexteDeLigne(relue.TitreLigne, kBlancsRelue, identifiant), static_cast<int>(entrees.size()) - 1});
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
    QList<LigneMemorisee> lignes;
    if (ordonnance.CleMemo) {
        lignes = LitMemorisee(contexte.Bases.Medoc(contexte.Chemins.CheminTravail), *ordonnance.CleMemo);
    }
    ordonnance.ChkALD = ald;
    ordonnance.CodesMemo.clear();
    for (const LigneMemorisee& ligne : std::as_const(lignes)) {
        AjouteRelue(ordonnance, ligne);
        ordonnance.CodesMemo += u'*' + ligne.Converti;
    }
    ordonnance.OrdoMemorisee = 1;
    Q_EMIT contexte.Signaux.MemoireChange();
}

bool SupprimeMemo(application::Contexte& contexte, ListeMemo& liste, int rang)
{
    const QString& titre = contexte.Ordonnance.TitreMemo;
    if (!contexte.Dehors.Boites.Question(messages::SupprimerMemo(titre), outside::Bouton::Non)) {
        return false;
    }
    const std::optional<CleMemo> cle = liste.Cle(rang);
    if (cle) {
        SupprimeMemorisee(contexte.Bases.Medoc(contexte.Chemins.CheminTravail), *cle);
        liste.Retire(rang);
    }
    return cle.has_value();
}

} // namespace prescription
