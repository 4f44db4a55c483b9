#include "PosteMedoc.h"

#include <QToolTip>

using outside::Bouton;

class TestFrmMedoc : public QObject, private support::PosteMedoc
{
    Q_OBJECT

private Q_SLOTS:
    void init() { Prepare(); }
    void cleanup() { Range(); }

    void ItOpensOnTheSearch()
    {
        QCOMPARE(fenetre_->windowTitle(), QStringLiteral("   Médicaments de la pharmacie"));
        QCOMPARE(Focus(), QStringLiteral("TxtCherche"));
        QCOMPARE(Trouve<QTreeView>("TV")->model()->rowCount(), 3);
        QCOMPARE(Trouve<QPushButton>("CmdAjouter1")->text(), QStringLiteral("&Ajouter"));
        QVERIFY(!Trouve<QPushButton>("CmdModifier")->isEnabled());
        for (const char* nom : {"LstChoix2", "CmdAjouter2", "ImgUp", "ImgDown", "Txt"}) {
            QVERIFY2(!Trouve<QWidget>(nom)->isVisible(), nom);
        }
    }

    void TheLocalModeHidesTheBank()
    {
        for (const char* nom : {"Lbl1", "Lbl2", "Lbl5", "CmdCopyright", "CmdPerso", "CmdVD", "LblDatExp",
                                "HlbG", "HlbI", "ChkMono", "Lblmono", "PctCherch", "ChkDCI", "lblDCI"}) {
            QVERIFY2(!Trouve<QWidget>(nom)->isVisible(), nom);
        }
        QCOMPARE(Trouve<QPushButton>("CmdModifier")->text().remove(u'&'),
                 QStringLiteral("Modifier données Med"));
        QVERIFY(Trouve<QPushButton>("CmdRetire")->isEnabled());
    }

    void TheLocalModeOffersNewMedications()
    {
        QVERIFY(Trouve<QPushButton>("CmdNouveau")->isEnabled());
        QString titre;
        QTimer::singleShot(0, this, [&] {
            QWidget* nouveau = QApplication::activeModalWidget();
            titre = nouveau->findChild<QLabel*>(QStringLiteral("LblTitre"))->text();
            QTest::keyClick(nouveau, Qt::Key_Escape);
        });
        Clic("CmdNouveau");
        QCOMPARE(titre, QStringLiteral("&Nom du médicament    "));
    }

    void WithoutMemorisedPrescriptionsOneMessageSaysSo()
    {
        monde_->Boites.AttendContenant(outside::Genre::Information,
                                       QStringLiteral("Aucun modèle d'ordonnance n'est enregistré."));
        Clic("LblOrdoMem");
    }

    void TheWordsOfABoxLieWithinItsRing()
    {
        for (const auto& [boite, mots] :
             {std::pair("ChkALD", "Label7"), {"ChkDup", "Label6"}, {"ChkTri", "Label9"}}) {
            const auto* etiquette = Trouve<QLabel>(mots);
            QCOMPARE(etiquette->parentWidget(), Trouve<QCheckBox>(boite));
            const int largeur = etiquette->fontMetrics().horizontalAdvance(etiquette->text());
            QVERIFY2(etiquette->width() >= largeur, boite);
            QVERIFY2(etiquette->geometry().right() <= etiquette->parentWidget()->width() - 4, boite);
        }
        const auto bord = [&](const char* nom) { return Trouve<QWidget>(nom)->geometry(); };
        QCOMPARE(bord("ChkDup").left() - bord("ChkALD").right(),
                 bord("ChkTri").left() - bord("ChkDup").right());
        QCOMPARE(bord("ChkDup").top(), bord("ChkTri").top());
    }

    void TabGoesDownTheRoad()
    {
        QStringList road;
        ClicNoeud(0);
        Trouve<QLineEdit>("TxtCherche")->setFocus();
        for (int i = 0; i < 19; ++i) {
            road.append(Focus());
            QTest::keyClick(fenetre_->focusWidget(), Qt::Key_Tab);
        }
        const QString attendu =
            QStringLiteral("TxtCherche TV TxtMedoc TxtPoso LblPoso CmdModifier CmdAjouter1 "
                           "ChkALD ChkDup ChkTri LstChoix1 CmdSaut CmdClear LblOrdoMem CmdAnnule CmdOrdo "
                           "CmdAide CmdNouveau CmdRetire");
        QCOMPARE(road.join(u' '), attendu);
    }

