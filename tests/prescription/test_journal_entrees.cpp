#include "common/Fichiers.h"
#include "prescription/JournalEntrees.h"
#include "prescription/ListeJournal.h"

#include <QAbstractItemModelTester>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace prescription;

namespace {

/// A journal file with these bytes, read.
struct Lu
{
    explicit Lu(const QByteArray& octets)
    {
        const QString chemin = common::Joint(dossier_.path(), u"Journal_Docteur NEIBRE.log"_s);
        common::EcritFichier(chemin, octets);
        Entier = Journal.Lit(chemin);
    }

    QStringList Dates() const { return Textes(Journal.Dates(), &JournalEntrees::Date); }
    QStringList Patients() const { return Textes(Journal.Patients(), &JournalEntrees::Patient); }
    QStringList Textes(const std::vector<int>& numeros, QString (JournalEntrees::*lit)(int) const) const
    {
        QStringList textes;
        for (const int numero : numeros) {
            textes.append((Journal.*lit)(numero));
        }
        return textes;
    }

    JournalEntrees Journal;
    bool Entier = false;

private:
    QTemporaryDir dossier_;
};

using Numeros = std::vector<int>;

} // namespace

class TestJournalEntrees : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void LitUneOrdonnance();
    void ClasseLesDates();
    void ClasseLesPatients();
    void SepareLesNaissances();
    void RendChaqueOrdonnanceDuJour();
    void GardeLesLignesAbimees();
    void NeCacheRienDerriereUnAutre();
    void LitToutesLesFinsDeLigne();
    void LitAuDelaDe16Bits();
    void DitCeQuiNeSeLitPas();
    void NommeLeMedecin_data();
    void NommeLeMedecin();
    void RemplitUneListe();
    void UneLigneSansFinNeRetientPersonne();
    void UneDateSeTapeSansBlanc();
};

void TestJournalEntrees::LitUneOrdonnance()
{
    const Lu lu("20/11/2026*MARTIN  Ren\xE9"
                "e*20/03/1953*DOLIPRANE1000MG*AMLOR5MG\r\n");
    QVERIFY(lu.Entier);
    QCOMPARE(lu.Journal.Nombre(), 1);
    QCOMPARE(lu.Journal.Date(0), u"20/11/2026"_s);
    QCOMPARE(lu.Journal.Patient(0), u"MARTIN  Renée   (20/03/1953)"_s);
    QCOMPARE(lu.Journal.Prescription(0), u"\r\n  DOLIPRANE1000MG\r\n\r\n  AMLOR5MG\r\n"_s);
}

void TestJournalEntrees::ClasseLesDates()
{
    const Lu lu("02/01/2027*A*1\r\n20/11/2026*B*2\r\n01/12/2026*C*3\r\n20/11/2026*D*4\r\n");
    QCOMPARE(lu.Dates(), (QStringList{u"20/11/2026"_s, u"01/12/2026"_s, u"02/01/2027"_s}));
}

void TestJournalEntrees::ClasseLesPatients()
{
    const Lu lu(
        "1*ZOLA  Emile*1\n1*\xC9LUARD  Paul*2\n1*eluard  Anne*3\n1*MARTIN  Paul*4\n1*MARTIN  Paul*4\n");
    QCOMPARE(lu.Patients(), (QStringList{u"eluard  Anne   (3)"_s, u"ÉLUARD  Paul   (2)"_s,
                                         u"MARTIN  Paul   (4)"_s, u"ZOLA  Emile   (1)"_s}));
}

void TestJournalEntrees::SepareLesNaissances()
{
    const Lu lu("20/11/2026*MARTIN  Paul*20/03/1953*A\n21/11/2026*MARTIN  Paul*21/03/1953*B\n");
    QCOMPARE(lu.Patients(),
             (QStringList{u"MARTIN  Paul   (20/03/1953)"_s, u"MARTIN  Paul   (21/03/1953)"_s}));
    QCOMPARE(lu.Journal.DuPatient(0), Numeros{0});
}

