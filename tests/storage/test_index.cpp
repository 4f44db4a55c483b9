#include "storage/Schema.h"
#include "support/BaseDeTest.h"
#include "support/SansPrivilege.h"

#include <QTest>

using storage::GenreBase;
using support::BaseDeTest;

namespace {

QByteArray Octets(const QString& chemin)
{
    QFile fichier(chemin);
    return fichier.open(QIODevice::ReadOnly) ? fichier.readAll() : QByteArray();
}

QStringList Index(storage::Base& base)
{
    QStringList noms;
    base.Parcourt(QStringLiteral("select name from sqlite_master where type = 'index'"), {},
                  [&](const storage::Rangee& rangee) { noms.append(rangee.Texte(0)); });
    return noms;
}

void OteLesIndex(storage::Base& base)
{
    for (const QString& nom : Index(base)) {
        base.Execute(QStringLiteral("drop index ") + nom);
    }
    QCOMPARE(Index(base), QStringList());
}

} // namespace

/// A file that an earlier version made has no index.
class TestIndex : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void SontAjoutesUneFois();
    void ManquentEnLectureSeule();
    void ManquentQuandUnAutrePosteEcrit();
    void ServentAuxSelections();
};

void TestIndex::SontAjoutesUneFois()
{
    BaseDeTest base;
    OteLesIndex(base.Medoc());
    base.Bases().FermeMedoc();
    QCOMPARE(Index(base.Medoc()).size(), storage::Indexes(GenreBase::Medoc).size());
    base.Bases().FermeMedoc();
    const QByteArray avant = Octets(base.Chemin(QStringLiteral("Medoc.mdb")));
    base.Medoc();
    QCOMPARE(Octets(base.Chemin(QStringLiteral("Medoc.mdb"))), avant);
}

void TestIndex::ManquentEnLectureSeule()
{
    BaseDeTest base;
    OteLesIndex(base.Medoc());
    base.Bases().FermeMedoc();
    const QString chemin = base.Chemin(QStringLiteral("Medoc.mdb"));
    support::OuvreATous(base.Dossier());
    QFile::setPermissions(chemin, QFile::ReadOwner | QFile::ReadGroup | QFile::ReadOther);
    const QByteArray avant = Octets(chemin);
    {
        const support::SansPrivilege personne;
        storage::Base lue(chemin, GenreBase::Medoc);
        QCOMPARE(Index(lue), QStringList());
    }
    QCOMPARE(Octets(chemin), avant);
    QFile::setPermissions(chemin, QFile::ReadOwner | QFile::WriteOwner);
}

void TestIndex::ManquentQuandUnAutrePosteEcrit()
{
    BaseDeTest base;
    storage::Base autre(base.Chemin(QStringLiteral("Medoc.mdb")), GenreBase::Medoc);
    OteLesIndex(autre);
    {
        storage::Transaction transaction(autre);
        QCOMPARE(Index(base.Medoc()), QStringList());
    }
    support::AjouteLigne(base.Medoc(), QStringLiteral("Vidal"), {QStringLiteral("1")});
    // The wait for other stations is as long as before.
    QString attente;
    base.Medoc().Parcourt(QStringLiteral("pragma busy_timeout"), {},
                          [&](const storage::Rangee& rangee) { attente = rangee.Texte(0); });
    QCOMPARE(attente, QStringLiteral("3000"));
}

void TestIndex::ServentAuxSelections()
{
    BaseDeTest base;
    QStringList plans;
    base.Medoc().Parcourt(
        QStringLiteral("explain query plan select * from OrdoEnr where Titre = ? and Patient = '*' "
                       "order by rowid"),
        {QStringLiteral("HTA")}, [&](const storage::Rangee& rangee) { plans.append(rangee.Texte(3)); });
    QCOMPARE(plans.size(), 1); // no sort
    QVERIFY2(plans[0].contains(QStringLiteral("USING INDEX OrdoEnrTitre")), qPrintable(plans[0]));
}

QTEST_GUILESS_MAIN(TestIndex)
#include "test_index.moc"
