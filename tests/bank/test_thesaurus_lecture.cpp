#include "BanqueDeThesaurus.h"
#include "bank/Thesaurus.h"
#include "bank/ThesaurusLecture.h"
#include "bank/ThesaurusTexte.h"

#include <QTest>

using namespace banque;

/// The reading of the printed document, on the project's own extract.
class TestThesaurusLecture : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        thesaurus_ = LitThesaurus(essai::Extrait(QStringLiteral("interactions.txt")));
        QCOMPARE(thesaurus_.Bilan.Lues, 56);
        QCOMPARE(thesaurus_.Bilan.SansNiveau, 0);
    }

    void TheEditionIsThatOfTheCover() { QCOMPARE(thesaurus_.Edition, QStringLiteral("mars 2021")); }

    void TheCoverTellsOfLocalRoutes()
    {
        QCOMPARE(
            thesaurus_.VoiesLocales,
            QStringLiteral("Les voies locales ne comptent pas, sauf dans les cas suivants :\n- collyres de "
                           "l'essai\n- gouttes de l'essai"));
    }

    void TheOtherEncodingIsReadAsWell()
    {
        const QString texte = QString::fromUtf8(essai::Extrait(QStringLiteral("interactions.txt")));
        const Thesaurus autre = LitThesaurus(common::VersWindows1252(texte));
        QCOMPARE(autre.Bilan.Lues, 56);
        QCOMPARE(autre.Bilan.SansNiveau, 0);
        QVERIFY(autre.Place(QStringLiteral("BÊTA-BLOQUANTS")) >= 0);
    }

    void BothPrintingsMakeOnePair()
    {
        const Interaction une = Trouve("AMIODARONE", "SIMVASTATINE");
        QCOMPARE(une.Niveau, Niveau::Deconseillee);
        QVERIFY(!une.Conditionnelle);
        QCOMPARE(
            une.Risque,
            QStringLiteral("Douleurs des muscles plus fréquentes quand la dose de la statine est forte."));
        QCOMPARE(une.Precaution, QStringLiteral("Choisir une autre statine."));
        QCOMPARE(Nombre("SIMVASTATINE", "AMIODARONE"), 1);
    }

    void TheHighestLevelIsShownWithEveryCondition()
    {
        const Interaction une = Trouve("ACIDE ACETYLSALICYLIQUE", "ANTICOAGULANTS ORAUX");
        QCOMPARE(une.Niveau, Niveau::ContreIndication);
        QVERIFY(une.Conditionnelle);
        QCOMPARE(une.Precaution,
                 QStringLiteral(
                     "Contre-indication - Association déconseillée - A prendre en compte\nContre-indication "
                     "avec :\n- une dose forte (>= 1 g par prise)\n- une dose moyenne, quand "
                     "l'estomac a déjà saigné\n\nAssociation déconseillée avec :\n- une dose moyenne sans "
                     "ulcère connu\n\nA prendre en compte avec :\n- une dose faible, une fois par jour"));
    }

    void AHyphenAtTheEndOfALineStays()
    {
        QVERIFY(Trouve("BÊTA-BLOQUANTS", "AMIODARONE")
                    .Risque.contains(QStringLiteral("influx auriculo-ventriculaire peut")));
        QVERIFY(thesaurus_.Place(QStringLiteral("piroxicam-betadex")) >= 0);
    }

    void APageBreakCutsNoText()
    {
        const Interaction une = Trouve("BÊTA-BLOQUANTS", "VERAPAMIL");
        QCOMPARE(une.Risque,
                 QStringLiteral("Le coeur bat trop lentement ; il peut aussi se contracter moins bien, et "
                                "cela d'autant plus que la personne est âgée ou que le traitement vient "
                                "d'être commencé."));
        QCOMPARE(une.Precaution,
                 QStringLiteral("Ne le faire que sous tracé, et jamais en ville. Prévenir la personne de "
                                "ce qui doit l'amener à consulter : malaise, essoufflement, jambes qui "
                                "gonflent. Revoir le traitement au bout d'une semaine, puis d'un mois."));
        for (const QString& desaccord : thesaurus_.Bilan.Desaccords) {
            QVERIFY2(!desaccord.contains(QStringLiteral("VERAPAMIL")), qUtf8Printable(desaccord));
        }
    }

    void ATextPrintedTwiceIsReadOnce()
    {
        const Interaction une = Trouve("METFORMINE", "PRODUITS DE CONTRASTE IODÉS");
        QCOMPARE(une.Niveau, Niveau::ContreIndication);
        QVERIFY(!une.Conditionnelle);
        QCOMPARE(une.Risque.count(QStringLiteral("metformine")), 1);
    }

    void OthersOfAClassAreTheClassItself_data()
    {
        QTest::addColumn<QString>("classe");
        QTest::newRow("before") << QStringLiteral("ANTICOAGULANTS ORAUX");
        QTest::newRow("behind") << QStringLiteral("FIBRATES");
        QTest::newRow("under another name") << QStringLiteral("MÉDICAMENTS, BRADYKININE ET ANGIO-ŒDÈME");
    }
    void OthersOfAClassAreTheClassItself()
    {
        QFETCH(const QString, classe);
        const int place = thesaurus_.Place(classe);
        QVERIFY(place >= 0);
        QCOMPARE(std::count_if(thesaurus_.Interactions.begin(), thesaurus_.Interactions.end(),
                               [&](const Interaction& i) { return i.A == place && i.B == place && i.Autre; }),
                 1);
    }

    void ListsAndReferencesMakeMembers()
    {
        const auto membre = [&](const char* classe, const char* nom) {
            return thesaurus_.Appartenances.contains(
                {thesaurus_.Place(QString::fromUtf8(classe)), thesaurus_.Place(QString::fromUtf8(nom))});
        };
        QVERIFY(membre("BÊTA-BLOQUANTS", "propranolol"));
        QVERIFY(membre("MÉDICAMENTS SÉDATIFS", "di(acefylline) diphenhydramine"));
        QVERIFY(membre("MÉDICAMENTS SÉDATIFS", "BÊTA-BLOQUANTS"));
        QVERIFY(membre("LAXATIFS (TYPE MACROGOL)", "macrogol"));
        QVERIFY(membre("MEDICAMENTS SEDATIFS", "CARBAMAZEPINE"));
        QVERIFY(membre(
            "SUBSTANCES À ABSORPTION RÉDUITE PAR LES TOPIQUES DE L'ESTOMAC ET DE L'INTESTIN, ET PAR LES "
            "ADSORBANTS",
            "CARBAMAZEPINE"));
        QCOMPARE(thesaurus_.Place(QStringLiteral("anpu")), -1);
        QCOMPARE(thesaurus_.Place(QStringLiteral("MEDICAMENTS DU COEUR")), -1);
    }

    void DisagreementsAreToldAndTheGraverCounts()
    {
        const Interaction une = Trouve("LITHIUM", "METFORMINE");
        QCOMPARE(une.Niveau, Niveau::Deconseillee);
        const Interaction autre = Trouve("CARBAMAZEPINE", "SIMVASTATINE");
        QCOMPARE(autre.Precaution, QStringLiteral("Contrôler le cholestérol."));
        QCOMPARE(thesaurus_.Bilan.Desaccords.size(), 3); // and a reference to a class without a heading
        QCOMPARE(thesaurus_.Bilan.Uniques.size(), 3);
    }

    void AnInteractionWithoutALevelIsTold()
    {
        const Thesaurus lu = LitThesaurus("ALPHA\n+ BETA\n                      Un risque sans niveau.\n");
        QCOMPARE(lu.Bilan.SansNiveau, 1);
        QVERIFY(lu.Interactions.isEmpty());
    }

    void NoTextIsTooLong_data()
    {
        QTest::addColumn<QByteArray>("texte");
        const int lignes = 200000;
        QTest::newRow("notes") << QByteArray("A\n") + QByteArray(" note\n").repeated(lignes);
        QTest::newRow("a list") << QByteArray("A\n (a,\n") + QByteArray(" a(,\n").repeated(lignes);
        QTest::newRow("a name") << QByteArray("A\n+ B\n") + QByteArray("   suite\n").repeated(lignes);
        QTest::newRow("a heading") << QByteArray("A\n").repeated(lignes);
        QTest::newRow("rows") << QByteArray("A\n+ B\n") + QByteArray("          x\n").repeated(lignes);
        QTest::newRow("blanks") << QByteArray("A\n+ B\n          x") + QByteArray(lignes, ' ') + "y\n";
        QTest::newRow("pages") << QByteArray("A\n\f\n").repeated(lignes);
    }
    void NoTextIsTooLong()
    {
        QFETCH(const QByteArray, texte);
        QVERIFY(LitThesaurus(texte).Interactions.isEmpty());
    }

    void NoTextIsTooStrange_data()
    {
        QTest::addColumn<QByteArray>("texte");
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("form feeds") << QByteArray("\f\f\f");
        QTest::newRow("no heading") << QByteArray("+ BETA\n          x          CONTRE-INDICATION\n");
        QTest::newRow("brackets") << QByteArray("A\n ((((\n )))),(,\n");
        QTest::newRow("not UTF-8") << QByteArray("\xFF\xFE\n+ \xC3\n");
    }
    void NoTextIsTooStrange()
    {
        QFETCH(const QByteArray, texte);
        QVERIFY(LitThesaurus(texte).Interactions.isEmpty());
    }

private:
    Interaction Trouve(const char* a, const char* b) const
    {
        const int x = thesaurus_.Place(QString::fromUtf8(a));
        const int y = thesaurus_.Place(QString::fromUtf8(b));
        for (const Interaction& une : thesaurus_.Interactions) {
            if ((une.A == x && une.B == y) || (une.A == y && une.B == x)) {
                return une;
            }
        }
        return {};
    }
    qsizetype Nombre(const char* a, const char* b) const
    {
        const int x = thesaurus_.Place(QString::fromUtf8(a));
        const int y = thesaurus_.Place(QString::fromUtf8(b));
        return std::count_if(
            thesaurus_.Interactions.begin(), thesaurus_.Interactions.end(),
            [&](const Interaction& i) { return (i.A == x && i.B == y) || (i.A == y && i.B == x); });
    }

    Thesaurus thesaurus_;
};

QTEST_GUILESS_MAIN(TestThesaurusLecture)
#include "test_thesaurus_lecture.moc"
