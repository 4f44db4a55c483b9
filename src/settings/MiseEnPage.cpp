#include "settings/MiseEnPage.h"

#include "application/Signaux.h"
#include "common/Nombres.h"
#include "common/Tolere.h"
#include "outside/Boites.h"
#include "settings/FichiersReglages.h"
#include "settings/HauteurSaut.h"
#include "settings/messages.h"
#include "startup/Chemins.h"
#include "storage/Bases.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace settings {

namespace {

template <typename Nombre> void LitVariable(Nombre& variable, const QString& texte)
{
    constexpr double minimum = std::numeric_limits<Nombre>::lowest();
    constexpr double maximum = std::numeric_limits<Nombre>::max();
    const double valeur = LitMarge(texte, variable);
    variable = static_cast<Nombre>(
        std::clamp(std::is_integral_v<Nombre> ? std::nearbyint(valeur) : valeur, minimum, maximum));
}

QString Lettres(const page::Police& police, const QString& entre)
{
    const auto lettre = [](bool oui, QChar signe) { return oui ? QString(signe) : QString(); };
    return lettre(police.Gras, u'G') + entre + lettre(police.Italique, u'I') + entre +
           lettre(police.Souligne, u'U');
}

} // namespace

QString CaseMarge::Libelle() const
{
    return QString::fromUtf16(Legende).remove(QLatin1Char('&'));
}

const ListeCasesMarge& CasesMarges()
{
    using S = SaisieMiseEnPage;
    static constexpr ListeCasesMarge champs = {
        {{"TxtM", u"Marge &gauche prescriptions", &S::TxtM, &Marges::MargeGaucheOrdo},
         {"TxtL", u"&Longueur maximum d'une ligne", &S::TxtL, &Marges::LongueurLigne},
         {"TxtE", u"Marge haute impression &patient", &S::TxtE, &Marges::MargeHautePatient},
         {"TxtG", u"Marge gauche &impression patient", &S::TxtG, &Marges::MargeGauchePatient},
         {"TxtHD", u"Marge haute impression date du &jour", &S::TxtHD, &Marges::MargeHauteDate},
         {"TxtGD", u"Marge gauche impression &date du jour", &S::TxtGD, &Marges::MargeGaucheDate},
         {"TxtHddn", u"M&arge haute impression date date de naissance", &S::TxtHddn, &Marges::MargeHauteDDN},
         {"TxtGddn", u"Marge gauche impression date de naissan&ce", &S::TxtGddn, &Marges::MargeGaucheDDN}}};
    return champs;
}

SaisieMiseEnPage ChargeMiseEnPage(const application::Contexte& contexte)
{
    SaisieMiseEnPage saisie;
    const Reglages& reglages = contexte.Reglages;
    saisie.Txt = {reglages.Look.Titre, reglages.Look.Poso};
    if (contexte.Chemins.CheminMedecin.isEmpty()) {
        return saisie;
    }
    for (const CaseMarge& champ : CasesMarges()) {
        std::visit([&](auto variable) { saisie.*champ.Texte = TexteMesure(reglages.Marges.*variable); },
                   champ.Variable);
    }
    saisie.CboInt = QString::number(reglages.Options.SautsPrescription);
    saisie.CboM = TexteMesure(reglages.Marges.MargeHauteOrdo);
    saisie.ChkS = reglages.Options.SautTitrePoso == 1;
    saisie.ChKSLP = reglages.Options.SautPersonnalise == 1;
    saisie.TxtSLP = reglages.TxtSLP;
    return saisie;
}

double LitMarge(const QString& texte, double variable)
{
    return texte == TexteMesure(static_cast<float>(variable)) ? variable : common::Val(texte);
}

Reglages ReglagesSaisis(const Reglages& reglages, const SaisieMiseEnPage& saisie)
{
    Reglages saisis = reglages;
    for (const CaseMarge& champ : CasesMarges()) {
        std::visit([&](auto variable) { LitVariable(saisis.Marges.*variable, saisie.*champ.Texte); },
                   champ.Variable);
    }
    LitVariable(saisis.Options.SautsPrescription, saisie.CboInt);
    LitVariable(saisis.Marges.MargeHauteOrdo, saisie.CboM);
    saisis.Options.SautTitrePoso = saisie.ChkS ? 1 : 0;
    saisis.Options.SautPersonnalise = saisie.ChKSLP ? 1 : 0;
    if (const auto hauteur = LitHauteurSaut(saisie.TxtSLP); saisie.ChKSLP && hauteur) {
        saisis.Marges.HauteurSaut = *hauteur;
    }
    saisis.Look.Titre = saisie.Txt[0];
    saisis.Look.Poso = saisie.Txt[1];
    return saisis;
}

Reglages ReglagesStockes(application::Contexte& contexte)
{
    Reglages stockes = contexte.Reglages;
    const QString& medecin = contexte.Chemins.CheminMedecin;
    ChargeReglages(stockes, medecin);
    // Without them the fonts count as stored: a database that fails is told of when it is written.
    common::Tolere([&] { ChargeLook(stockes.Look, contexte.Bases.Ordo(medecin)); });
    return stockes;
}

bool MiseEnPageModifiee(const Reglages& stockes, const SaisieMiseEnPage& saisie)
{
    const Reglages saisis = ReglagesSaisis(stockes, saisie);
    return !(saisis.Options == stockes.Options && saisis.Marges == stockes.Marges &&
             saisis.Look == stockes.Look);
}

void ChangeSautPersonnalise(application::Contexte& contexte, bool coche)
{
    Reglages& reglages = contexte.Reglages;
    reglages.Options.SautPersonnalise = coche ? 1 : 0;
    if (reglages.ConfOrdoActive != 1) {
        return;
    }
    if (coche && !DemandeHauteurSaut(reglages, contexte.Dehors.Boites)) {
        reglages.Options.SautPersonnalise = 0;
    }
    reglages.TxtSLP = TexteSautPersonnalise(reglages);
    Q_EMIT contexte.Signaux.ReglagesChanges();
}

bool QuitteTxtSLP(application::Contexte& contexte, const QString& texte)
{
    Reglages& reglages = contexte.Reglages;
    if (texte.isEmpty()) {
        reglages.TxtSLP.clear();
        if (reglages.Options.SautPersonnalise == 1) {
            contexte.Dehors.Boites.Exclamation(messages::HauteurOubliee());
        }
        return reglages.Options.SautPersonnalise != 1;
    }
    if (texte == reglages.TxtSLP) {
        return true;
    }
    const auto hauteur = LitHauteurSaut(texte);
    reglages.TxtSLP = hauteur ? AVirgule(texte) : TexteSautPersonnalise(reglages);
    if (!hauteur) {
        contexte.Dehors.Boites.Information(messages::HauteurRefusee(texte));
        return false;
    }
    reglages.Marges.HauteurSaut = *hauteur;
    return true;
}

void ChoisitMargeHaute(application::Contexte& contexte, const QString& texte)
{
    LitVariable(contexte.Reglages.Marges.MargeHauteOrdo, texte);
}

QString DecritPolice(const page::Police& police)
{
    return police.Nom + QLatin1Char('(') + Lettres(police, {}) + QLatin1Char(')');
}

QString DecritPoliceChoisie(const page::Police& police)
{
    const QString entre = QStringLiteral("  ");
    return police.Nom + entre + QLatin1Char('(') + TexteMesure(police.Taille) + entre +
           Lettres(police, entre) + QLatin1Char(')');
}

} // namespace settings
