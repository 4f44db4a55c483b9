#include "PosteBanque.h"
#include "medication/windows/FrmGEN.h"

using namespace Qt::StringLiterals;

// The generics, from the picker and back.
class TestFrmGen : public QObject, private support::PosteBanque
{
    Q_OBJECT

private:
    QListView* Liste(QWidget& fenetre) const { return fenetre.findChild<QListView*>(u"LstGen"_s); }
    void ClicRang(QWidget& fenetre, int rang)
    {
        QListView* liste = Liste(fenetre);
        const QPoint point = liste->visualRect(liste->model()->index(rang, 0)).center();
        QTest::mouseClick(liste->viewport(), Qt::LeftButton, {}, point);
    }
    void Choisit(const char* panneau, int rang)
    {
        DansLaFenetre([this, rang](QWidget& fenetre) { ClicRang(fenetre, rang); });
        Clic(panneau);
    }
    static void Survole(const QListView& liste, const QPoint& point)
    {
        QMouseEvent survol(QEvent::MouseMove, point, liste.viewport()->mapToGlobal(point), Qt::NoButton, {},
                           {});
        QApplication::sendEvent(liste.viewport(), &survol);
    }
    QStringList Rangs() { return monde_->Etat.Choix.LstGen; }
    void ClicDoliprane()
    {
        Cherche(u"DOLI"_s);
        ClicNoeud(0);
    }

private Q_SLOTS:
    void init() { PrepareBanque(); }
    void cleanup() { Range(); }

    void APackWithGenericsLightsThePicture()
    {
        QVERIFY(!Joue("AniGIFG"));
        ClicDoliprane();
        QVERIFY(Joue("AniGIFG"));
        QCOMPARE(Rangs().size(), 2);
        ClicNoeud(1);
        QVERIFY(!Joue("AniGIFG"));
        QVERIFY(Rangs().isEmpty());
    }

    void AnEmptyGroupLightsItToo()
    {
        banque_->RangsGeneriques[102] = QStringList{QString()};
        Cherche(u"DOLI"_s);
        ClicNoeud(1);
        QVERIFY(Joue("AniGIFG"));
    }

    void TheArrowsOfTheTreeBringTheirOwnGenerics()
    {
        Cherche(u"DOLI"_s);
        QTest::keyClick(Trouve<QLineEdit>("TxtCherche"), Qt::Key_Down);
        QVERIFY(Joue("AniGIFG"));
        QTest::keyClick(fenetre_->focusWidget(), Qt::Key_Down);
        QVERIFY(!Joue("AniGIFG"));
    }

    void ChangingTheSearchStopsThePictureAlone()
    {
        ClicDoliprane();
        Trouve<QLineEdit>("TxtCherche")->setText(u"DOLIP"_s);
        QVERIFY(!Joue("AniGIFG"));
        QCOMPARE(Rangs().size(), 2);
    }

    void AddingALineEmptiesTheList_data()
    {
        QTest::addColumn<QByteArray>("bouton");
        QTest::newRow("CmdAjouter1") << QByteArray("CmdAjouter1");
        QTest::newRow("CmdOrdo") << QByteArray("CmdOrdo");
    }

    void AddingALineEmptiesTheList()
    {
        QFETCH(QByteArray, bouton);
        ClicDoliprane();
        if (bouton == "CmdOrdo") {
            monde_->Boites.AttendInformation(u"Aucun médicament n'a été choisi !"_s);
        }
        Clic(bouton.constData());
        QVERIFY(!Joue("AniGIFG"));
        QVERIFY(Rangs().isEmpty());
        QVERIFY(fenetres_->Presente<medication::FrmGEN>());
        QCOMPARE(Liste(*fenetres_->Presente<medication::FrmGEN>())->model()->rowCount(), 0);
    }

    void ClearingStopsThePicture()
    {
        ClicDoliprane();
        Clic("CmdClear");
        QVERIFY(!Joue("AniGIFG"));
    }

    void WithoutASelectedNodeThePanelDoesNothing()
    {
        Cherche(u"DOLI"_s);
        Clic("HlbG");
        QVERIFY(monde_->Boites.Epuise());
    }

    void WithoutRowsThePanelSaysSo()
    {
        Cherche(u"DOLI"_s);
        ClicNoeud(1);
        monde_->Boites.AttendInformation(u"Pas de spécialité générique."_s);
        Clic("HlbG");
    }

    void WithoutABankThePanelClaimsNothing()
    {
        Cherche(u"DOLI"_s);
        Banque().SessionManquee = true;
        ClicNoeud(1);
        monde_->Boites.AttendInformation(
            u"La banque de médicaments ne répond pas : les génériques n'ont pas pu être cherchés."_s);
        Clic("HlbG");
    }

