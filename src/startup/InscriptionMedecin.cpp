#include "startup/InscriptionMedecin.h"

#include "common/Fichiers.h"
#include "common/Texte8.h"
#include "outside/Boites.h"
#include "startup/messages.h"

namespace startup {

using common::Joint;

namespace {

constexpr int kLongueurMaximum = 100; // the journal's name is built on it

/// The local tree is its owner's alone; a shared one is open to the other stations.
void CreeDossierDArbre(const Chemins& chemins, const QString& racine, const QString& dossier)
{
    if (racine == chemins.CheminData) {
        common::CreeDossierPrive(dossier);
    } else {
        common::CreeDossier(dossier);
    }
}

QString SansTrait(QString nom)
{
    return nom.replace(QLatin1Char('-'), QLatin1Char(' ')).trimmed();
}

} // namespace

QString NomEnMajuscules(const QString& saisie)
{
    return saisie.trimmed().toUpper();
}

bool FormatMedecinJuste(const QString& nom)
{
    const QString inscrit = SansTrait(nom);
    return nom.startsWith(QLatin1String("DR ")) && inscrit.size() > 3 && inscrit.size() <= kLongueurMaximum &&
           common::NomDeFichierSur(inscrit) && common::TientEnWindows1252(inscrit);
}

QString NomSansTrait(outside::Boites& boites, const QString& nom)
{
    const QString inscrit = SansTrait(nom);
    if (inscrit != nom) {
        boites.Information(messages::TraitUnion(inscrit));
    }
    return inscrit;
}

QString CreeDossierMedecin(const Chemins& chemins, const QString& racine, const QString& nom,
                           const QString& modele)
{
    const QString dossier = Joint(racine, nom);
    CreeDossierDArbre(chemins, racine, dossier);
    CreeDossierDArbre(chemins, racine, Joint(dossier, QStringLiteral("Logo")));
    const QString ordo = Joint(dossier, QStringLiteral("Ordo.mdb"));
    if (!common::FichierExiste(ordo)) {
        common::CopieFichier(modele, ordo);
    }
    return dossier;
}

QString ModeleOrdo(const Chemins& chemins)
{
    return Joint(Joint(chemins.CheminInstallation, QStringLiteral("BasesInstal")),
                 QStringLiteral("Ordo.mdb"));
}

void AjouteALaListe(Medecins& medecins, const QString& nom, int numero)
{
    medecins.NbMedecins = static_cast<qint16>(numero);
    medecins.Liste.append({nom, numero});
}

} // namespace startup
