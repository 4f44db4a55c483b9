#include "certificates/Modeles.h"

#include "certificates/Texte.h"
#include "certificates/messages.h"
#include "common/CleDeTri.h"
#include "common/Fichiers.h"
#include "common/Tolere.h"
#include "settings/Enregistrement.h"

#include <QDir>

#include <algorithm>
#include <cmath>

namespace certificates {

namespace {

constexpr QLatin1String kTxt(".txt");
constexpr QLatin1String kCfg(".cfg");
constexpr float kLargeurFeuille = 210; // millimetres: a larger shift is a damaged record

bool FinitPar(const QString& fichier, QLatin1String extension)
{
    return fichier.endsWith(extension, Qt::CaseInsensitive);
}

bool EstTmp(const QString& nom)
{
    return nom.compare(QLatin1String("Tmp"), Qt::CaseInsensitive) == 0;
}

QStringList Fichiers(const QString& cheminTravail)
{
    return QDir(CheminCertificats(cheminTravail)).entryList(QDir::Files, QDir::Name);
}

/// The template's file with that extension as it stands, "NAME.TXT" included.
QString Fichier(const QString& cheminTravail, const QString& nom, QLatin1String extension)
{
    const QString dossier = CheminCertificats(cheminTravail);
    const QString exact = common::Joint(dossier, nom + extension);
    if (common::FichierExiste(exact)) {
        return exact;
    }
    const QStringList fichiers = Fichiers(cheminTravail);
    const auto place = std::ranges::find_if(fichiers, [&](const QString& fichier) {
        return FinitPar(fichier, extension) && fichier.chopped(extension.size()) == nom;
    });
    return place == fichiers.end() ? exact : common::Joint(dossier, *place);
}

void LitMiseEnPage(const QString& chemin, Certificat& certificat)
{
    auto decalage = static_cast<float>(certificat.DecalageCertif);
    settings::LitEnregistrement(chemin, std::tie(decalage, certificat.CertifALD));
    if (std::abs(decalage) < kLargeurFeuille) {
        certificat.DecalageCertif = decalage;
    }
}

void EcritMiseEnPage(const QString& chemin, const Certificat& certificat)
{
    auto decalage = static_cast<float>(certificat.DecalageCertif);
    quint8 ald = certificat.CertifALD;
    settings::EcritEnregistrement(chemin, std::tie(decalage, ald));
}

/// Brings the record of before back; the failure that called for it is the one to tell.
void RendMiseEnPage(const QString& chemin, const QByteArray& avant)
{
    common::Tolere([&] {
        if (avant.isNull()) {
            common::SupprimeFichier(chemin);
        } else {
            settings::EcritOctets(chemin, avant);
        }
    });
}

} // namespace

QStringList ListeModeles(const QString& cheminTravail)
{
    QStringList noms;
    for (const QString& fichier : Fichiers(cheminTravail)) {
        const QString nom = fichier.chopped(std::min<qsizetype>(fichier.size(), kTxt.size()));
        if (FinitPar(fichier, kTxt) && !nom.isEmpty() && !EstTmp(nom)) {
            noms.append(nom);
        }
    }
    std::ranges::stable_sort(
        noms, [](const QString& a, const QString& b) { return common::CompareReplie(a, b) < 0; });
    return noms;
}

QString LitModele(const QString& cheminTravail, const QString& nom, Certificat& certificat)
{
    QString texte = LitTexte(Fichier(cheminTravail, nom, kTxt));
    LitMiseEnPage(Fichier(cheminTravail, nom, kCfg), certificat);
    return texte;
}

void EcritModele(const QString& cheminTravail, const QString& nom, const QString& texte,
                 const Certificat& certificat)
{
    common::CreeDossier(CheminCertificats(cheminTravail));
    const QString record = Fichier(cheminTravail, nom, kCfg);
    const QByteArray avant = settings::OctetsEnregistrement(record);
    EcritMiseEnPage(record, certificat);
    try {
        EcritTexte(Fichier(cheminTravail, nom, kTxt), texte);
    } catch (const common::Erreur&) {
        RendMiseEnPage(record, avant);
        throw;
    }
}

void EffaceModele(const QString& cheminTravail, const QString& nom)
{
    common::SupprimeFichier(Fichier(cheminTravail, nom, kTxt));
    common::SupprimeFichier(Fichier(cheminTravail, nom, kCfg));
}

void EcritTmp(const QString& cheminTravail, const QString& texte)
{
    common::CreeDossier(CheminCertificats(cheminTravail));
    EcritTexte(CheminTmp(cheminTravail), texte);
}

NomChoisi LitNomChoisi(const QString& cheminTravail, const QString& chemin)
{
    const QString uni = QString(chemin).replace(u'\\', u'/');
    const qsizetype barre = uni.lastIndexOf(u'/');
    const QString fichier = uni.sliced(barre + 1);
    NomChoisi choix;
    choix.Nom = FinitPar(fichier, kTxt) ? fichier.chopped(kTxt.size()) : fichier;
    const QString dossier = CheminCertificats(cheminTravail);
    if (barre >= 0 && QFileInfo(uni.left(barre + 1)) != QFileInfo(dossier + u'/')) {
        choix.Refus = messages::HorsDuDossier(common::CheminAffiche(dossier));
    } else if (EstTmp(choix.Nom)) {
        choix.Refus = messages::NomReserve(choix.Nom);
    } else if (choix.Nom.trimmed().isEmpty() || choix.Nom.startsWith(u'.') ||
               !common::NomDeFichierSur(choix.Nom + kTxt)) {
        choix.Refus = messages::NomRefuse(choix.Nom);
    }
    return choix;
}

bool ModeleExiste(const QString& cheminTravail, const QString& nom)
{
    return common::FichierExiste(Fichier(cheminTravail, nom, kTxt));
}

} // namespace certificates