    void AChosenPackTakesThePlaceOfTheName_data()
    {
        QTest::addColumn<QByteArray>("panneau");
        QTest::newRow("panel") << QByteArray("HlbG");
        QTest::newRow("picture") << QByteArray("AniGIFG");
    }

    void AChosenPackTakesThePlaceOfTheName()
    {
        QFETCH(QByteArray, panneau);
        ClicDoliprane();
        QString titre;
        DansLaFenetre([&](QWidget& fenetre) {
            titre = fenetre.windowTitle();
            ClicRang(fenetre, 1);
        });
        Clic(panneau.constData());
        QCOMPARE(titre, u"   Génériques de DOLIPRANE 1 000 mg   (Prix :  1.16 €)"_s);
        QCOMPARE(Texte("TxtMedoc"), u"PARACETAMOL A"_s + QString(30, u' '));
        QCOMPARE(Trouve<QLineEdit>("TxtMedoc")->cursorPosition(), 43);
        QCOMPARE(Focus(), u"TxtMedoc"_s);
        QCOMPARE(Rangs().size(), 2); // filled again
        QVERIFY(Joue("AniGIFG"));
        Clic("CmdAjouter1");
        QCOMPARE(Titres(Ordo().LstChoix1), QStringList{u"PARACETAMOL A"_s});
        QCOMPARE(prescription::IdentifiantDeLigne(Ordo().LstChoix1.Lignes()[0].Texte), u"101"_s);
    }

    void AnEmptyRowGivesALineWithoutATitle()
    {
        ClicDoliprane();
        Choisit("HlbG", 0);
        QCOMPARE(Texte("TxtMedoc"), QString(30, u' '));
        Clic("CmdAjouter1");
        QCOMPARE(Ordo().OrdoZone1.front().Titre, QString());
        QCOMPARE(prescription::IdentifiantDeLigne(Ordo().LstChoix1.Lignes()[0].Texte), u"101"_s);
    }

    void ClosingChangesNothing()
    {
        ClicDoliprane();
        DansLaFenetre([](QWidget& fenetre) { QTest::keyClick(&fenetre, Qt::Key_Escape); });
        Clic("HlbG");
        QCOMPARE(Texte("TxtMedoc"), u"DOLIPRANE 1 000 mg"_s);
        QCOMPARE(Focus(), u"TxtMedoc"_s);
        QCOMPARE(Rangs().size(), 2);
    }

    void TheKeyboardChooses()
    {
        ClicDoliprane();
        DansLaFenetre([this](QWidget& fenetre) {
            QCOMPARE(fenetre.focusWidget()->objectName(), u"Cmd"_s);
            QTest::keyClick(fenetre.focusWidget(), Qt::Key_Down);
            QCOMPARE(fenetre.focusWidget(), Liste(fenetre));
            QTest::keyClick(fenetre.focusWidget(), Qt::Key_Return);
        });
        Trouve<QPushButton>("HlbG")->setFocus();
        QTest::keyClick(Trouve<QPushButton>("HlbG"), Qt::Key_Space);
        QCOMPARE(Texte("TxtMedoc"), u"PARACETAMOL A"_s + QString(30, u' '));
    }

    void ThePersonalEntryLeavesTheGenericsOfThePack()
    {
        ClicDoliprane();
        Trouve<QLineEdit>("TxtCherche")->clear();
        ClicNoeud(0);
        QVERIFY(!Joue("AniGIFG"));
        QString titre;
        DansLaFenetre([&](QWidget& fenetre) {
            titre = fenetre.windowTitle();
            QTest::keyClick(&fenetre, Qt::Key_Escape);
        });
        Clic("HlbG");
        QCOMPARE(titre, u"   Génériques de  QSP 3 mois   (Prix :  1.16 €)"_s);
    }

    void TheRowUnderTheMouseIsTheTip()
    {
        ClicDoliprane();
        auto& fenetre = fenetres_->Donne<medication::FrmGEN>();
        fenetre.show();
        QListView* liste = Liste(fenetre);
        Survole(*liste, liste->visualRect(liste->model()->index(1, 0)).center());
        QCOMPARE(liste->toolTip(), u"PARACETAMOL A          1.16  €"_s);
        Survole(*liste, liste->viewport()->rect().bottomLeft());
        QCOMPARE(liste->toolTip(), QString());
        QCOMPARE(liste->font().family(), u"Courier New"_s);
    }
};

int main(int nombre, char** arguments)
{
    QApplication application(nombre, arguments);
    application::style::Installe(application);
    TestFrmGen test;
    return QTest::qExec(&test, nombre, arguments);
}

#include "test_frmgen.moc"
