#include "drugbank/PosteBanque.h"

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
};

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

QTEST_MAIN(TestFinDeSeance)
#include "test_fin_de_seance.moc"
