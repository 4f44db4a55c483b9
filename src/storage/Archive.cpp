#include "storage/Archive.h"

#include "common/Fichiers.h"
#include "common/Tolere.h"
#include "storage/EstUneBase.h"
#include "storage/Pannes.h"
#include "storage/Verification.h"
#include "storage/messages.h"

#include <QSqlError>
#include <QSqlQuery>
#include <QUuid>
#include <QtEndian>

namespace storage {

namespace {

constexpr int kFichier = 0100644; ///< kind and rights, as the format keeps them
constexpr int kEnteteTaille = 4;  ///< the size that `qCompress` puts first and the format keeps apart

QSqlDatabase Connexion(const QString& nom, const QString& chemin, const QString& options)
{
    QSqlDatabase base = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), nom);
    base.setDatabaseName(chemin);
    base.setConnectOptions(options);
    base.open();
    return base;
}

/// The content as the format stores it: packed, or as it is when that is no longer.
QByteArray Tasse(const QByteArray& contenu)
{
    const QByteArray tasse = qCompress(contenu).sliced(contenu.isEmpty() ? 0 : kEnteteTaille);
    return tasse.size() < contenu.size() ? tasse : contenu;
}

QByteArray Detasse(const QByteArray& donnees, qint64 taille)
{
    if (donnees.size() == taille) {
        return donnees;
    }
    QByteArray entete(kEnteteTaille, '\0');
    qToBigEndian(static_cast<quint32>(taille), entete.data());
    return qUncompress(entete + donnees);
}

} // namespace

Archive::Archive(const QString& chemin, Mode mode)
    : chemin_(chemin), connexion_(QUuid::createUuid().toString())
{
    if (mode == Mode::Lecture) {
        VerifieFichier(chemin);
    }
    base_ = Connexion(connexion_, chemin,
                      mode == Mode::Lecture ? QStringLiteral("QSQLITE_OPEN_READONLY") : QString());
    try {
        if (mode == Mode::Creation) {
            Execute(QStringLiteral("pragma synchronous=full"));
            Execute(QStringLiteral("begin"));
            Execute(QStringLiteral("create table sqlar(name text primary key, mode int, mtime int, sz int, "
                                   "data blob)"));
        }
    } catch (...) {
        Ferme();
        throw;
    }
}

Archive::~Archive()
{
    Ferme();
}

void Archive::Ferme()
{
    base_ = QSqlDatabase();
    QSqlDatabase::removeDatabase(connexion_);
}

void Archive::Execute(const QString& instruction)
{
    QSqlQuery requete(base_);
    if (!requete.exec(instruction)) {
        throw Panne(requete.lastError(), chemin_);
    }
}

void Archive::Ajoute(const QString& nom, const QByteArray& contenu, const QDateTime& modifie)
{
    QSqlQuery requete(base_);
    requete.prepare(QStringLiteral("insert into sqlar(name, mode, mtime, sz, data) values(?, ?, ?, ?, ?)"));
    requete.addBindValue(nom);
    requete.addBindValue(kFichier);
    requete.addBindValue(modifie.toSecsSinceEpoch());
    requete.addBindValue(contenu.size());
    requete.addBindValue(contenu.isEmpty() ? QByteArray("") : Tasse(contenu));
    if (!requete.exec()) {
        throw Panne(requete.lastError(), chemin_);
    }
}

void Archive::Valide()
{
    Execute(QStringLiteral("commit"));
}

QStringList Archive::Noms() const
{
    QSqlQuery requete(base_);
    QStringList noms;
    if (!requete.exec(QStringLiteral("select name from sqlar order by name"))) {
        throw Panne(requete.lastError(), chemin_);
    }
    while (requete.next()) {
        noms.append(requete.value(0).toString());
    }
    if (requete.lastError().isValid()) {
        throw Panne(requete.lastError(), chemin_);
    }
    return noms;
}

QByteArray Archive::Lit(const QString& nom) const
{
    QSqlQuery requete(base_);
    requete.prepare(QStringLiteral("select sz, data from sqlar where name = ?"));
    requete.addBindValue(nom);
    if (!requete.exec() || !requete.next()) {
        throw Panne(messages::BaseEndommagee, chemin_);
    }
    const qint64 taille = requete.value(0).toLongLong();
    QByteArray contenu = Detasse(requete.value(1).toByteArray(), taille);
    if (contenu.size() != taille) {
        throw Panne(messages::BaseEndommagee, chemin_);
    }
    return contenu;
}

void CopieBase(const QString& source, const QString& copie)
{
    VerifieFichier(source);
    const QString connexion = QUuid::createUuid().toString();
    QSqlError erreur;
    {
        // Open for writing where the disk allows it: a journal that a cut has left is played first.
        QSqlDatabase base = Connexion(connexion, source, QStringLiteral("QSQLITE_BUSY_TIMEOUT=3000"));
        QSqlQuery requete(base);
        requete.prepare(QStringLiteral("vacuum into ?"));
        requete.addBindValue(copie);
        if (!requete.exec()) {
            erreur = requete.lastError();
        }
    }
    QSqlDatabase::removeDatabase(connexion);
    if (erreur.isValid()) {
        // What matters is the failure on its way out.
        common::Tolere([&] { common::SupprimeFichier(copie); });
        throw Panne(erreur, source);
    }
}

void ExigeLibre(const QString& chemin)
{
    constexpr int kPrise = 5;
    if (!EstUneBase(chemin)) {
        return;
    }
    const QString connexion = QUuid::createUuid().toString();
    bool prise = false;
    {
        QSqlDatabase base = Connexion(connexion, chemin, QStringLiteral("QSQLITE_BUSY_TIMEOUT=3000"));
        QSqlQuery requete(base);
        prise = !requete.exec(QStringLiteral("begin exclusive")) &&
                (requete.lastError().nativeErrorCode().toInt() & 0xFF) == kPrise;
        requete.exec(QStringLiteral("rollback"));
    }
    QSqlDatabase::removeDatabase(connexion);
    if (prise) {
        throw Panne(messages::BaseVerrouillee, chemin);
    }
}

} // namespace storage
