#include "settings/SaisieOptions.h"

#include "application/Signaux.h"
#include "common/Nombres.h"
#include "drugbank/Banque.h"
#include "medication/Choix.h"
#include "prescription/Apercu.h"
#include "prescription/Editeur.h"
#include "settings/FichiersReglages.h"
#include "settings/LogoOptions.h"
#include "settings/messages.h"
#include "startup/Chemins.h"

#include <cmath>
#include <limits>

namespace settings {

namespace {

enum Onglets { kImprimantes = 3, kPharmacies = 4, kLogo = 6, kDuplicata = 7 };

/// The whole number of a box; nothing when it does not fit 16 bits. An empty box is 0.
std::optional<qint16> Millimetres(const QString& texte)
{
    const double valeur = std::nearbyint(common::Val(texte));
    if (valeur < std::numeric_limits<qint16>::min() || valeur > std::numeric_limits<qint16>::max()) {
        return std::nullopt;
    }
    return static_cast<qint16>(valeur);
}

std::optional<RefusOptions> RefusDuLogo(const SaisieOptions& saisie)
{
    using outside::Genre;
    if (!saisie.ChkLog) {
        return std::nullopt;
    }
    if (!saisie.AvecImage) {
        return RefusOptions{Genre::Exclamation, messages::PasDeFichierLogo(), kLogo,
                            QStringLiteral("CmdChemin")};
    }
    if (common::Val(saisie.TxtH) < 1 || common::Val(saisie.TxtL) < 1) {
        return RefusOptions{Genre::Exclamation, messages::PasDeTailleLogo(), kLogo, QStringLiteral("TxtH")};
    }
    return std::nullopt;
}

std::optional<RefusOptions> RefusDesMesures(const SaisieOptions& saisie)
{
    struct Boite
    {
        const char* Nom;
        const QString& Texte;
        int Onglet;
    };
    const Boite boites[] = {{"TxtH", saisie.TxtH, kLogo},
                            {"TxtL", saisie.TxtL, kLogo},
                            {"TxtX", saisie.TxtX, kLogo},
                            {"TxtY", saisie.TxtY, kLogo},
                            {"TxtDupX", saisie.TxtDupX, kDuplicata},
                            {"TxtDupY", saisie.TxtDupY, kDuplicata}};
    for (const Boite& boite : boites) {
        if (!Millimetres(boite.Texte)) {
            return RefusOptions{outside::Genre::Exclamation, messages::MesureRefusee(boite.Texte),
                                boite.Onglet, QLatin1String(boite.Nom)};
        }
    }
    return std::nullopt;
}

void CopieLogo(const SaisieOptions& saisie, Options& options)
{
    options.LogoActif = saisie.ChkLog ? 1 : 0;
    options.LogoHauteur = Millimetres(saisie.TxtH).value_or(0);
    options.LogoLargeur = Millimetres(saisie.TxtL).value_or(0);
    options.LogoX = Millimetres(saisie.TxtX).value_or(0);
    options.LogoY = Millimetres(saisie.TxtY).value_or(0);
}

void CopieDupli(const SaisieOptions& saisie, Dupli& dupli)
{
    dupli.DupliActif = saisie.ChkDup ? 1 : 0;
    if (!saisie.ChkDup) {
        return; // the controls are empty: word, look and place wait for the mark to come back
    }
    dupli.DupliTexte = saisie.LblDup;
    dupli.DupliPolice = saisie.PoliceDupli.Nom;
    dupli.DupliTaille = static_cast<qint16>(std::nearbyint(saisie.PoliceDupli.Taille));
    dupli.DupliGras = saisie.PoliceDupli.Gras ? 1 : 0;
    dupli.DupliItalique = saisie.PoliceDupli.Italique ? 1 : 0;
    dupli.DupliCouleur = static_cast<qint32>(saisie.CouleurDupli);
    if (!saisie.TxtDupX.isEmpty()) {
        dupli.DupliX = Millimetres(saisie.TxtDupX).value_or(dupli.DupliX);
    }
    if (!saisie.TxtDupY.isEmpty()) {
        dupli.DupliY = Millimetres(saisie.TxtDupY).value_or(dupli.DupliY);
    }
}

void CopieSaisie(const SaisieOptions& saisie, Reglages& reglages)
{
    Options& options = reglages.Options;
    options.ReduitLancement = saisie.ReduitLancement ? 1 : 0;
    options.MinimiseImpression = saisie.MinimiseImpression ? 1 : 0;
    options.Imprimante = saisie.Imprimante;
    options.ReliefMedUtilises = saisie.ReliefMedUtilises ? 1 : 0;
    CopieLogo(saisie, options);
    CopieDupli(saisie, reglages.Dupli);
}

void EcritFichiers(application::Contexte& contexte)
{
    const QString& chemin = contexte.Chemins.CheminMedecin;
    if (!chemin.isEmpty()) {
        EcritBaseCfg(contexte.Banque, chemin);
        EcritOptions(contexte.Reglages.Options, chemin);
        EcritDupli(contexte.Reglages.Dupli, chemin);
    }
}

void MontreReglages(application::Contexte& contexte)
{
    const bool avecMedecin = !contexte.Chemins.CheminMedecin.isEmpty();
    Q_EMIT contexte.Signaux.ReglagesChanges();
    if (contexte.Apercu.ModeApercu != 0) {
        contexte.Apercu.ModeApercu = 1;
        prescription::Repeint(contexte);
    } else if (avecMedecin) {
        prescription::Repeint(contexte);
    } else {
        prescription::EffaceApercu(contexte);
    }
    if (avecMedecin) {
        Q_EMIT contexte.Signaux.FaceChange();
    } else {
        Q_EMIT contexte.Signaux.FaceSansMedecin();
    }
}

} // namespace

std::optional<RefusOptions> RefusDeLaSaisie(const SaisieOptions& saisie)
{
    using outside::Genre;
    if (!saisie.BaseChoisie) {
        return RefusOptions{Genre::Exclamation, messages::PasDeBase(), kPharmacies,
                            QStringLiteral("OptB(0)")};
    }
    if (saisie.Imprimante.isEmpty()) {
        return RefusOptions{Genre::Stop, messages::PasDImprimante(), kImprimantes,
                            QStringLiteral("CboPrint")};
    }
    if (auto refus = RefusDuLogo(saisie)) {
        return refus;
    }
    return RefusDesMesures(saisie);
}

void EnregistreOptions(application::Contexte& contexte, const SaisieOptions& saisie)
{
    CopieSaisie(saisie, contexte.Reglages);
    if (contexte.Banque.TypeBase != contexte.Reglages.EnCours.BaseInitiale) {
        contexte.Choix.BaseChangee = 1;
    }
    EcritFichiers(contexte);
    GardeLogos(contexte.Reglages);
    MontreReglages(contexte);
}

} // namespace settings
