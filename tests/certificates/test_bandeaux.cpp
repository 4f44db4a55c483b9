#include "certificates/Bandeaux.h"
#include "certificates/Certificat.h"
#include "common/Lignes.h"
#include "page/Mesure.h"

#include <QTest>
#include <algorithm>

class TestBandeaux : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void LesDeuxTextesSontExacts();
    void LaPoliceEstLaPlusGrandeQuiTientSurUneLigne();
};

void TestBandeaux::LesDeuxTextesSontExacts()
{
    const QString filet(85, u'_');
    QCOMPARE(
        certificates::BandeauALD1(),
        filet +
            QStringLiteral("\r\n            Prescriptions relatives au traitement de l'affection de longue "
                           "durée reconnue (liste ou hors liste)\r\n") +
            QString(62, u' ') + QStringLiteral("( AFFECTION* EXONERANTE* )\n") + filet);
    QCOMPARE(certificates::BandeauALD2(),
             filet + QStringLiteral("\r\n") + QString(37, u' ') +
                 QStringLiteral("Prescriptions SANS RAPPORT avec l'affection de longue durée\r\n") +
                 QString(60, u' ') + QStringLiteral("( MALADIES* INTERCURRENTES* )\n") + filet);
}

void TestBandeaux::LaPoliceEstLaPlusGrandeQuiTientSurUneLigne()
{
    const QString texte = certificates::BandeauALD1() + QLatin1Char('\n') + certificates::BandeauALD2();
    const QStringList lignes = common::PartiesDeTexte(texte);
    const auto tiennent = [&](page::Police police) {
        return std::ranges::all_of(
            lignes, [&](const QString& ligne) { return page::MesureLargeur(ligne, police) < 170; });
    };
    page::Police police = certificates::Certificat().TxtCert;
    QCOMPARE(police.Nom, QStringLiteral("Arial"));
    QVERIFY(tiennent(police));
    police.Taille += 0.5F;
    QVERIFY(!tiennent(police));
}

QTEST_MAIN(TestBandeaux)
#include "test_bandeaux.moc"
