#include "common/Lignes.h"
#include "common/Nombres.h"
#include "page/FlotCertificat.h"
#include "page/Macros.h"
#include "page/Peintres.h"

#include <algorithm>
#include <array>

namespace page {

namespace {

constexpr double kSautMinimal = 1; // millimetres
constexpr double kSautMaximal = 297;

bool EstTitreDeZone(const QString& ligne)
{
    static const std::array signes{
        QStringLiteral("affection de longue durée"), QStringLiteral("______________________"),
        QStringLiteral("AFFECTION* EXONERANTE"), QStringLiteral("MALADIES* INTERCURRENTES")};
    return std::ranges::any_of(signes, [&](const QString& signe) { return ligne.contains(signe); });
}

// Compared letter by letter, as the box holds it: a height of "10" is below "2".
double SautDeLigne(QString& hauteur)
{
    if (hauteur.isEmpty()) {
        hauteur = QStringLiteral("0");
    }
    if (hauteur <= QLatin1String("2")) {
        return kSautMinimal;
    }
    QString nombre = hauteur;
    nombre.replace(QLatin1Char('.'), QLatin1Char(','));
    return std::clamp(common::NombreAVirgule(nombre).value_or(kSautMinimal), 0.0, kSautMaximal);
}

void PoseOrigine(Surface& cible, const settings::Marges& marges, double decalage)
{
    cible.ScaleMode(Echelle::Millimetres);
    cible.ForeColor(kNoir);
    const double haut = marges.MargeHauteOrdo;
    cible.CurrentY(cible.Genre() == Cible::Imprimante ? haut : haut / 2);
    cible.ScaleLeft(-marges.MargeGaucheOrdo - decalage);
    cible.ScaleTop(-marges.MargeHauteEntete);
    cible.CurrentX(0);
}

void PeintLigne(FlotCertificat& flot, const QString& ligne, const Modele& modele)
{
    if (ligne.isEmpty()) {
        return;
    }
    for (Mot& mot : MotsPosologie(ligne)) {
        mot.Mesure = AvecMacros(mot.Imprime(), modele.Patient, modele.Reglages.Look.NomSignature);
        flot.Ecrit(mot);
    }
}

} // namespace

void PeintCertificat(Surface& cible, Modele& modele, const TexteCertificat& certificat,
                     outside::Boites& boites)
{
    if (certificat.Certificat.IdentiteCertif == 1) {
        PeintPatient(cible, modele, boites);
    }
    const double decalage = certificat.Certificat.DecalageCertif;
    const settings::Marges& marges = modele.Reglages.Marges;
    PoseOrigine(cible, marges, decalage);
    cible.DebuteCorps();
    for (const QString& ligne : common::LignesDeTexte(certificat.Texte)) {
        const page::Police& police =
            EstTitreDeZone(ligne) ? certificat.Certificat.TxtCert : modele.Reglages.Look.Certif;
        FlotCertificat flot(cible, police, marges.LongueurLigne - decalage, modele.Patient.AdressePatient);
        PeintLigne(flot, ligne, modele);
        flot.Termine(SautDeLigne(certificat.TxtSLP));
    }
    cible.TermineCorps();
}

} // namespace page
