#include "medication/Composition.h"

#include "medication/messages.h"

namespace medication {

namespace {

/// Empties and disables the quantities. Each that held one recomposes the sentence as any change does.
void RetireQuantites(Composition& composition, Choix& choix)
{
    for (int i = kMatin; i <= kCoucher; ++i) {
        if (!composition.CboP[size_t(i)].isEmpty()) {
            ChangeCboP(composition, choix, i, QString(), {});
        }
    }
    composition.QuantitesActives = false;
}

/// False when the doctor gave no quantity: the moment chosen is dropped then.
bool PrendQuantite(Composition& composition, Choix& choix, CasPosologie cas, const DemandeDeQuantite& demande)
{
    const QString invite =
        cas == CasPosologie::DemandeBesoin ? messages::QuantiteAuBesoin() : messages::QuantiteAuMomentVoulu();
    const QString reponse = demande(invite).value_or(QString());
    if (reponse.isEmpty()) {
        composition.QuantitesActives = true;
        composition.CboP[kRepas].clear();
        return false;
    }
    choix.TexteQuantite = reponse;
    return true;
}

/// The moments are worded while the quantities are emptied: without a quantity given the text stays that
/// the doctor had.
void Recompose(Composition& composition, Choix& choix, const DemandeDeQuantite& demande)
{
    const int dernier = choix.DernierCboP;
    const QString avant = composition.TxtPoso;
    const CasPosologie cas = CasDe(composition.CboP, dernier);
    if (cas == CasPosologie::Moments) {
        composition.QuantitesActives = true;
    } else {
        RetireQuantites(composition, choix);
    }
    if (DemandeQuantite(cas) && !PrendQuantite(composition, choix, cas, demande)) {
        composition.TxtPoso = avant;
        return;
    }
    composition.TxtPoso = EcritPoso(composition.CboP, dernier, choix.TexteQuantite);
}

} // namespace

Composition CommencePosologie(const QString& txtPoso)
{
    Composition composition;
    composition.TxtPoso = txtPoso;
    return composition;
}

void ChangeCboP(Composition& composition, Choix& choix, int indice, const QString& texte,
                const DemandeDeQuantite& demande)
{
    composition.CboP[size_t(indice)] = texte;
    choix.DernierCboP = static_cast<qint16>(indice);
    Recompose(composition, choix, demande);
}

} // namespace medication