void TestJournalEntrees::RendChaqueOrdonnanceDuJour()
{
    const Lu lu("20/11/2026*MARTIN  Paul*1*A\n21/11/2026*MARTIN  Paul*1*B\n20/11/2026*DURAND  Anne*2*C\n"
                "20/11/2026*MARTIN  Paul*1*D\n19/11/2026*MARTIN  Paul*1*E\n");
    QCOMPARE(lu.Journal.DuJour(3), (Numeros{2, 0, 3}));
    QCOMPARE(lu.Journal.DuPatient(1), (Numeros{4, 0, 3, 1}));
    QCOMPARE(lu.Journal.Prescription(3), u"\r\n  D\r\n"_s);
}

void TestJournalEntrees::GardeLesLignesAbimees()
{
    const Lu lu("20/11/2026*MARTIN  Paul*1*A\r\nsans rien\r\n\r\n*\r\n***\r\n20/11/2026*seul\r\n"
                "20/11/2026*DURAND  Anne*2*B\r\n21/13*X*3*C");
    QVERIFY(lu.Entier);
    QCOMPARE(lu.Journal.Nombre(), 8);
    QCOMPARE(lu.Journal.Patient(1), u"   ()"_s);
    QCOMPARE(lu.Journal.Prescription(1), QString());
    QCOMPARE(lu.Journal.Prescription(4), u"\r\n  \r\n"_s);
    QCOMPARE(lu.Journal.Patient(5), u"seul   ()"_s);
    QCOMPARE(lu.Journal.Prescription(7), u"\r\n  C\r\n"_s);
    QCOMPARE(lu.Dates(), (QStringList{QString(), u"20/11/2026"_s, u"21/13"_s, u"sans rien"_s}));
    QCOMPARE(lu.Patients(), (QStringList{u"   ()"_s, u"DURAND  Anne   (2)"_s, u"MARTIN  Paul   (1)"_s,
                                         u"seul   ()"_s, u"X   (3)"_s}));
}

void TestJournalEntrees::NeCacheRienDerriereUnAutre()
{
    const Lu lu("20/11/2026*LEMARTIN  Paul*1\n20/11/2026*MARTIN  Paul*1\n11/2026*A*2\n");
    QCOMPARE(lu.Patients().size(), 3);
    QCOMPARE(lu.Dates().size(), 2);
}

void TestJournalEntrees::LitToutesLesFinsDeLigne()
{
    const Lu lu("20/11/2026*A*1*X\n20/11/2026*A*1*Y\r\n20/11/2026*B*1*Z");
    QCOMPARE(lu.Dates(), QStringList{u"20/11/2026"_s});
    QCOMPARE(lu.Journal.Prescription(0), u"\r\n  X\r\n"_s);
    QCOMPARE(lu.Journal.Prescription(1), u"\r\n  Y\r\n"_s);
    QCOMPARE(lu.Journal.Prescription(2), u"\r\n  Z\r\n"_s);
}

