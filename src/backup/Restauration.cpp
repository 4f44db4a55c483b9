#include "backup/Restauration.h"

#include "backup/messages.h"
#include "common/Erreur.h"
#include "common/Fichiers.h"
#include "common/Tolere.h"
#include "storage/Archive.h"
#include "storage/Base.h"

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

bool EstUneBase(const QString& nom, const QByteArray& contenu)
{
    return nom.endsWith(QLatin1String(".mdb"), Qt::CaseInsensitive) && contenu.startsWith("SQLite format 3");
}

storage::GenreBase GenreDe(const QString& nom)
{
    const bool partagee = nom.section(u'/', -1).contains(QLatin1String("Medoc"), Qt::CaseInsensitive);
    return partagee ? storage::GenreBase::Medoc : storage::GenreBase::Ordo;
}

void VerifieBase(const QString& nom, const QByteArray& contenu)
{
    const QTemporaryDir atelier;
    const QString copie = Joint(atelier.path(), nom.section(u'/', -1));
    common::EcritFichier(copie, contenu);
    const storage::Base base(copie, GenreDe(nom), storage::Disposition::Telle);
}

/// Reads the whole copy, so that nothing of it fails on the way.
void VerifieCopie(const QString& chemin)
{
    const storage::Archive archive(chemin, storage::Archive::Mode::Lecture);
    bool base = false;
    for (const QString& nom : archive.Noms()) {
        if (!EstUnNomSur(nom)) {
            throw common::Erreur(messages::CopieEtrangere(chemin), common::CheminAffiche(chemin));
        }
        const QByteArray contenu = archive.Lit(nom);
        if (EstUneBase(nom, contenu)) {
            VerifieBase(nom, contenu);
            base = true;
        }
    }
    if (!base) {
        throw common::Erreur(messages::CopieEtrangere(chemin), common::CheminAffiche(chemin));
    }
}

void Remet(const QString& chemin, const QByteArray& contenu)
{
    common::CreeDossierPrive(QFileInfo(chemin).path());
    // A journal left by the former database would be played into this one.
    common::SupprimeFichier(chemin + QStringLiteral("-journal"));
    common::EcritFichier(chemin, contenu);
}

} // namespace

void Restaure(const Lieu& lieu, const Sauvegarde& sauvegarde, const QDateTime& moment)
{
    VerifieCopie(sauvegarde.Chemin);
    // At hand before the oldest copy makes room.
    const QString prete = Joint(lieu.Arbre, kPrete);
    common::CopieFichier(sauvegarde.Chemin, prete);
    try {
        SauveAvantRestauration(lieu, moment);
    } catch (...) {
        common::Tolere([&] { common::SupprimeFichier(prete); }); // a draft that stays hurts nobody
        throw;
    }
    common::MetEnPlace(prete, Joint(lieu.Arbre, kEnCours));
    FinitRestauration(lieu.Arbre);
}

bool RestaurationEnCours(const QString& arbre)
{
    return common::FichierExiste(Joint(arbre, kEnCours));
}

bool FinitRestauration(const QString& arbre)
{
    const QString enCours = Joint(arbre, kEnCours);
    if (!RestaurationEnCours(arbre)) {
        return false;
    }
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
    return true;
}

} // namespace backup
