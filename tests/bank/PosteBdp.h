#pragma once

#include "bank/Importateur.h"
#include "common/Fichiers.h"
#include "drugbank/RequetesBanque.h"

#include <QFile>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QTemporaryDir>

namespace support {

/// The library of the open bank, as the program loads it, over a bank file made for the test.
class PosteBdp
{
public:
    static constexpr qint32 kProduit = 3;

    /// Imports public files, with the text of a thesaurus or without.
    explicit PosteBdp(const QString& sources, const QString& thesaurus = {})
        : Bibliotheque(QStringLiteral(CHEMIN_BDP)),
          Banque(std::make_shared<drugbank::LiaisonBanque>(Bibliotheque.fileName()))
    {
        banque::Importe({.Dossier = sources, .Vers = Fichier(), .Interactions = thesaurus});
        Choisit(Fichier());
    }
    ~PosteBdp()
    {
        Libere();
        Choisit({});
    }
    PosteBdp(const PosteBdp&) = delete;
    PosteBdp& operator=(const PosteBdp&) = delete;

    QString Fichier() const { return common::Joint(dossier_.path(), QStringLiteral("banque.sqlite")); }
    QString Dossier() const { return dossier_.path(); }

    void Choisit(const QString& fichier)
    {
        Banque->BanquePublique_choisitFichier(fichier.toUtf8().constData());
    }
    /// Starts in the background and waits, as the program does; the last status.
    qint32 Demarre()
    {
        Choisit(Fichier());
        qint32 statut = Banque->VidalAPI_asyncInit(&Session, kProduit);
        while (statut == 14) {
            statut = Banque->VidalAPI_asyncStartResult(Session, 1);
        }
        Requetes.emplace(Banque, Session);
        return statut;
    }
    void Libere()
    {
        Banque->VidalAPI_release(Session);
        Session = 0;
    }
    /// Changes the file behind the library's back.
    void Modifie(const QString& instruction)
    {
        {
            QSqlDatabase base =
                QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), QStringLiteral("modifie"));
            base.setDatabaseName(Fichier());
            if (!base.open() || !QSqlQuery(base).exec(instruction)) {
                qFatal("%s", qPrintable(instruction));
            }
        }
        QSqlDatabase::removeDatabase(QStringLiteral("modifie"));
    }

    QLibrary Bibliotheque;
    std::shared_ptr<drugbank::LiaisonBanque> Banque;
    qint32 Session = 0;
    std::optional<drugbank::RequetesBanque> Requetes;

private:
    QTemporaryDir dossier_;
};

/// The products that a report names as not checked, or not whole.
inline QStringList Inconnus(const QString& rapport)
{
    QStringList noms;
    const QString debut = QStringLiteral(" product name: ");
    for (const QString& ligne : rapport.split(QStringLiteral("\r\n"))) {
        if (ligne.startsWith(debut)) {
            noms.append(ligne.mid(debut.size()));
        }
    }
    return noms;
}

inline QString ThesaurusExtrait()
{
    return QStringLiteral(RACINE_PROJET "/bank/extrait/thesaurus/interactions.txt");
}

} // namespace support
