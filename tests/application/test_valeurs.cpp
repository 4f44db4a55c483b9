#include "application/Valeurs.h"
#include "support/Monde.h"

#include <QTest>

using application::Valeur;

class TestValeurs : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void LaValeurSuitLaVariable();
    void LesZonesSontDesListes();
    void LesPolicesOntCinqVariables();
    void UnNomInconnuNeDonneRien();
};

void TestValeurs::LaValeurSuitLaVariable()
{
    support::Monde monde;
    const auto lit = [&](const char* nom) { return Valeur(monde.Contexte, QString::fromLatin1(nom)); };
    QCOMPARE(lit("TypeStockage"), QVariant(0));
    monde.Etat.Chemins.TypeStockage = 3;
    monde.Etat.Patient.PatientCourant = QStringLiteral("Monsieur  MARTIN  Paul");
    monde.Etat.Reglages.Marges.LongueurLigne = 12.3F;
    monde.Etat.Reglages.Marges.MargeHauteDDN = -4;
    monde.Etat.Banque.ProduitBanque = -1;
    monde.Etat.Impression.NbCopies = 3;
    QCOMPARE(lit("TypeStockage"), QVariant(3));
    QCOMPARE(lit("PatientCourant"), QVariant(QStringLiteral("Monsieur  MARTIN  Paul")));
    QCOMPARE(lit("LongueurLigne"), QVariant(12.3));
    QCOMPARE(lit("MargeHauteDDN"), QVariant(-4));
    QCOMPARE(lit("ProduitBanque"), QVariant(-1));
    QCOMPARE(lit("NbCopies"), QVariant(3));
    QCOMPARE(lit("DupliTexte"), QVariant(QStringLiteral("DUPLICATA")));
    QCOMPARE(lit("FormatA4"), QVariant(1));
    QCOMPARE(lit("NoeudChoisi"), QVariant(100));
    monde.Etat.Certificat.CertifALD = 1;
    QCOMPARE(lit("CertifALD"), QVariant(1));
    QCOMPARE(lit("IndexCertif"), QVariant(-1));
    QVERIFY(lit("BandeauALD1").toString().startsWith(QStringLiteral("____")));
    QVERIFY(lit("BandeauALD2").toString().contains(QStringLiteral("SANS RAPPORT")));
}

void TestValeurs::LesZonesSontDesListes()
{
    support::Monde monde;
    monde.Etat.Ordonnance.OrdoZone1 = {{QStringLiteral("##"), {}},
                                       {QStringLiteral("DOLIPRANE"), QStringLiteral("1 matin*")}};
    const QVariantList zone = Valeur(monde.Contexte, QStringLiteral("OrdoZone1")).toList();
    QCOMPARE(zone.size(), 2);
    QCOMPARE(zone[1].toMap()[QStringLiteral("Titre")], QVariant(QStringLiteral("DOLIPRANE")));
    QCOMPARE(zone[1].toMap()[QStringLiteral("Posologie")], QVariant(QStringLiteral("1 matin*")));
    QCOMPARE(Valeur(monde.Contexte, QStringLiteral("NbZone1")), QVariant(2));
    QCOMPARE(Valeur(monde.Contexte, QStringLiteral("NbZone2")), QVariant(0));
}

void TestValeurs::LesPolicesOntCinqVariables()
{
    support::Monde monde;
    monde.Etat.Reglages.Look.Poso = {QStringLiteral("Times"), 9.5F, true, false, true};
    QCOMPARE(Valeur(monde.Contexte, QStringLiteral("PolicePoso")), QVariant(QStringLiteral("Times")));
    QCOMPARE(Valeur(monde.Contexte, QStringLiteral("TaillePoso")), QVariant(9.5));
    QCOMPARE(Valeur(monde.Contexte, QStringLiteral("GrasPoso")), QVariant(1));
    QCOMPARE(Valeur(monde.Contexte, QStringLiteral("ItaliquePoso")), QVariant(0));
    QCOMPARE(Valeur(monde.Contexte, QStringLiteral("SoulignePoso")), QVariant(1));
    QCOMPARE(Valeur(monde.Contexte, QStringLiteral("PoliceTitre")), QVariant(QStringLiteral("Arial")));
}

void TestValeurs::UnNomInconnuNeDonneRien()
{
    support::Monde monde;
    QVERIFY(!Valeur(monde.Contexte, QStringLiteral("CheminAbsent")).isValid());
    QVERIFY(!Valeur(monde.Contexte, QString()).isValid());
}

QTEST_GUILESS_MAIN(TestValeurs)
#include "test_valeurs.moc"
