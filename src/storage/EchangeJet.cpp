#include "storage/EchangeJet.h"

#include "common/Fichiers.h"
#include "common/Tolere.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

#include <filesystem>

namespace storage {

namespace {

const QString kFin = QStringLiteral(" (Jet).mdb");

QString Debut(const QString& chemin)
{
    const QFileInfo info(chemin);
    return common::Joint(info.path(), info.completeBaseName());
}

bool MemesOctets(const QString& une, const QString& autre)
{
    constexpr qint64 kMorceau = 1024 * 1024;
    QFile a(une);
    QFile b(autre);
    if (!a.open(QIODevice::ReadOnly) || !b.open(QIODevice::ReadOnly) || a.size() != b.size()) {
        return false;
    }
    QByteArray morceau;
    do {
        morceau = a.read(kMorceau);
        if (morceau != b.read(kMorceau)) {
            return false;
        }
    } while (!morceau.isEmpty());
    return a.atEnd();
}

/// "Medoc (Jet).mdb" beside "Medoc.mdb", or "Medoc 2 (Jet).mdb" when another one has that name; the same one
/// has it after an exchange that was cut short between its two steps.
QString NomDeGarde(const QString& chemin)
{
    QString nom = Debut(chemin) + kFin;
    for (int numero = 2; QFileInfo::exists(nom) && !MemesOctets(nom, chemin); ++numero) {
        nom = Debut(chemin) + QStringLiteral(" %1").arg(numero) + kFin;
    }
    return nom;
}

void Date(const QString& garde, const QDateTime& heure)
{
    QFile fichier(garde);
    if (fichier.open(QIODevice::ReadWrite | QIODevice::ExistingOnly)) {
        fichier.setFileTime(heure, QFileDevice::FileModificationTime);
    }
}

/// A second name for the same file where the disk knows such; else a copy.
void Garde(const QString& chemin, const QString& garde)
{
    std::error_code refus;
    std::filesystem::create_hard_link(QFile(chemin).filesystemFileName(), QFile(garde).filesystemFileName(),
                                      refus);
    if (refus) {
        common::CopieFichier(chemin, garde);
        Date(garde, QFileInfo(chemin).lastModified());
    }
}

} // namespace

void EchangeJet(const QString& chemin, const QString& ebauche)
{
    // What the former file allowed the others of the practice, the new one does; its owner may write.
    QFile::setPermissions(ebauche, QFile::permissions(chemin) | QFile::WriteOwner | QFile::WriteUser);
    const QString garde = NomDeGarde(chemin);
    const bool gardee = QFileInfo::exists(garde);
    try {
        if (!gardee) {
            Garde(chemin, garde);
        }
        // A journal left by some other file would be played into the new one.
        common::SupprimeFichier(chemin + QStringLiteral("-journal"));
        common::MetEnPlace(ebauche, chemin);
    } catch (...) {
        if (!gardee) {
            common::Tolere([&] { common::SupprimeFichier(garde); });
        }
        throw;
    }
}

void OteRestesJet(const QString& chemin)
{
    const QFileInfo info(chemin);
    const QString ebauche =
        QRegularExpression::escape(info.fileName()) + QStringLiteral(R"(\.[0-9a-f-]{36}\.tmp)");
    const QString copie = QRegularExpression::escape(info.completeBaseName()) +
                          QStringLiteral(R"(( \d+)? \(Jet\)\.mdb\.[A-Za-z]{6})");
    const QRegularExpression reste(QRegularExpression::anchoredPattern(ebauche + u'|' + copie));
    const QDir dossier(info.path());
    for (const QString& nom : dossier.entryList(QDir::Files | QDir::Hidden)) {
        if (reste.match(nom).hasMatch()) {
            common::Tolere([&] { common::SupprimeFichier(common::Joint(dossier.path(), nom)); });
        }
    }
}

QString VerrouAccess(const QString& chemin, const QDateTime& maintenant)
{
    constexpr int kUneSemaine = 7 * 24 * 60 * 60; // a station may stay on over the holidays
    const QFileInfo info(chemin);
    // The name's capitals vary: the filter does not see them.
    const QFileInfoList verrous =
        QDir(info.path())
            .entryInfoList({info.completeBaseName() + QStringLiteral(".ldb")}, QDir::Files | QDir::Hidden);
    for (const QFileInfo& verrou : verrous) {
        if (!maintenant.isValid() || verrou.lastModified().secsTo(maintenant) < kUneSemaine) {
            return verrou.fileName();
        }
    }
    return {};
}

} // namespace storage
