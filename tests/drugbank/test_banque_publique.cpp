#include "drugbank/PosteBanque.h"

#include <QTest>

using namespace drugbank;
using support::Arguments;
using Poste = support::PosteBanque;

class TestBanquePublique : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void LaBanquePublique();
    void LaBanquePubliqueAbsente();
    void LaBanquePubliqueIllisible();
    void LeFichierDeLaBanquePublique();
    void UneBanqueNeRepondPasPourUneAutre();
    void DixMedecinsALaSuite();
};

void TestBanquePublique::LaBanquePublique()
{
    Poste poste(R"({"aide": false, "packs": [{"cip": "34", "nom": "DOLIPRANE"}]})");
    poste.PosePublique();
    poste.Charge();
    QCOMPARE(poste.Banque.TypeBase, QStringLiteral("BDP"));
    QCOMPARE(poste.Banque.DateExpirationBase, QStringLiteral("31/03/2027"));
    poste.Demarre();
    QVERIFY(!poste.Banque.MessageBanque.contains(QStringLiteral("Vidal")));
    poste.Horloge.Passe(60'000);
    QCOMPARE(Arguments(poste.Libs, "VidalAPI_asyncInit"), QJsonArray({QJsonArray({QJsonValue::Null, 3})}));
    QVERIFY(BanqueRepond(poste.Banque));
    QVERIFY(poste.Banque.MessageBanque.startsWith(QStringLiteral("Pharmacie initialisée\n")));
    poste.Ferme();
    QCOMPARE(poste.Compte("VidalAPI_release"), 1);
}

void TestBanquePublique::LaBanquePubliqueAbsente()
{
    Poste poste("{}");
    poste.ChoisitPublique();
    poste.ChargeEtDemarre(2000);
    QCOMPARE(poste.Banque.RetourInitBanque, 21);
    QVERIFY(poste.Banque.MessageBanque.startsWith(QStringLiteral("\n\nPharmacie non installée\n\n")));
    poste.Horloge.Passe(3000);
    QVERIFY(!poste.Banque.Statut.Visible && poste.Banque.ModuleAide);
    QCOMPARE(poste.Banque.BanqueInitialisee, quint8(1));
}

void TestBanquePublique::LaBanquePubliqueIllisible()
{
    Poste poste("{}");
    poste.ChoisitPublique();
    QFile abimee(poste.Chemin(QStringLiteral("programme/scriptelle-bdp.so")));
    QVERIFY(abimee.open(QIODevice::WriteOnly) && abimee.write("rien") == 4);
    abimee.close();
    poste.ChargeEtDemarre(0);
    QCOMPARE(poste.Banque.RetourInitBanque, 16);
    QVERIFY(poste.Banque.MessageBanque.startsWith(
        QStringLiteral("\n\nLa base publique des médicaments ne peut être chargée !\n\n")));
}

void TestBanquePublique::LeFichierDeLaBanquePublique()
{
    Poste poste;
    poste.Etat.Chemins.CheminInstallation = poste.Chemin(QStringLiteral("configuration"));
    common::CreeDossier(poste.Etat.Chemins.CheminInstallation);
    const QString suffixe = QFileInfo(poste.Libs.CheminAide()).suffix();
    QVERIFY(QFile::copy(QStringLiteral(BANQUE_NUE),
                        poste.Chemin(QStringLiteral("programme/scriptelle-bdp.%1").arg(suffixe))));
    poste.ChoisitPublique();
    poste.Charge();
    QFile livree(poste.Chemin(QStringLiteral("programme/banque.sqlite")));
    QVERIFY(livree.open(QIODevice::ReadOnly) && livree.readAll() == "lu ");
    QFile recente(poste.Chemin(QStringLiteral("configuration/banque.sqlite")));
    QVERIFY(recente.open(QIODevice::ReadWrite));
    poste.Demarre();
    poste.Horloge.Passe(0);
    QCOMPARE(recente.readAll(), QByteArray("lu "));
}

void TestBanquePublique::UneBanqueNeRepondPasPourUneAutre()
{
    Poste poste(R"({"packs": [{"cip": "34", "nom": "DOLIPRANE"}]})");
    poste.PosePublique();
    poste.ChoisitVidal();
    poste.ChargeEtDemarre(60'000);
    QVERIFY(BanqueRepond(poste.Banque));
    poste.ChoisitPublique();
    poste.Etat.Seance.SuitBase(poste.Contexte);
    QVERIFY(!poste.Banque.Acces && poste.Banque.ModuleAide);
    QCOMPARE(poste.Compte("VidalAPI_release"), 1);
    poste.Demarre();
    poste.Horloge.Passe(60'000);
    QCOMPARE(Arguments(poste.Libs, "VidalAPI_asyncInit").last(),
             QJsonValue(QJsonArray({QJsonValue::Null, 3})));
    poste.Banque.TypeBase = QStringLiteral("BIP"); // keeps the session for a doctor who comes back
    poste.Banque.ProduitBanque = -1;
    poste.Etat.Seance.SuitBase(poste.Contexte);
    QVERIFY(poste.Banque.Acces);
    poste.Banque.TypeBase = QStringLiteral("VDE");
    poste.Banque.ProduitBanque = 1;
    poste.Demarre();
    QVERIFY(!poste.Banque.Acces);
    poste.Horloge.Passe(60'000);
    QVERIFY(BanqueRepond(poste.Banque));
    QCOMPARE(Arguments(poste.Libs, "VidalAPI_asyncInit").last(),
             QJsonValue(QJsonArray({QJsonValue::Null, 1})));
}

void TestBanquePublique::DixMedecinsALaSuite()
{
    Poste poste(R"({"packs": [{"cip": "34", "nom": "DOLIPRANE"}]})");
    poste.PosePublique();
    poste.Charge();
    for (int tour = 0; tour < 10; ++tour) {
        const bool publique = tour % 2 == 0;
        publique ? poste.ChoisitPublique() : poste.ChoisitVidal();
        poste.Etat.Seance.SuitBase(poste.Contexte);
        poste.Demarre();
        poste.Horloge.Passe(tour < 5 ? 60'000 : 100); // then each in the start of the one before
        QVERIFY(BanqueRepond(poste.Banque));
        QCOMPARE(poste.Banque.Acces->EstDIci(61'234'567), publique);
    }
    poste.Ferme();
    QCOMPARE(poste.Compte("VidalAPI_asyncInit"), 10);
    QCOMPARE(poste.Compte("VidalAPI_release"), 10);
    QVERIFY(!poste.EnMemoire());
}

QTEST_MAIN(TestBanquePublique)
#include "test_banque_publique.moc"
