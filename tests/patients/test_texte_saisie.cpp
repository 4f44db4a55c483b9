#include "patients/Civilite.h"
#include "patients/TexteSaisie.h"

#include <QTest>

using namespace patients;

class TestTexteSaisie : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void Telephone_data()
    {
        QTest::addColumn<QString>("saisi");
        QTest::addColumn<QString>("attendu");
        QTest::newRow("dix chiffres") << QStringLiteral("0612345678") << QStringLiteral("06 12 34 56 78");
        QTest::newRow("blancs autour") << QStringLiteral(" 0612345678 ") << QStringLiteral("06 12 34 56 78");
        QTest::newRow("neuf chiffres") << QStringLiteral("612345678") << QStringLiteral("06 12 34 56 78");
        QTest::newRow("deux chiffres") << QStringLiteral("15") << QStringLiteral("00 00 00 00 15");
        QTest::newRow("onze chiffres") << QStringLiteral("33612345678") << QStringLiteral("336 12 34 56 78");
        QTest::newRow("international")
            << QStringLiteral("0033612345678") << QStringLiteral("00336 12 34 56 78");
        QTest::newRow("lettres") << QStringLiteral("06 bureau") << QStringLiteral("06 bureau");
        QTest::newRow("en paires") << QStringLiteral("06 12 34 56 78") << QStringLiteral("06 12 34 56 78");
        QTest::newRow("plus") << QStringLiteral("+33612345678") << QStringLiteral("+33612345678");
        QTest::newRow("vide") << QString() << QString();
    }

    void Telephone()
    {
        QFETCH(QString, saisi);
        QTEST(MasqueTelephone(saisi), "attendu");
    }

    void Poids_data()
    {
        QTest::addColumn<QString>("saisi");
        QTest::addColumn<QString>("attendu");
        QTest::newRow("vide") << QString() << QStringLiteral("0");
        QTest::newRow("entier") << QStringLiteral("72") << QStringLiteral("72");
        QTest::newRow("virgule") << QStringLiteral("72,5") << QStringLiteral("72");
        QTest::newRow("point") << QStringLiteral("72.5") << QStringLiteral("72.5");
        QTest::newRow("unite") << QStringLiteral("3.250 kg") << QStringLiteral("3.25");
        QTest::newRow("lettres") << QStringLiteral("lourd") << QStringLiteral("0");
        QTest::newRow("zero") << QStringLiteral("0") << QStringLiteral("0");
    }

    void Poids()
    {
        QFETCH(QString, saisi);
        QTEST(PoidsSaisi(saisi), "attendu");
    }

    void Noms_data()
    {
        QTest::addColumn<QString>("nom");
        QTest::addColumn<QString>("prenom");
        QTest::addColumn<QString>("complet");
        QTest::newRow("simple") << QStringLiteral("MARTIN") << QStringLiteral("Paul")
                                << QStringLiteral("MARTIN  Paul");
        QTest::newRow("deux blancs") << QStringLiteral("LE  GALL") << QStringLiteral("Anne  Marie")
                                     << QStringLiteral("LE GALL  Anne Marie");
        QTest::newRow("trois blancs")
            << QStringLiteral("LE   GALL") << QStringLiteral("Paul") << QStringLiteral("LE  GALL  Paul");
        QTest::newRow("apostrophe") << QStringLiteral("D'ARC") << QStringLiteral("Jo \"J\"")
                                    << QStringLiteral("D'ARC  Jo \"J\"");
    }

    void Noms()
    {
        QFETCH(QString, nom);
        QFETCH(QString, prenom);
        QTEST(NomComplet(nom, prenom), "complet");
    }

    void Decoupe_data()
    {
        QTest::addColumn<QString>("complet");
        QTest::addColumn<QString>("nom");
        QTest::addColumn<QString>("prenom");
        QTest::newRow("simple") << QStringLiteral("LE GALL  Paul") << QStringLiteral("LE GALL")
                                << QStringLiteral("Paul");
        QTest::newRow("trop de parties")
            << QStringLiteral("LE  GALL  Paul") << QStringLiteral("LE") << QStringLiteral("GALL");
        QTest::newRow("une partie") << QStringLiteral("MARTIN Paul") << QStringLiteral("MARTIN Paul")
                                    << QString();
        QTest::newRow("vide") << QString() << QString() << QString();
    }

    void Decoupe()
    {
        QFETCH(QString, complet);
        const NomEtPrenom parties = DecoupeNom(complet);
        QTEST(parties.Nom, "nom");
        QTEST(parties.Prenom, "prenom");
    }

    void Prenom()
    {
        QCOMPARE(PremiereMajuscule(QStringLiteral("jean-luc")), QStringLiteral("Jean-luc"));
        QCOMPARE(PremiereMajuscule(QStringLiteral("émile")), QStringLiteral("Émile"));
        QCOMPARE(PremiereMajuscule(QStringLiteral("PAUL")), QStringLiteral("PAUL"));
        QCOMPARE(PremiereMajuscule(QString()), QString());
    }

    void Precautions()
    {
        const QStringList deux = {QStringLiteral("pénicilline"), QStringLiteral("asthme")};
        QCOMPARE(JointPrecautions(deux), QStringLiteral("pénicilline*asthme"));
        QCOMPARE(SeparePrecautions(QStringLiteral("pénicilline*asthme")), deux);
        QCOMPARE(JointPrecautions({}), QString());
        QCOMPARE(SeparePrecautions(QString()), QStringList());
        QCOMPARE(SeparePrecautions(JointPrecautions({QStringLiteral("a*b")})),
                 QStringList({QStringLiteral("a"), QStringLiteral("b")}));
    }

    void Civilites()
    {
        const QStringList mots = {QStringLiteral("Monsieur"),     QStringLiteral("Madame"),
                                  QStringLiteral("Mademoiselle"), QStringLiteral("Enfant"),
                                  QStringLiteral("Nourrisson"),   QString()};
        for (int option = 0; option < mots.size(); ++option) {
            QCOMPARE(MotDeCivilite(option), mots[option]);
            QCOMPARE(OptionDeCivilite(mots[option]), option);
        }
        QCOMPARE(OptionDeCivilite(QStringLiteral("Maître")), -1);
        QCOMPARE(MotDeCivilite(-1), QString());
        QCOMPARE(AvecCivilite(QStringLiteral("Madame"), QStringLiteral("A  B")),
                 QStringLiteral("Madame  A  B"));
        QCOMPARE(AvecCivilite({}, QStringLiteral("A  B")), QStringLiteral("A  B"));
    }
};

QTEST_GUILESS_MAIN(TestTexteSaisie)
#include "test_texte_saisie.moc"
