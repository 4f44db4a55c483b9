#include "startup/MedecinIni.h"

#include "common/Fichiers.h"
#include "common/Lignes.h"
#include "common/Nombres.h"
#include "common/Texte8.h"
#include "settings/Enregistrement.h"

#include <algorithm>
#include <limits>

namespace startup {

namespace {

constexpr int kNumeroMaximum = std::numeric_limits<qint16>::max();

QString Chemin(const QString& dossier)
{
    return common::Joint(dossier, QStringLiteral("Medecin.ini"));
}

/// The number of a text that is wholly one in the range, else -1.
int NumeroStrict(const QString& texte)
{
    bool lu = false;
    const int numero = texte.trimmed().toInt(&lu);
    return lu && numero >= 0 && numero <= kNumeroMaximum ? numero : -1;
}

bool EstBinaire(QChar c)
{
    return c < QLatin1Char(' ') && c != QLatin1Char('\t');
}

LigneMedecin AnalyseLigne(const QString& ligne)
{
    const qsizetype trait = ligne.lastIndexOf(QLatin1Char('-'));
    const int numero = trait < 0 ? -1 : NumeroStrict(ligne.mid(trait + 1));
    const QString nom = ligne.left(ligne.indexOf(QLatin1Char('-')));
    if (numero < 0 || !common::NomDeFichierSur(nom)) {
        return {ligne, {}};
    }
    return {ligne, {nom, numero}};
}

/// The first line's number. One that cannot be read becomes the highest number of the lines below.
void LitPremiereLigne(ContenuMedecinIni& contenu, const QString& ligne)
{
    int numero = NumeroStrict(ligne);
    if (numero < 0) {
        contenu.Abime = true;
        const double valeur = common::Val(ligne);
        numero = valeur >= 0 && valeur <= kNumeroMaximum ? static_cast<int>(valeur) : 0;
        for (const LigneMedecin& medecin : contenu.Lignes) {
            numero = std::max(numero, medecin.Lue.Numero);
        }
    }
    contenu.NbMedecins = static_cast<qint16>(numero);
}

bool ContientLigneDe(const QList<Medecin>& liste, const LigneMedecin& ligne)
{
    return ligne.Lisible() && liste.contains(ligne.Lue);
}

QString LigneDe(const ContenuMedecinIni& ancien, const Medecin& medecin)
{
    const auto place = std::ranges::find(ancien.Lignes, medecin, &LigneMedecin::Lue);
    return place != ancien.Lignes.end() ? place->Brute
                                        : medecin.Nom + QLatin1Char('-') + QString::number(medecin.Numero);
}

} // namespace

ContenuMedecinIni AnalyseMedecinIni(const QByteArray& octets)
{
    ContenuMedecinIni contenu;
    QStringList lignes = common::PartiesDeTexte(common::DepuisWindows1252(octets));
    const QString premiere = lignes.takeFirst();
    for (const QString& ligne : lignes) {
        if (!ligne.trimmed().isEmpty()) {
            contenu.Lignes.append(AnalyseLigne(ligne));
        }
    }
    contenu.Abime = std::ranges::any_of(contenu.Lignes, [](const auto& l) { return !l.Lisible(); });
    LitPremiereLigne(contenu, premiere);
    return contenu;
}

QByteArray TexteMedecinIni(int nbMedecins, const QStringList& lignes)
{
    QString texte = QLatin1Char(' ') + QString::number(nbMedecins) + QStringLiteral(" \r\n");
    for (const QString& ligne : lignes) {
        texte += ligne + QStringLiteral("\r\n");
    }
    return common::VersWindows1252(texte);
}

ContenuMedecinIni LitMedecinIni(const QString& dossier)
{
    const QString chemin = Chemin(dossier);
    return common::FichierExiste(chemin) ? AnalyseMedecinIni(common::LitFichier(chemin))
                                         : ContenuMedecinIni{};
}

void EcritMedecinIni(const QString& dossier, int nbMedecins, const QStringList& lignes)
{
    if (LitMedecinIni(dossier).Abime) {
        settings::GardeAbime(Chemin(dossier));
    }
    common::EcritFichier(Chemin(dossier), TexteMedecinIni(nbMedecins, lignes));
}

void EcritListeMedecins(const QString& dossier, const Medecins& medecins)
{
    const ContenuMedecinIni ancien = LitMedecinIni(dossier);
    QStringList lignes;
    for (const Medecin& medecin : medecins.Liste) {
        lignes.append(LigneDe(ancien, medecin));
    }
    for (const LigneMedecin& ligne : ancien.Lignes) {
        if (!ContientLigneDe(medecins.Liste, ligne) && std::ranges::none_of(ligne.Brute, EstBinaire)) {
            lignes.append(ligne.Brute);
        }
    }
    EcritMedecinIni(dossier, DernierNumero(dossier, medecins), lignes);
}

int DernierNumero(const QString& dossier, const Medecins& medecins)
{
    const ContenuMedecinIni fichier = LitMedecinIni(dossier);
    int dernier = std::max(medecins.NbMedecins, fichier.NbMedecins);
    for (const LigneMedecin& ligne : fichier.Lignes) {
        dernier = std::max(dernier, ligne.Lue.Numero);
    }
    return dernier;
}

void RetireDeMedecinIni(const QString& dossier, const Medecin& medecin)
{
    const ContenuMedecinIni ancien = LitMedecinIni(dossier);
    QStringList lignes;
    for (const LigneMedecin& ligne : ancien.Lignes) {
        if (!(ligne.Lue == medecin)) {
            lignes.append(ligne.Brute);
        }
    }
    if (lignes.size() != ancien.Lignes.size()) {
        EcritMedecinIni(dossier, ancien.NbMedecins, lignes);
    }
}

} // namespace startup
