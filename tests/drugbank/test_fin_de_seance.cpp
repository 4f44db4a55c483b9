#include "drugbank/PosteBanque.h"
#include "medication/Choix.h"
#include "medication/Generiques.h"

#include <QTest>
#include <memory>

using namespace drugbank;
using support::Arguments;
using support::kEnCours;
using Poste = support::PosteBanque;

class TestFinDeSeance : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void LAideDejaLiberee();
    void LAnnulationApresTrenteSecondes();
    void FermerPendantLeDemarrage();
    void FermerRendTout();
    void FermerSansSessionRendLesBibliotheques();
    void FermerPendantLeMessage();
    void LibererPermetDeRecommencer();
    void LaFinDuProgrammeLaisseUneSessionOuverte();
    void RenoncerPendantUnAppel_data();
    void RenoncerPendantUnAppel();
    void ChangerDeBanquePendantUnAppel_data();
    void ChangerDeBanquePendantUnAppel();
    void FermerPendantUneRecherche();
    void FermerPendantLaLiberation();
};

namespace {

/// A bank that lets window events through in that function.
void PoseBavarde(Poste& poste, const char* fonction, const char* champs = "")
{
    poste.Pose(QByteArray(R"({"attentes": 2, "evenements": ")" + QByteArray(fonction) + '"' + champs + '}')
                   .constData());
}

void AuProchainEvenement(const std::function<void()>& fait)
{
    QMetaObject::invokeMethod(qApp, fait, Qt::QueuedConnection);
}

void FonctionsDuDemarrage()
{
    QTest::addColumn<QByteArray>("fonction");
    QTest::addColumn<QByteArray>("champs");
    QTest::newRow("asyncInit") << QByteArray("VidalAPI_asyncInit") << QByteArray();
    QTest::newRow("asyncStartResult") << QByteArray("VidalAPI_asyncStartResult") << QByteArray();
    QTest::newRow("init") << QByteArray("VidalAPI_init") << QByteArray(R"(, "asynchrone": false)");
    QTest::newRow("getVersion") << QByteArray("VidalAPI_getVersion") << QByteArray();
    QTest::newRow("getExpiryDate") << QByteArray("DatabaseInfoService_getExpiryDate") << QByteArray();
}

} // namespace

void TestFinDeSeance::LAideDejaLiberee()
{
    Poste poste("{}");
    poste.Charge();
    poste.Ferme();
    poste.Demarre();
    poste.Horloge.Passe(0);
    QCOMPARE(poste.Banque.RetourInitBanque, 15);
    QCOMPARE(poste.Banque.MessageBanque,
             kEnCours + QStringLiteral("\n\nRetour init = 15   =>  Echec initialisation"));
}

