#include "FrmUtile.h"

#include "utile/ArbreDeTest.h"

#include "support/DehorsFeint.h"

#include <QLabel>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QTest>
#include <QTreeWidget>

using namespace Qt::StringLiterals;
using support::ArbreDeTest;
using utile::FrmUtile;

namespace {

QList<utile::Arbre> Arbres(const ArbreDeTest& arbre)
{
    return {{u"Disque de l'ordinateur"_s, arbre.Racine(), true, {}, {arbre.Medoc(), arbre.Ordo()}},
            {u"Support amovible"_s, {}, false, u"n'est pas branché"_s, {}}};
}

} // namespace

class TestFrmUtile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void MontreAvantEtApres();
    void SeFermeApresLaBaseEnCours();
    void SeMeneAuClavier();
    void SansDonneesNeCommencePas();

private:
    support::HorlogeFixe horloge_;
};

void TestFrmUtile::MontreAvantEtApres()
{
    const ArbreDeTest arbre;
    arbre.Remplit(300, false);
    support::Gate(arbre.Medoc().Chemin, 40 * 4096, QByteArray(4096, '\xA5'));
    FrmUtile fenetre(Arbres(arbre), horloge_);
    fenetre.show();
    const auto* liste = fenetre.findChild<QTreeWidget*>(u"LstBases"_s);
    QCOMPARE(liste->topLevelItemCount(), 2);
    QCOMPARE(liste->topLevelItem(1)->text(0), u"Support amovible n'est pas branché"_s);
    const auto* medoc = liste->topLevelItem(0)->child(0);
    QCOMPARE(medoc->text(2), u"À vérifier"_s);
    QTest::mouseClick(fenetre.findChild<QPushButton*>(u"CmdRepare"_s), Qt::LeftButton);
    QVERIFY(fenetre.Travaille());
    QTRY_VERIFY_WITH_TIMEOUT(!fenetre.Travaille(), 20000);
    QCOMPARE(medoc->text(2), u"Endommagée"_s);
    QVERIFY(medoc->text(4).startsWith(u"Réparée"_s));
    QCOMPARE(liste->topLevelItem(0)->child(1)->text(4), u"Saine, déjà compacte"_s);
    const auto* barre = fenetre.findChild<QProgressBar*>(u"Barre"_s);
    QCOMPARE(barre->value(), barre->maximum());
    QVERIFY(fenetre.findChild<QLabel*>(u"LblEtat"_s)->text().startsWith(u"Terminé"_s));
}

void TestFrmUtile::SeFermeApresLaBaseEnCours()
{
    const ArbreDeTest arbre;
    arbre.Remplit(2000, false);
    FrmUtile fenetre(Arbres(arbre), horloge_);
    fenetre.show();
    fenetre.findChild<QPushButton*>(u"CmdRepare"_s)->click();
    fenetre.close();
    QVERIFY(fenetre.isVisible() && fenetre.Travaille());
    QTRY_VERIFY_WITH_TIMEOUT(!fenetre.isVisible(), 20000);
    QVERIFY(!fenetre.Travaille());
    QCOMPARE(support::Contenu(arbre.Medoc()).value(u"Vidal"_s).size(), 2000);
}

void TestFrmUtile::SeMeneAuClavier()
{
    const ArbreDeTest arbre;
    arbre.Remplit(300, false);
    support::Gate(arbre.Medoc().Chemin, 40 * 4096, QByteArray(4096, '\xA5'));
    FrmUtile fenetre(Arbres(arbre), horloge_);
    fenetre.show();
    fenetre.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&fenetre));
    auto* liste = fenetre.findChild<QTreeWidget*>(u"LstBases"_s);
    const auto* detail = fenetre.findChild<QPlainTextEdit*>(u"TxtDetail"_s);
    QTest::keyClick(&fenetre, Qt::Key_R, Qt::AltModifier);
    QTRY_VERIFY_WITH_TIMEOUT(detail->toPlainText().contains(u"Patients : 300 lignes gardées"_s), 20000);
    QTRY_VERIFY_WITH_TIMEOUT(!fenetre.Travaille(), 20000);
    QCOMPARE(fenetre.focusWidget(), liste);
    QTest::keyClick(fenetre.focusWidget(), Qt::Key_Down);
    QVERIFY(!detail->toPlainText().contains(u"Patients"_s));
    QTest::keyClick(fenetre.focusWidget(), Qt::Key_Tab);
    QCOMPARE(fenetre.focusWidget(), detail);
    QTest::keyClick(fenetre.focusWidget(), Qt::Key_Escape);
    QVERIFY(!fenetre.isVisible());
}

void TestFrmUtile::SansDonneesNeCommencePas()
{
    FrmUtile fenetre({}, horloge_);
    QVERIFY(!fenetre.findChild<QPushButton*>(u"CmdRepare"_s)->isEnabled());
    QVERIFY(fenetre.findChild<QLabel*>(u"LblEtat"_s)->text().contains(u"aucune donnée"_s));
}

QTEST_MAIN(TestFrmUtile)
#include "test_frm_utile.moc"
