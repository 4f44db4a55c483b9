#include "storage/windows/FrmConversion.h"

#include "storage/windows/ConversionMontree.h"
#include "support/Monde.h"

#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QTest>

using storage::FrmConversion;

namespace {

QString Texte(const FrmConversion& fenetre, const char* nom)
{
    return fenetre.findChild<QLabel*>(QLatin1String(nom))->text();
}

} // namespace

class TestFrmConversion : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void NommeFichierEtLignes();
    void DitQuElleAttend();
    void SAbandonneUneFois_data();
    void SAbandonneUneFois();
    void NePrendPasUneToucheDestineeAilleurs();

private:
    support::Monde monde_;
    application::Fenetres fenetres_{monde_.Contexte};
    storage::ConversionMontree montree_{fenetres_};
};

void TestFrmConversion::NommeFichierEtLignes()
{
    montree_.Commence(QStringLiteral("/data/Medoc.mdb"));
    auto* fenetre = fenetres_.Presente<FrmConversion>();
    QVERIFY(fenetre && fenetre->isVisible() && fenetre->isModal());
    QCOMPARE(Texte(*fenetre, "LblFichier"), QStringLiteral("Conversion de la base Access « Medoc.mdb »"));
    montree_.Avance(QStringLiteral("Patients"), 1500, 8000);
    QCOMPARE(Texte(*fenetre, "LblLignes"), QStringLiteral("Patients : 1500 lignes sur 8000"));
    const auto* barre = fenetre->findChild<QProgressBar*>(QStringLiteral("Barre"));
    QCOMPARE(barre->value(), 1500);
    QCOMPARE(barre->maximum(), 8000);
    QVERIFY(!montree_.Abandonne());
    montree_.Termine();
    QVERIFY(!fenetres_.Presente<FrmConversion>());
}

void TestFrmConversion::DitQuElleAttend()
{
    montree_.Commence(QStringLiteral("/data/Medoc.mdb"));
    montree_.Attend();
    QVERIFY(
        Texte(*fenetres_.Presente<FrmConversion>(), "LblLignes").contains(QStringLiteral("Un autre poste")));
    montree_.Termine();
}

void TestFrmConversion::SAbandonneUneFois_data()
{
    QTest::addColumn<bool>("bouton");
    QTest::newRow("CmdAnnuler") << true;
    QTest::newRow("Échap") << false;
}

void TestFrmConversion::SAbandonneUneFois()
{
    QFETCH(bool, bouton);
    montree_.Commence(QStringLiteral("/data/Medoc.mdb"));
    auto* fenetre = fenetres_.Presente<FrmConversion>();
    auto* annule = fenetre->findChild<QPushButton*>(QStringLiteral("CmdAnnuler"));
    if (bouton) {
        QTest::mouseClick(annule, Qt::LeftButton);
    } else {
        QTest::keyClick(fenetre, Qt::Key_Escape);
    }
    QVERIFY(montree_.Abandonne());
    QVERIFY(fenetre->isVisible());
    QVERIFY(!annule->isEnabled());
    montree_.Termine();
    montree_.Commence(QStringLiteral("/data/Ordo.mdb"));
    QVERIFY(!montree_.Abandonne());
    montree_.Termine();
}

void TestFrmConversion::NePrendPasUneToucheDestineeAilleurs()
{
    montree_.Commence(QStringLiteral("/data/Medoc.mdb"));
    auto* fenetre = fenetres_.Presente<FrmConversion>();
    QVERIFY(QTest::qWaitForWindowActive(fenetre));
    for (const Qt::Key touche : {Qt::Key_Return, Qt::Key_Space}) {
        QTest::keyClick(fenetre->focusWidget() ? fenetre->focusWidget() : fenetre, touche);
    }
    QVERIFY(!montree_.Abandonne());
    montree_.Termine();
}

QTEST_MAIN(TestFrmConversion)
#include "test_frm_conversion.moc"
