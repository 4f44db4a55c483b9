#include "Tenue.h"

#include "storage/Pannes.h"
#include "storage/Schema.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QSqlError>
#include <QSqlQuery>
#include <QUuid>

namespace utile {

namespace {

/// Why the file is not held, by the engine's primary result codes.
Tenue::Etat EtatDe(const QSqlError& erreur)
{
    constexpr int kCodePrimaire = 0xFF;
    const int code = erreur.nativeErrorCode().toInt() & kCodePrimaire;
    return code == 5 || code == 6 ? Tenue::Etat::Occupee : Tenue::Etat::Illisible;
}

} // namespace

Tenue::Tenue(const QString& chemin) : chemin_(chemin), connexion_(QUuid::createUuid().toString())
{
    base_ = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), connexion_);
    base_.setDatabaseName(chemin);
    base_.setConnectOptions(QStringLiteral("QSQLITE_BUSY_TIMEOUT=1000"));
    if (!base_.open()) {
        etat_ = Etat::Illisible;
        return;
    }
    // In this mode the lock of a transaction stays when it ends.
    for (const auto* instruction : {"pragma locking_mode = exclusive", "begin exclusive", "commit"}) {
        QSqlQuery requete(base_);
        if (!requete.exec(QLatin1String(instruction))) {
            etat_ = EtatDe(requete.lastError());
            return;
        }
    }
    etat_ = Etat::Tenue;
}

Tenue::~Tenue()
{
    Libere();
}

void Tenue::Libere()
{
    if (!connexion_.isEmpty()) {
        base_ = QSqlDatabase();
        QSqlDatabase::removeDatabase(connexion_);
        connexion_.clear();
    }
}

bool Tenue::EstIntegre()
{
    QSqlQuery requete(base_);
    return requete.exec(QStringLiteral("pragma integrity_check(1)")) && requete.next() &&
           requete.value(0).toString() == QLatin1String("ok");
}

qint64 Tenue::Nombre(const QString& pragma)
{
    QSqlQuery requete(base_);
    return requete.exec(QStringLiteral("pragma ") + pragma) && requete.next() ? requete.value(0).toLongLong()
                                                                              : 0;
}

QList<std::pair<QString, qint64>> Tenue::Lignes()
{
    QSqlQuery requete(base_);
    QStringList noms;
    if (!requete.exec(QStringLiteral("select name from sqlite_master where type = 'table' "
                                     "and name not like 'sqlite_%' order by name"))) {
        throw storage::Panne(requete.lastError(), chemin_);
    }
    while (requete.next()) {
        noms.append(requete.value(0).toString());
    }
    QList<std::pair<QString, qint64>> lignes;
    for (const QString& nom : std::as_const(noms)) {
        if (!requete.exec(QStringLiteral("select count(*) from %1 not indexed").arg(storage::Cite(nom))) ||
            !requete.next()) {
            throw storage::Panne(requete.lastError(), chemin_);
        }
        lignes.append({nom, requete.value(0).toLongLong()});
    }
    return lignes;
}

void Tenue::CompacteVers(const QString& ebauche)
{
    QSqlQuery requete(base_);
    requete.prepare(QStringLiteral("vacuum into ?"));
    requete.addBindValue(ebauche);
    if (!requete.exec()) {
        throw storage::Panne(requete.lastError(), chemin_);
    }
}

QString ProgrammeQuiTient(const QString& chemin)
{
    const QString vrai = QFileInfo(chemin).canonicalFilePath();
    const QString moi = QString::number(QCoreApplication::applicationPid());
    for (const QString& numero : QDir(QStringLiteral("/proc")).entryList(QDir::Dirs)) {
        if (numero == moi || !numero.front().isDigit()) {
            continue;
        }
        const QDir ouverts(QStringLiteral("/proc/%1/fd").arg(numero));
        for (const QString& ouvert : ouverts.entryList(QDir::Files | QDir::System)) {
            if (QFile::symLinkTarget(ouverts.filePath(ouvert)) == vrai) {
                const QFileInfo nom(QFile::symLinkTarget(QStringLiteral("/proc/%1/exe").arg(numero)));
                return nom.fileName().isEmpty() ? numero : nom.fileName();
            }
        }
    }
    return {};
}

} // namespace utile