    void LettersTypedBecomeCapitalsAndSelect()
    {
        QTest::keyClicks(Trouve<QLineEdit>("TxtCherche"), QStringLiteral("me1"));
        QCOMPARE(Texte("TxtCherche"), QStringLiteral("ME1"));
        Trouve<QLineEdit>("TxtCherche")->setText(QStringLiteral("met"));
        QCOMPARE(Trouve<QTreeView>("TV")->currentIndex().row(), 2);
        QCOMPARE(Texte("TxtMedoc"), QString());
        Trouve<QLineEdit>("TxtCherche")->setText(QStringLiteral("metz"));
        QCOMPARE(Trouve<QTreeView>("TV")->currentIndex().row(), 2);
    }

    void AClickFillsTheBoxes()
    {
        ClicNoeud(1);
        QCOMPARE(Texte("TxtMedoc"), QStringLiteral("DOLIPRANE 1000 MG"));
        QCOMPARE(Poso(), QStringLiteral("1 comprimé matin* et soir"));
        QCOMPARE(Focus(), QStringLiteral("TxtMedoc"));
        QVERIFY(Trouve<QPushButton>("CmdModifier")->isEnabled());
        ClicNoeud(0);
        QCOMPARE(Poso(), QString());
    }

    void TypingInTheSearchEmptiesTheBoxes()
    {
        ClicNoeud(1);
        QTest::keyClicks(Trouve<QLineEdit>("TxtCherche"), QStringLiteral("A"));
        QCOMPARE(Texte("TxtMedoc") + Poso(), QString());
        QVERIFY(!Trouve<QPushButton>("CmdModifier")->isEnabled());
    }

    void TheKeyboardAloneAddsALine()
    {
        auto* cherche = Trouve<QLineEdit>("TxtCherche");
        QTest::keyClicks(cherche, QStringLiteral("dol"));
        QTest::keyClick(cherche, Qt::Key_Down);
        QCOMPARE(Focus(), QStringLiteral("TV"));
        QTest::keyClick(fenetre_->focusWidget(), Qt::Key_Return);
        QCOMPARE(Focus(), QStringLiteral("TxtMedoc"));
        QTest::keyClick(fenetre_->focusWidget(), Qt::Key_Return);
        QCOMPARE(Titres(Ordo().LstChoix1), QStringList({QStringLiteral("DOLIPRANE 1000 MG")}));
        QCOMPARE(Focus(), QStringLiteral("TxtCherche"));
        QCOMPARE(cherche->selectedText(), QStringLiteral("DOL"));
    }

    void TheArrowKeysReadTheNodeTheyReach()
    {
        auto* arbre = Trouve<QTreeView>("TV");
        ClicNoeud(0);
        arbre->setFocus();
        QTest::keyClick(arbre, Qt::Key_Down);
        QCOMPARE(Texte("TxtMedoc"), QStringLiteral("DOLIPRANE 1000 MG"));
        QCOMPARE(Poso(), QStringLiteral("1 comprimé matin* et soir"));
        QCOMPARE(monde_->Etat.Choix.NoeudChoisi, 2);
        QCOMPARE(Focus(), QStringLiteral("TV"));
        Trouve<QPlainTextEdit>("TxtPoso")->setPlainText(QStringLiteral("2 cp"));
        monde_->Boites.AttendInformation(QStringLiteral("Modifications enregistrées."));
        Clic("CmdModifier");
        ClicNoeud(0);
        QCOMPARE(Poso(), QString());
    }

    void EnterInTheSearchReadsTheTableAgain()
    {
        support::AjouteLigne(monde_->Etat.Bases.Medoc(monde_->Etat.Chemins.CheminTravail),
                             QStringLiteral("BddMed"), {9, {}, {}, {}, {}, QStringLiteral("ZYLORIC")});
        QTest::keyClick(Trouve<QLineEdit>("TxtCherche"), Qt::Key_Return);
        QCOMPARE(Trouve<QTreeView>("TV")->model()->rowCount(), 4);
        QVERIFY(Ordo().LstChoix1.Vide());
    }

    void ADeletedMedicationLeavesTheTree()
    {
        ClicNoeud(0);
        monde_->Boites.AttendQuestion(QStringLiteral("Supprimer AMLOR 5 MG de la base de données ?"),
                                      Bouton::Oui, Bouton::Non);
        Clic("CmdRetire");
        QCOMPARE(Trouve<QTreeView>("TV")->model()->rowCount(), 2);
        QCOMPARE(Texte("TxtMedoc"), QString());
    }

