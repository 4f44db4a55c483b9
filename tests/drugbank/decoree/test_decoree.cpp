#include "drugbank/Chargement.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTest>

using namespace drugbank;

class TestDecoree : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void chargeAvecVoisine();
    void sansVoisine();
    void lieChaqueForme();
    void autreCompteDOctets();
    void pileIntacte();

private:
    static QString Chemin()
    {
        return QCoreApplication::applicationDirPath() + QStringLiteral("/decoree/decoree.dll");
    }
};

void TestDecoree::chargeAvecVoisine()
{
    const auto banque = ChargeBanque(Chemin());
    QVERIFY(banque);
    QCOMPARE(LitTexte(*banque, "Doliprane"), QStringLiteral("Doliprane"));
    QVERIFY(ChargeBanque(QDir::toNativeSeparators(Chemin()).chopped(4))); // without its suffix
}

/// No module of the same name stays from the other tests.
void TestDecoree::sansVoisine()
{
    const QString seule = QCoreApplication::applicationDirPath() + QStringLiteral("/seule/decoree.dll");
    QVERIFY(QFile::exists(seule));
    QVERIFY(!ChargeBanque(seule));
}

void TestDecoree::lieChaqueForme()
{
    const auto banque = ChargeBanque(Chemin());
    QVERIFY(banque);
    QString version;
    QCOMPARE(LitVersion(*banque, version), 0);
    QCOMPARE(version, QStringLiteral("4.5"));
    QVERIFY(banque->StringLength.Existe());
    QVERIFY(banque->CopyStringN2.Existe());
    QCOMPARE(DateExpiration(*banque, 1), QStringLiteral("30/03/2027"));
    QVERIFY(!banque->VidalAPI_init.Existe());
}

void TestDecoree::autreCompteDOctets()
{
    const auto banque = ChargeBanque(Chemin());
    QVERIFY(banque);
    QVERIFY(!banque->CopyString.Existe());
}

void TestDecoree::pileIntacte()
{
    const auto banque = ChargeBanque(Chemin());
    QVERIFY(banque);
    for (int i = 0; i < 1'000'000; ++i) {
        QCOMPARE(banque->StringLength("abc"), 3);
    }
}

QTEST_GUILESS_MAIN(TestDecoree)
#include "test_decoree.moc"
