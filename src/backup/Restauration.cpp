#include "backup/Restauration.h"

#include "backup/VerrouArbre.h"
#include "backup/messages.h"
#include "common/Erreur.h"
#include "common/Fichiers.h"
#include "common/Tolere.h"
#include "storage/Archive.h"
#include "storage/Base.h"
#include "storage/EnteteJet.h"
#include "storage/Verification.h"

#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>
#include <algorithm>

namespace backup {

using common::Joint;

namespace {

/// Stands in the tree from the first file put back to the last.
constexpr QLatin1String kEnCours("Restauration.sqlar");
constexpr QLatin1String kPrete("Restauration.tmp");

bool EstUnNomSur(const QString& nom)
{
    return std::ranges::all_of(nom.split(u'/'),
                               [](const QString& partie) { return common::NomDeFichierSur(partie); });
}

enum class Nature { Base, Jet, Autre };

/// A Jet file is converted where it is opened.
Nature NatureDe(const QString& nom, const QByteArray& contenu)
{
    constexpr qsizetype kEntete = 256;
    if (!nom.endsWith(QLatin1String(".mdb"), Qt::CaseInsensitive)) {
        return Nature::Autre;
    }
    if (contenu.startsWith("SQLite format 3")) {
        return Nature::Base;
    }
    const auto format =
        storage::FormatDeLEntete(contenu.first(std::min(kEntete, contenu.size())), contenu.size());
    return format == storage::FormatJet::Aucun ? Nature::Autre : Nature::Jet;
}

storage::GenreBase GenreDe(const QString& nom)
{
    const bool partagee = nom.section(u'/', -1).contains(QLatin1String("Medoc"), Qt::CaseInsensitive);
    return partagee ? storage::GenreBase::Medoc : storage::GenreBase::Ordo;
}

/// `atelier`: a directory of the practice's own, for what is opened are patients.
void VerifieBase(const QString& nom, const QByteArray& contenu, const QString& atelier)
{
    const QString copie = Joint(atelier, nom.section(u'/', -1));
    common::EcritFichier(copie, contenu);
    {
        storage::Base base(copie, GenreDe(nom), storage::Disposition::Telle);
        storage::VerifieEnEntier(base);
    }
    common::SupprimeFichier(copie);
}

/// Reads the whole copy, so that nothing of it fails on the way.
void VerifieCopie(const QString& chemin, const QString& atelier)
{
    const storage::Archive archive(chemin, storage::Archive::Mode::Lecture);
    bool base = false;
    for (const QString& nom : archive.Noms()) {
        if (!EstUnNomSur(nom)) {
            throw common::Erreur(messages::CopieEtrangere(chemin), common::CheminAffiche(chemin));
        }
        const QByteArray contenu = archive.Lit(nom);
        const Nature nature = NatureDe(nom, contenu);
        base = base || nature != Nature::Autre;
        if (nature == Nature::Base) {
            VerifieBase(nom, contenu, atelier);
        }
    }
    if (!base) {
        throw common::Erreur(messages::CopieEtrangere(chemin), common::CheminAffiche(chemin));
    }
}

/// Throws `Erreur` when somebody is at work in a database of the tree.
void ExigeLibres(const QString& arbre, const QString& copie)
{
    const storage::Archive archive(copie, storage::Archive::Mode::Lecture);
    for (const QString& nom : archive.Noms()) {
        storage::ExigeLibre(arbre + u'/' + nom);
    }
}

void Remet(const QString& chemin, const QByteArray& contenu)
{
    common::CreeDossierPrive(QFileInfo(chemin).path());
    // A journal left by the former database would be played into this one.
    common::SupprimeFichier(chemin + QStringLiteral("-journal"));
    common::EcritFichier(chemin, contenu);
}

/// With the lock in hand.
void RemetTout(const QString& arbre)
{
    const QString enCours = Joint(arbre, kEnCours);
    {
        const storage::Archive archive(enCours, storage::Archive::Mode::Lecture);
        for (const QString& nom : archive.Noms()) {
            const QString chemin = arbre + u'/' + nom;
            const bool journal = nom.endsWith(QLatin1String(".log"));
            if (EstUnNomSur(nom) && !(journal && common::FichierExiste(chemin))) {
                Remet(chemin, archive.Lit(nom));
            }
        }
    }
    common::SupprimeFichier(enCours);
}

/// Lays the copy that is to be put back beside the tree, and one of the tree as it stands.
void Apprete(const Lieu& lieu, const Sauvegarde& sauvegarde, const QDateTime& moment)
{
    common::CreeDossierPrive(lieu.Dossier);
    const QTemporaryDir atelier(Joint(lieu.Dossier, QStringLiteral("XXXXXX.tmp")));
    if (!atelier.isValid()) {
        throw common::Erreur(messages::DossierRefuse(lieu.Dossier), common::CheminAffiche(lieu.Dossier));
    }
    // At hand before the oldest copy makes room.
    const QString prete = Joint(lieu.Arbre, kPrete);
    try {
        common::CopieFichier(sauvegarde.Chemin, prete);
        VerifieCopie(prete, atelier.path());
        ExigeLibres(lieu.Arbre, prete);
        SauveAvantRestauration(lieu, moment);
    } catch (...) {
        common::Tolere([&] { common::SupprimeFichier(prete); }); // the next start removes it
        throw;
    }
}

} // namespace

void Restaure(const Lieu& lieu, const Sauvegarde& sauvegarde, const QDateTime& moment)
{
    const VerrouArbre verrou(lieu.Arbre);
    verrou.Exige();
    Apprete(lieu, sauvegarde, moment);
    common::MetEnPlace(Joint(lieu.Arbre, kPrete), Joint(lieu.Arbre, kEnCours));
    RemetTout(lieu.Arbre);
}

bool RestaurationEnCours(const QString& arbre)
{
    return common::FichierExiste(Joint(arbre, kEnCours));
}

bool FinitRestauration(const QString& arbre)
{
    const QString prete = Joint(arbre, kPrete);
    if (!RestaurationEnCours(arbre) && !common::FichierExiste(prete)) {
        return false;
    }
    const VerrouArbre verrou(arbre);
    verrou.Exige();
    common::Tolere([&] { common::SupprimeFichier(prete); }); // a draft that stays hurts nobody
    const bool coupee = RestaurationEnCours(arbre);
    if (coupee) {
        RemetTout(arbre);
    }
    return coupee;
}

} // namespace backup
