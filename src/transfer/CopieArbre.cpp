#include "transfer/CopieArbre.h"

#include "backup/Sauvegarde.h"
#include "common/Erreur.h"
#include "common/Fichiers.h"
#include "common/Tolere.h"
#include "storage/Archive.h"
#include "transfer/messages.h"

#include <QDir>
#include <QDirIterator>
#include <QFileInfo>
#include <QTemporaryDir>

namespace transfer {

using common::Joint;

namespace {

constexpr qint64 kBloc = 1 << 20;

/// The three directories of a transfer in its destination. The first is a draft; it takes the second name
/// when it is whole, and from then on the new tree counts; the third holds what has given way.
constexpr QLatin1String kEbauche("Transfert.tmp");
constexpr QLatin1String kPret("Transfert.pret");
constexpr QLatin1String kAncien("Transfert.ancien");

[[noreturn]] void Echoue(const QString& nom, const QString& chemin)
{
    throw common::Erreur(messages::CopieDifferente(nom), common::CheminAffiche(chemin));
}

/// A disk that lies about a write is found out by reading.
void Verifie(const QString& nom, const QString& source, const QString& copie)
{
    QFile a(source);
    QFile b(copie);
    if (!a.open(QIODevice::ReadOnly) || !b.open(QIODevice::ReadOnly) || a.size() != b.size()) {
        Echoue(nom, copie);
    }
    while (!a.atEnd()) {
        const QByteArray bloc = a.read(kBloc);
        if (bloc.isEmpty() || b.read(kBloc) != bloc) {
            Echoue(nom, copie);
        }
    }
}

bool EstUneBase(const QString& chemin)
{
    QFile fichier(chemin);
    return chemin.endsWith(QLatin1String(".mdb"), Qt::CaseInsensitive) && fichier.open(QIODevice::ReadOnly) &&
           fichier.read(15) == "SQLite format 3";
}

void CopieUn(const QString& nom, const QString& source, const QString& copie)
{
    const QTemporaryDir atelier;
    QString origine = source;
    if (EstUneBase(source)) {
        origine = Joint(atelier.path(), QStringLiteral("base"));
        storage::CopieBase(source, origine);
    }
    common::CreeDossierPrive(QFileInfo(copie).path());
    common::CopieFichier(origine, copie);
    Verifie(nom, origine, copie);
}

void Renomme(const QString& de, const QString& vers)
{
    common::CreeDossierPrive(QFileInfo(vers).path());
    if (!QFile::rename(de, vers)) {
        throw common::Erreur(messages::NonRemplace(QFileInfo(de).fileName()), common::CheminAffiche(de));
    }
}

/// The files below a directory, as paths below it.
QStringList Fichiers(const QString& dossier)
{
    QStringList noms;
    QDirIterator parcours(dossier, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (parcours.hasNext()) {
        noms.append(QDir(dossier).relativeFilePath(parcours.next()));
    }
    return noms;
}

/// Lets the files of `de` take their place in the tree; those that stood there go to `ancien`. What is
/// missing in `de` has its place already.
void MetEnPlace(const QString& arbre, const QString& de, const QString& ancien)
{
    for (const QString& nom : Fichiers(de)) {
        const QString place = arbre + u'/' + nom;
        const QString journal = place + QStringLiteral("-journal"); // would be played into the new database
        for (const QString& occupe : {journal, place}) {
            const QString garde = ancien + u'/' + QDir(arbre).relativeFilePath(occupe);
            if (common::FichierExiste(occupe) && !common::FichierExiste(garde)) {
                Renomme(occupe, garde);
            }
        }
        Renomme(de + u'/' + nom, place);
    }
}

/// Takes every file back that has given way, the copies first.
void Defait(const QString& arbre, const QStringList& copies)
{
    const QString pret = Joint(arbre, kPret);
    for (const QString& nom : copies) {
        if (!common::FichierExiste(pret + u'/' + nom)) {
            Renomme(arbre + u'/' + nom, pret + u'/' + nom);
        }
    }
    const QString ancien = Joint(arbre, kAncien);
    for (const QString& nom : Fichiers(ancien)) {
        Renomme(ancien + u'/' + nom, arbre + u'/' + nom);
    }
}

void Nettoie(const QString& arbre)
{
    // What stays is removed at the next start.
    for (const QLatin1String reste : {kEbauche, kPret, kAncien}) {
        const QString dossier = Joint(arbre, reste);
        if (common::DossierExiste(dossier)) {
            common::Tolere([&] { common::SupprimeDossier(dossier); });
        }
    }
}

/// False when the tree could not be taken back: the copy stays, and the next start finishes it.
bool LaisseTelle(const QString& arbre, const QStringList& copies)
{
    const bool defait = common::Tolere([&] { Defait(arbre, copies); }) &&
                        QDir().rename(Joint(arbre, kPret), Joint(arbre, kEbauche));
    if (defait) {
        Nettoie(arbre);
    }
    return defait;
}

/// The tree of the copies, whole and compared, in a directory of the destination.
QStringList Prepare(const QString& source, const QString& destination, const Avancement& avancement)
{
    const QString ebauche = Joint(destination, kEbauche);
    const QStringList noms = backup::FichiersDeLArbre(source, backup::Etendue::Transfert);
    for (int i = 0; i < noms.size(); ++i) {
        if (avancement) {
            avancement(i, static_cast<int>(noms.size()));
        }
        CopieUn(noms[i], source + u'/' + noms[i], ebauche + u'/' + noms[i]);
    }
    if (!QDir().rename(ebauche, Joint(destination, kPret))) {
        throw common::Erreur(messages::NonRemplace(kEbauche), common::CheminAffiche(ebauche));
    }
    return noms;
}

void CopieDossiersVides(const QString& source, const QString& destination)
{
    for (const QString& dossier : common::ListeDirectories(source)) {
        const QString nom = QDir(source).relativeFilePath(dossier);
        if (QDir(dossier).isEmpty() && !nom.startsWith(QLatin1String("Transfert."))) {
            common::CreeDossierPrive(destination + u'/' + nom);
        }
    }
}

/// With the end of a path that does not exist as it stands, and a separator behind it.
QString Canonique(const QString& chemin)
{
    const QString canonique = QFileInfo(chemin).canonicalFilePath();
    return (canonique.isEmpty() ? QDir::cleanPath(chemin) : canonique) + u'/';
}

} // namespace

Voisinage Compare(const QString& source, const QString& destination)
{
#ifdef Q_OS_WIN
    constexpr Qt::CaseSensitivity casse = Qt::CaseInsensitive;
#else
    constexpr Qt::CaseSensitivity casse = Qt::CaseSensitive;
#endif
    const QString a = Canonique(source);
    const QString b = Canonique(destination);
    if (a.compare(b, casse) == 0) {
        return Voisinage::Memes;
    }
    return a.startsWith(b, casse) || b.startsWith(a, casse) ? Voisinage::Imbriques : Voisinage::Separes;
}

void CopieArbre(const QString& source, const QString& destination, const Avancement& avancement)
{
    FinitTransfert(destination);
    QStringList noms;
    try {
        noms = Prepare(source, destination, avancement);
    } catch (...) {
        Nettoie(destination);
        throw;
    }
    try {
        MetEnPlace(destination, Joint(destination, kPret), Joint(destination, kAncien));
    } catch (const common::Erreur& erreur) {
        if (LaisseTelle(destination, noms)) {
            throw;
        }
        throw common::Erreur(messages::SeraFini(erreur.Phrase()), erreur.Lieu());
    }
    Nettoie(destination);
    CopieDossiersVides(source, destination);
}

bool FinitTransfert(const QString& arbre)
{
    const QString pret = Joint(arbre, kPret);
    const bool coupe = common::DossierExiste(pret);
    if (coupe) {
        MetEnPlace(arbre, pret, Joint(arbre, kAncien));
    }
    Nettoie(arbre);
    return coupe;
}

} // namespace transfer
