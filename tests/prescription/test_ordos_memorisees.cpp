#include "patients/Patient.h"
#include "prescription/OrdosMemorisees.h"
#include "support/BaseDeTest.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace prescription;
using support::BaseDeTest;
using support::Lignes;
using support::PhraseDEchec;

namespace {

const QString kListe = u"ListeOrdos"_s;
const QString kLignes = u"OrdoEnr"_s;

CleMemo DeMartin(const QString& titre)
{
    return {titre, u"Monsieur  MARTIN  Paul"_s, u"20/03/1953"_s};
}

patients::Patient Martin()
{
    patients::Patient patient;
    patient.PatientCourant = u"Monsieur  MARTIN  Paul"_s;
    patient.DateNaissance = u"20/03/1953"_s;
    return patient;
}

LigneMemorisee Ligne(const QString& titre, int zone = 1)
{
    return {titre, u"1 matin*"_s, zone, 1};
}

QStringList Titres(const QList<LigneMemorisee>& lignes)
{
    QStringList titres;
    for (const LigneMemorisee& ligne : lignes) {
        titres.append(ligne.TitreLigne);
    }
    return titres;
}

/// Everything that both tables hold, read by another connection.
QStringList Contenu(BaseDeTest& base)
{
    storage::Base autre(base.Chemin(u"Medoc.mdb"_s), storage::GenreBase::Medoc);
    return Lignes(autre, kListe) + Lignes(autre, kLignes);
}

/// Makes each statement of the action fail in turn: the tables must stay as they were, and the action must
/// change them once nothing fails.
void VerifieToutOuRien(BaseDeTest& base, const std::function<void()>& action)
{
    const QStringList avant = Contenu(base);
    bool echoue = true;
    int instructions = 0;
    for (int n = 1; echoue; ++n) {
        int reste = n;
        base.Medoc().PoseCrochet([&](const QString&) { return --reste == 0; });
        echoue = !PhraseDEchec(action).isEmpty();
        base.Medoc().PoseCrochet({});
        if (echoue) {
            QCOMPARE(Contenu(base), avant);
            instructions = n;
        }
    }
    QVERIFY2(instructions >= 3, qPrintable(QString::number(instructions)));
    QVERIFY(Contenu(base) != avant);
}

/// The same title for all patients, for one and for another.
void RangeTrois(BaseDeTest& base)
{
    AjouteMemorisee(base.Medoc(), {{u"HTA"_s}, 0}, {Ligne(u"A"_s), Ligne(u"B"_s)});
    AjouteMemorisee(base.Medoc(), {DeMartin(u"HTA"_s), 1}, {Ligne(u"C"_s), Ligne(u"D"_s, 2)});
    AjouteMemorisee(base.Medoc(), {{u"HTA"_s, u"Madame  DURAND  Anne"_s, u"20/03/1953"_s}, 0},
                    {Ligne(u"E"_s)});
}

} // namespace

class TestOrdosMemorisees : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void RendCeQuiEstRange();
    void ListeCellesDeTousEtDuPatient();
    void SepareLesProprietaires();
    void RemplaceEtSupprimeSansToucherAuxAutres();
    void ReunitLesMemesCles();
    void GardeLesTitresHostiles_data();
    void GardeLesTitresHostiles();
    void RemetDansLaListeCelleQuUnAutrePosteSupprime();
    void ToutOuRien_data();
    void ToutOuRien();
    void ConvertitLesAnciennes();
    void NeConvertitRienSansBanque();
    void MarqueLaSienneSeule();
    void GardeUnCodePourUnCode();
};