void TestJournalEntrees::LitAuDelaDe16Bits()
{
    QByteArray octets;
    for (int i = 0; i < 70'000; ++i) {
        octets += "20/11/2026*P" + QByteArray::number(i) + "*1*M" + QByteArray::number(i) + "\r\n";
    }
    qint64 dernier = 0;
    const Lu lu(octets);
    QCOMPARE(lu.Journal.Nombre(), 70'000);
    QCOMPARE(lu.Journal.Patients().size(), std::size_t(70'000));
    QCOMPARE(lu.Journal.Prescription(69'999), u"\r\n  M69999\r\n"_s);
    QTemporaryDir dossier;
    const QString chemin = common::Joint(dossier.path(), u"j.log"_s);
    common::EcritFichier(chemin, octets);
    JournalEntrees suivi;
    QVERIFY(suivi.Lit(chemin, [&](qint64 lus, qint64 total) {
        QVERIFY(lus > dernier);
        QCOMPARE(total, octets.size());
        dernier = lus;
    }));
    QCOMPARE(dernier, octets.size());
}

void TestJournalEntrees::DitCeQuiNeSeLitPas()
{
    QTemporaryDir dossier;
    JournalEntrees journal;
    QVERIFY(!journal.Lit(common::Joint(dossier.path(), u"absent.log"_s)));
    QVERIFY(journal.Vide());
    QVERIFY(!journal.Lit(dossier.path()));
    QVERIFY(journal.Dates().empty());
    QVERIFY(journal.Patients().empty());
    const Lu vide("");
    QVERIFY(vide.Entier);
    QVERIFY(vide.Journal.Vide());
}

void TestJournalEntrees::NommeLeMedecin_data()
{
    QTest::addColumn<QString>("chemin");
    QTest::addColumn<QString>("medecin");
    QTest::newRow("journal") << u"/a/DR X/Journal_Docteur NEIBRE.log"_s << u"Docteur NEIBRE"_s;
    QTest::newRow("autre") << u"/a/sauvegarde du 3.log"_s << u"de du 3"_s;
    QTest::newRow("court") << u"/a/x.log"_s << QString();
}

void TestJournalEntrees::NommeLeMedecin()
{
    QFETCH(const QString, chemin);
    QTEST(MedecinDuJournal(chemin), "medecin");
}

void TestJournalEntrees::RemplitUneListe()
{
    const Lu lu("20/11/2026*MARTIN  Paul*1*A\n21/11/2026*DURAND  Anne*2*B\n");
    ListeJournal dates(lu.Journal, RangJournal::Date);
    const QAbstractItemModelTester controle(&dates, QAbstractItemModelTester::FailureReportingMode::QtTest);
    dates.Remplit(lu.Journal.Dates(), false);
    QCOMPARE(dates.index(1).data().toString(), u" 21/11/2026"_s);
    QCOMPARE(dates.index(1).data(Qt::UserRole).toInt(), 0);
    ListeJournal patients(lu.Journal, RangJournal::Patient);
    patients.Remplit(lu.Journal.DuJour(1), true);
    QCOMPARE(patients.index(0).data().toString(), u"DURAND  Anne   (2)"_s);
    QCOMPARE(patients.index(0).data(Qt::UserRole).toInt(), 1);
    dates.Vide();
    QCOMPARE(dates.rowCount(), 0);
}

/// A file that is no journal, or one whose end is lost.
void TestJournalEntrees::UneLigneSansFinNeRetientPersonne()
{
    const Lu lu("20/11/2026*A*1*B\n" + QByteArray(5'000'000, 'x') + "\n21/11/2026*" +
                QByteArray(5'000'000, 'n') + "*1*" + QByteArray(5'000'000, 'p') + "\n");
    QCOMPARE(lu.Journal.Nombre(), 3);
    QCOMPARE(lu.Journal.Prescription(0), u"\r\n  B\r\n"_s);
    QVERIFY(lu.Journal.Date(1).size() <= 1000);
    QVERIFY(lu.Journal.Patient(2).size() < 2100);
    QVERIFY(lu.Journal.Prescription(2).size() < 1'100'000);
}

void TestJournalEntrees::UneDateSeTapeSansBlanc()
{
    const Lu lu("20/11/2026*A*1*B\n21/11/2026*C*1*D\n");
    ListeJournal dates(lu.Journal, RangJournal::Date);
    dates.Remplit(lu.Journal.Dates(), false);
    const auto trouves = dates.match(dates.index(0), Qt::DisplayRole, u"21"_s, 1, Qt::MatchStartsWith);
    QCOMPARE(trouves.size(), 1);
    QCOMPARE(trouves.first().row(), 1);
}

QTEST_GUILESS_MAIN(TestJournalEntrees)
#include "test_journal_entrees.moc"
