#include "BanqueFeinte.h"
#include "medication/Generiques.h"
#include "medication/messages.h"
#include "support/Monde.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace medication;

class TestGeneriques : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void TheListIsThatOfThePackLastClicked()
    {
        support::Monde monde;
        const auto banque = std::make_shared<support::BanqueFeinte>();
        const QStringList rangs = {QString(), u"  A          1.16  €"_s};
        banque->RangsGeneriques[101] = rangs;
        monde.Etat.Banque.Acces = banque;
        monde.Etat.Choix.InfoPack = QStringList{u"3400930000011"_s, u"11"_s, u"101"_s, u"1.16"_s};
        QVERIFY(RechercheGeneriques(monde.Contexte));
        QCOMPARE(monde.Etat.Choix.LstGen, rangs);
        monde.Etat.Choix.InfoPack[2] = u"102"_s;
        QVERIFY(!RechercheGeneriques(monde.Contexte));
        QVERIFY(monde.Etat.Choix.LstGen.isEmpty());
        QCOMPARE(SansGenerique(monde.Contexte), u"Pas de spécialité générique."_s);
    }

    void WhereNoBankAnswersNothingIsClaimed()
    {
        support::Monde monde;
        monde.Etat.Choix.LstGen = QStringList{u"ancien"_s};
        QVERIFY(!RechercheGeneriques(monde.Contexte));
        QVERIFY(monde.Etat.Choix.LstGen.isEmpty());
        QCOMPARE(SansGenerique(monde.Contexte), messages::GeneriquesNonCherches());
    }

    void TheCaptionBearsThePriceOfThePack()
    {
        Choix choix;
        choix.InfoPack = QStringList{u"1"_s, u"2"_s, u"3"_s, u"0"_s};
        QCOMPARE(TitreGeneriques(choix, u"DOLIPRANE"_s), u"   Génériques de DOLIPRANE   (Prix :  0 €)"_s);
    }

    void TheNameLosesItsPrice_data()
    {
        QTest::addColumn<QString>("rang");
        QTest::addColumn<QString>("nom");
        const QString blancs(10, u' ');
        QTest::newRow("one digit") << u"  PARACETAMOL X"_s + blancs + u"1.16  €"_s << u"PARACETAMOL X"_s;
        QTest::newRow("three digits") << u"  X"_s + blancs + u"123.45  €"_s << u"X"_s;
        QTest::newRow("whole") << u"  X"_s + blancs + u"2  €"_s << u"X"_s;
        QTest::newRow("the price is longer than the cut")
            << u"  X"_s + blancs + u"123456.78  €"_s << u"X"_s + blancs + u"1"_s;
        QTest::newRow("empty") << QString() << QString();
    }

    void TheNameLosesItsPrice()
    {
        QFETCH(QString, rang);
        QFETCH(QString, nom);
        QCOMPARE(NomDuGenerique(rang), nom + QString(30, u' '));
    }
};

QTEST_MAIN(TestGeneriques)
#include "test_generiques.moc"
