#include "medication/Posologie.h"

#include <QTest>

using namespace medication;

namespace {

const QString kBesoin = QStringLiteral("en cas de besoin,");
const QString kLibreMoment = QStringLiteral("n'importe quand");

QStringList QuantitesVoulues()
{
    return QStringLiteral("1/4|1/2|3/4|1|1 1/4|1 1/2|2|3|4|5|10|15|20|25|30").split(u'|');
}

} // namespace

class TestEcritPoso : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void TheListsOfTheBoxes_data()
    {
        QTest::addColumn<int>("indice");
        QTest::addColumn<QString>("legende");
        QTest::addColumn<QString>("textes");
        const QString quantites = QuantitesVoulues().join(u'|');
        QTest::newRow("0") << 0 << QStringLiteral("Forme")
                           << QStringLiteral("comprimé(s)|comprimé(s) eff.|comprimé(s) orodisp.|gélule(s)|"
                                             "sachet(s)|ampoule(s)|cuillère(s) à soupe|cuillère(s) à café|"
                                             "cuillère(s) mesure|dose(s) poids|goutte(s)|pulvérisation(s)|"
                                             "inhalation(s)|application(s)|dose(s)|injection(s) IM|ovule|"
                                             "lyoc|lyo|dose 2,5 ml|dose 5 ml|dose 10 ml|dose 15 ml|suppo");
        QTest::newRow("1") << 1 << QStringLiteral("Matin") << quantites;
        QTest::newRow("2") << 2 << QStringLiteral("Midi") << quantites;
        QTest::newRow("3") << 3 << QStringLiteral("Soir") << quantites;
        QTest::newRow("4") << 4 << QStringLiteral("Coucher") << quantites;
        QTest::newRow("5") << 5 << QStringLiteral("Repas / horaire")
                           << QStringLiteral("en cas de besoin,|avant les repas,|au début des repas,|"
                                             "pendant les repas,|après les repas,|à la fin des repas,|"
                                             "à distance des repas,|n'importe quand");
        QTest::newRow("6") << 6 << QStringLiteral("Fréquence")
                           << QStringLiteral("tous les jours,|tous les 2 jours,|5 jours par semaine,|"
                                             "1 jour par semaine,|1 jour par mois,|"
                                             "du Xème au Xème jour du cycle,");
        QTest::newRow("7") << 7 << QStringLiteral("Durée")
                           << QStringLiteral("pendant 5 jours|pendant 6 jours|pendant 7 jours|"
                                             "pendant 8 jours|pendant 10 jours|pendant 14 jours|"
                                             "pendant 1 mois|pendant 3 mois|pendant 4 mois|pendant 6 mois");
    }

    void TheListsOfTheBoxes()
    {
        QFETCH(int, indice);
        QFETCH(QString, legende);
        QFETCH(QString, textes);
        QCOMPARE(LegendeCboP(indice), legende);
        QCOMPARE(ListeCboP(indice), textes.split(u'|'));
    }

    void TheSentenceOfMoments_data()
    {
        QTest::addColumn<QString>("choix"); // the eight texts, a bar between them
        QTest::addColumn<QString>("phrase");
        const auto rang = [](const char* nom, const char16_t* choix, const char16_t* phrase) {
            QTest::newRow(nom) << QString::fromUtf16(choix) << QString::fromUtf16(phrase);
        };
        rang("nothing", u"|||||||", u"  ");
        rang("form alone", u"gélule(s)|||||||", u"  ");
        rang("form once", u"comprimé(s)|1||1||||", u"1  comprimé(s)  le matin, 1  le soir");
        rang("whole and part", u"comprimé(s)|1 1/2||||||", u"1  comprimé(s) et 1/2  le matin");
        rang("whole and part later", u"comprimé(s)|1|1 1/4|||||",
             u"1  comprimé(s)  le matin, 1 et 1/4  le midi");
        rang("all four", u"goutte(s)|5|10|15|20|||",
             u"5  goutte(s)  le matin, 10  le midi, 15  le soir, 20  au coucher");
        rang("everything", u"gélule(s)|2|||1|avant les repas,|tous les jours,|pendant 7 jours",
             u"2  gélule(s)  le matin, 1  au coucher, avant les repas, tous les jours, pendant 7 jours");
        rang("no form", u"|1||1||||", u"1  le matin, 1  le soir");
        rang("three words", u"gélule(s)|1 ou 2||||||", u"1  gélule(s) et 2  le matin");
        rang("trailing blank", u"gélule(s)|1 ||||||", u"1  gélule(s) et   le matin");
        rang("form within a word", u"mat|1||1||||", u"1  mat  le matin, 1  le soir");
        rang("form of the words before", u"le matin|1||1||||", u"1  le matin  le matin, 1  le soir");
        rang("case counts", u"LE|1||1||||", u"1  LE  le matin, 1  le soir");
        rang("frequency, no duration", u"lyo|||1||pendant les repas,|tous les 2 jours,|",
             u"1  lyo  le soir, pendant les repas, tous les 2 jours");
        rang("duration alone", u"|||||||pendant 3 mois", u"  pendant 3 mois");
    }

    void TheSentenceOfMoments()
    {
        QFETCH(QString, choix);
        QFETCH(QString, phrase);
        const QStringList textes = choix.split(u'|');
        ChoixPosologie boites;
        std::copy(textes.begin(), textes.end(), boites.begin());
        for (const int dernier : {kForme, kMatin, kRepas, kDuree}) {
            QCOMPARE(EcritPoso(boites, dernier, QStringLiteral("9")), phrase);
        }
    }

    void TheFormIsNotRepeatedWithinAnEarlierQuantity()
    {
        // The first quantity is typed with the form in it.
        ChoixPosologie boites = {QStringLiteral("dose"), QStringLiteral("1dose(s)"), {}, QStringLiteral("2")};
        QCOMPARE(EcritPoso(boites, kForme, {}), QStringLiteral("1dose(s)  dose  le matin, 2  le soir"));
        boites = {QStringLiteral("dose"), {}, {}, {}};
        QCOMPARE(EcritPoso(boites, kForme, {}), QStringLiteral("  "));
    }

    void TheSentencesWithoutATimeOfDay_data()
    {
        QTest::addColumn<QString>("f");
        QTest::addColumn<QString>("r");
        QTest::addColumn<QString>("d");
        QTest::addColumn<QString>("besoin");
        QTest::addColumn<QString>("libre");
        QTest::newRow("alone") << QString() << QString() << QString()
                               << QStringLiteral("2   , en cas de besoin (max X par jour),  ")
                               << QStringLiteral("2  , toujours dans le même créneau horaire que vous pouvez "
                                                 "choisir librement,  ");
        QTest::newRow("form") << QStringLiteral("sachet(s)") << QString() << QString()
                              << QStringLiteral("2  sachet(s) , en cas de besoin (max X par jour),  ")
                              << QStringLiteral(
                                     "2 sachet(s) , toujours dans le même créneau horaire que vous "
                                     "pouvez choisir librement,  ");
        QTest::newRow("all")
            << QStringLiteral("sachet(s)") << QStringLiteral("tous les jours,")
            << QStringLiteral("pendant 5 jours")
            << QStringLiteral(
                   "2  sachet(s) , en cas de besoin (max X par jour), tous les jours, pendant 5 jours")
            << QStringLiteral("2 sachet(s) tous les jours, toujours dans le même créneau horaire que vous "
                              "pouvez choisir librement,  pendant 5 jours");
    }

    void TheSentencesWithoutATimeOfDay()
    {
        QFETCH(QString, f);
        QFETCH(QString, r);
        QFETCH(QString, d);
        QFETCH(QString, besoin);
        QFETCH(QString, libre);
        const QString quantite = QStringLiteral("2");
        ChoixPosologie boites = {f, {}, {}, {}, {}, kBesoin, r, d};
        for (const int dernier : {kForme, kFrequence, kDuree}) {
            QCOMPARE(EcritPoso(boites, dernier, quantite), besoin);
        }
        QCOMPARE(EcritPoso(boites, kRepas, quantite), CoupeVirgule(besoin));
        boites[kRepas] = kLibreMoment;
        for (const int dernier : {kForme, kFrequence, kDuree}) {
            QCOMPARE(EcritPoso(boites, dernier, quantite), libre);
        }
        QCOMPARE(EcritPoso(boites, kRepas, quantite), CoupeVirgule(libre));
    }

    void TheKindOfSentence_data()
    {
        QTest::addColumn<QString>("moment");
        QTest::addColumn<int>("dernier");
        QTest::addColumn<int>("cas");
        const auto rangs = [](const QString& moment, const QList<CasPosologie>& cas) {
            for (int i = 0; i < kNbCboP; ++i) {
                QTest::addRow("%s %d", qPrintable(moment), i) << moment << i << static_cast<int>(cas[i]);
            }
        };
        using enum CasPosologie;
        rangs(kBesoin, {Besoin, Moments, Moments, Moments, Moments, DemandeBesoin, Besoin, Besoin});
        rangs(kLibreMoment, {Libre, Moments, Moments, Moments, Moments, DemandeLibre, Libre, Libre});
        for (const char16_t* autre : {u"avant les repas,", u"", u"en cas de besoin", u"N'importe quand"}) {
            rangs(QString::fromUtf16(autre), QList<CasPosologie>(kNbCboP, Moments));
        }
    }

    void TheKindOfSentence()
    {
        QFETCH(QString, moment);
        QFETCH(int, dernier);
        QFETCH(int, cas);
        ChoixPosologie boites;
        boites[kRepas] = moment;
        QCOMPARE(static_cast<int>(CasDe(boites, dernier)), cas);
    }

    void TheEndComma()
    {
        QCOMPARE(CoupeVirgule(QStringLiteral(" 1  le matin,  ")), QStringLiteral("1  le matin"));
        QCOMPARE(CoupeVirgule(QStringLiteral("  ")), QStringLiteral("  "));
        QCOMPARE(CoupeVirgule(QStringLiteral(" 1 matin ")), QStringLiteral(" 1 matin "));
        QCOMPARE(CoupeVirgule(QStringLiteral("1,,")), QStringLiteral("1,"));
        QCOMPARE(CoupeVirgule(QString()), QString());
        QCOMPARE(PosologieRendue(QStringLiteral("  ")), QString());
        QCOMPARE(PosologieRendue(QStringLiteral(" 1 matin, ")), QStringLiteral("1 matin"));
        QCOMPARE(PosologieRendue(QStringLiteral(" 1 matin ")), QStringLiteral("1 matin"));
        QCOMPARE(PosologieRendue(QStringLiteral(" , ")), QString());
    }

    void AnOpenNumberIsSeen()
    {
        QVERIFY(ResteUnX(EcritPoso({QString(), {}, {}, {}, {}, kBesoin}, kRepas, QStringLiteral("1"))));
        QVERIFY(ResteUnX(QStringLiteral("du 5ème au Xème jour du cycle")));
        QVERIFY(!ResteUnX(QStringLiteral("1 , en cas de besoin (max 3 par jour)")));
        QVERIFY(!ResteUnX(QStringLiteral("1 XANAX")));
    }
};

QTEST_GUILESS_MAIN(TestEcritPoso)
#include "test_ecrit_poso.moc"
