#include "storage/Schema.h"

#include "common/Fichiers.h"
#include "common/Tolere.h"
#include "storage/Base.h"
#include "storage/Jeu.h"
#include "storage/Pannes.h"

#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QUuid>

namespace storage {

namespace {

QStringList InstructionsDe(GenreBase genre)
{
    QStringList instructions{QStringLiteral("pragma application_id = %1").arg(MarqueApplication(genre)),
                             QStringLiteral("pragma user_version = %1").arg(kVersionSchema),
                             QStringLiteral("begin")};
    for (const Table& table : Tables(genre)) {
        instructions.append(CreeTableSql(table));
    }
    for (const Index& index : Indexes(genre)) {
        instructions.append(CreeIndexSql(index));
    }
    return instructions << QStringLiteral("commit");
}

/// Runs the statements up to the first that fails.
QSqlError PremierEchec(const QSqlDatabase& base, const QStringList& instructions)
{
    QSqlQuery requete(base);
    for (const QString& instruction : instructions) {
        if (!requete.exec(instruction)) {
            return requete.lastError();
        }
    }
    return {};
}

/// The only place that opens a file which is not a database yet. A failure names `chemin`, which the draft
/// is to replace.
void CreeTables(const QString& ebauche, const QString& chemin, GenreBase genre)
{
    const QString connexion = QUuid::createUuid().toString();
    QSqlError erreur;
    {
        QSqlDatabase base = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), connexion);
        base.setDatabaseName(ebauche);
        erreur = base.open() ? PremierEchec(base, InstructionsDe(genre)) : base.lastError();
    }
    QSqlDatabase::removeDatabase(connexion);
    if (erreur.isValid()) {
        throw Panne(erreur, chemin);
    }
}

/// Writes one row, its fields in the order of the columns; the columns behind them keep what AddNew gives.
void Ajoute(Jeu& jeu, const QVariantList& champs)
{
    jeu.AddNew();
    for (int i = 0; i < champs.size(); ++i) {
        jeu.Ecris(i, champs[i]);
    }
    jeu.Update();
}

void EcritPremieresLignes(Base& base)
{
    const QString police = QStringLiteral("Arial");
    Transaction transaction(base);
    Jeu entete = base.Table(QStringLiteral("Entete"));
    for (int ligne = 0; ligne < kLignesEntete; ++ligne) {
        Ajoute(entete, {ligne, TextePremiereEntete(ligne), police, 10, false, false, false, 0});
    }
    Jeu misenpage = base.Table(QStringLiteral("Misenpage"));
    Ajoute(misenpage, {0, police, 11, true, false, false});
    Ajoute(misenpage, {1, police, 10, false, false, false});
    Jeu couleur = base.Table(QStringLiteral("CouleurPET"));
    Ajoute(couleur, {0});
    Jeu certificat = base.Table(QStringLiteral("Certificat"));
    Ajoute(certificat, {police, 11, false, false, false});
    transaction.Valide();
}

} // namespace

QString TextePremiereEntete(int ligne)
{
    switch (ligne) {
    case 5:
        return QStringLiteral("Tel");
    case 7:
        return QStringLiteral("Fax");
    case 22:
        return QStringLiteral(
            "Membre d'une association agréée. Règlement des honoraires par chèque accepté.\r\n");
    case 23:
        return QStringLiteral("Nom à afficher pour la signature électronique");
    default:
        return QStringLiteral("*");
    }
}

void CreeBase(const QString& chemin, GenreBase genre, ContenuInitial contenu)
{
    const QString ebauche = chemin + u'.' + QUuid::createUuid().toString(QUuid::WithoutBraces);
    try {
        CreeTables(ebauche, chemin, genre);
        if (genre == GenreBase::Ordo && contenu == ContenuInitial::Premier) {
            Base base(ebauche, genre);
            EcritPremieresLignes(base);
        }
        // A journal left by the former file would be played into the new one.
        common::SupprimeFichier(chemin + QStringLiteral("-journal"));
        common::DeplaceFichier(ebauche, chemin);
    } catch (...) {
        // The failure on its way out matters; a left draft does not.
        common::Tolere([&] { common::SupprimeFichier(ebauche); });
        throw;
    }
}

} // namespace storage
