#include "medication/Lignes.h"

#include <QTest>

using namespace medication;
using prescription::Entree;
using prescription::Ligne;
using prescription::Ordonnance;

namespace {

QString Blancs(int nombre)
{
    return QString(nombre, u' ');
}

QString Rangee(const QString& titre, int blancs = 100, const QString& identifiant = QStringLiteral("1"))
{
    return QStringLiteral("  ") + titre + Blancs(blancs) + identifiant;
}

QStringList Titres(const prescription::LignesZone& lignes)
{
    QStringList titres;
    for (const Ligne& ligne : lignes.Lignes()) {
        titres.append(prescription::TitreDeLigne(ligne.Texte));
    }
    return titres;
}

// Three lines of zone 1: A, B, C, with the posologies a, b, c.
void Trois(Ordonnance& ordonnance)
{
    for (const QLatin1String titre : {QLatin1String("A"), QLatin1String("B"), QLatin1String("C")}) {
        AjouteLigne(ordonnance, Zone::Un, {titre, QString(titre).toLower()}, QStringLiteral("1"));
    }
}

} // namespace

class TestLignes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void AFreshLineHasASlotAndARow()
    {
        Ordonnance ordonnance;
        AjouteLigne(ordonnance, Zone::Deux,
                    {QStringLiteral(" DOLIPRANE 1 G  "), QStringLiteral("1 cp\nmatin* ")},
                    QStringLiteral("4711"));
        QCOMPARE(ordonnance.OrdoZone2,
                 QList<Entree>({{QStringLiteral("DOLIPRANE 1 G"), QStringLiteral("1 cp\nmatin* ")}}));
        QCOMPARE(
            ordonnance.LstChoix2.Lignes(),
            QList<Ligne>({{Rangee(QStringLiteral(" DOLIPRANE 1 G  "), 100, QStringLiteral("4711")), 0}}));
        QVERIFY(ordonnance.OrdoZone1.isEmpty() && ordonnance.LstChoix1.Vide());
    }

    void ALoneSharpIsALineJump_data()
    {
        QTest::addColumn<QString>("texte");
        QTest::addColumn<QString>("titre");
        QTest::addColumn<QString>("montre");
        QTest::newRow("sharp") << "#"
                               << "##"
                               << "#";
        QTest::newRow("two") << "##"
                             << "##"
                             << "#";
        QTest::newRow("title") << "QSP 3 mois#"
                               << "QSP 3 mois#"
                               << "QSP 3 mois#";
        QTest::newRow("centred") << "#titre"
                                 << "#titre"
                                 << "#titre";
        QTest::newRow("three") << "###"
                               << "###"
                               << "###";
        QTest::newRow("blanks") << "  # "
                                << "##"
                                << "#";
        QTest::newRow("empty") << ""
                               << ""
                               << "";
    }
    void ALoneSharpIsALineJump()
    {
        QFETCH(QString, texte);
        QFETCH(QString, titre);
        QFETCH(QString, montre);
        QCOMPARE(TitreStocke(texte), titre);
        QCOMPARE(TitreMontre(TitreStocke(texte)), montre);
        Ordonnance fraiche;
        AjouteLigne(fraiche, Zone::Un, {texte, {}}, QStringLiteral("1"));
        QCOMPARE(fraiche.OrdoZone1[0].Titre, titre);
        Choix choix;
        ReprendLigne(fraiche, choix, Zone::Un, 0);
        RemetLigne(fraiche, choix, Zone::Un, {texte, {}});
        QCOMPARE(fraiche.OrdoZone1[0].Titre, titre);
    }

    void AJumpHasThreeHundredBlanks()
    {
        Ordonnance ordonnance;
        AjouteSaut(ordonnance, Zone::Un);
        QCOMPARE(ordonnance.OrdoZone1, QList<Entree>({{QStringLiteral("##"), QString()}}));
        QCOMPARE(ordonnance.LstChoix1.Lignes(), QList<Ligne>({{Rangee(QStringLiteral("#"), 300), 0}}));
    }

    void ALineTakenBackLeavesItsSlotAndComesBackLast()
    {
        Ordonnance ordonnance;
        Trois(ordonnance);
        Choix choix;
        const auto reprise = ReprendLigne(ordonnance, choix, Zone::Un, 0);
        QCOMPARE(*reprise, (Saisie{QStringLiteral("A"), QStringLiteral("a")}));
        QCOMPARE(choix.OrigineEdition, quint8(1));
        QCOMPARE(choix.IdentifiantRepris, QStringLiteral("1"));
        QCOMPARE(Titres(ordonnance.LstChoix1), QStringList({QStringLiteral("B"), QStringLiteral("C")}));
        QCOMPARE(ordonnance.OrdoZone1.size(), 3);

        RemetLigne(ordonnance, choix, Zone::Un, {QStringLiteral("A bis"), QStringLiteral("z")});
        QCOMPARE(choix.OrigineEdition, quint8(0));
        QCOMPARE(ordonnance.OrdoZone1[0], (Entree{QStringLiteral("A bis"), QStringLiteral("z")}));
        QCOMPARE(ordonnance.LstChoix1.Lignes().last(), (Ligne{Rangee(QStringLiteral("A bis"), 200), 0}));
    }

    void TheIdentifierTravelsWithALine()
    {
        Ordonnance ordonnance;
        AjouteLigne(ordonnance, Zone::Deux, {QStringLiteral("X"), {}}, QStringLiteral("1234567890"));
        Choix choix;
        ReprendLigne(ordonnance, choix, Zone::Deux, 0);
        RemetLigne(ordonnance, choix, Zone::Deux, {QStringLiteral("X"), {}});
        QCOMPARE(prescription::IdentifiantDeLigne(ordonnance.LstChoix2.Lignes()[0].Texte),
                 QStringLiteral("1234567890"));
    }

    void AJumpTakenBackIsALoneSharp()
    {
        Ordonnance ordonnance;
        AjouteSaut(ordonnance, Zone::Un);
        Choix choix;
        QCOMPARE(PresseLigne(ordonnance, choix, Zone::Un, 0)->TxtMedoc, QStringLiteral("#"));
        QCOMPARE(ReprendLigne(ordonnance, choix, Zone::Un, 0)->TxtMedoc, QStringLiteral("#"));
    }

    void ADoubleClickWithoutARowChangesNothing()
    {
        Ordonnance ordonnance;
        Trois(ordonnance);
        Choix choix;
        QVERIFY(!ReprendLigne(ordonnance, choix, Zone::Un, -1));
        QCOMPARE(choix.OrigineEdition, quint8(0));
        QCOMPARE(ordonnance.LstChoix1.rowCount(), 3);
    }

    void AnOldCodeStaysOneWhereverItsLineGoes()
    {
        Ordonnance ordonnance;
        Trois(ordonnance);
        const QString texte = prescription::TexteDeLigne(QStringLiteral("D"), 300, QStringLiteral("3595583"));
        ordonnance.LstChoix1.Ajoute({texte, 0, true});
        Choix choix;
        ReprendLigne(ordonnance, choix, Zone::Un, 3);
        RemetLigne(ordonnance, choix, Zone::Un, {QStringLiteral("D"), {}});
        QVERIFY(ordonnance.LstChoix1.Lignes().back().EstUnCode);
        choix.ListeSource = 1;
        QVERIFY(PasseLigne(ordonnance, choix, Zone::Un, 3, {}));
        QVERIFY(ordonnance.LstChoix2.Lignes().back().EstUnCode);
        ReprendLigne(ordonnance, choix, Zone::Un, 0);
        RemetLigne(ordonnance, choix, Zone::Un, {QStringLiteral("A"), {}});
        QVERIFY(!ordonnance.LstChoix1.Lignes().back().EstUnCode);
    }

    void OnlyADeadSlotCanBeWrittenAgain()
    {
        Ordonnance ordonnance;
        Trois(ordonnance);
        Choix choix;
        ReprendLigne(ordonnance, choix, Zone::Un, 1);
        QVERIFY(RepriseDe(ordonnance, choix, Zone::Un));
        QVERIFY(!RepriseDe(ordonnance, choix, Zone::Deux));
        RemetLigne(ordonnance, choix, Zone::Un, {});
        choix.OrigineEdition = 1;
        QVERIFY(!RepriseDe(ordonnance, choix, Zone::Un));
        choix.IndexEdition1 = 7;
        QVERIFY(!RepriseDe(ordonnance, choix, Zone::Un));
    }

    void APressShowsTheLine()
    {
        Ordonnance ordonnance;
        Trois(ordonnance);
        Choix choix;
        QCOMPARE(*PresseLigne(ordonnance, choix, Zone::Un, 1),
                 (Saisie{QStringLiteral("B"), QStringLiteral("b")}));
        QCOMPARE(choix.OrigineEdition, quint8(2));
        QCOMPARE(choix.ListeSource, quint8(1));
        choix = {};
        QVERIFY(!PresseLigne(ordonnance, choix, Zone::Un, -1));
        QCOMPARE(choix.OrigineEdition, quint8(2));
        QCOMPARE(choix.ListeSource, quint8(0));
    }

    void ArrowsFollowTheRow_data()
    {
        QTest::addColumn<int>("lignes");
        QTest::addColumn<int>("rang");
        QTest::addColumn<bool>("haut");
        QTest::addColumn<bool>("bas");
        QTest::newRow("none") << 0 << -1 << false << false;
        QTest::newRow("alone") << 1 << 0 << false << false;
        QTest::newRow("first") << 3 << 0 << false << true;
        QTest::newRow("middle") << 3 << 1 << true << true;
        QTest::newRow("last") << 3 << 2 << true << false;
        QTest::newRow("not selected") << 3 << -1 << false << false;
    }
    void ArrowsFollowTheRow()
    {
        QFETCH(int, lignes);
        QFETCH(int, rang);
        QFETCH(bool, haut);
        QFETCH(bool, bas);
        Ordonnance ordonnance;
        for (int i = 0; i < lignes; ++i) {
            AjouteSaut(ordonnance, Zone::Un);
        }
        QCOMPARE(FlechesDe(ordonnance.LstChoix1, rang), (Fleches{haut, bas}));
    }

    void ARowMovesWithItsSlot()
    {
        Ordonnance ordonnance;
        Trois(ordonnance);
        const QList<Entree> avant = ordonnance.OrdoZone1;
        ordonnance.LstChoix1.Deplace(0, 1);
        QCOMPARE(Titres(ordonnance.LstChoix1),
                 QStringList({QStringLiteral("B"), QStringLiteral("A"), QStringLiteral("C")}));
        QCOMPARE(ordonnance.LstChoix1.Lignes()[1].Indice, 0);
        QCOMPARE(ordonnance.OrdoZone1, avant);
    }

    void ARowPassesToTheOtherZone()
    {
        Ordonnance ordonnance;
        Trois(ordonnance);
        const QString texte = ordonnance.LstChoix1.Lignes()[1].Texte;
        Choix choix;
        const Saisie boites = *PresseLigne(ordonnance, choix, Zone::Un, 1);
        QVERIFY(!PasseLigne(ordonnance, choix, Zone::Deux, 0, boites));
        QVERIFY(PasseLigne(ordonnance, choix, Zone::Un, 1, boites));
        QCOMPARE(ordonnance.LstChoix2.Lignes(), QList<Ligne>({{texte, 0}}));
        QCOMPARE(ordonnance.OrdoZone2, QList<Entree>({{QStringLiteral("B"), QStringLiteral("b")}}));
        QCOMPARE(Titres(ordonnance.LstChoix1), QStringList({QStringLiteral("A"), QStringLiteral("C")}));
        QCOMPARE(ordonnance.OrdoZone1.size(), 3);
    }

    void AJumpPassesAsAJump()
    {
        Ordonnance ordonnance;
        AjouteSaut(ordonnance, Zone::Deux);
        Choix choix;
        const Saisie boites = *PresseLigne(ordonnance, choix, Zone::Deux, 0);
        QVERIFY(PasseLigne(ordonnance, choix, Zone::Deux, 0, boites));
        QCOMPARE(ordonnance.OrdoZone1[0].Titre, QStringLiteral("##"));
    }

    void TheCountLeavesOutClosingSharps_data()
    {
        QTest::addColumn<QString>("titre");
        QTest::addColumn<int>("compte");
        QTest::newRow("plain") << "DOLIPRANE" << 1;
        QTest::newRow("centred") << "#DOLIPRANE" << 1;
        QTest::newRow("closed") << "QSP 3 mois#" << 0;
        QTest::newRow("closed behind blanks") << "QSP 3 mois#   " << 0;
        QTest::newRow("centred and closed") << "#QSP#" << 0;
        QTest::newRow("jump") << "#" << 0;
        QTest::newRow("in the middle") << "A#B" << 1;
        QTest::newRow("blank") << "   " << 1;
        QTest::newRow("long") << QString(250, u'X') << 1;
    }
    void TheCountLeavesOutClosingSharps()
    {
        QFETCH(QString, titre);
        QFETCH(int, compte);
        Ordonnance ordonnance;
        AjouteLigne(ordonnance, Zone::Un, {titre, {}}, QStringLiteral("1234567890"));
        AjouteSaut(ordonnance, Zone::Deux);
        AjouteLigne(ordonnance, Zone::Deux, {titre, {}}, QStringLiteral("1"));
        AjouteLigne(ordonnance, Zone::Deux, {titre, {}}, QStringLiteral("1"));
        CompteMedicaments(ordonnance);
        QCOMPARE(int(ordonnance.NbMedZone1), compte);
        QCOMPARE(int(ordonnance.NbMedZone2), 2 * compte);
    }

    void TheCountEndsAtItsLargestByte()
    {
        Ordonnance ordonnance;
        for (int i = 0; i < 300; ++i) {
            AjouteLigne(ordonnance, Zone::Un, {QStringLiteral("X"), {}}, QStringLiteral("1"));
        }
        CompteMedicaments(ordonnance);
        QCOMPARE(int(ordonnance.NbMedZone1), 255);
    }

    void ASecondZoneStandsByOnAPageOfOne_data()
    {
        QTest::addColumn<int>("ald");
        QTest::addColumn<bool>("lignes");
        QTest::addColumn<bool>("horsPage");
        QTest::newRow("left out") << 0 << true << true;
        QTest::newRow("on the page") << 1 << true << false;
        QTest::newRow("no line") << 0 << false << false;
    }

    void ASecondZoneStandsByOnAPageOfOne()
    {
        QFETCH(int, ald);
        QFETCH(bool, lignes);
        QFETCH(bool, horsPage);
        Ordonnance ordonnance;
        ordonnance.ChkALD = static_cast<quint8>(ald);
        if (lignes) {
            AjouteSaut(ordonnance, Zone::Deux);
        }
        QCOMPARE(ZoneHorsPage(ordonnance), horsPage);
    }

    void CopiesExcludeEachOther()
    {
        Ordonnance ordonnance;
        CocheDup(ordonnance, 1);
        CocheTri(ordonnance, 1);
        QCOMPARE(ordonnance.ChkDup, quint8(0));
        QCOMPARE(ordonnance.ChkTri, quint8(1));
        CocheDup(ordonnance, 1);
        QCOMPARE(ordonnance.ChkDup, quint8(1));
        QCOMPARE(ordonnance.ChkTri, quint8(0));
        CocheTri(ordonnance, 0);
        QCOMPARE(ordonnance.ChkDup, quint8(1));
    }
};

QTEST_GUILESS_MAIN(TestLignes)
#include "test_lignes.moc"
