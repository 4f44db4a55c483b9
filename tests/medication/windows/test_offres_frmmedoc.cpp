#include "PosteMedoc.h"

class TestOffresFrmMedoc : public QObject, private support::PosteMedoc
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        Prepare();
        for (const char16_t* posologie : {u"1 le soir", u"1 le matin", u"1 le matin", u"2 le midi"}) {
            support::AjouteLigne(
                monde_->Etat.Bases.Medoc(monde_->Etat.Chemins.CheminTravail), QStringLiteral("OrdoEnr"),
                {QStringLiteral("modèle"), QStringLiteral("AMLOR 5 MG"), QString::fromUtf16(posologie), 1,
                 QStringLiteral("*"), QStringLiteral("0"), 1, 1});
        }
        ClicNoeud(0);
        fenetre_->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(fenetre_));
    }
    void cleanup() { Range(); }

    void TypingOffersAndKeepsTheFocus()
    {
        QVERIFY(!Liste()->isVisible());
        Tape("1");
        QVERIFY(Liste()->isVisible());
        QCOMPARE(Liste()->model()->rowCount(), 2);
        QCOMPARE(Focus(), QStringLiteral("TxtPoso"));
        QCOMPARE(Poso(), QStringLiteral("1"));
    }

    void TheButtonsStayWhereTheyAre()
    {
        const QRect ajouter = Trouve<QWidget>("CmdAjouter1")->geometry();
        const QRect poso = Trouve<QWidget>("TxtPoso")->geometry();
        const QSize fenetre = fenetre_->size();
        Tape("1");
        QCoreApplication::sendPostedEvents();
        QCOMPARE(Trouve<QWidget>("CmdAjouter1")->geometry(), ajouter);
        QCOMPARE(Trouve<QWidget>("TxtPoso")->geometry().topLeft(), poso.topLeft());
        QVERIFY(Liste()->geometry().top() > Trouve<QWidget>("TxtPoso")->geometry().bottom());
        QVERIFY(Liste()->geometry().bottom() <= poso.bottom());
        QVERIFY(Liste()->height() >= Liste()->sizeHintForRow(0));
        QCOMPARE(fenetre_->size(), fenetre);
        Touche(Qt::Key_Escape);
        QCoreApplication::sendPostedEvents();
        QCOMPARE(Trouve<QWidget>("TxtPoso")->geometry(), poso);
    }

    void DownAndEnterTake()
    {
        Tape("le");
        Touche(Qt::Key_Down);
        Touche(Qt::Key_Enter);
        QCOMPARE(Poso(), QStringLiteral("1 le matin"));
        QVERIFY(!Liste()->isVisible());
        Tape(", et");
        QCOMPARE(Poso(), QStringLiteral("1 le matin, et"));
    }

    void EnterAloneIsALineFeed()
    {
        Tape("1");
        Touche(Qt::Key_Return);
        QCOMPARE(Poso(), QStringLiteral("1\n"));
        QCOMPARE(Ordo().OrdoZone1.size(), 0);
    }

    void EscapeClosesTheListAndLosesNothing()
    {
        Tape("1");
        Touche(Qt::Key_Escape);
        QVERIFY(!Liste()->isVisible());
        QVERIFY(fenetre_->isVisible());
        const QString poso = Poso();
        Touche(Qt::Key_Escape); // a medication is in hand
        QVERIFY(fenetre_->isVisible());
        QCOMPARE(Poso(), poso);
    }

    void WithShiftTheKeysAreTheTexts()
    {
        Tape("1");
        QTest::keyClick(Boite(), Qt::Key_Return, Qt::ShiftModifier);
        QVERIFY(Poso().startsWith(QStringLiteral("1\n")) || Poso().startsWith(u"1\u2028"));
        QTest::keyClick(Boite(), Qt::Key_Down, Qt::ShiftModifier);
        QCOMPARE(Liste()->currentIndex().row(), -1);
    }

    void LeavingTheBoxClosesTheList()
    {
        Tape("1");
        Touche(Qt::Key_Tab);
        QVERIFY(!Liste()->isVisible());
        QCOMPARE(Focus(), QStringLiteral("LblPoso"));
        Tape("0");
        Boite()->selectAll();
        Tape("1");
        QVERIFY(Liste()->isVisible());
    }

    void AnotherMedicationHasItsOwn()
    {
        Tape("1");
        ClicNoeud(2);
        QVERIFY(!Liste()->isVisible());
        Boite()->selectAll();
        Tape("1");
        QCOMPARE(Liste()->model()->rowCount(), 1);
        QCOMPARE(Liste()->model()->index(0, 0).data().toString(), QStringLiteral("1 cp"));
        ClicNoeud(1); // its only posology is in the box
        Boite()->selectAll();
        Tape("2");
        QVERIFY(!Liste()->isVisible());
    }

    void AFailureToReadOffersNothing()
    {
        monde_->Etat.Bases.Medoc(monde_->Etat.Chemins.CheminTravail).PoseCrochet([](const QString&) {
            return true;
        });
        Tape("1");
        QVERIFY(!Liste()->isVisible());
        QCOMPARE(Poso(), QStringLiteral("1"));
    }

private:
    QListView* Liste() const { return Trouve<QListView>("LstOffres"); }
    QPlainTextEdit* Boite() const { return Trouve<QPlainTextEdit>("TxtPoso"); }
    void Tape(const char* texte) const
    {
        Boite()->setFocus();
        QTest::keyClicks(Boite(), QLatin1String(texte));
    }
    void Touche(Qt::Key touche) const { QTest::keyClick(Boite(), touche); }
};

int main(int nombre, char** arguments)
{
    QApplication application(nombre, arguments);
    application::style::Installe(application);
    TestOffresFrmMedoc test;
    return QTest::qExec(&test, nombre, arguments);
}

#include "test_offres_frmmedoc.moc"