void TestOrdosMemorisees::RendCeQuiEstRange()
{
    BaseDeTest base;
    const QList<LigneMemorisee> lignes = {{u"#DOLIPRANE"_s, u"1 matin* et soir£"_s, 1, 101},
                                          {u"##"_s, QString(), 1, 1},
                                          {u"AMLOR"_s, u"1\n2"_s, 2, 1}};
    AjouteMemorisee(base.Medoc(), {DeMartin(u"HTA"_s), 1}, lignes);
    QCOMPARE(LitMemorisee(base.Medoc(), DeMartin(u"HTA"_s)), lignes);
    QCOMPARE(Lignes(base.Medoc(), kListe), QStringList{u"HTA|Monsieur  MARTIN  Paul|1|20/03/1953"_s});
    QCOMPARE(Lignes(base.Medoc(), kLignes).at(1),
             u"HTA|##||1|Monsieur  MARTIN  Paul|20/03/1953|1|1"_s); // empty, not null
}

void TestOrdosMemorisees::ListeCellesDeTousEtDuPatient()
{
    BaseDeTest base;
    RangeTrois(base);
    QCOMPARE(ListeMemorisees(base.Medoc(), Martin()),
             (QList<Memorisee>{{{u"HTA"_s}, 0}, {DeMartin(u"HTA"_s), 1}}));
    QCOMPARE(ListeMemorisees(base.Medoc(), {}), (QList<Memorisee>{{{u"HTA"_s}, 0}}));
    patients::Patient homonyme = Martin();
    homonyme.DateNaissance = u"21/03/1953"_s;
    QCOMPARE(ListeMemorisees(base.Medoc(), homonyme).size(), 1);
}

void TestOrdosMemorisees::SepareLesProprietaires()
{
    BaseDeTest base;
    RangeTrois(base);
    QCOMPARE(Titres(LitMemorisee(base.Medoc(), {u"HTA"_s})), (QStringList{u"A"_s, u"B"_s}));
    QCOMPARE(Titres(LitMemorisee(base.Medoc(), DeMartin(u"HTA"_s))), (QStringList{u"C"_s, u"D"_s}));
    QVERIFY(LitMemorisee(base.Medoc(), {u"hta"_s}).isEmpty());
}

void TestOrdosMemorisees::RemplaceEtSupprimeSansToucherAuxAutres()
{
    BaseDeTest base;
    RangeTrois(base);
    RemplaceMemorisee(base.Medoc(), {DeMartin(u"HTA"_s), 0}, {Ligne(u"F"_s)});
    QCOMPARE(Titres(LitMemorisee(base.Medoc(), DeMartin(u"HTA"_s))), QStringList{u"F"_s});
    QCOMPARE(ListeMemorisees(base.Medoc(), Martin()).at(1).ALD, 0);
    QCOMPARE(Lignes(base.Medoc(), kLignes).size(), 4);
    SupprimeMemorisee(base.Medoc(), {u"HTA"_s});
    QVERIFY(!EstMemorisee(base.Medoc(), {u"HTA"_s}));
    QVERIFY(EstMemorisee(base.Medoc(), DeMartin(u"HTA"_s)));
    QCOMPARE(Lignes(base.Medoc(), kListe).size(), 2);
    QCOMPARE(Lignes(base.Medoc(), kLignes).size(), 2);
}

void TestOrdosMemorisees::ReunitLesMemesCles()
{
    BaseDeTest base;
    AjouteMemorisee(base.Medoc(), {{u"HTA"_s}, 0}, {Ligne(u"A"_s)});
    AjouteMemorisee(base.Medoc(), {{u"HTA"_s}, 0}, {Ligne(u"B"_s)});
    QCOMPARE(ListeMemorisees(base.Medoc(), {}).size(), 2);
    QCOMPARE(Titres(LitMemorisee(base.Medoc(), {u"HTA"_s})), (QStringList{u"A"_s, u"B"_s}));
}

void TestOrdosMemorisees::GardeLesTitresHostiles_data()
{
    QTest::addColumn<QString>("titre");
    QTest::newRow("apostrophe") << u"L'été d'Anne"_s;
    QTest::newRow("guillemets") << u"\"HTA\" or \"1\"=\"1"_s;
    QTest::newRow("pour cent") << u"%"_s;
    QTest::newRow("souligné") << u"H_A"_s;
    QTest::newRow("point-virgule") << u"'; drop table OrdoEnr; --"_s;
    QTest::newRow("long") << QString(255, u'x');
    QTest::newRow("hors Windows-1252") << u"Żółć 高血圧 🩺"_s;
    QTest::newRow("étoile") << u"*"_s;
}

