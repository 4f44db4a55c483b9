#include "backup/Sauvegarde.h"

#include "backup/Rotation.h"
#include "backup/messages.h"
#include "common/Erreur.h"
#include "common/Fichiers.h"
#include "common/Tolere.h"
#include "startup/Chemins.h"
#include "storage/Archive.h"

#include <QDir>
#include <QDirIterator>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <algorithm>

namespace backup {

using common::Joint;

namespace {

constexpr int kAvantRestauration = 3;
constexpr QLatin1String kDossier("Sauvegardes");
constexpr QLatin1String kSuffixe(".sqlar");
constexpr QLatin1String kJour("yyyy-MM-dd");
constexpr QLatin1String kMoment("yyyy-MM-dd HH'h'mm'm'ss");

QString NomDuJour(const Lieu& lieu, const QDate& jour)
{
    return QStringLiteral("Sauvegarde ") + jour.toString(kJour) + lieu.Complement + kSuffixe;
}

QString NomAvant(const Lieu& lieu, const QDateTime& moment)
{
    return QStringLiteral("Avant restauration ") + moment.toString(kMoment) + lieu.Complement + kSuffixe;
}

bool EstUneBase(const QString& chemin)
{
    QFile fichier(chemin);
    return chemin.endsWith(QLatin1String(".mdb"), Qt::CaseInsensitive) && fichier.open(QIODevice::ReadOnly) &&
           fichier.read(15) == "SQLite format 3";
}

/// What belongs to the program's own work.
bool EstPassager(const QString& nom)
{
    static const QRegularExpression passager(
        QStringLiteral(R"(^(Sauvegardes|Transfert\.[a-z]+)/|(^|/)\.|-journal$|\.(sqlar|lock|ldb|tmp)$)"),
        QRegularExpression::CaseInsensitiveOption);
    return passager.match(nom).hasMatch();
}

/// A database of the past.
bool EstAncien(const QString& nom)
{
    static const QRegularExpression ancien(QStringLiteral(R"((^|/)Ancien_[^/]*$| \(Jet\)\.mdb$)"),
                                           QRegularExpression::CaseInsensitiveOption);
    return ancien.match(nom).hasMatch();
}

QByteArray LitTout(const QString& chemin)
{
    QFile fichier(chemin);
    if (!fichier.open(QIODevice::ReadOnly)) {
        throw common::Erreur(messages::Illisible(chemin), common::CheminAffiche(chemin));
    }
    QByteArray contenu = fichier.readAll();
    if (fichier.error() != QFileDevice::NoError || contenu.size() != fichier.size()) {
        throw common::Erreur(messages::Illisible(chemin), common::CheminAffiche(chemin));
    }
    return contenu;
}

/// A database is copied through the engine, which waits for whoever writes.
QByteArray LitPiece(const QString& chemin, const QString& brouillon)
{
    if (!EstUneBase(chemin)) {
        return LitTout(chemin);
    }
    storage::CopieBase(chemin, brouillon);
    QByteArray contenu = LitTout(brouillon);
    common::SupprimeFichier(brouillon);
    return contenu;
}

/// The archive takes its name when it is whole.
void Archive(const Lieu& lieu, const QString& nom)
{
    common::CreeDossierPrive(lieu.Dossier);
    const QTemporaryDir atelier(Joint(lieu.Dossier, QStringLiteral("XXXXXX.tmp")));
    if (!atelier.isValid()) {
        throw common::Erreur(messages::DossierRefuse(lieu.Dossier), common::CheminAffiche(lieu.Dossier));
    }
    const QString ebauche = Joint(atelier.path(), QStringLiteral("ebauche"));
    {
        storage::Archive archive(ebauche, storage::Archive::Mode::Creation);
        for (const QString& piece : FichiersDeLArbre(lieu.Arbre, Etendue::Sauvegarde)) {
            const QString chemin = lieu.Arbre + u'/' + piece;
            archive.Ajoute(piece, LitPiece(chemin, Joint(atelier.path(), QStringLiteral("base"))),
                           QFileInfo(chemin).lastModified());
        }
        archive.Valide();
    }
    const QString prete = Joint(lieu.Dossier, nom + QStringLiteral(".tmp"));
    QFile::remove(prete);
    if (!QFile::rename(ebauche, prete)) {
        throw common::Erreur(messages::DossierRefuse(lieu.Dossier), common::CheminAffiche(lieu.Dossier));
    }
    common::MetEnPlace(prete, Joint(lieu.Dossier, nom));
}

void Supprime(const QString& chemin)
{
    // One that stays is removed another day.
    common::Tolere([&] { common::SupprimeFichier(chemin); });
}

void RetireLesAnciennes(const Lieu& lieu, const QDate& aujourdhui)
{
    const QList<Sauvegarde> sauvegardes = ListeSauvegardes(lieu);
    QList<QDate> jours;
    for (const Sauvegarde& sauvegarde : sauvegardes) {
        if (!sauvegarde.AvantRestauration) {
            jours.append(sauvegarde.Moment.date());
        }
    }
    const QSet<QDate> gardes = JoursGardes(jours, aujourdhui);
    for (const Sauvegarde& sauvegarde : sauvegardes) {
        if (!sauvegarde.AvantRestauration && !gardes.contains(sauvegarde.Moment.date())) {
            Supprime(sauvegarde.Chemin);
        }
    }
}

/// What an interrupted copy has left.
void RetireLesBrouillons(const Lieu& lieu)
{
    const QFileInfoList restes =
        QDir(lieu.Dossier)
            .entryInfoList({QStringLiteral("*.tmp")}, QDir::Files | QDir::Dirs | QDir::NoDotAndDotDot);
    for (const QFileInfo& reste : restes) {
        common::Tolere(
            [&] { reste.isDir() ? common::SupprimeDossier(reste.filePath()) : Supprime(reste.filePath()); });
    }
}

} // namespace

Lieu LieuDuTravail(const startup::Chemins& chemins)
{
    constexpr int kSupport = 2;
    Lieu lieu{chemins.CheminTravail, Joint(chemins.CheminData, kDossier), {}};
    if (chemins.CheminTravail != chemins.CheminData) {
        lieu.Complement =
            chemins.TypeStockage == kSupport ? QStringLiteral(" support") : QStringLiteral(" serveur");
    }
    return lieu;
}

QStringList FichiersDeLArbre(const QString& arbre, Etendue etendue)
{
    const QDir racine(arbre);
    QStringList noms;
    QDirIterator parcours(arbre, QDir::Files | QDir::NoSymLinks, QDirIterator::Subdirectories);
    while (parcours.hasNext()) {
        const QString nom = racine.relativeFilePath(parcours.next());
        if (!EstPassager(nom) && (etendue == Etendue::Transfert || !EstAncien(nom))) {
            noms.append(nom);
        }
    }
    noms.sort();
    return noms;
}

QList<Sauvegarde> ListeSauvegardes(const Lieu& lieu)
{
    QList<Sauvegarde> sauvegardes;
    for (const QFileInfo& fichier :
         QDir(lieu.Dossier).entryInfoList({QStringLiteral("*.sqlar")}, QDir::Files)) {
        const QString nom = fichier.fileName();
        const QDate jour = QDate::fromString(nom.section(u' ', 1, 1).left(10), kJour);
        const QDateTime moment = QDateTime::fromString(nom.section(u' ', 2, 3).left(19), kMoment);
        if (jour.isValid() && nom == NomDuJour(lieu, jour)) {
            sauvegardes.append({fichier.filePath(), jour.startOfDay(), false});
        } else if (moment.isValid() && nom == NomAvant(lieu, moment)) {
            sauvegardes.append({fichier.filePath(), moment, true});
        }
    }
    std::ranges::stable_sort(sauvegardes, std::ranges::greater(), &Sauvegarde::Moment);
    return sauvegardes;
}

bool SauveDuJour(const Lieu& lieu, const QDate& jour)
{
    const QString nom = NomDuJour(lieu, jour);
    if (common::FichierExiste(Joint(lieu.Dossier, nom))) {
        return false;
    }
    RetireLesBrouillons(lieu);
    Archive(lieu, nom);
    RetireLesAnciennes(lieu, jour);
    return true;
}

void SauveAvantRestauration(const Lieu& lieu, const QDateTime& moment)
{
    QDateTime libre = moment;
    while (common::FichierExiste(Joint(lieu.Dossier, NomAvant(lieu, libre)))) {
        libre = libre.addSecs(1);
    }
    Archive(lieu, NomAvant(lieu, libre));
    int vues = 0;
    for (const Sauvegarde& sauvegarde : ListeSauvegardes(lieu)) {
        if (sauvegarde.AvantRestauration && ++vues > kAvantRestauration) {
            Supprime(sauvegarde.Chemin);
        }
    }
}

} // namespace backup
