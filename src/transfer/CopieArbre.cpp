#include "transfer/CopieArbre.h"

#include "backup/Restauration.h"
#include "backup/Sauvegarde.h"
#include "backup/VerrouArbre.h"
#include "common/Erreur.h"
#include "common/Fichiers.h"
#include "common/Tolere.h"
#include "storage/Archive.h"
#include "storage/EstUneBase.h"
#include "transfer/messages.h"

#include <QDir>
#include <QDirIterator>
#include <QFileInfo>
#include <algorithm>
#include <array>
#include <filesystem>

namespace transfer {

using common::Joint;

namespace {

constexpr qint64 kBloc = 1 << 20;

/// The directories of a transfer in its destination. The first is a draft; it takes the second name when it
/// is whole, and from then on the new tree counts; the third holds what has given way, the fourth a database
/// on its way.
constexpr QLatin1String kEbauche("Transfert.tmp");
constexpr QLatin1String kPret("Transfert.pret");
constexpr QLatin1String kAncien("Transfert.ancien");
constexpr QLatin1String kAtelier("Transfert.base");

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

/// A database is first copied between two writings, into that directory.
void CopieUn(const QString& nom, const QString& source, const QString& copie, const QString& atelier)
{
    const bool base = nom.endsWith(QLatin1String(".mdb"), Qt::CaseInsensitive) && storage::EstUneBase(source);
    const QString origine = base ? Joint(atelier, QStringLiteral("base")) : source;
    common::CreeDossierPrive(QFileInfo(copie).path());
    if (common::FichierExiste(copie)) {
        throw common::Erreur(messages::NomEnDouble(nom), common::CheminAffiche(copie));
    }
    if (base) {
        common::CreeDossierPrive(atelier);
        storage::CopieBase(source, origine);
    }
    common::CopieFichier(origine, copie);
    Verifie(nom, origine, copie);
    if (base) {
        common::SupprimeFichier(origine);
    }
}

/// At one stroke, over what stands there.
void Renomme(const QString& de, const QString& vers)
{
    common::CreeDossierPrive(QFileInfo(vers).path());
    std::error_code refus;
    std::filesystem::rename(QFile(de).filesystemFileName(), QFile(vers).filesystemFileName(), refus);
    if (refus) {
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
    for (const QLatin1String reste : {kEbauche, kPret, kAncien, kAtelier}) {
        const QString dossier = Joint(arbre, reste);
        if (common::DossierExiste(dossier)) {
            common::Tolere([&] { common::SupprimeDossier(dossier); });
        }
    }
}

bool ADesRestes(const QString& arbre)
{
    constexpr std::array<QLatin1String, 4> kRestes{kEbauche, kPret, kAncien, kAtelier};
    return std::ranges::any_of(kRestes,
                               [&](QLatin1String nom) { return QFileInfo::exists(Joint(arbre, nom)); });
}

/// False when the tree could not be taken back: the copy stays, and the next start finishes it.
bool LaisseTelle(const QString& arbre, const QStringList& copies, const QStringList& nouveaux)
{
    const bool defait = common::Tolere([&] { Defait(arbre, copies); }) &&
                        QDir().rename(Joint(arbre, kPret), Joint(arbre, kEbauche));
    if (defait) {
        Nettoie(arbre);
        for (auto dossier = nouveaux.crbegin(); dossier != nouveaux.crend(); ++dossier) {
            QDir().rmdir(arbre + u'/' + *dossier);
        }
    }
    return defait;
}

/// The directories of the source that the destination lacks, each after the one around it.
QStringList DossiersNouveaux(const QString& source, const QString& destination)
{
    QStringList nouveaux;
    for (const QString& dossier : common::ListeDirectories(source)) {
        const QString nom = QDir(source).relativeFilePath(dossier);
        if (!common::DossierExiste(destination + u'/' + nom)) {
            nouveaux.append(nom);
        }
    }
    return nouveaux;
}

void CreeDossiersVides(const QString& source, const QString& destination, const QStringList& nouveaux)
{
    for (const QString& nom : nouveaux) {
        if (QDir(source + u'/' + nom).isEmpty() && !nom.startsWith(QLatin1String("Transfert."))) {
            common::CreeDossierPrive(destination + u'/' + nom);
        }
    }
}

/// The tree of the copies, whole and compared, in a directory of the destination.
QStringList Prepare(const QString& source, const QString& destination, const Avancement& avancement)
{
    const QString ebauche = Joint(destination, kEbauche);
    const QStringList noms = backup::FichiersDeLArbre(source, backup::Etendue::Transfert);
    if (noms.isEmpty()) {
        throw common::Erreur(messages::SourceVide(common::CheminAffiche(source)),
                             common::CheminAffiche(source));
    }
    for (int i = 0; i < noms.size(); ++i) {
        if (avancement) {
            avancement(i, static_cast<int>(noms.size()));
        }
        CopieUn(noms[i], source + u'/' + noms[i], ebauche + u'/' + noms[i], Joint(destination, kAtelier));
    }
    for (const QString& nom : noms) {
        storage::ExigeLibre(destination + u'/' + nom);
    }
    Renomme(ebauche, Joint(destination, kPret));
    return noms;
}

/// With the end of a path that does not exist as it stands, and a separator behind it.
QString Canonique(const QString& chemin)
{
    const QString canonique = QFileInfo(chemin).canonicalFilePath();
    return (canonique.isEmpty() ? QDir::cleanPath(chemin) : canonique) + u'/';
}

/// Whether a directory is another one or above it, by whatever name the system reaches it: a second drive
/// letter, the letters' case.
bool EstOuContient(const QString& dessus, const QString& chemin)
{
    const std::filesystem::path voulu = QFile(dessus).filesystemFileName();
    for (QString ici = chemin;;) {
        std::error_code sans;
        if (std::filesystem::equivalent(voulu, QFile(ici).filesystemFileName(), sans)) {
            return true;
        }
        const QString parent = QFileInfo(ici).path();
        if (parent == ici) {
            return false;
        }
        ici = parent;
    }
}

/// A tree whose files have not all taken their place is none that can be copied.
void ExigeEntiere(const QString& source)
{
    if (common::DossierExiste(Joint(source, kPret)) || backup::RestaurationEnCours(source)) {
        throw common::Erreur(messages::SourceInachevee(common::CheminAffiche(source)),
                             common::CheminAffiche(source));
    }
}

bool FinitIci(const QString& dossier)
{
    const QString pret = Joint(dossier, kPret);
    const bool coupe = common::DossierExiste(pret);
    if (coupe) {
        MetEnPlace(dossier, pret, Joint(dossier, kAncien));
    }
    Nettoie(dossier);
    return coupe;
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
    const bool dessus = b.startsWith(a, casse) || EstOuContient(a, b);
    const bool dessous = a.startsWith(b, casse) || EstOuContient(b, a);
    if (dessus && dessous) {
        return Voisinage::Memes;
    }
    return dessus || dessous ? Voisinage::Imbriques : Voisinage::Separes;
}

void CopieArbre(const QString& source, const QString& destination, const Avancement& avancement)
{
    ExigeEntiere(source);
    common::CreeDossierPrive(destination);
    backup::FinitRestauration(destination);
    FinitTransfert(destination);
    const backup::VerrouArbre verrou(destination);
    verrou.Exige();
    QStringList noms;
    try {
        noms = Prepare(source, destination, avancement);
    } catch (...) {
        Nettoie(destination);
        throw;
    }
    const QStringList nouveaux = DossiersNouveaux(source, destination);
    try {
        MetEnPlace(destination, Joint(destination, kPret), Joint(destination, kAncien));
        CreeDossiersVides(source, destination, nouveaux);
    } catch (const common::Erreur& erreur) {
        if (LaisseTelle(destination, noms, nouveaux)) {
            throw;
        }
        throw common::Erreur(messages::SeraFini(erreur.Phrase()), erreur.Lieu());
    }
    Nettoie(destination);
}

bool TransfertEnAttente(const QString& arbre)
{
    return std::ranges::any_of(common::ListeDirectories(arbre), [](const QString& dossier) {
        return common::DossierExiste(Joint(dossier, kPret));
    });
}

bool FinitTransfert(const QString& arbre)
{
    bool coupe = false;
    for (const QString& dossier : common::ListeDirectories(arbre)) {
        if (ADesRestes(dossier)) {
            const backup::VerrouArbre verrou(dossier);
            verrou.Exige();
            coupe = FinitIci(dossier) || coupe;
        }
    }
    return coupe;
}

} // namespace transfer
