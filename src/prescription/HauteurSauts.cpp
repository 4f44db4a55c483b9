#include "prescription/Editeur.h"

#include "application/Signaux.h"
#include "common/Erreur.h"
#include "common/Nombres.h"
#include "outside/Boites.h"
#include "prescription/messages.h"
#include "settings/FichiersReglages.h"
#include "startup/Chemins.h"
#include "startup/GestionMedecins.h"

namespace prescription {

namespace {

constexpr double kHauteurMaximale = 297; // the sheet

QString AVirgule(QString nombre)
{
    return nombre.replace(QLatin1Char('.'), QLatin1Char(','));
}

std::optional<float> LitHauteur(const QString& reponse)
{
    const auto hauteur = common::NombreAVirgule(AVirgule(reponse));
    if (!hauteur || *hauteur < 0 || *hauteur > kHauteurMaximale) {
        return std::nullopt;
    }
    return static_cast<float>(*hauteur);
}

void EcritReglages(application::Contexte& contexte)
{
    try {
        settings::EcritMarges(contexte.Reglages.Marges, contexte.Chemins.CheminMedecin);
        settings::EcritOptions(contexte.Reglages.Options, contexte.Chemins.CheminMedecin);
    } catch (const common::Erreur& erreur) {
        contexte.Dehors.Boites.Stop(messages::HauteurNonEcrite(erreur.Phrase()));
    }
    Q_EMIT contexte.Signaux.ReglagesChanges();
    Repeint(contexte);
}

} // namespace

void FixeHauteurPersonnelle(application::Contexte& contexte)
{
    if (!startup::ExigeMedecin(contexte)) {
        return;
    }
    settings::Marges& marges = contexte.Reglages.Marges;
    const QString reponse = contexte.Dehors.Boites
                                .Demande({.Invite = messages::InviteHauteur(),
                                          .Valeur = AVirgule(common::TexteSimple(marges.HauteurSaut)),
                                          .Titre = messages::TitreHauteur()})
                                .value_or(QString());
    if (reponse.isEmpty()) {
        return;
    }
    const auto hauteur = LitHauteur(reponse);
    if (!hauteur) {
        contexte.Dehors.Boites.Information(messages::HauteurRefusee(reponse));
        return;
    }
    marges.HauteurSaut = *hauteur;
    contexte.Reglages.Options.SautPersonnalise = 1;
    EcritReglages(contexte);
}

void RetablitHauteurNormale(application::Contexte& contexte)
{
    if (!startup::ExigeMedecin(contexte)) {
        return;
    }
    contexte.Reglages.Options.SautPersonnalise = 0;
    EcritReglages(contexte);
}

} // namespace prescription