void TestOrdosMemorisees::GardeLesTitresHostiles()
{
    QFETCH(QString, titre);
    BaseDeTest base;
    AjouteMemorisee(base.Medoc(), {{u"HTA"_s}, 0}, {Ligne(u"A"_s)});
    AjouteMemorisee(base.Medoc(), {{titre}, 0}, {Ligne(u"B"_s)});
    AjouteMemorisee(base.Medoc(), {{titre, u"D'\"ARC%"_s, u"1/1/1"_s}, 0}, {Ligne(u"C"_s)});
    QCOMPARE(Titres(LitMemorisee(base.Medoc(), {titre})), QStringList{u"B"_s});
    QCOMPARE(Titres(LitMemorisee(base.Medoc(), {titre, u"D'\"ARC%"_s, u"1/1/1"_s})), QStringList{u"C"_s});
    SupprimeMemorisee(base.Medoc(), {titre});
    QCOMPARE(Lignes(base.Medoc(), kListe).size(), 2);
    QCOMPARE(Lignes(base.Medoc(), kLignes).size(), 2);
}

void TestOrdosMemorisees::RemetDansLaListeCelleQuUnAutrePosteSupprime()
{
    BaseDeTest base;
    RemplaceMemorisee(base.Medoc(), {DeMartin(u"HTA"_s), 1}, {Ligne(u"A"_s)});
    QCOMPARE(ListeMemorisees(base.Medoc(), Martin()), (QList<Memorisee>{{DeMartin(u"HTA"_s), 1}}));
}

void TestOrdosMemorisees::ToutOuRien_data()
{
    using Action = std::function<void(storage::Base&)>;
    const auto produit = [](const QString&) { return std::optional<qint32>(7); };
    QTest::addColumn<Action>("action");
    QTest::newRow("ajoute") << Action([](storage::Base& medoc) {
        AjouteMemorisee(medoc, {{u"Rhume"_s}, 0}, {Ligne(u"X"_s), Ligne(u"Y"_s)});
    });
    QTest::newRow("remplace") << Action([](storage::Base& medoc) {
        RemplaceMemorisee(medoc, {DeMartin(u"HTA"_s), 0}, {Ligne(u"X"_s), Ligne(u"Y"_s)});
    });
    QTest::newRow("supprime") << Action([](storage::Base& medoc) { SupprimeMemorisee(medoc, {u"HTA"_s}); });
    QTest::newRow("marque") << Action([](storage::Base& medoc) { MarqueConvertie(medoc, {u"Vieille"_s}); });
    QTest::newRow("convertit") << Action(
        [produit](storage::Base& medoc) { ConvertitMemorisee(medoc, {u"Vieille"_s}, produit); });
}

void TestOrdosMemorisees::ToutOuRien()
{
    QFETCH(std::function<void(storage::Base&)>, action);
    BaseDeTest base;
    RangeTrois(base);
    for (const char16_t* cip : {u"3400930000011", u"3400930000028"}) {
        support::AjouteLigne(
            base.Medoc(), kLignes,
            {u"Vieille"_s, u"V"_s, QString(), 1, u"*"_s, u"0"_s, QString::fromUtf16(cip), 0});
    }
    VerifieToutOuRien(base, [&] { action(base.Medoc()); });
}