    void TheNotesShowOnF2()
    {
        ClicNoeud(1);
        QString lue;
        QTimer::singleShot(0, this, [&] {
            QWidget* notes = QApplication::activeModalWidget();
            lue = notes->findChild<QPlainTextEdit*>(QStringLiteral("Txt"))->toPlainText();
            QTest::keyClick(notes, Qt::Key_Escape);
        });
        QTest::keyClick(fenetre_->focusWidget(), Qt::Key_F2);
        QCOMPARE(lue, QStringLiteral("à jeun"));
    }

    void TheCloseBoxIsRefused()
    {
        QVERIFY(!fenetre_->close());
        QVERIFY(fenetre_->isVisible());
    }

    void EscapeLeavesWithEmptyHandsOnly()
    {
        ClicNoeud(1, false);
        QTest::keyClick(fenetre_, Qt::Key_Escape);
        QVERIFY(fenetre_->isVisible());
        QCOMPARE(Ordo().LstChoix1.rowCount(), 1);
        QCOMPARE(QToolTip::text(),
                 QStringLiteral("« Annuler » efface ce qui est en main et quitte la pharmacie."));
        Clic("CmdClear");
        QTest::keyClick(fenetre_, Qt::Key_Escape);
        QVERIFY(!fenetre_->isVisible());
    }

    void CancelEmptiesAndHides()
    {
        ClicNoeud(1, false);
        Clic("CmdAnnule");
        QVERIFY(!fenetre_->isVisible());
        QVERIFY(Ordo().LstChoix1.Vide() && Ordo().OrdoZone1.isEmpty());
    }

    void TheHandOverHidesAndPaints()
    {
        ClicNoeud(1, false);
        Clic("CmdOrdo");
        QVERIFY(!fenetre_->isVisible());
        QVERIFY(!monde_->Etat.Apercu.PctOrdo.Items.isEmpty());
        QCOMPARE(Ordo().NbMedZone1, quint8(1));
    }

    void ComingBackFindsTheNode()
    {
        ClicNoeud(2);
        fenetre_->hide();
        fenetre_->show();
        QCOMPARE(Trouve<QTreeView>("TV")->currentIndex().row(), 2);
        QCOMPARE(Texte("TxtMedoc"), QStringLiteral("METFORMINE 1000 MG"));
    }

    void AnotherDoctorHasTheTreeFilledAgain()
    {
        Q_EMIT monde_->Etat.Signaux.MedecinChange();
        QCOMPARE(Trouve<QTreeView>("TV")->model()->rowCount(), 0);
        fenetre_->hide();
        fenetre_->show();
        QCOMPARE(Trouve<QTreeView>("TV")->model()->rowCount(), 3);
    }

    void ABaseThatCannotBeReadIsTold()
    {
        monde_->Etat.Bases.FermeMedoc();
        QFile::remove(common::Joint(monde_->Etat.Chemins.CheminTravail, QStringLiteral("Medoc.mdb")));
        monde_->Boites.AttendContenant(outside::Genre::Stop, QStringLiteral("Medoc.mdb"));
        QTest::keyClick(Trouve<QLineEdit>("TxtCherche"), Qt::Key_Return);
        QVERIFY(fenetre_->isVisible());
    }

    void TheMouseTakesTheFocusToTheBoxes()
    {
        Trouve<QWidget>("CmdOrdo")->setFocus();
        QTest::mouseMove(Trouve<QLineEdit>("TxtMedoc"));
        QCOMPARE(Focus(), QStringLiteral("CmdOrdo"));
        QTest::mouseMove(Trouve<QLineEdit>("TxtCherche"));
        QCOMPARE(Focus(), QStringLiteral("TxtCherche"));
        ClicNoeud(0);
        Trouve<QWidget>("CmdOrdo")->setFocus();
        QTest::mouseMove(Trouve<QLineEdit>("TxtMedoc"));
        QCOMPARE(Focus(), QStringLiteral("TxtMedoc"));
    }

    void NothingIsCutOnASmallScreen()
    {
        Clic("ChkALD");
        const QSize petit(1366, 768 - 48);
        QVERIFY2(fenetre_->minimumSizeHint().width() <= petit.width(),
                 qPrintable(QString::number(fenetre_->minimumSizeHint().width())));
        QVERIFY2(fenetre_->minimumSizeHint().height() <= petit.height(),
                 qPrintable(QString::number(fenetre_->minimumSizeHint().height())));
    }
};

int main(int nombre, char** arguments)
{
    QApplication application(nombre, arguments);
    application::style::Installe(application);
    TestFrmMedoc test;
    return QTest::qExec(&test, nombre, arguments);
}

#include "test_frmmedoc.moc"
