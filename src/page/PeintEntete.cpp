#include "page/Peintres.h"

#include <cmath>
#include <limits>

namespace page {

namespace {

constexpr int kDerniereAdresse = 9;
constexpr int kPremierPraticien = 10;

constexpr double kHautDuDepart = 1500 / kTwipsParMillimetre; // millimetres
constexpr double kGaucheDuDepart = 400;                      // twips

constexpr quint8 kLogoAGauche = 1;
constexpr quint8 kLogoADroite = 2;

bool AvecLogo(const Modele& modele, quint8 position)
{
    const settings::Options& options = modele.Reglages.Options;
    return options.LogoActif == 1 && options.PositionLogo == position;
}

void PoseLogo(Surface& cible, const Modele& modele, const QImage& logo)
{
    const settings::Options& options = modele.Reglages.Options;
    cible.PaintPicture(logo, options.LogoX, options.LogoY, options.LogoLargeur, options.LogoHauteur);
}

void CommenceImprimante(Surface& cible, const Modele& modele, const QImage& logo)
{
    const settings::Marges& marges = modele.Reglages.Marges;
    cible.ScaleMode(Echelle::Millimetres);
    cible.ScaleLeft(-marges.MargeGaucheEntete);
    cible.ScaleTop(-marges.MargeHauteEntete);
    cible.Print();
    cible.ForeColor(modele.Reglages.Look.CouleurEntete);
    if (AvecLogo(modele, kLogoAGauche)) {
        PoseLogo(cible, modele, logo);
        cible.ScaleLeft(-marges.MargeGaucheEntete - modele.Reglages.Options.LogoLargeur);
    }
    cible.CurrentX(0);
    cible.CurrentY(0);
}

// False without a doctor: the face stays without letterhead.
bool CommenceDepart(Surface& cible, const Modele& modele, const QImage& logo)
{
    cible.Cls();
    PeintFond(cible, 255, 255, 255, 222, 235, 250, 15, 18, true);
    if (!modele.AvecTravail || !modele.AvecMedecin) {
        return false;
    }
    cible.ScaleMode(Echelle::Millimetres);
    cible.ScaleLeft(-1);
    cible.ScaleTop(-kHautDuDepart);
    cible.ForeColor(Rvb(0, 0, 64));
    const bool aGauche = AvecLogo(modele, kLogoAGauche);
    if (aGauche) {
        PoseLogo(cible, modele, logo);
    }
    cible.ScaleMode(Echelle::Twips);
    cible.ScaleLeft(aGauche ? -modele.Reglages.Options.LogoLargeur * kTwipsParMillimetre : -kGaucheDuDepart);
    cible.CurrentX(0);
    cible.CurrentY(1200);
    return true;
}

void CommenceAutre(Surface& cible, const Modele& modele)
{
    cible.Cls();
    cible.ForeColor(modele.Reglages.Look.CouleurEntete);
    cible.CurrentX(0);
    cible.CurrentY(3);
}

bool Commence(Surface& cible, const Modele& modele, const QImage& logo)
{
    cible.Print();
    cible.ForeColor(modele.Reglages.Look.CouleurEntete);
    switch (cible.Genre()) {
    case Cible::Imprimante:
        CommenceImprimante(cible, modele, logo);
        return true;
    case Cible::Depart:
        return CommenceDepart(cible, modele, logo);
    case Cible::Apercu:
    case Cible::Autre:
        break;
    }
    CommenceAutre(cible, modele);
    return true;
}

/// The rows of one letterhead and the right edge of what they printed.
class RangsEntete
{
public:
    explicit RangsEntete(Surface& cible) : cible_(cible) {}

    void Peint(const QList<LigneEntete>& lignes, quint8 mode);
    qint16 BordDroit() const { return bordDroit_; }

private:
    void PeintLigne(const LigneEntete& ligne);
    void EcritTexte(const QString& texte);
    void SauteLignes(const LigneEntete& ligne);

