#include "settings/LogoOptions.h"

#include "common/Erreur.h"
#include "common/Fichiers.h"
#include "common/Nombres.h"
#include "common/Tolere.h"
#include "outside/Boites.h"
#include "prescription/Editeur.h"
#include "settings/Enregistrement.h"
#include "settings/Reglages.h"
#include "settings/messages.h"
#include "startup/Chemins.h"
#include "startup/GestionMedecins.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <cmath>
#include <utility>

namespace settings {

namespace {

constexpr double kMesureMaximale = 1e9; // what a box can hold; the saving refuses far less

QString EnEntier(double valeur)
{
    return QString::number(
        static_cast<qint64>(std::nearbyint(std::clamp(valeur, -kMesureMaximale, kMesureMaximale))));
}

bool EstUneImage(const QString& chemin)
{
    Options essai;
    essai.FichierLogo = chemin;
    return !prescription::ChargeLogo(essai).isNull();
}

/// Why a file cannot become the logo; empty when it can.
QString Refus(const QString& source, const QString& nom)
{
    if (!common::NomDeFichierSur(nom) || !TientDansEnregistrement(nom)) {
        return messages::NomDImageRefuse(nom);
    }
    return EstUneImage(source) ? QString() : messages::ImageRefusee(common::CheminAffiche(source));
}

/// Where the former picture of a place waits for `CmdOK` or `CmdAnnule`.
QString PlaceEcartee(const QString& place)
{
    return place + QStringLiteral(".avant");
}

/// Keeps the picture of the place, that of before the dialogue and no later one. Throws `Erreur`.
void Ecarte(const QString& place, QStringList& ecartes)
{
    if (common::FichierExiste(place) && !ecartes.contains(place)) {
        common::CopieFichier(place, PlaceEcartee(place));
        ecartes.append(place);
    }
}

/// Copies the file into the directory, never onto itself. Gives its place there. Throws `Erreur`.
QString Range(const QString& source, const QString& dossier, const QString& nom, QStringList& ecartes)
{
    const QString place = common::Joint(dossier, nom);
    if (QFileInfo(source) != QFileInfo(place)) {
        common::CreeDossier(dossier);
        Ecarte(place, ecartes);
        common::CopieFichier(source, place);
    }
    return place;
}

} // namespace

bool ChoisitLogo(application::Contexte& contexte)
{
    if (!startup::ExigeMedecin(contexte)) {
        return false;
    }
    outside::Boites& boites = contexte.Dehors.Boites;
    const auto reponse =
        boites.Ouvre({.Titre = messages::TitreFichierLogo(),
                      .Filtre = QStringLiteral("Images (*.bmp;*.jpg;*.gif)|*.bmp;*.jpg;*.gif"),
                      .Depart = contexte.Chemins.CheminTravail});
    const QString source = QDir::fromNativeSeparators(reponse.value_or(QString()));
    if (source.isEmpty()) {
        return false;
    }
    const QString nom = QFileInfo(source).fileName();
    if (const QString refus = Refus(source, nom); !refus.isEmpty()) {
        boites.Stop(refus);
        return false;
    }
    try {
        contexte.Reglages.Options.FichierLogo =
            Range(source, common::Joint(contexte.Chemins.CheminMedecin, QStringLiteral("Logo")), nom,
                  contexte.Reglages.EnCours.LogosEcartes);
        return true;
    } catch (const common::Erreur& erreur) {
        boites.Stop(messages::LogoNonCopie(erreur.Phrase()));
        return false;
    }
}

void RendLogos(Reglages& reglages)
{
    QStringList& ecartes = reglages.EnCours.LogosEcartes;
    while (!ecartes.isEmpty()) {
        const QString place = ecartes.takeFirst();
        common::DeplaceFichier(PlaceEcartee(place), place);
    }
}

void GardeLogos(Reglages& reglages)
{
    for (const QString& place : std::exchange(reglages.EnCours.LogosEcartes, {})) {
        // What cannot be deleted is only left over.
        common::Tolere([&] { common::SupprimeFichier(PlaceEcartee(place)); });
    }
}

QImage AjusteLogo(application::Contexte& contexte)
{
    const QImage image = prescription::ChargeLogo(contexte.Reglages.Options);
    contexte.Reglages.EnCours.RatioLogo = image.isNull() ? 0 : double(image.width()) / image.height();
    return image;
}

QString LargeurPour(const QString& hauteur, double ratio, const QString& largeur)
{
    if (hauteur.isEmpty()) {
        return {};
    }
    return ratio > 0 ? EnEntier(common::Val(hauteur) * ratio) : largeur;
}

QString HauteurPour(const QString& largeur, double ratio, const QString& hauteur)
{
    if (largeur.isEmpty()) {
        return {};
    }
    return ratio > 0 ? EnEntier(common::Val(largeur) / ratio) : hauteur;
}

} // namespace settings
