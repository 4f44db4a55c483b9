#include "backup/Sauvegarde.h"

#include "backup/Rotation.h"
#include "backup/VerrouArbre.h"
#include "backup/messages.h"
#include "common/Erreur.h"
#include "common/Fichiers.h"
#include "common/Tolere.h"
#include "startup/Chemins.h"
#include "storage/Archive.h"
#include "storage/EstUneBase.h"

#include <QDir>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QThreadPool>
#include <algorithm>
#include <filesystem>

namespace backup {

using common::Joint;

namespace {

constexpr int kAvantRestauration = 3;
constexpr qint64 kTailleMax = 900'000'000; ///< below what the archive's format takes for one file
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

/// What belongs to the program's own work, and the system's.
bool EstPassager(const QString& nom)
{
    static const QRegularExpression passager(
        QStringLiteral(
            R"(^Sauvegardes/|(^|/)Transfert\.[a-z]+(/|$)|(^|/)\.|-journal$|\.(sqlar|lock|ldb|tmp)$|)"
            R"((^|/)(desktop\.ini|thumbs\.db)$)"),
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

/// A journal may grow meanwhile: what it held at first is taken.
QByteArray LitTout(const QString& chemin)
{
    QFile fichier(chemin);
    if (!fichier.open(QIODevice::ReadOnly)) {
        throw common::Erreur(messages::Illisible(chemin), common::CheminAffiche(chemin));
    }
    const qint64 taille = fichier.size();
    if (taille > kTailleMax) {
        throw common::Erreur(messages::TropGrand(chemin), common::CheminAffiche(chemin));
    }
    QByteArray contenu = fichier.read(taille);
    if (contenu.size() != taille) {
        throw common::Erreur(messages::Illisible(chemin), common::CheminAffiche(chemin));
    }
    return contenu;
}

/// A database is copied through the engine, which waits for whoever writes.
QByteArray LitPiece(const QString& chemin, const QString& brouillon)
{
    if (!chemin.endsWith(QLatin1String(".mdb"), Qt::CaseInsensitive) || !storage::EstUneBase(chemin)) {
        return LitTout(chemin);
    }
    storage::CopieBase(chemin, brouillon);
    QByteArray contenu = LitTout(brouillon);
    common::SupprimeFichier(brouillon);
    return contenu;
}

/// Adds one file. One that the doctor has deleted since it was listed is none of the tree any more.
void AjouteA(storage::Archive& archive, const QString& arbre, const QString& piece, const QString& brouillon)
{
    const QString chemin = arbre + u'/' + piece;
    const QDateTime modifie = QFileInfo(chemin).lastModified();
    QByteArray contenu;
    try {
        contenu = LitPiece(chemin, brouillon);
    } catch (const common::Erreur&) {
        if (QFileInfo::exists(chemin)) {
            throw;
        }
        return;
    }
    archive.Ajoute(piece, contenu, modifie);
}

/// `dossier`: "" for the tree itself, else its path below and a '/'. Links are followed, once.
void Parcourt(const QString& arbre, const QString& dossier, QStringList parents, QStringList& noms)
{
    const QFileInfo ici(arbre + u'/' + dossier);
    if (parents.contains(ici.canonicalFilePath())) {
        return;
    }
    parents.append(ici.canonicalFilePath());
    std::error_code refus; // the toolkit lists nothing then, without a word
    const std::filesystem::directory_iterator parcours(QFile(ici.filePath()).filesystemFileName(), refus);
    if (refus && ici.exists()) {
        throw common::Erreur(messages::Illisible(ici.absoluteFilePath()),
                             common::CheminAffiche(ici.absoluteFilePath()));
    }
    constexpr auto kTout = QDir::Files | QDir::Dirs | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot;
    for (const QFileInfo& element : QDir(ici.filePath()).entryInfoList(kTout)) {
        const QString nom = dossier + element.fileName() + QLatin1String(element.isDir() ? "/" : "");
        if (EstPassager(nom)) {
            continue;
        }
        if (element.isDir()) {
            Parcourt(arbre, nom, parents, noms);
        } else if (element.isFile()) {
            noms.append(nom);
        }
    }
}

/// The archive takes its name when it is whole.
void Archive(const Lieu& lieu, const QString& nom)
{
    const QTemporaryDir atelier(Joint(lieu.Dossier, QStringLiteral("XXXXXX.tmp")));
    if (!atelier.isValid()) {
        throw common::Erreur(messages::DossierRefuse(lieu.Dossier), common::CheminAffiche(lieu.Dossier));
    }
    const QString ebauche = Joint(atelier.path(), QStringLiteral("ebauche"));
    {
        storage::Archive archive(ebauche, storage::Archive::Mode::Creation);
        for (const QString& piece : FichiersDeLArbre(lieu.Arbre, Etendue::Sauvegarde)) {
            AjouteA(archive, lieu.Arbre, piece, Joint(atelier.path(), QStringLiteral("base")));
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
    QStringList noms;
    Parcourt(arbre, {}, {}, noms);
    noms.removeIf([&](const QString& nom) { return etendue == Etendue::Sauvegarde && EstAncien(nom); });
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
    common::CreeDossierPrive(lieu.Dossier);
    const VerrouArbre verrou(lieu.Dossier);
    if (verrou.PrisAilleurs()) {
        return false; // the program runs twice: the other one copies
    }
    RetireLesBrouillons(lieu);
    Archive(lieu, nom);
    RetireLesAnciennes(lieu, jour);
    return true;
}

void SauveAvantRestauration(const Lieu& lieu, const QDateTime& moment)
{
    common::CreeDossierPrive(lieu.Dossier);
    const VerrouArbre verrou(lieu.Dossier);
    verrou.Exige();
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

void SauveEnFond(const Lieu& lieu, const QDate& jour, const std::function<void(const QString&)>& echec)
{
    QThreadPool::globalInstance()->start([lieu, jour, echec] {
        try {
            SauveDuJour(lieu, jour);
        } catch (const common::Erreur& erreur) {
            echec(messages::SauvegardeEchouee(erreur.Phrase()));
        }
    });
}

void AttendLaSauvegarde()
{
    QThreadPool::globalInstance()->waitForDone();
}

} // namespace backup
