#include "BanqueFeinte.h"
#include "medication/Commandes.h"
#include "medication/Interactions.h"
#include "medication/messages.h"
#include "prescription/Editeur.h"
#include "support/Monde.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace medication;

class TestInteractions : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<support::Monde> monde_;
    std::shared_ptr<support::BanqueFeinte> banque_;

    drugbank::Banque& Banque() { return monde_->Etat.Banque; }
    prescription::Ordonnance& Ordo() { return monde_->Etat.Ordonnance; }
    void Pose(const QString& titre, const QString& identifiant, Zone zone = Zone::Un, bool ancien = false)
    {
        Lignes(Ordo(), zone).Ajoute({prescription::TexteDeLigne(titre, 100, identifiant), 0, ancien});
    }
    void Calcule() { CalculeInteractions(monde_->Contexte); }
    QString Aucune(int blancs)
    {
        return QString(u"\r\n"_s).repeated(6) + QString(blancs, u' ') +
               u"AUCUNE  INTERACION  MEDICAMENTEUSE  DANS  L'ORDONNANCE !"_s;
    }

private Q_SLOTS:
    void init()
    {
        monde_ = std::make_unique<support::Monde>();
        banque_ = std::make_shared<support::BanqueFeinte>();
        Banque().TypeBase = u"TVS"_s;
        Banque().Acces = banque_;
    }

    void BothZonesAreAskedAboutInTheirOrder()
    {
        Banque().NiveauInteraction = 2;
        Pose(u"A"_s, u"101"_s);
        Pose(u"B"_s, u"1"_s);
        Pose(u"C"_s, u"103"_s, Zone::Deux);
        Pose(u"D"_s, u"102"_s);
        banque_->Rapports[{101, 102, 103}] = u"deux"_s;
        Calcule();
        QCOMPARE(banque_->ProduitsDemandes, (QList<QList<qint32>>{{101, 102, 103}}));
        QCOMPARE(banque_->NiveauDemande, 2);
        QCOMPARE(Banque().RapportInteractions, u"deux"_s);
        QVERIFY(AInteractions(Banque()));
    }

    void AListWithoutAProductAtItsEndGoesOutWithAZero_data()
    {
        QTest::addColumn<QStringList>("identifiants");
        QTest::addColumn<QList<qint32>>("demandes");
        QTest::newRow("no line") << QStringList() << QList<qint32>{0};
        QTest::newRow("personal entries") << QStringList{u"1"_s, u"1"_s} << QList<qint32>{0};
        QTest::newRow("jump at the end") << QStringList{u"101"_s, u"1"_s} << QList<qint32>{101, 0};
        QTest::newRow("jump between") << QStringList{u"101"_s, u"1"_s, u"102"_s} << QList<qint32>{101, 102};
        QTest::newRow("no number") << QStringList{u"abc"_s, u"101"_s} << QList<qint32>{101};
        QTest::newRow("more than ten digits") << QStringList{u"12345678901"_s} << QList<qint32>{0};
    }

    void AListWithoutAProductAtItsEndGoesOutWithAZero()
    {
        QFETCH(QStringList, identifiants);
        for (const QString& identifiant : identifiants) {
            Pose(u"A"_s, identifiant);
        }
        Calcule();
        QTEST(banque_->ProduitsDemandes.value(0), "demandes");
    }

    void AReportIsThatOfTheLastCalculation()
    {
        banque_->Rapports[{101}] = u"une"_s;
        Pose(u"A"_s, u"101"_s);
        Calcule();
        Ordo().LstChoix1.Efface();
        QCOMPARE(Banque().RapportInteractions, u"une"_s);
        Calcule();
        QVERIFY(Banque().RapportInteractions.isEmpty());
    }

    void WithoutInteractionsItSaysSoUntilTheNextCalculation_data()
    {
        QTest::addColumn<QString>("rapport");
        QTest::newRow("empty") << QString();
        QTest::newRow("a single line end") << u"\r\n"_s;
    }

    void WithoutInteractionsItSaysSoUntilTheNextCalculation()
    {
        QFETCH(QString, rapport);
        banque_->Rapports[{0}] = rapport;
        Calcule();
        QVERIFY(!AInteractions(Banque()));
        QCOMPARE(TexteInteractions(Banque(), Clic::HlbI), Aucune(9));
        QCOMPARE(Banque().RapportInteractions, Aucune(9));
        QCOMPARE(TexteInteractions(Banque(), Clic::AniGIFI), Aucune(9));
        Calcule();
        QCOMPARE(Banque().RapportInteractions, rapport);
        QCOMPARE(TexteInteractions(Banque(), Clic::AniGIFI), Aucune(11));
    }

    void TwoLineEndsAreAReport()
    {
        banque_->Rapports[{0}] = u"\r\n\r\n"_s;
        Calcule();
        QCOMPARE(TexteInteractions(Banque(), Clic::HlbI), u"\r\n\r\n"_s);
    }

    void WhereNoBankAnswersNothingIsClaimed()
    {
        Pose(u"A"_s, u"101"_s);
        Banque().Acces.reset();
        Calcule();
        QCOMPARE(TexteInteractions(Banque(), Clic::HlbI), messages::InteractionsNonVerifiees());
        QCOMPARE(TexteInteractions(Banque(), Clic::AniGIFI), messages::InteractionsNonVerifiees());
        QVERIFY(Banque().RapportInteractions.isEmpty());
        QVERIFY(!InteractionsARefaire(Banque()));
        Banque().Acces = banque_;
        QVERIFY(InteractionsARefaire(Banque()));
        QCOMPARE(TexteInteractions(Banque(), Clic::HlbI), messages::InteractionsNonVerifiees());
        Calcule();
        QVERIFY(!InteractionsARefaire(Banque()));
        QCOMPARE(TexteInteractions(Banque(), Clic::HlbI), Aucune(9));
    }

    void AFailedSessionIsAskedAndNotBelieved()
    {
        Banque().SessionManquee = true;
        Calcule();
        QCOMPARE(banque_->ProduitsDemandes.size(), 1);
        QCOMPARE(TexteInteractions(Banque(), Clic::HlbI), messages::InteractionsNonVerifiees());
    }

    void ACodeOfAnOldVersionIsNamedAndNotSent()
    {
        Pose(u"VIEUX"_s, u"3400930000011"_s);
        Pose(u"PLUS VIEUX"_s, u"3595583"_s, Zone::Deux, true);
        Pose(u"#"_s, u"1"_s, Zone::Deux, true);
        banque_->Rapports[{0}] = u"du reste\r\n"_s;
        Calcule();
        QCOMPARE(banque_->ProduitsDemandes, (QList<QList<qint32>>{{0}}));
        QCOMPARE(Banque().RapportInteractions, u"du reste\r\n"_s + messages::LigneNonVerifiee(u"VIEUX"_s) +
                                                   messages::LigneNonVerifiee(u"PLUS VIEUX"_s));
    }

    void AnIdOfAnotherBankIsNamedAndNotSent_data()
    {
        QTest::addColumn<bool>("publique");
        QTest::addColumn<QString>("identifiant");
        QTest::addColumn<bool>("envoye");
        QTest::newRow("a bank, its own") << false << u"59999999"_s << true;
        QTest::newRow("a bank, the first of the open one") << false << u"60000000"_s << false;
        QTest::newRow("a bank, the last of the open one") << false << u"99999999"_s << false;
        QTest::newRow("a bank, beyond") << false << u"100000000"_s << true;
        QTest::newRow("the open one, below") << true << u"59999999"_s << false;
        QTest::newRow("the open one, its first") << true << u"60000000"_s << true;
        QTest::newRow("the open one, its last") << true << u"99999999"_s << true;
        QTest::newRow("the open one, beyond") << true << u"100000000"_s << false;
        QTest::newRow("the open one, a small one") << true << u"2"_s << false;
    }

    void AnIdOfAnotherBankIsNamedAndNotSent()
    {
        QFETCH(bool, publique);
        QFETCH(QString, identifiant);
        QFETCH(bool, envoye);
        banque_->Publique = publique;
        const qint32 sien = publique ? 61234567 : 101;
        Pose(u"AUTRE"_s, identifiant);
        Pose(u"SIEN"_s, QString::number(sien), Zone::Deux);
        Calcule();
        const qint32 autre = identifiant.toInt();
        QCOMPARE(banque_->ProduitsDemandes.back(),
                 envoye ? (QList<qint32>{autre, sien}) : QList<qint32>{sien});
        QCOMPARE(Banque().RapportInteractions,
                 envoye ? QString() : messages::LigneDUneAutreBanque(u"AUTRE"_s));
    }

    void ALineWithoutAProductIsOfNoBank_data()
    {
        QTest::addColumn<QString>("identifiant");
        QTest::newRow("personal entry") << u"1"_s;
        QTest::newRow("jump") << u"0"_s;
        QTest::newRow("no number") << u"abc"_s;
    }

    void ALineWithoutAProductIsOfNoBank()
    {
        QFETCH(QString, identifiant);
        banque_->Publique = true;
        Pose(u"A"_s, identifiant);
        Calcule();
        QVERIFY(Banque().RapportInteractions.isEmpty());
        QCOMPARE(banque_->ProduitsDemandes.back(), QList<qint32>{0});
    }

    void TheReportGoesWithTheLines()
    {
        Banque().RapportInteractions = u"une"_s;
        EffaceTout(monde_->Contexte);
        QVERIFY(Banque().RapportInteractions.isEmpty());
        Banque().RapportInteractions = u"une"_s;
        Banque().InteractionsNonVerifiees = true;
        prescription::VideDocument(monde_->Contexte);
        QVERIFY(Banque().RapportInteractions.isEmpty() && !Banque().InteractionsNonVerifiees);
    }
};

QTEST_MAIN(TestInteractions)
#include "test_interactions.moc"
