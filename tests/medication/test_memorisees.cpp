#include "medication/Memorisees.h"
#include "medication/messages.h"
#include "prescription/ChoixMemo.h"
#include "support/BaseDeTest.h"
#include "support/Monde.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace medication;
using outside::Bouton;
using outside::Genre;

namespace {

/// A world in bank mode with a prescription of two lines of an old version.
struct Poste : support::Monde
{
    Poste()
    {
        common::CreeDossier(Etat.Chemins.CheminTravail);
        storage::CreeBase(common::Joint(Etat.Chemins.CheminTravail, u"Medoc.mdb"_s),
                          storage::GenreBase::Medoc);
        Etat.Banque.TypeBase = u"VDE"_s;
        Etat.Banque.ProduitDuCip = [](const QString& cip) -> std::optional<qint32> {
            return cip == u"3400930000011"_s ? std::optional(101) : std::nullopt;
        };
    }
    storage::Base& Medoc() { return Etat.Bases.Medoc(Etat.Chemins.CheminTravail); }
    void Pose(const QVariant& idProduit, const QVariant& converti)
    {
        support::AjouteLigne(Medoc(), u"OrdoEnr"_s,
                             {u"HTA"_s, u"X"_s, QString(), 1, u"*"_s, u"0"_s, idProduit, converti});
    }
    void Charge()
    {
        Etat.Ordonnance.TitreMemo = u"HTA"_s;
        Etat.Ordonnance.CleMemo = prescription::CleMemo{u"HTA"_s};
        prescription::ChargeMemo(Contexte, 0);
    }
    /// The last two columns of each stored line.
    QStringList Codes()
    {
        QStringList codes;
        for (const QString& ligne : support::Lignes(Medoc(), u"OrdoEnr"_s)) {
            codes.append(ligne.section(u'|', 6));
        }
        return codes;
    }
    void AttendAncienFormat(Bouton reponse)
    {
        Boites.AttendQuestion(messages::AncienFormat(), reponse, Bouton::Non);
    }
};

} // namespace

class TestMemorisees : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void SansModeleUnMessage();
    void ChargeLesLignesEtLeurFormat();
    void NeChargeRienQuandLaBaseEchoue();
    void DitCelleQuUnAutrePosteASupprimee();
    void NeDemandeRienSansZero_data();
    void NeDemandeRienSansZero();
    void ConvertitEtRecommence();
    void ConvertitSansRecommencer();
    void ArreteDeDemander();
    void RedemanderaSinon();
    void DitCeQuiNEstPasConverti();
    void DitLesMots();
};

void TestMemorisees::SansModeleUnMessage()
{
    Poste poste;
    poste.Etat.Ordonnance.AncienFormat = true;
    poste.Boites.AttendInformation(messages::AucunModele());
    QVERIFY(PrepareMemorisees(poste.Contexte).isEmpty());
    QVERIFY(poste.Boites.Epuise());
    QVERIFY(!poste.Etat.Ordonnance.AncienFormat);
    support::AjouteLigne(poste.Medoc(), u"ListeOrdos"_s, {u"HTA"_s, u"*"_s, 0, u"0"_s});
    QCOMPARE(PrepareMemorisees(poste.Contexte).size(), 1);
}

void TestMemorisees::ChargeLesLignesEtLeurFormat()
{
    Poste poste;
    poste.Pose(u"3400930000011"_s, 0);
    poste.Pose(101, 1);
    poste.Pose({}, {});
    poste.Pose(0, {});
    poste.Charge();
    const prescription::Ordonnance& ordonnance = poste.Etat.Ordonnance;
    const QString debut = u"  X"_s + QString(300, u' ');
    QCOMPARE(ordonnance.LstChoix1.Lignes(), (QList<prescription::Ligne>{{debut + u"3400930000011"_s, 0, true},
                                                                        {debut + u"101"_s, 1},
                                                                        {debut + u"1"_s, 2},
                                                                        {debut + u"0"_s, 3}}));
    QVERIFY(ordonnance.AncienFormat);
    QCOMPARE(ordonnance.OrdoMemorisee, 1);
}

void TestMemorisees::NeChargeRienQuandLaBaseEchoue()
{
    Poste poste;
    poste.Pose(101, 1);
    poste.Medoc().PoseCrochet([](const QString&) { return true; });
    QVERIFY(!support::PhraseDEchec([&] { poste.Charge(); }).isEmpty());
    poste.Medoc().PoseCrochet({});
    QVERIFY(poste.Etat.Ordonnance.LstChoix1.Vide());
    QCOMPARE(poste.Etat.Ordonnance.OrdoMemorisee, 0);
}