void TestFinDeSeance::LAnnulationApresTrenteSecondes()
{
    Poste poste(R"({"attentes": 1000000})");
    poste.ChargeEtDemarre(29'999);
    QVERIFY(poste.Banque.Statut.Visible && !poste.Banque.Statut.Annulable);
    poste.Horloge.Passe(1);
    QVERIFY(poste.Banque.Statut.Annulable);
    poste.Etat.Seance.Annule(poste.Contexte);
    QVERIFY(!poste.Banque.Statut.Visible && !poste.Banque.Acces && !BanqueRepond(poste.Banque));
    QCOMPARE(poste.Banque.BanqueInitialisee, quint8(1));
    QCOMPARE(poste.Banque.SessionBanque, 0);
    const int sondes = poste.Compte("VidalAPI_asyncStartResult");
    poste.Demarre();
    poste.Horloge.Passe(60'000);
    QCOMPARE(poste.Compte("VidalAPI_asyncStartResult"), sondes);
    poste.Ferme();
    QCOMPARE(poste.Compte("VidalAPI_release"), 0);
    QVERIFY(poste.EnMemoire());
    QVERIFY(!poste.Banque.ModuleAide);
}

void TestFinDeSeance::FermerPendantLeDemarrage()
{
    Poste poste(R"({"attentes": 1000000})");
    poste.ChargeEtDemarre(500);
    poste.Ferme();
    QVERIFY(!poste.Banque.Statut.Visible);
    QCOMPARE(poste.Banque.BanqueInitialisee, quint8(1));
    QCOMPARE(poste.Compte("VidalAPI_release"), 0);
    QVERIFY(poste.EnMemoire());
}

void TestFinDeSeance::FermerRendTout()
{
    Poste poste("{}");
    poste.ChargeEtDemarre(60'000);
    QVERIFY(poste.EnMemoire());
    poste.Ferme();
    QCOMPARE(Arguments(poste.Libs, "VidalAPI_release"), QJsonArray({QJsonArray({77})}));
    QVERIFY(!poste.EnMemoire() && !QLibrary(poste.Libs.CheminAide()).isLoaded());
    QVERIFY(!poste.Banque.Acces && !poste.Banque.ProduitDuCip && !poste.Banque.ModuleAide);
    poste.Ferme();
    QCOMPARE(poste.Compte("VidalAPI_release"), 1);
}

void TestFinDeSeance::FermerSansSessionRendLesBibliotheques()
{
    Poste poste("{}");
    poste.Charge();
    QVERIFY(poste.EnMemoire());
    poste.Ferme();
    QCOMPARE(poste.Compte("VidalAPI_release"), 0);
    QVERIFY(!poste.EnMemoire() && !poste.Banque.ModuleAide);
}

void TestFinDeSeance::FermerPendantLeMessage()
{
    Poste poste("{}");
    poste.ChargeEtDemarre(9000);
    QVERIFY(poste.Banque.Statut.Visible);
    poste.Ferme();
    QVERIFY(!poste.Banque.Statut.Visible && !poste.EnMemoire());
    QCOMPARE(poste.Compte("VidalAPI_release"), 1);
    poste.Horloge.Passe(60'000);
    QVERIFY(!poste.Banque.Statut.Visible);
}

void TestFinDeSeance::LibererPermetDeRecommencer()
{
    Poste poste("{}");
    poste.ChargeEtDemarre(60'000);
    poste.Etat.Seance.Libere(poste.Contexte);
    QVERIFY(!poste.EnMemoire() && poste.Banque.ModuleAide && !poste.Banque.Acces);
    QCOMPARE(poste.Banque.BanqueInitialisee, quint8(0));
    poste.Demarre();
    poste.Horloge.Passe(60'000);
    QVERIFY(BanqueRepond(poste.Banque));
}

void TestFinDeSeance::LaFinDuProgrammeLaisseUneSessionOuverte()
{
    auto poste = std::make_unique<Poste>("{}");
    poste->ChargeEtDemarre(1000);
    const QString chemin = poste->Libs.CheminBanque();
    QLibrary temoin(chemin);
    poste.reset();
    QVERIFY(temoin.isLoaded());
}

void TestFinDeSeance::RenoncerPendantUnAppel_data()
{
    FonctionsDuDemarrage();
}

void TestFinDeSeance::RenoncerPendantUnAppel()
{
    QFETCH(QByteArray, fonction);
    QFETCH(QByteArray, champs);
    Poste poste;
    PoseBavarde(poste, fonction.constData(), champs.constData());
    poste.Charge();
    poste.Demarre();
    AuProchainEvenement([&] { poste.Ferme(); });
    poste.Horloge.Passe(500);
    QVERIFY(!poste.Banque.Statut.Visible && !poste.Banque.Acces && !poste.Banque.ProduitDuCip);
    QCOMPARE(poste.Banque.BanqueInitialisee, quint8(1));
    QCOMPARE(poste.Banque.SessionBanque, 0);
    QVERIFY(!BanqueRepond(poste.Banque) && poste.EnMemoire());
    const auto appels = poste.Libs.Noms().size();
    poste.Demarre();
    poste.Horloge.Passe(60'000);
    QCOMPARE(poste.Libs.Noms().size(), appels);
    QCOMPARE(poste.Compte("VidalAPI_release"), 0);
}

void TestFinDeSeance::ChangerDeBanquePendantUnAppel_data()
{
    FonctionsDuDemarrage();
}

void TestFinDeSeance::ChangerDeBanquePendantUnAppel()
{
    QFETCH(QByteArray, fonction);
    QFETCH(QByteArray, champs);
    Poste poste("{}");
    poste.PosePublique();
    poste.ChoisitVidal();
    PoseBavarde(poste, fonction.constData(), champs.constData());
    poste.Charge();
    poste.Demarre();
    AuProchainEvenement([&] {
        poste.ChoisitPublique();
        poste.Etat.Seance.SuitBase(poste.Contexte);
        poste.Demarre();
    });
    poste.Horloge.Passe(60'000);
    QVERIFY(BanqueRepond(poste.Banque));
    QCOMPARE(Arguments(poste.Libs, "VidalAPI_asyncInit").last(),
             QJsonValue(QJsonArray({QJsonValue::Null, 3})));
    QVERIFY(poste.Banque.Acces->EstDIci(60'000'000) && !poste.Banque.Acces->EstDIci(101));
    QCOMPARE(poste.Compte("VidalAPI_release"), 0);
    poste.Ferme();
    QCOMPARE(poste.Compte("VidalAPI_release"), 1);
}

void TestFinDeSeance::FermerPendantUneRecherche()
{
    Poste poste;
    PoseBavarde(poste, "GenericGroupService_searchByProductId",
                R"(, "packs": [{"cip": "1", "id": 11, "produit": 101, "nom": "DOLIPRANE", "prix": 1.16}],
                   "produitsBanque": [{"id": 101, "nom": "DOLIPRANE"}],
                   "groupes": [{"id": 7, "homogeneite": 1, "produits": [101]}])");
    poste.ChargeEtDemarre(60'000);
    poste.Etat.Choix.InfoPack = QStringLiteral("1/11/101/1.16").split(u'/');
    AuProchainEvenement([&] { poste.Ferme(); });
    QVERIFY(medication::RechercheGeneriques(poste.Contexte));
    QCOMPARE(poste.Etat.Choix.LstGen.size(), 2);
    QVERIFY(!poste.Banque.Acces && !poste.EnMemoire());
}

void TestFinDeSeance::FermerPendantLaLiberation()
{
    Poste poste;
    PoseBavarde(poste, "VidalAPI_release");
    poste.ChargeEtDemarre(60'000);
    AuProchainEvenement([&] { poste.Ferme(); });
    poste.Ferme();
    QCOMPARE(poste.Compte("VidalAPI_release"), 1);
    QVERIFY(!poste.EnMemoire() && !poste.Banque.ModuleAide);
}

QTEST_MAIN(TestFinDeSeance)
#include "test_fin_de_seance.moc"
