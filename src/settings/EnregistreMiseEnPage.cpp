#include "application/Signaux.h"
#include "common/Erreur.h"
#include "common/Nombres.h"
#include "outside/Boites.h"
#include "settings/FichiersReglages.h"
#include "settings/MiseEnPage.h"
#include "settings/messages.h"
#include "startup/Chemins.h"
#include "startup/GestionMedecins.h"
#include "storage/Bases.h"
#include "storage/Jeu.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace settings {

namespace {

bool TropGrand(const CaseMarge& champ, const SaisieMiseEnPage& saisie)
{
    constexpr double maximum = std::numeric_limits<qint16>::max();
    constexpr double minimum = std::numeric_limits<qint16>::min();
    const double valeur = std::nearbyint(common::Val(saisie.*champ.Texte));
    return valeur < minimum || valeur > maximum;
}

const CaseMarge* PremierTropGrand(const SaisieMiseEnPage& saisie)
{
    const auto champ =
        std::ranges::find_if(CasesMarges(), [&](const CaseMarge& un) { return TropGrand(un, saisie); });
    return champ == CasesMarges().end() ? nullptr : &*champ;
}

void AjouteRangee(storage::Jeu& jeu, int numero, const page::Police& police)
{
    jeu.AddNew();
    const QVariantList champs = {numero,      police.Nom,      police.Taille,
                                 police.Gras, police.Italique, police.Souligne};
    for (int position = 0; position < champs.size(); ++position) {
        jeu.Ecris(position, champs[position]);
    }
    jeu.Update();
}

void EcritMisenpage(storage::Base& ordo, const std::array<page::Police, 2>& polices)
{
    storage::Transaction transaction(ordo);
    storage::Jeu jeu = ordo.Table(QStringLiteral("Misenpage"));
    for (; !jeu.Fin(); jeu.MoveNext()) {
        jeu.Delete();
    }
    AjouteRangee(jeu, 0, polices[0]);
    AjouteRangee(jeu, 1, polices[1]);
    transaction.Valide();
}

/// Runs one stretch of the saving; the message to show when it failed, else empty.
template <typename Etape> QString Echec(QString (*message)(const QString&), Etape&& etape)
{
    try {
        etape();
    } catch (const common::Erreur& erreur) {
        return message(erreur.Phrase());
    }
    return {};
}

/// The three stretches of the saving, up to the first that fails; its message.
QString Ecrit(application::Contexte& contexte, const SaisieMiseEnPage& saisie)
{
    Reglages& reglages = contexte.Reglages;
    const QString& medecin = contexte.Chemins.CheminMedecin;
    QString echec = Echec(messages::MiseEnPageNonEcrite,
                          [&] { EcritMisenpage(contexte.Bases.Ordo(medecin), saisie.Txt); });
    if (!echec.isEmpty()) {
        return echec;
    }
    reglages = ReglagesSaisis(reglages, saisie);
    Q_EMIT contexte.Signaux.ReglagesChanges();
    echec = Echec(messages::MargesNonEcrites, [&] { EcritMarges(reglages.Marges, medecin); });
    return echec.isEmpty() ? Echec(messages::SautsNonEcrits, [&] { EcritOptions(reglages.Options, medecin); })
                           : echec;
}

} // namespace

BilanMiseEnPage EnregistreMiseEnPage(application::Contexte& contexte, const SaisieMiseEnPage& saisie)
{
    if (!startup::ExigeMedecin(contexte)) {
        return {};
    }
    outside::Boites& boites = contexte.Dehors.Boites;
    if (const CaseMarge* trop = PremierTropGrand(saisie)) {
        boites.Stop(messages::ValeurTropGrande(trop->Libelle(), saisie.*trop->Texte));
        return {.TropGrand = trop};
    }
    if (const QString echec = Ecrit(contexte, saisie); !echec.isEmpty()) {
        boites.Stop(echec);
        return {};
    }
    boites.Information(messages::MiseEnPageEnregistree());
    return {.Enregistree = true};
}

} // namespace settings
