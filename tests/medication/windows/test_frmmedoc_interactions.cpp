#include "PosteBanque.h"
#include "application/Signaux.h"
#include "medication/messages.h"
#include "prescription/Editeur.h"

using namespace Qt::StringLiterals;

// The interactions in the picker.
class TestFrmMedocInteractions : public QObject, private support::PosteBanque
{
    Q_OBJECT

private:
    /// What a click shows, with the place of the caret.
    QString Montre(const char* controle, int* caret = nullptr)
    {
        QString texte;
        DansLaFenetre([&](QWidget& fenetre) {
            const auto* zone = fenetre.findChild<QPlainTextEdit*>(u"Txt"_s);
            texte = zone->toPlainText();
            if (caret) {
                *caret = zone->textCursor().position();
            }
            QTest::keyClick(&fenetre, Qt::Key_Escape);
        });
        Clic(controle);
        return texte;
    }
    void DeuxLignes()
    {
        Prescrit(0);
        Prescrit(1);
    }
    bool Avertit() const { return Trouve<QLabel>("LblNonVerifiees")->isVisible(); }

private Q_SLOTS:
    void init() { PrepareBanque(); }
    void cleanup() { Range(); }

    void EachLineAddedIsChecked()
    {
        Prescrit(0);
        QVERIFY(!Joue("AniGIFI"));
        Prescrit(1);
        QVERIFY(Joue("AniGIFI"));
        QCOMPARE(Banque().RapportInteractions, u"deux"_s);
        int caret = -1;
        QCOMPARE(Montre("AniGIFI", &caret), u"deux"_s);
        QCOMPARE(caret, 4);
        QCOMPARE(Montre("HlbI"), u"deux"_s);
    }

    void TheSecondZoneIsCheckedBehindTheFirst()
    {
        Clic("ChkALD");
        Prescrit(0);
        Cherche(u"DOLI"_s);
        ClicNoeud(1);
        Clic("CmdAjouter2");
        QCOMPARE(banque_->ProduitsDemandes.back(), (QList<qint32>{101, 102}));
        QVERIFY(Joue("AniGIFI"));
    }

    void ALineTakenBackIsNoLongerChecked()
    {
        DeuxLignes();
        ReprendLigne("LstChoix1", 0);
        QCOMPARE(banque_->ProduitsDemandes.back(), (QList<qint32>{102}));
        QVERIFY(!Joue("AniGIFI"));
        Clic("CmdAjouter1");
        QCOMPARE(banque_->ProduitsDemandes.back(), (QList<qint32>{102, 101}));
    }

    void MovingALineAsksNothing()
    {
        DeuxLignes();
        const auto demandes = banque_->ProduitsDemandes.size();
        PresseLigne("LstChoix1", 0);
        Clic("ImgDown");
        Clic("CmdSaut");
        QCOMPARE(banque_->ProduitsDemandes.size(), demandes);
        QVERIFY(Joue("AniGIFI"));
    }

    void APressOrAnEmptyBoxAsksNothing()
    {
        Clic("CmdAjouter1");
        QVERIFY(banque_->ProduitsDemandes.isEmpty());
    }

    void ClearingEmptiesTheReportAndAsksAgain_data()
    {
        QTest::addColumn<QByteArray>("bouton");
        QTest::newRow("CmdClear") << QByteArray("CmdClear");
        QTest::newRow("CmdAnnule") << QByteArray("CmdAnnule");
    }

    void ClearingEmptiesTheReportAndAsksAgain()
    {
        QFETCH(QByteArray, bouton);
        DeuxLignes();
        Clic(bouton.constData());
        QVERIFY(!Joue("AniGIFI"));
        QVERIFY(Banque().RapportInteractions.isEmpty());
        QCOMPARE(banque_->ProduitsDemandes.back(), QList<qint32>{0});
    }

    void ANewDocumentHasNoReportOfTheOneBefore()
    {
        DeuxLignes();
        prescription::VideDocument(monde_->Contexte);
        QVERIFY(!Joue("AniGIFI"));
        QVERIFY(Montre("HlbI").contains(u"AUCUNE  INTERACION"_s));
    }