void TestOrdosMemorisees::ConvertitLesAnciennes()
{
    BaseDeTest base;
    const auto pose = [&](const QVariant& id, const QVariant& converti) {
        support::AjouteLigne(base.Medoc(), kLignes,
                             {u"HTA"_s, u"X"_s, QString(), 1, u"*"_s, u"0"_s, id, converti});
    };
    pose(u"3400930000011"_s, 0);
    pose(u"3400930000028"_s, {});
    pose({}, 0);
    pose(0, 0);
    pose(1, {});
    pose(555, 1);
    QStringList demandes;
    const Conversion conversion =
        ConvertitMemorisee(base.Medoc(), {u"HTA"_s}, [&](const QString& cip) -> std::optional<qint32> {
            demandes.append(cip);
            return cip.endsWith(u"11"_s) ? std::optional(101) : std::nullopt;
        });
    QCOMPARE(demandes, (QStringList{u"3400930000011"_s, u"3400930000028"_s}));
    QCOMPARE(conversion.Converties, 4); // the last one was already
    QCOMPARE(conversion.Inconnues, 1);
    const QString debut = u"HTA|X||1|*|0|"_s;
    QCOMPARE(Lignes(base.Medoc(), kLignes),
             (QStringList{debut + u"101|1"_s, debut + u"3400930000028|<null>"_s, debut + u"<null>|1"_s,
                          debut + u"0|1"_s, debut + u"1|1"_s, debut + u"555|1"_s}));
}

void TestOrdosMemorisees::NeConvertitRienSansBanque()
{
    BaseDeTest base;
    support::AjouteLigne(base.Medoc(), kLignes,
                         {u"HTA"_s, u"X"_s, QString(), 1, u"*"_s, u"0"_s, u"3400930000011"_s, 0});
    const QStringList avant = Contenu(base);
    QCOMPARE(ConvertitMemorisee(base.Medoc(), {u"HTA"_s}, {}).Converties, 0);
    QCOMPARE(Contenu(base), avant);
}

void TestOrdosMemorisees::MarqueLaSienneSeule()
{
    BaseDeTest base;
    for (const char16_t* patient : {u"*", u"Monsieur  MARTIN  Paul"}) {
        support::AjouteLigne(base.Medoc(), kLignes,
                             {u"HTA"_s, u"X"_s, QString(), 1, QString::fromUtf16(patient), u"20/03/1953"_s,
                              u"3400930000011"_s, 0});
    }
    MarqueConvertie(base.Medoc(), DeMartin(u"HTA"_s));
    QVERIFY(LitMemorisee(base.Medoc(), {u"HTA"_s}).at(0).AncienFormat);
    QVERIFY(!LitMemorisee(base.Medoc(), DeMartin(u"HTA"_s)).at(0).AncienFormat);
    QCOMPARE(LitMemorisee(base.Medoc(), DeMartin(u"HTA"_s)).at(0).IdProduit, 3400930000011);
}

void TestOrdosMemorisees::GardeUnCodePourUnCode()
{
    BaseDeTest base;
    const auto pose = [&](const QVariant& id, const QVariant& converti) {
        support::AjouteLigne(base.Medoc(), kLignes,
                             {u"HTA"_s, u"X"_s, QString(), 1, u"*"_s, u"0"_s, id, converti});
    };
    const auto sontDesCodes = [&] {
        QList<bool> codes;
        for (const LigneMemorisee& ligne : LitMemorisee(base.Medoc(), {u"HTA"_s})) {
            codes.append(ligne.EstUnCode);
        }
        return codes;
    };
    pose(3400930, 0);
    pose(3400931, {});
    pose(101, 1);
    QCOMPARE(sontDesCodes(), (QList<bool>{true, true, false}));
    MarqueConvertie(base.Medoc(), {u"HTA"_s});
    QCOMPARE(sontDesCodes(), (QList<bool>{true, true, false}));
    RemplaceMemorisee(base.Medoc(), {{u"HTA"_s}, 0}, LitMemorisee(base.Medoc(), {u"HTA"_s}));
    QCOMPARE(sontDesCodes(), (QList<bool>{true, true, false}));
    for (const LigneMemorisee& ligne : LitMemorisee(base.Medoc(), {u"HTA"_s})) {
        QVERIFY(!ligne.AncienFormat);
    }
}

QTEST_GUILESS_MAIN(TestOrdosMemorisees)
#include "test_ordos_memorisees.moc"