void TestMemorisees::DitCelleQuUnAutrePosteASupprimee()
{
    Poste poste;
    QVERIFY(support::PhraseDEchec([&] { poste.Charge(); }).contains(u"« HTA » n'est plus dans la base"_s));
    QCOMPARE(poste.Etat.Ordonnance.OrdoMemorisee, 0);
    support::AjouteLigne(poste.Medoc(), u"ListeOrdos"_s, {u"HTA"_s, u"*"_s, 0, u"0"_s});
    poste.Charge(); // stored without lines
    QCOMPARE(poste.Etat.Ordonnance.OrdoMemorisee, 1);
}

void TestMemorisees::NeDemandeRienSansZero_data()
{
    QTest::addColumn<QString>("typeBase");
    QTest::addColumn<QVariant>("converti");
    QTest::newRow("local mode") << u"BIP"_s << QVariant(0);
    QTest::newRow("converted") << u"VDE"_s << QVariant(1);
    QTest::newRow("null") << u"VDE"_s << QVariant();
}

void TestMemorisees::NeDemandeRienSansZero()
{
    QFETCH(QString, typeBase);
    QFETCH(QVariant, converti);
    Poste poste;
    poste.Etat.Banque.TypeBase = typeBase;
    poste.Pose(u"3400930000011"_s, converti);
    poste.Charge();
    QVERIFY(!ProposeConversion(poste.Contexte));
    QVERIFY(poste.Boites.Epuise());
}

void TestMemorisees::ConvertitEtRecommence()
{
    Poste poste;
    poste.Pose(u"3400930000011"_s, 0);
    poste.Charge();
    poste.AttendAncienFormat(Bouton::Oui);
    poste.Boites.AttendInformation(messages::Convertie())
        .Attend(Genre::QuestionInformation, messages::EditerANouveau(), Bouton::Oui, Bouton::Non);
    QVERIFY(ProposeConversion(poste.Contexte));
    QVERIFY(poste.Boites.Epuise());
    QCOMPARE(poste.Codes(), QStringList{u"101|1"_s});
}

void TestMemorisees::ConvertitSansRecommencer()
{
    Poste poste;
    poste.Pose(0, 0);
    poste.Charge();
    poste.AttendAncienFormat(Bouton::Oui);
    poste.Boites.AttendInformation(messages::Convertie())
        .Attend(Genre::QuestionInformation, messages::EditerANouveau(), Bouton::Non, Bouton::Non);
    QVERIFY(!ProposeConversion(poste.Contexte));
    QCOMPARE(poste.Codes(), QStringList{u"0|1"_s});
}

void TestMemorisees::ArreteDeDemander()
{
    Poste poste;
    poste.Pose(u"3400930000011"_s, 0);
    poste.Charge();
    poste.AttendAncienFormat(Bouton::Non);
    poste.Boites.AttendQuestion(messages::ArreterDeDemander(), Bouton::Oui, Bouton::Non);
    QVERIFY(!ProposeConversion(poste.Contexte));
    QCOMPARE(poste.Codes(), QStringList{u"3400930000011|1"_s});
}

void TestMemorisees::RedemanderaSinon()
{
    Poste poste;
    poste.Pose(u"3400930000011"_s, 0);
    poste.Charge();
    poste.AttendAncienFormat(Bouton::Non);
    poste.Boites.AttendQuestion(messages::ArreterDeDemander(), Bouton::Non, Bouton::Non);
    QVERIFY(!ProposeConversion(poste.Contexte));
    QVERIFY(poste.Boites.Epuise());
    QCOMPARE(poste.Codes(), QStringList{u"3400930000011|0"_s});
}

void TestMemorisees::DitCeQuiNEstPasConverti()
{
    Poste poste;
    poste.Etat.Banque.ProduitDuCip = {};
    poste.Pose(u"3400930000011"_s, 0);
    poste.Charge();
    poste.AttendAncienFormat(Bouton::Oui);
    poste.Boites.AttendInformation(messages::NonConvertie());
    QVERIFY(!ProposeConversion(poste.Contexte));
    QVERIFY(poste.Boites.Epuise());
    QCOMPARE(poste.Codes(), QStringList{u"3400930000011|0"_s});
}

void TestMemorisees::DitLesMots()
{
    QVERIFY(messages::AncienFormat().startsWith(
        u"Cette ordonnance a pu être enregistrée avant la version 2.0.0.Si vous en êtes sûr"_s));
    QVERIFY(messages::AncienFormat().endsWith(u"médicamenteuses. Continuer ?"_s));
    QVERIFY(messages::EditerANouveau().endsWith(u"médicamenteuses.Poursuivre?"_s));
}

QTEST_MAIN(TestMemorisees)
#include "test_memorisees.moc"
