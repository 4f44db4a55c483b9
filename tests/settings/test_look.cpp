#include "common/Erreur.h"
#include "settings/FichiersReglages.h"
#include "storage/Jeu.h"
#include "support/Monde.h"

#include <QTest>

using namespace settings;

class TestLook : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void chargeLesReglages();
    void gardeCeQuiManque();
    void litEtEcritBaseCfg();
    void unBaseCfgAbimeNeCacheRien_data();
    void unBaseCfgAbimeNeCacheRien();
    void litLeLook();
    void tablesVides();
    void litLaSignature();
};

void TestLook::chargeLesReglages()
{
    support::Monde monde;
    const QString chemin = monde.Dossier.path();
    Reglages ecrits;
    ecrits.Options.Imprimante = QStringLiteral("HP, bureau");
    ecrits.Options.FichierLogo = QStringLiteral("C:\\Logo\\a,b.bmp");
    ecrits.Options.LogoX = -12;
    ecrits.Marges.HauteurSaut = 12.5F;
    ecrits.Marges.MargeGaucheDDN = -3;
    ecrits.Dupli.DupliTexte = QStringLiteral("COPIE");
    ecrits.Dupli.DupliCouleur = 16777215;
    EcritOptions(ecrits.Options, chemin);
    EcritMarges(ecrits.Marges, chemin);
    EcritDupli(ecrits.Dupli, chemin);

    Reglages lus;
    ChargeReglages(lus, chemin);
    QVERIFY(lus.Options == ecrits.Options);
    QVERIFY(lus.Marges == ecrits.Marges);
    QVERIFY(lus.Dupli == ecrits.Dupli);
}

void TestLook::gardeCeQuiManque()
{
    support::Monde monde;
    const QString options = monde.Chemin(QStringLiteral("Options.cfg"));
    common::EcritFichier(options, "1,0\r\n");
    Reglages reglages;
    reglages.Options.AfficheAge = 0;
    reglages.Marges.MargeGaucheEntete = 33;
    ChargeReglages(reglages, monde.Dossier.path());
    QCOMPARE(int(reglages.Options.LanceDemarrage), 1);
    QCOMPARE(int(reglages.Options.AffichePoids), 0);
    QCOMPARE(int(reglages.Options.AfficheAge), 0);
    QCOMPARE(reglages.Marges.MargeGaucheEntete, 33.0F);
    QCOMPARE(common::LitFichier(options), QByteArray("1,0\r\n"));
}

void TestLook::litEtEcritBaseCfg()
{
    support::Monde monde;
    drugbank::Banque banque;
    QVERIFY(!LitBaseCfg(banque, monde.Dossier.path()));
    QCOMPARE(banque.ProduitBanque, 2);
    banque.TypeBase = QStringLiteral("TVS");
    banque.NiveauInteraction = 3;
    banque.ProduitBanque = -1;
    EcritBaseCfg(banque, monde.Dossier.path());
    QCOMPARE(common::LitFichier(monde.Chemin(QStringLiteral("Base.cfg"))), QByteArray("\"TVS\",3,-1\r\n"));
    drugbank::Banque lue;
    QVERIFY(LitBaseCfg(lue, monde.Dossier.path()));
    QCOMPARE(lue.TypeBase, QStringLiteral("TVS"));
    QCOMPARE(lue.ProduitBanque, -1);
}

void TestLook::unBaseCfgAbimeNeCacheRien_data()
{
    QTest::addColumn<QByteArray>("contenu");
    QTest::addColumn<int>("niveau");
    QTest::addColumn<int>("produit");
    QTest::newRow("entier") << QByteArray("\"VDE\",3,1\r\n") << 3 << 1;
    QTest::newRow("niveau trop haut") << QByteArray("\"TVS\",4,2\r\n") << 0 << 2;
    QTest::newRow("niveau négatif") << QByteArray("\"TVS\",-1,2\r\n") << 0 << 2;
    QTest::newRow("coupé") << QByteArray("\"TVS\"\r\n") << 0 << 2;
    QTest::newRow("le produit de la base publique") << QByteArray("\"TVS\",1,3\r\n") << 1 << 2;
    QTest::newRow("celui d'une autre") << QByteArray("\"BDP\",1,2\r\n") << 1 << 3;
    QTest::newRow("la base locale") << QByteArray("\"BIP\",1,3\r\n") << 1 << -1;
    QTest::newRow("sans option") << QByteArray("\"VCD\",1,1\r\n") << 1 << 1;
}

