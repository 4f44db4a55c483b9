#pragma once

#include "Bilan.h"

#include "common/Fichiers.h"
#include "storage/Base.h"
#include "storage/Schema.h"
#include "support/BaseDeTest.h"

#include <QDir>
#include <QMap>
#include <QTemporaryDir>

namespace support {

/// A tree with a "Medoc.mdb" of many rows and a doctor's "Ordo.mdb".
class ArbreDeTest
{
public:
    ArbreDeTest()
    {
        common::CreeDossier(Chemin(QStringLiteral("DR NEIBRE")));
        storage::CreeBase(Chemin(QStringLiteral("Medoc.mdb")), storage::GenreBase::Medoc);
        storage::CreeBase(Chemin(QStringLiteral("DR NEIBRE/Ordo.mdb")), storage::GenreBase::Ordo);
    }

    QString Racine() const { return dossier_.path(); }
    QString Chemin(const QString& nom) const { return common::Joint(dossier_.path(), nom); }
    utile::BaseTrouvee Medoc() const
    {
        return {Chemin(QStringLiteral("Medoc.mdb")), storage::GenreBase::Medoc, Racine()};
    }
    utile::BaseTrouvee Ordo() const
    {
        return {Chemin(QStringLiteral("DR NEIBRE/Ordo.mdb")), storage::GenreBase::Ordo, Racine()};
    }

    /// So many rows in each table of "Medoc.mdb"; with `notes`, a long text in every tenth patient.
    void Remplit(int lignes, bool notes = true) const
    {
        storage::Base base(Medoc().Chemin, storage::GenreBase::Medoc);
        storage::Transaction transaction(base);
        const QString blancs(60, u'e');
        for (int i = 1; i <= lignes; ++i) {
            const QString n = QString::number(i);
            base.Execute(
                QStringLiteral(
                    "insert into Patients (Titre, NomPatient, Precautions, Notes) values (?, ?, ?, ?)"),
                {QStringLiteral("M."), QStringLiteral("PATIENT ") + n, QStringLiteral("pénicilline ") + n,
                 notes && i % 10 == 0 ? QString(9000, u'é') + n : blancs});
            base.Execute(QStringLiteral("insert into ListeOrdos values (?, ?, ?, null)"),
                         {QStringLiteral("O") + n, QStringLiteral("P") + n, i % 2});
            base.Execute(QStringLiteral("insert into OrdoEnr values (?, ?, ?, ?, ?, '', ?, null)"),
                         {QStringLiteral("O") + n, QStringLiteral("DOLIPRANE ") + n, blancs, i % 3,
                          QStringLiteral("P") + n, i * 1000LL});
            base.Execute(QStringLiteral("insert into Biblio values (?, ?)"),
                         {QStringLiteral("titre ") + n, blancs});
            base.Execute(QStringLiteral("insert into Vidal values (?, ?)"),
                         {QString::number(3400000 + i), blancs});
            base.Execute(QStringLiteral("insert into MedUtile values (?)"), {QString::number(3400000 + i)});
            base.Execute(QStringLiteral("insert into BddMed values (?, 'a', 'b', null, ?, ?)"),
                         {i, blancs, QStringLiteral("N") + n});
        }
        transaction.Valide();
    }

private:
    QTemporaryDir dossier_;
};

/// All the rows of all tables, by table.
inline QMap<QString, QStringList> Contenu(const utile::BaseTrouvee& trouvee)
{
    storage::Base base(trouvee.Chemin, trouvee.Genre, storage::Disposition::Telle);
    QMap<QString, QStringList> contenu;
    for (const storage::Table& table : base.Tables()) {
        contenu.insert(table.Nom, Lignes(base, table.Nom));
    }
    return contenu;
}

inline QByteArray Octets(const QString& chemin)
{
    return common::LitFichier(chemin);
}

/// Spoils a file at a place.
inline void Gate(const QString& chemin, qint64 place, const QByteArray& octets)
{
    QFile fichier(chemin);
    if (!fichier.open(QIODevice::ReadWrite) || !fichier.seek(place) ||
        fichier.write(octets) != octets.size()) {
        qFatal("the test cannot spoil its file");
    }
}

} // namespace support