    void WithoutInteractionsThePanelSaysSo()
    {
        ClicNoeud(0);
        Clic("CmdAjouter1"); // a personal entry
        QCOMPARE(banque_->ProduitsDemandes.back(), QList<qint32>{0});
        const QString attendu =
            u"\n\n\n\n\n\n         AUCUNE  INTERACION  MEDICAMENTEUSE  DANS  L'ORDONNANCE !"_s;
        QCOMPARE(Montre("HlbI"), attendu);
        QVERIFY(!Joue("AniGIFI"));
        QCOMPARE(Montre("HlbI"), attendu);
        QVERIFY(Banque().RapportInteractions.contains(u"AUCUNE"_s));
        Prescrit(0);
        QVERIFY(Banque().RapportInteractions.isEmpty());
    }

    void WithoutABankTheWindowSaysThatNothingWasChecked()
    {
        Banque().SessionManquee = true;
        QVERIFY(!Avertit());
        Prescrit(0);
        QVERIFY(Avertit());
        QCOMPARE(Montre("HlbI"), medication::messages::InteractionsNonVerifiees());
        Banque().SessionManquee = false;
        QVERIFY(Montre("HlbI").contains(u"AUCUNE"_s));
        QVERIFY(!Avertit());
    }

    void ABankThatOpensLaterIsAskedWhenTheWindowComesBack()
    {
        Banque().SessionManquee = true;
        DeuxLignes();
        banque_->Rapports[{101, 102}] = u"tard"_s;
        Banque().SessionManquee = false;
        fenetre_->hide();
        fenetre_->show();
        QVERIFY(Joue("AniGIFI") && !Avertit());
        QCOMPARE(Banque().RapportInteractions, u"tard"_s);
    }

    void AStartThatEndsBehindTheLinesChecksThem()
    {
        Banque().SessionManquee = true;
        DeuxLignes();
        banque_->Rapports[{101, 102}] = u"tard"_s;
        Q_EMIT monde_->Etat.Signaux.StatutBanqueChange();
        QVERIFY(Avertit());
        Banque().SessionManquee = false;
        Q_EMIT monde_->Etat.Signaux.StatutBanqueChange();
        QVERIFY(Joue("AniGIFI") && !Avertit());
        QCOMPARE(Banque().RapportInteractions, u"tard"_s);
    }

    void TheLocalModeAsksNothingAndShowsNothing()
    {
        DeuxLignes();
        const auto demandes = banque_->ProduitsDemandes.size();
        Banque().TypeBase = u"BIP"_s;
        fenetre_->hide();
        fenetre_->show();
        QVERIFY(!Joue("AniGIFI") && !Joue("AniGIFG"));
        Clic("CmdClear");
        QCOMPARE(banque_->ProduitsDemandes.size(), demandes);
    }

    void TheKeyboardOpensTheReport()
    {
        DeuxLignes();
        QString titre;
        QTimer guette;
        connect(&guette, &QTimer::timeout, this, [&] {
            if (QWidget* ouverte = QApplication::activeModalWidget()) {
                guette.stop();
                titre = ouverte->windowTitle();
                QTest::keyClick(ouverte, Qt::Key_Escape);
            }
        });
        guette.start(10);
        fenetre_->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(fenetre_));
        QTest::keyClick(fenetre_, Qt::Key_6, Qt::AltModifier);
        QTRY_COMPARE(titre, u"Interactions médicamenteuses"_s);
    }

    void APictureRestsWhileItIsNotSeen()
    {
        auto* image = Trouve<medication::ImageAnimee>("AniGIFI");
        image->Joue();
        const QImage avant = image->grab().toImage();
        QTRY_VERIFY(image->grab().toImage() != avant);
        fenetre_->hide();
        QVERIFY(!image->isHidden());
        fenetre_->show();
        QVERIFY(image->isVisible());
    }
};

int main(int nombre, char** arguments)
{
    QApplication application(nombre, arguments);
    application::style::Installe(application);
    TestFrmMedocInteractions test;
    return QTest::qExec(&test, nombre, arguments);
}

#include "test_frmmedoc_interactions.moc"