    Surface& cible_;
    qint16 bordDroit_ = 0;
};

void RangsEntete::Peint(const QList<LigneEntete>& lignes, quint8 mode)
{
    if (lignes.isEmpty()) {
        return;
    }
    for (const LigneEntete& ligne : lignes) {
        if (ligne.NumLigne == kBasDePage) {
            break;
        }
        if (mode == 0 || (mode == 1 && ligne.NumLigne >= kPremierPraticien)) {
            PeintLigne(ligne);
        }
    }
    if (mode != 1) {
        return;
    }
    cible_.Print();
    for (const LigneEntete& ligne : lignes) {
        if (ligne.NumLigne >= kPremierPraticien) {
            break;
        }
        PeintLigne(ligne);
    }
}

void RangsEntete::PeintLigne(const LigneEntete& ligne)
{
    const bool suit = ligne.Texte.endsWith(QLatin1Char('*')) || ligne.Texte.endsWith(QLatin1Char('$'));
    if (!suit && !ligne.Nulles[kTexte] && !ligne.Nulles[kEspaces]) {
        cible_.CurrentX(ligne.Espaces);
    }
    cible_.Font(ligne.PoliceApres(cible_.Font()));
    if (ligne.Nulles[kTexte]) {
        return;
    }
    if (ligne.Texte.isEmpty() || ligne.Texte == QLatin1String("*")) {
        SauteLignes(ligne);
    } else {
        EcritTexte(ligne.Texte);
    }
}

void RangsEntete::EcritTexte(const QString& texte)
{
    const bool resteOuverte = texte.endsWith(QLatin1Char('*'));
    const bool avecMarque = resteOuverte || texte.endsWith(QLatin1Char('$'));
    cible_.PrintSuite(texte.chopped(avecMarque ? 1 : 0));
    const double bord = std::nearbyint(cible_.CurrentX());
    if (cible_.CurrentX() > bordDroit_ && bord <= std::numeric_limits<qint16>::max()) {
        bordDroit_ = static_cast<qint16>(bord);
    }
    if (!resteOuverte) {
        cible_.Print();
    }
}

// The last row of the address sets the distance to the block behind it.
void RangsEntete::SauteLignes(const LigneEntete& ligne)
{
    const bool derniere = ligne.NumLigne == kDerniereAdresse;
    if (ligne.Texte.isEmpty() || derniere) {
        cible_.Print();
    }
    if (ligne.Texte.isEmpty() && derniere) {
        cible_.Print();
    }
}

void TermineImprimante(Surface& cible, const Modele& modele, const QImage& logo, qint16 bordDroit)
{
    if (!AvecLogo(modele, kLogoADroite)) {
        return;
    }
    cible.ScaleLeft(-modele.Reglages.Marges.MargeGaucheEntete - bordDroit);
    cible.ScaleTop(-modele.Reglages.Marges.MargeHauteEntete);
    cible.CurrentX(0);
    cible.CurrentY(0);
    PoseLogo(cible, modele, logo);
}

void TermineDepart(Surface& cible, const Modele& modele, const QImage& logo, qint16 bordDroit)
{
    cible.ScaleMode(Echelle::Millimetres);
    cible.ScaleLeft(-bordDroit / kTwipsParMillimetre - kGaucheDuDepart / kTwipsParMillimetre);
    cible.ScaleTop(-kHautDuDepart);
    if (AvecLogo(modele, kLogoADroite)) {
        PoseLogo(cible, modele, logo);
    }
    cible.ScaleMode(Echelle::Twips);
}

} // namespace

void PeintEntete(Surface& cible, const Modele& modele, const QImage& logo)
{
    if (!Commence(cible, modele, logo)) {
        return;
    }
    RangsEntete rangs(cible);
    rangs.Peint(modele.Entete, modele.Reglages.Options.ModeEntete);
    if (cible.Genre() == Cible::Imprimante) {
        TermineImprimante(cible, modele, logo, rangs.BordDroit());
    } else if (cible.Genre() == Cible::Depart) {
        TermineDepart(cible, modele, logo, rangs.BordDroit());
    }
}

} // namespace page
