#pragma once

#include "storage/Schema.h"

#include <QFileInfo>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QTest>
#include <QVariantList>

/// A database of an older layout, made table by table: ours by its marks, of no version.
class AncienneBase
{
public:
    AncienneBase(const QString& chemin, storage::GenreBase genre)
    {
        base_ = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), nom_);
        base_.setDatabaseName(chemin);
        if (!base_.open()) {
            qFatal("%s", qPrintable(base_.lastError().text()));
        }
        Execute(QStringLiteral("pragma application_id = %1").arg(storage::MarqueApplication(genre)));
        Execute(QStringLiteral("pragma user_version = 0"));
        Execute(QStringLiteral("pragma synchronous = off"));
    }
    ~AncienneBase()
    {
        base_ = QSqlDatabase();
        QSqlDatabase::removeDatabase(nom_);
    }
    AncienneBase(const AncienneBase&) = delete;
    AncienneBase& operator=(const AncienneBase&) = delete;

    void Execute(const QString& instruction, const QVariantList& valeurs = {})
    {
        QSqlQuery requete(base_);
        requete.prepare(instruction);
        for (const QVariant& valeur : valeurs) {
            const bool vide = valeur.typeId() == QMetaType::QString && valeur.toString().isEmpty();
            requete.addBindValue(vide ? QVariant(QStringLiteral("")) : valeur);
        }
        if (!requete.exec()) {
            qFatal("%s: %s", qPrintable(instruction), qPrintable(requete.lastError().text()));
        }
    }

    /// A table with the first columns of the current layout, those named in `enTexte` as texts.
    void Table(const QString& nom, int colonnes, const QStringList& enTexte = {})
    {
        storage::Table table = Connue(nom);
        table.Colonnes.resize(colonnes);
        for (storage::Colonne& colonne : table.Colonnes) {
            if (enTexte.contains(colonne.Nom)) {
                colonne.Type = storage::TypeColonne::Texte;
            }
        }
        Execute(storage::CreeTableSql(table));
    }

    void Ajoute(const QString& table, const QVariantList& ligne)
    {
        const QStringList points(ligne.size(), QStringLiteral("?"));
        Execute(QStringLiteral("insert into %1 values (%2)").arg(storage::Cite(table), points.join(u',')),
                ligne);
    }
    void Debute() { base_.transaction(); }
    void Valide() { base_.commit(); }

private:
    static storage::Table Connue(const QString& nom)
    {
        for (const auto genre : {storage::GenreBase::Medoc, storage::GenreBase::Ordo}) {
            for (const storage::Table& table : storage::Tables(genre)) {
                if (table.Nom == nom) {
                    return table;
                }
            }
        }
        qFatal("no such table");
        return {};
    }

    QString nom_ = QStringLiteral("ancienne");
    QSqlDatabase base_;
};

/// Has the temporary directories stand in memory where the system offers that: nothing waits for the disk.
inline void TravailleEnMemoire()
{
    if (QFileInfo(QStringLiteral("/dev/shm")).isWritable()) {
        qputenv("TMPDIR", "/dev/shm");
    }
}

inline QString U(const char* texte)
{
    return QString::fromUtf8(texte);
}