void TestLook::unBaseCfgAbimeNeCacheRien()
{
    QFETCH(QByteArray, contenu);
    support::Monde monde;
    drugbank::Banque banque;
    banque.NiveauInteraction = 2; // of the doctor before
    banque.ProduitBanque = drugbank::kProduitPublic;
    QVERIFY(!LitBaseCfg(banque, monde.Dossier.path()));
    QCOMPARE(banque.NiveauInteraction, 2);
    common::EcritFichier(monde.Chemin(QStringLiteral("Base.cfg")), contenu);
    QVERIFY(LitBaseCfg(banque, monde.Dossier.path()));
    QTEST(int(banque.NiveauInteraction), "niveau");
    QTEST(int(banque.ProduitBanque), "produit");
}

namespace {

storage::Base& OrdoNeuve(support::Monde& monde)
{
    storage::CreeBase(monde.Chemin(QStringLiteral("Ordo.mdb")), storage::GenreBase::Ordo);
    return monde.Etat.Bases.Ordo(monde.Dossier.path());
}

void Vide(storage::Base& base, const QString& table)
{
    auto jeu = base.Table(table);
    for (; !jeu.Fin(); jeu.MoveNext()) {
        jeu.Delete();
    }
}

void Ajoute(storage::Base& base, const QString& table, const QVariantList& champs)
{
    auto jeu = base.Table(table);
    jeu.AddNew();
    for (int i = 0; i < champs.size(); ++i) {
        jeu.Ecris(i, champs[i]);
    }
    jeu.Update();
}

} // namespace

void TestLook::litLeLook()
{
    support::Monde monde;
    storage::Base& ordo = OrdoNeuve(monde);
    for (const char* table : {"Misenpage", "CouleurPET", "Certificat"}) {
        Vide(ordo, QLatin1String(table));
    }
    Ajoute(ordo, QStringLiteral("Misenpage"), {1, QStringLiteral("Courier"), 8.5, false, true, true});
    Ajoute(ordo, QStringLiteral("Misenpage"), {0, QStringLiteral("Verdana"), 11, true, false, false});
    Ajoute(ordo, QStringLiteral("CouleurPET"), {255 + 256 * 16});
    Ajoute(ordo, QStringLiteral("Certificat"), {QStringLiteral("Times"), 13, true, true, false});
    Look look;
    ChargeLook(look, ordo);
    QVERIFY(look.Titre == (page::Police{QStringLiteral("Verdana"), 11, true, false, false}));
    QVERIFY(look.Poso == (page::Police{QStringLiteral("Courier"), 8.5F, false, true, true}));
    QVERIFY(look.Certif == (page::Police{QStringLiteral("Times"), 13, true, true, false}));
    QCOMPARE(look.CouleurEntete, page::Rvb(255, 16, 0));
}

void TestLook::tablesVides()
{
    support::Monde monde;
    storage::Base& ordo = OrdoNeuve(monde);
    for (const char* table : {"Entete", "Misenpage", "CouleurPET", "Certificat"}) {
        Vide(ordo, QLatin1String(table));
    }
    Look look;
    look.Titre.Nom = QStringLiteral("Verdana");
    look.Certif.Taille = 14;
    look.NomSignature = QStringLiteral("Docteur X");
    look.CouleurEntete = page::Rvb(1, 2, 3);
    ChargeLook(look, ordo);
    QVERIFY(look == Look());
}

void TestLook::litLaSignature()
{
    support::Monde monde;
    storage::Base& ordo = OrdoNeuve(monde);
    Vide(ordo, QStringLiteral("Entete"));
    Ajoute(ordo, QStringLiteral("Entete"),
           {23, QStringLiteral("  Docteur Neibre "), QStringLiteral("Arial"), 10, 0, 0, 0, 0});
    Ajoute(ordo, QStringLiteral("Entete"),
           {0, QStringLiteral("1 rue Haute"), QStringLiteral("Arial"), 10, 0, 0, 0, 0});
    Look look;
    ChargeLook(look, ordo);
    QCOMPARE(look.NomSignature, QStringLiteral("Docteur Neibre"));
}

QTEST_GUILESS_MAIN(TestLook)
#include "test_look.moc"
