#include "settings/HauteurSaut.h"

#include "common/Nombres.h"
#include "settings/messages.h"

namespace settings {

namespace {

constexpr double kHauteurMaximale = 297; // the sheet

} // namespace

QString TexteMesure(float millimetres)
{
    return AVirgule(common::TexteSimple(millimetres));
}

QString AVirgule(QString nombre)
{
    return nombre.replace(QLatin1Char('.'), QLatin1Char(','));
}

std::optional<float> LitHauteurSaut(const QString& texte)
{
    const auto hauteur = common::NombreAVirgule(AVirgule(texte));
    if (!hauteur || *hauteur < 0 || *hauteur > kHauteurMaximale) {
        return std::nullopt;
    }
    return static_cast<float>(*hauteur);
}

QString TexteSautPersonnalise(const Reglages& reglages)
{
    return reglages.Options.SautPersonnalise == 1 ? TexteMesure(reglages.Marges.HauteurSaut) : QString();
}

bool DemandeHauteurSaut(Reglages& reglages, outside::Boites& boites)
{
    const QString reponse = boites
                                .Demande({.Invite = messages::InviteHauteur(),
                                          .Valeur = TexteMesure(reglages.Marges.HauteurSaut),
                                          .Titre = messages::TitreHauteur()})
                                .value_or(QString());
    if (reponse.isEmpty()) {
        return false;
    }
    const auto hauteur = LitHauteurSaut(reponse);
    if (!hauteur) {
        boites.Information(messages::HauteurRefusee(reponse));
        return false;
    }
    reglages.Marges.HauteurSaut = *hauteur;
    reglages.Options.SautPersonnalise = 1;
    reglages.TxtSLP = AVirgule(reponse);
    return true;
}

} // namespace settings
