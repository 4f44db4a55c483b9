#include "drugbank/windows/FrmIAM.h"

#include "application/windows/Style.h"
#include "drugbank/PosteBanque.h"

#include <QPlainTextEdit>
#include <QScrollBar>
#include <QTest>
#include <QTimer>

using namespace drugbank;

class TestFrmIAM : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { application::style::Installe(*qApp); }
    void ALongReportIsReadFromItsBeginning();
};

void TestFrmIAM::ALongReportIsReadFromItsBeginning()
{
    support::PosteBanque poste("{}");
    application::Fenetres fenetres(poste.Contexte);
    auto& fenetre = fenetres.Donne<FrmIAM>();
    auto& texte = *fenetre.findChild<QPlainTextEdit*>(QStringLiteral("Txt"));
    for (const int lignes : {200, 300}) {
        const QString rapport = QStringLiteral("Contre-indication\n").repeated(lignes);
        bool lu = false;
        QTimer::singleShot(0, &fenetre, [&] {
            QTest::qWait(50);
            QVERIFY(texte.verticalScrollBar()->maximum() > 0);
            QCOMPARE(texte.verticalScrollBar()->value(), 0);
            QCOMPARE(texte.textCursor().position(), rapport.size());
            lu = true;
            fenetre.accept();
        });
        QTimer::singleShot(2000, &fenetre, &QDialog::reject);
        fenetre.MontreInteractions(rapport);
        QVERIFY(lu);
    }
}

QTEST_MAIN(TestFrmIAM)
#include "test_frm_iam.moc"
