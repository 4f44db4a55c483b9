#pragma once

#include "common/Texte8.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QVariant>

namespace essai {

/// A file of the project's own extract.
inline QByteArray Extrait(const QString& nom)
{
    QFile fichier(QStringLiteral(RACINE_PROJET "/bank/extrait/thesaurus/") + nom);
    return fichier.open(QIODevice::ReadOnly) ? fichier.readAll() : QByteArray();
}

inline QDir DonneesPubliques()
{
    return QDir(QStringLiteral(RACINE_PROJET "/../shared/data"));
}

/// True where the public data lie beside the project.
inline bool DonneesPubliquesPresentes()
{
    return DonneesPubliques().exists();
}

/// One of their files, unpacked; empty when that fails.
inline QByteArray DonneePublique(const QString& nom)
{
    QProcess xz;
    xz.start(QStringLiteral("xz"), {QStringLiteral("-dc"), DonneesPubliques().filePath(nom)});
    return xz.waitForFinished(60000) && xz.exitCode() == 0 ? xz.readAllStandardOutput() : QByteArray();
}

/// A bank in memory with the tables that the thesaurus reads and writes.
class BanqueDeThesaurus
{
public:
    BanqueDeThesaurus()
        : base_(QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), QStringLiteral("thesaurus")))
    {
        base_.setDatabaseName(QStringLiteral(":memory:"));
        base_.open();
        for (const char* table :
             {"information(cle text primary key, valeur text not null)",
              "specialites(cis integer primary key, commercialisee integer, homeopathie integer)",
              "substances_noms(code integer not null, nom text not null, primary key(code, nom))",
              "compositions(cis integer, element text, code integer, nature text, lien integer)",
              "thesaurus_entrees(id integer primary key, nom text not null, classe integer not null)",
              "thesaurus_classes(classe integer, membre integer, primary key(classe, membre))",
              "thesaurus_substances(entree integer, code integer, primary key(entree, code))",
              "interactions(id integer primary key, a integer not null, b integer not null, niveau integer "
              "not null,"
              " autre integer not null, conditionnelle integer not null, risque text not null,"
              " precaution text not null)"}) {
            QSqlQuery(base_).exec(QStringLiteral("create table ") + QString::fromUtf8(table));
        }
    }
    ~BanqueDeThesaurus()
    {
        base_.close();
        base_ = {};
        QSqlDatabase::removeDatabase(QStringLiteral("thesaurus"));
    }
    BanqueDeThesaurus(const BanqueDeThesaurus&) = delete;
    BanqueDeThesaurus& operator=(const BanqueDeThesaurus&) = delete;

    const QSqlDatabase& Base() const { return base_; }

    void Ajoute(const QString& instruction, const QVariantList& valeurs)
    {
        QSqlQuery requete(base_);
        requete.prepare(instruction);
        for (const QVariant& valeur : valeurs) {
            requete.addBindValue(valeur);
        }
        requete.exec();
    }

    /// Fills the tables from the public compositions and specialities, both in Windows-1252.
    void Remplit(const QByteArray& compositions, const QByteArray& specialites)
    {
        base_.transaction();
        for (const QByteArray& ligne : compositions.split('\n')) {
            const QStringList champs = Champs(ligne);
            if (champs.size() >= 8) {
                Ajoute(QStringLiteral("insert into compositions values(?, ?, ?, ?, ?)"),
                       {champs[0].toInt(), champs[1], champs[2].toInt(), champs[6], champs[7].toInt()});
                Ajoute(QStringLiteral("insert or ignore into substances_noms values(?, ?)"),
                       {champs[2].toInt(), champs[3].simplified()});
            }
        }
        for (const QByteArray& ligne : specialites.split('\n')) {
            const QStringList champs = Champs(ligne);
            if (champs.size() >= 7) {
                Ajoute(QStringLiteral("insert or ignore into specialites values(?, ?, ?)"),
                       {champs[0].toInt(), champs[6] == QStringLiteral("Commercialisée"),
                        champs[5].contains(QStringLiteral("homéo"))});
            }
        }
        base_.commit();
    }

private:
    static QStringList Champs(const QByteArray& ligne)
    {
        return common::DepuisWindows1252(ligne).remove(u'\r').split(u'\t');
    }

    QSqlDatabase base_;
};

} // namespace essai
