#pragma once

#include "bank/Importateur.h"
#include "common/Fichiers.h"

#include <QSqlDatabase>
#include <QSqlQuery>
#include <QTemporaryDir>
#include <QVariant>

namespace support {

/// A bank imported into a directory of its own, open to be read.
class BanqueDeTest
{
public:
    explicit BanqueDeTest(const QString& sources)
    {
        bilan_ = banque::Importe({.Dossier = sources, .Vers = Chemin()});
        base_ = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), dossier_.path());
        base_.setDatabaseName(Chemin());
        base_.open();
    }
    ~BanqueDeTest()
    {
        base_ = QSqlDatabase();
        QSqlDatabase::removeDatabase(dossier_.path());
    }

    QString Chemin() const { return common::Joint(dossier_.path(), QStringLiteral("banque.sqlite")); }
    const QSqlDatabase& Base() const { return base_; }
    const banque::Bilan& Bilan() const { return bilan_; }
    const banque::BilanFichier& Fichier(const QString& nom) const
    {
        return *std::find_if(bilan_.Fichiers.begin(), bilan_.Fichiers.end(),
                             [&](const banque::BilanFichier& fichier) { return fichier.Nom == nom; });
    }

    /// The first column of the first row; what is said of a failing statement when it fails.
    QVariant Valeur(const QString& instruction) const
    {
        QSqlQuery requete(base_);
        return requete.exec(instruction) && requete.next() ? requete.value(0) : QStringLiteral("rien");
    }

private:
    QTemporaryDir dossier_;
    banque::Bilan bilan_;
    QSqlDatabase base_;
};

/// The project's own files.
inline QString DossierExtrait()
{
    return QStringLiteral(RACINE_PROJET "/bank/extrait");
}

} // namespace support
