#include "PosteMedoc.h"

class TestFrmMedocLignes : public QObject, private support::PosteMedoc
{
    Q_OBJECT

private Q_SLOTS:
    void init() { Prepare(); }
    void cleanup() { Range(); }

    void ADoubleClickAddsWithoutALD()
    {
        ClicNoeud(0, false);
        QCOMPARE(Ordo().LstChoix1.rowCount(), 1);
        Clic("ChkALD");
        ClicNoeud(1, false);
        QCOMPARE(Ordo().LstChoix1.rowCount(), 1);
    }

    void AddingTwiceAddsOnce()
    {
        ClicNoeud(0);
        Clic("CmdAjouter1");
        Clic("CmdAjouter1");
        QCOMPARE(Ordo().LstChoix1.rowCount(), 1);
        QCOMPARE(Focus(), QStringLiteral("TxtCherche"));
        QCOMPARE(monde_->Etat.Choix.NoeudChoisi, medication::kAucunNoeud);
    }

    void ATextWithoutANodeIsNotAdded()
    {
        QTest::keyClicks(Trouve<QLineEdit>("TxtMedoc"), QStringLiteral("ASPIRINE"));
        Clic("CmdAjouter1");
        QCOMPARE(Texte("TxtMedoc"), QString());
        QVERIFY(Ordo().LstChoix1.Vide());
    }

    void TheBoxOfALDBringsTheSecondZone()
    {
        Clic("Label7");
        QVERIFY(Trouve<QCheckBox>("ChkALD")->isChecked());
        QVERIFY(Trouve<QWidget>("LstChoix2")->isVisible() && Trouve<QWidget>("CmdAjouter2")->isVisible());
        QCOMPARE(Trouve<QPushButton>("CmdAjouter1")->text(), QStringLiteral("&Ajouter ALD"));
        QCOMPARE(Ordo().ChkALD, quint8(1));
        Clic("ChkALD");
        QVERIFY(!Trouve<QWidget>("LstChoix2")->isVisible());
        QCOMPARE(Ordo().ChkALD, quint8(0));
    }

    void CopiesExcludeEachOther()
    {
        Clic("ChkDup");
        Clic("ChkTri");
        QVERIFY(!Trouve<QCheckBox>("ChkDup")->isChecked() && Trouve<QCheckBox>("ChkTri")->isChecked());
        QCOMPARE(Ordo().ChkDup, quint8(0));
    }

    void APressOnlyShows()
    {
        ClicNoeud(1, false);
        PresseLigne("LstChoix1", 0);
        QCOMPARE(Texte("TxtMedoc"), QStringLiteral("DOLIPRANE 1000 MG"));
        Clic("CmdAjouter1");
        QCOMPARE(Ordo().LstChoix1.rowCount(), 1);
        QCOMPARE(Focus(), QStringLiteral("TxtCherche"));
    }

    void ADoubleClickTakesTheLineBack()
    {
        ClicNoeud(0, false);
        ClicNoeud(1, false);
        ReprendLigne("LstChoix1", 0);
        QCOMPARE(Texte("TxtMedoc"), QStringLiteral("AMLOR 5 MG"));
        QCOMPARE(Ordo().LstChoix1.rowCount(), 1);
        QCOMPARE(Focus(), QStringLiteral("TxtCherche"));
        Clic("CmdAjouter1");
        QCOMPARE(Titres(Ordo().LstChoix1),
                 QStringList({QStringLiteral("DOLIPRANE 1000 MG"), QStringLiteral("AMLOR 5 MG")}));
    }

    void TheArrowsMoveARow()
    {
        ClicNoeud(0, false);
        ClicNoeud(1, false);
        PresseLigne("LstChoix1", 0);
        QVERIFY(!Trouve<QWidget>("ImgUp")->isVisible() && Trouve<QWidget>("ImgDown")->isVisible());
        Clic("ImgDown");
        QCOMPARE(Titres(Ordo().LstChoix1).first(), QStringLiteral("DOLIPRANE 1000 MG"));
        QVERIFY(Trouve<QWidget>("ImgUp")->isVisible() && !Trouve<QWidget>("ImgDown")->isVisible());
        QTest::keyClick(Trouve<QListView>("LstChoix1"), Qt::Key_Up, Qt::AltModifier);
        QCOMPARE(Titres(Ordo().LstChoix1).first(), QStringLiteral("AMLOR 5 MG"));
        ClicNoeud(2);
        QVERIFY(!Trouve<QWidget>("ImgUp")->isVisible() && !Trouve<QWidget>("ImgDown")->isVisible());
    }

    void TheMouseTakesARowToTheOtherZone()
    {
        ClicNoeud(1, false);
        Clic("ChkALD");
        auto* autre = Trouve<QListView>("LstChoix2");
        GlisseLigne("LstChoix1", 0, autre, autre->rect().center());
        QCOMPARE(Titres(Ordo().LstChoix2), QStringList({QStringLiteral("DOLIPRANE 1000 MG")}));
        QVERIFY(Ordo().LstChoix1.Vide());
        QVERIFY(!Trouve<QWidget>("Txt")->isVisible());
        GlisseLigne("LstChoix2", 0, Trouve<QListView>("LstChoix1"), QPoint(20, 20));
        QCOMPARE(Ordo().LstChoix1.rowCount(), 1);
    }

    void ADropOnTheWindowOnlyClearsTheSelection()
    {
        ClicNoeud(1, false);
        Clic("ChkALD");
        GlisseLigne("LstChoix1", 0, Trouve<QTreeView>("TV"), QPoint(5, 5));
        QCOMPARE(Ordo().LstChoix1.rowCount(), 1);
        QVERIFY(!Trouve<QListView>("LstChoix1")->selectionModel()->hasSelection());
    }

    void WithoutALDNothingIsDragged()
    {
        ClicNoeud(1, false);
        GlisseLigne("LstChoix1", 0, Trouve<QTreeView>("TV"), QPoint(5, 5));
        QVERIFY(Trouve<QListView>("LstChoix1")->selectionModel()->hasSelection());
    }

    void TheKeyboardTakesARowToTheOtherZone()
    {
        ClicNoeud(1, false);
        Clic("ChkALD");
        PresseLigne("LstChoix1", 0);
        QTest::keyClick(Trouve<QListView>("LstChoix1"), Qt::Key_Right, Qt::AltModifier);
        QCOMPARE(Titres(Ordo().LstChoix2), QStringList({QStringLiteral("DOLIPRANE 1000 MG")}));
    }

    void TheListShowsTitlesAndKeepsWholeRows()
    {
        ClicNoeud(1, false);
        const QModelIndex ligne = Trouve<QListView>("LstChoix1")->model()->index(0, 0);
        QVERIFY(ligne.data().toString().endsWith(QString(100, u' ') + u'1'));
        const auto* delegue = Trouve<QListView>("LstChoix1")->itemDelegate();
        QCOMPARE(qobject_cast<const QStyledItemDelegate*>(delegue)->displayText(ligne.data(), {}),
                 QStringLiteral("DOLIPRANE 1000 MG"));
    }
};

int main(int nombre, char** arguments)
{
    QApplication application(nombre, arguments);
    application::style::Installe(application);
    TestFrmMedocLignes test;
    return QTest::qExec(&test, nombre, arguments);
}

#include "test_frmmedoc_lignes.moc"
