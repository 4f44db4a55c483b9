#include "common/Fichiers.h"

#include "common/Erreur.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QStorageInfo>

#include <algorithm>
#include <array>
#include <cerrno>
#include <filesystem>

#ifdef Q_OS_WIN
#include <io.h>
#else
#include <unistd.h>
#endif

namespace common {

namespace {

constexpr qint64 kTailleMaximum = 64LL * 1024 * 1024;
constexpr qint64 kBloc = 1024 * 1024;
constexpr int kOctetsDuNom = 255;

[[noreturn]] void Echoue(const QString& verbe, const QString& chemin, const QString& cause)
{
    const QString nom = QFileInfo(chemin).fileName();
    const QString affiche = CheminAffiche(chemin);
    throw Erreur(
        QStringLiteral("Impossible %1 « %2 » : %3.").arg(verbe, nom.isEmpty() ? affiche : nom, cause),
        affiche);
}

QString Cause(QFileDevice::FileError erreur)
{
    switch (erreur) {
    case QFileDevice::PermissionsError:
        return QStringLiteral("l'accès est refusé");
    case QFileDevice::ResourceError:
        return QStringLiteral("le disque est plein");
    case QFileDevice::ReadError:
        return QStringLiteral("la lecture a échoué");
    case QFileDevice::WriteError:
        return QStringLiteral("l'écriture a échoué");
    case QFileDevice::OpenError:
        return QStringLiteral("le fichier ne peut pas être ouvert");
    default:
        return QStringLiteral("le système a refusé l'opération");
    }
}

/// Why the system made no directory, as far as it can be seen afterwards.
QString CauseSansDossier(const QString& chemin)
{
    QFileInfo parent(QDir::cleanPath(chemin));
    while (!parent.exists() && !parent.isRoot() && parent.path() != parent.filePath()) {
        parent.setFile(parent.path());
    }
    const QStorageInfo disque(parent.filePath());
    if (parent.isFile()) {
        return QStringLiteral("un fichier porte le nom « %1 »").arg(parent.fileName());
    }
    if (disque.isReadOnly()) {
        return QStringLiteral("le disque est en lecture seule");
    }
    return disque.isValid() && disque.bytesAvailable() == 0 ? QStringLiteral("le disque est plein")
                                                            : QStringLiteral("l'accès est refusé");
}

[[noreturn]] void EchoueCreation(const QString& chemin)
{
    Echoue(QStringLiteral("de créer le répertoire"), chemin, CauseSansDossier(chemin));
}

[[noreturn]] void EchoueEcriture(const QFileDevice& fichier, const QString& chemin)
{
    Echoue(QStringLiteral("d'enregistrer le fichier"), chemin, Cause(fichier.error()));
}

/// Puts the new file in the place of the former one. The flush comes first: a commit alone takes a buffer
/// that the disk refused for a written one, and leaves an empty file.
bool Remplace(QSaveFile& fichier)
{
    return fichier.flush() && fichier.commit();
}

bool PousseAuDisque(int descripteur)
{
#ifdef Q_OS_WIN
    return _commit(descripteur) == 0;
#else
    // A terminal or a pipe has no disk behind it.
    return ::fsync(descripteur) == 0 || errno == EINVAL;
#endif
}

void OuvreEnLecture(QFile& fichier)
{
    const QString verbe = QStringLiteral("de lire le fichier");
    const QFileInfo info(fichier.fileName());
    if (!info.exists()) {
        Echoue(verbe, fichier.fileName(), QStringLiteral("le fichier n'existe pas"));
    }
    if (!info.isFile()) {
        Echoue(verbe, fichier.fileName(), QStringLiteral("ce n'est pas un fichier"));
    }
    if (!fichier.open(QIODevice::ReadOnly)) {
        Echoue(verbe, fichier.fileName(), Cause(fichier.error()));
    }
}

void RecopieContenu(QFile& source, QSaveFile& copie, const QString& destination)
{
    while (!source.atEnd()) {
        const QByteArray bloc = source.read(kBloc);
        if (bloc.isEmpty()) {
            break;
        }
        if (copie.write(bloc) != bloc.size()) {
            EchoueEcriture(copie, destination);
        }
    }
    if (source.error() != QFileDevice::NoError) {
        Echoue(QStringLiteral("de lire le fichier"), source.fileName(), Cause(source.error()));
    }
}

/// Names that Windows keeps for devices, whatever their ending.
bool EstPeripherique(QStringView nom)
{
    const QString base =
        nom.left(nom.indexOf(u'.') < 0 ? nom.size() : nom.indexOf(u'.')).toString().toUpper();
    static constexpr std::array<const char16_t*, 4> kSeuls = {u"CON", u"PRN", u"AUX", u"NUL"};
    if (std::ranges::any_of(kSeuls, [&](const char16_t* seul) { return base == QStringView(seul); })) {
        return true;
    }
    const bool port = base.startsWith(QLatin1String("COM")) || base.startsWith(QLatin1String("LPT"));
    return port && base.size() == 4 && base[3] >= u'1' && base[3] <= u'9';
}

bool QuitteSonDossier(const QString& nom)
{
    const QStringList parties = QDir::fromNativeSeparators(nom).split(u'/');
    return nom.startsWith(u'/') || parties.contains(QLatin1String(".."));
}

QFileInfoList Contenu(const QString& chemin)
{
    return QDir(chemin).entryInfoList(
        QDir::Files | QDir::Dirs | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot, QDir::Name);
}

bool EstSous(const QString& chemin, const QString& racine)
{
    const QString absolu = QDir::cleanPath(QFileInfo(chemin).absoluteFilePath()) + u'/';
    return absolu.startsWith(QDir::cleanPath(QFileInfo(racine).absoluteFilePath()) + u'/');
}

void CopieContenu(const QString& source, const QString& destination, const QStringList& parents)
{
    const QString reel = QFileInfo(source).canonicalFilePath();
    if (parents.contains(reel)) {
        return; // a link that leads back above itself
    }
    CreeDossier(destination);
    for (const QFileInfo& element : Contenu(source)) {
        const QString cible = Joint(destination, element.fileName());
        if (element.isDir()) {
            CopieContenu(element.filePath(), cible, parents + QStringList{reel});
        } else {
            CopieFichier(element.filePath(), cible);
        }
    }
}

} // namespace

QString Joint(const QString& chemin, const QString& nom)
{
    if (QuitteSonDossier(nom)) {
        throw Erreur(QStringLiteral("Le nom « %1 » n'est pas celui d'un fichier de ce répertoire.").arg(nom),
                     CheminAffiche(chemin));
    }
    const QString debut = QDir::fromNativeSeparators(chemin);
    const QString suite = QDir::fromNativeSeparators(nom);
    if (debut.isEmpty() || suite.isEmpty()) {
        return debut + suite;
    }
    return debut.endsWith(u'/') ? debut + suite : debut + u'/' + suite;
}

QString CheminAffiche(const QString& chemin)
{
    return QDir::toNativeSeparators(chemin);
}

bool NomDeFichierSur(QStringView nom)
{
    constexpr QStringView interdits = u"/\\:*?\"<>|";
    const bool caracteres = std::ranges::all_of(
        nom, [&](QChar c) { return c.unicode() >= 0x20 && c.unicode() != 0x7F && !interdits.contains(c); });
    if (!caracteres || nom.trimmed().isEmpty() || nom.toUtf8().size() > kOctetsDuNom) {
        return false;
    }
    return !nom.endsWith(u'.') && !nom.endsWith(u' ') && !EstPeripherique(nom);
}

bool FichierExiste(const QString& chemin)
{
    return QFileInfo(chemin).isFile();
}

bool DossierExiste(const QString& chemin)
{
    return QFileInfo(chemin).isDir();
}

bool DossierContientFichier(const QString& chemin)
{
    return DossierExiste(chemin) && !QDir(chemin).entryList(QDir::Files | QDir::Hidden).isEmpty();
}

QByteArray LitFichier(const QString& chemin)
{
    QFile fichier(chemin);
    OuvreEnLecture(fichier);
    const QByteArray contenu = fichier.read(kTailleMaximum + 1);
    if (contenu.size() > kTailleMaximum) {
        Echoue(QStringLiteral("de lire le fichier"), chemin, QStringLiteral("il est trop grand"));
    }
    if (fichier.error() != QFileDevice::NoError) {
        Echoue(QStringLiteral("de lire le fichier"), chemin, Cause(fichier.error()));
    }
    return contenu;
}

void EcritFichier(const QString& chemin, const QByteArray& contenu)
{
    QSaveFile fichier(chemin);
    if (!fichier.open(QIODevice::WriteOnly) || fichier.write(contenu) != contenu.size() ||
        !Remplace(fichier)) {
        EchoueEcriture(fichier, chemin);
    }
}

void AjouteAuFichier(const QString& chemin, const QByteArray& contenu)
{
    QFile fichier(chemin);
    if (!fichier.open(QIODevice::WriteOnly | QIODevice::Append)) {
        EchoueEcriture(fichier, chemin);
    }
    const qint64 avant = fichier.size();
    const bool ecrit = fichier.write(contenu) == contenu.size() && fichier.flush();
    if (!ecrit || !PousseAuDisque(fichier.handle())) {
        const QString cause = Cause(ecrit ? QFileDevice::WriteError : fichier.error());
        if (!fichier.isSequential()) {
            fichier.resize(avant);
        }
        Echoue(QStringLiteral("d'enregistrer le fichier"), chemin, cause);
    }
}

void CopieFichier(const QString& source, const QString& destination)
{
    QFile origine(source);
    OuvreEnLecture(origine);
    QSaveFile copie(destination);
    if (!copie.open(QIODevice::WriteOnly)) {
        EchoueEcriture(copie, destination);
    }
    RecopieContenu(origine, copie, destination);
    if (!Remplace(copie)) {
        EchoueEcriture(copie, destination);
    }
}

void DeplaceFichier(const QString& source, const QString& destination)
{
    CopieFichier(source, destination);
    if (QFileInfo(source).canonicalFilePath() != QFileInfo(destination).canonicalFilePath()) {
        SupprimeFichier(source);
    }
}

void MetEnPlace(const QString& ebauche, const QString& destination)
{
    QFile fichier(ebauche);
    if (!fichier.open(QIODevice::ReadWrite) || !PousseAuDisque(fichier.handle())) {
        EchoueEcriture(fichier, destination);
    }
    fichier.close();
    std::error_code refus;
    std::filesystem::rename(fichier.filesystemFileName(), QFile(destination).filesystemFileName(), refus);
    if (refus) {
        Echoue(QStringLiteral("d'enregistrer le fichier"), destination,
               refus == std::errc::no_space_on_device ? QStringLiteral("le disque est plein")
                                                      : QStringLiteral("l'accès est refusé"));
    }
}

void SupprimeFichier(const QString& chemin)
{
    QFile fichier(chemin);
    if (!fichier.remove() && QFileInfo::exists(chemin)) {
        Echoue(QStringLiteral("de supprimer le fichier"), chemin, QStringLiteral("l'accès est refusé"));
    }
}

void CreeDossier(const QString& chemin)
{
    if (chemin.isEmpty() || !QDir().mkpath(chemin)) {
        EchoueCreation(chemin);
    }
}

void CreeDossierPrive(const QString& chemin)
{
    if (chemin.isEmpty() || DossierExiste(chemin)) {
        return;
    }
    CreeDossierPrive(QFileInfo(QDir::cleanPath(chemin)).path());
    const auto permissions = QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner;
    if (!QDir().mkdir(QDir::cleanPath(chemin), permissions)) {
        EchoueCreation(chemin);
    }
}

void CopieDossier(const QString& source, const QString& destination)
{
    if (!DossierExiste(source)) {
        Echoue(QStringLiteral("de copier le répertoire"), source, QStringLiteral("il n'existe pas"));
    }
    if (EstSous(destination, source)) {
        Echoue(QStringLiteral("de copier le répertoire"), source,
               QStringLiteral("la destination se trouve dans la source"));
    }
    CopieContenu(source, destination, {});
}

void SupprimeDossier(const QString& chemin)
{
    const bool permis = !chemin.isEmpty() && !QDir(chemin).isRoot() && !FichierExiste(chemin);
    if (!permis || !QDir(chemin).removeRecursively()) {
        Echoue(QStringLiteral("de supprimer le répertoire"), chemin, QStringLiteral("l'accès est refusé"));
    }
}

QStringList ListeDirectories(const QString& racine)
{
    QString debut = QDir::fromNativeSeparators(racine);
    if (debut.size() > 1 && debut.endsWith(u'/')) {
        debut.chop(1);
    }
    QStringList liste{debut};
    for (qsizetype i = 0; i < liste.size(); ++i) {
        const QStringList noms =
            QDir(liste[i]).entryList(QDir::Dirs | QDir::NoSymLinks | QDir::Hidden | QDir::NoDotAndDotDot,
                                     QDir::Name | QDir::IgnoreCase);
        for (const QString& nom : noms) {
            if (!nom.startsWith(u'.')) {
                liste.append(Joint(liste[i], nom));
            }
        }
    }
    return liste;
}

} // namespace common
