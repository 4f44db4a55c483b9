#include "storage/EstUneBase.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QUrl>
#include <QUuid>

namespace storage {

namespace {

enum class Avis { Base, Vide, Autre, Ferme };

/// As it stands: no lock is waited for and no journal beside it is looked at, which may be another file's.
QString Adresse(const QString& chemin)
{
    const QString absolu = QDir::fromNativeSeparators(QFileInfo(chemin).absoluteFilePath());
    const QByteArray lettres = QUrl::toPercentEncoding(absolu, "/:");
    return QLatin1String(absolu.startsWith(u'/') ? "file://" : "file:///") + QString::fromLatin1(lettres) +
           QLatin1String("?immutable=1");
}

Avis AvisDuMoteur(QSqlDatabase base, const QString& chemin)
{
    constexpr int kPasUneBase = 26;
    base.setDatabaseName(Adresse(chemin));
    base.setConnectOptions(QStringLiteral("QSQLITE_OPEN_READONLY;QSQLITE_OPEN_URI"));
    if (!base.open()) {
        return Avis::Ferme;
    }
    QSqlQuery requete(base);
    if (requete.exec(QStringLiteral("pragma page_count")) && requete.next()) {
        return requete.value(0).toLongLong() > 0 ? Avis::Base : Avis::Vide;
    }
    // A damaged one has the right bytes at its beginning.
    return (requete.lastError().nativeErrorCode().toInt() & 0xFF) == kPasUneBase ? Avis::Autre : Avis::Base;
}

/// What the engine takes for no database has no lock to lose; with these bytes it is a damaged one.
bool CommenceCommeUneBase(const QString& chemin)
{
    QFile fichier(chemin);
    return fichier.open(QIODevice::ReadOnly) && fichier.read(kMarqueDuMoteur.size()) == kMarqueDuMoteur;
}

} // namespace

bool EstUneBase(const QString& chemin)
{
    if (!QFileInfo(chemin).isFile()) {
        return false;
    }
    const QString connexion = QUuid::createUuid().toString();
    const Avis avis = AvisDuMoteur(QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), connexion), chemin);
    QSqlDatabase::removeDatabase(connexion);
    return avis == Avis::Base || (avis == Avis::Autre && CommenceCommeUneBase(chemin));
}

} // namespace storage
