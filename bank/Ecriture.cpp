#include "bank/Ecriture.h"

#include "bank/Schema.h"
#include "bank/messages.h"
#include "common/Erreur.h"
#include "common/Fichiers.h"

#include <QFileInfo>
#include <QSqlError>
#include <QSqlRecord>
#include <QStorageInfo>

#include <atomic>

namespace banque {

namespace {

QString NouvelleConnexion()
{
    static std::atomic<int> numero = 0;
    return QStringLiteral("scriptelle-banque-%1").arg(++numero);
}

bool DisqueSansPlace(const QString& chemin)
{
    const QStorageInfo disque(QFileInfo(chemin).absolutePath());
    constexpr qint64 kPeu = 64 * 1024;
    return disque.isValid() && disque.bytesAvailable() < kPeu;
}

} // namespace

Insertion::Insertion(Ecriture& ecriture, const QString& table, int colonnes)
    : ecriture_(ecriture), requete_(ecriture.base_)
{
    for (int i = 0; i < colonnes; ++i) {
        places_.append(QStringLiteral(":v%1").arg(i));
    }
    liees_.fill(QVariant(), colonnes);
    if (!requete_.prepare(
            QStringLiteral("insert into %1 values (%2)").arg(table, places_.join(QStringLiteral(", "))))) {
        ecriture_.Echoue(requete_.lastError());
    }
}

void Insertion::Ajoute(std::initializer_list<QVariant> valeurs)
{
    // Binding is what takes longest: a value stays bound, and one in two is that of the row before. By name,
    // since the toolkit composes a name anew for each value that is bound by its position.
    qsizetype place = 0;
    for (const QVariant& valeur : valeurs) {
        QVariant& liee = liees_[place];
        if (premiere_ || liee != valeur) {
            liee = valeur;
            requete_.bindValue(places_[place], valeur);
        }
        ++place;
    }
    premiere_ = false;
    if (!requete_.exec()) {
        ecriture_.Echoue(requete_.lastError());
    }
}

Ecriture::Ecriture(const QString& chemin)
    : chemin_(chemin), ebauche_(chemin + QStringLiteral(".ebauche")),
      verrou_(chemin + QStringLiteral(".verrou")), connexion_(NouvelleConnexion())
{
    const QString nom = QFileInfo(chemin).fileName();
    const QString dossier = QFileInfo(chemin).absolutePath();
    if (!common::DossierExiste(dossier)) {
        throw common::Erreur(messages::DossierAbsent(common::CheminAffiche(dossier)),
                             common::CheminAffiche(chemin));
    }
    if (!verrou_.tryLock()) {
        const bool occupee = verrou_.error() == QLockFile::LockFailedError;
        throw common::Erreur(occupee                   ? messages::ImportEnCours(nom)
                             : DisqueSansPlace(chemin) ? messages::DisquePlein(nom)
                                                       : messages::BanqueRefusee(nom),
                             common::CheminAffiche(chemin));
    }
    try {
        Ouvre();
    } catch (...) {
        Ferme();
        throw;
    }
}

Ecriture::~Ecriture()
{
    Ferme();
}

/// The neighbour is scrap until it is whole: no journal, and one flush at the end.
void Ecriture::Ouvre()
{
    common::SupprimeFichier(ebauche_);
    base_ = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), connexion_);
    base_.setDatabaseName(ebauche_);
    if (!base_.open()) {
        Echoue(base_.lastError());
    }
    for (const char* reglage : {"journal_mode=off", "synchronous=off", "locking_mode=exclusive",
                                "temp_store=memory", "cache_size=-131072", "page_size=8192"}) {
        Execute(QStringLiteral("pragma ") + QLatin1String(reglage));
    }
    Execute(QStringLiteral("pragma application_id=%1").arg(kApplicationBanque));
    Execute(QStringLiteral("pragma user_version=%1").arg(kVersionBanque));
    Execute(QStringLiteral("begin"));
    for (const QString& table : Tables()) {
        if (!table.trimmed().isEmpty()) {
            Execute(table);
        }
    }
}

void Ecriture::Ferme()
{
    base_.close();
    base_ = QSqlDatabase();
    QSqlDatabase::removeDatabase(connexion_);
    QFile::remove(ebauche_);
}

Insertion Ecriture::Prepare(const QString& table)
{
    return Insertion(*this, table, base_.record(table).count());
}

void Ecriture::Execute(const QString& instruction)
{
    QSqlQuery requete(base_);
    if (!requete.exec(instruction)) {
        Echoue(requete.lastError());
    }
}

void Ecriture::Valide(const std::function<void()>& avant)
{
    for (const QString& index : Index()) {
        if (!index.trimmed().isEmpty()) {
            Execute(index);
        }
    }
    Execute(QStringLiteral("commit"));
    base_.close();
    if (avant) {
        avant();
    }
    common::MetEnPlace(ebauche_, chemin_);
}

void Ecriture::Echoue(const QSqlError& erreur) const
{
    constexpr int kCodePrimaire = 0xFF;
    const int code = erreur.nativeErrorCode().toInt() & kCodePrimaire;
    const QString nom = QFileInfo(chemin_).fileName();
    const QString lieu = common::CheminAffiche(chemin_);
    if (code == 13 || DisqueSansPlace(chemin_)) {
        throw common::Erreur(messages::DisquePlein(nom), lieu);
    }
    switch (code) {
    case 8: // read-only
    case 14:
        throw common::Erreur(messages::BanqueRefusee(nom), lieu);
    case 10: // disk error
        throw common::Erreur(messages::DisqueEnPanne(nom), lieu);
    default:
        throw common::Erreur(messages::EcritureRefusee(nom, erreur.text()), lieu);
    }
}

} // namespace banque
