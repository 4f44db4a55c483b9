#include "application/windows/Fenetres.h"
#include "application/windows/Style.h"
#include "medication/windows/FrmMedoc.h"
#include "storage/Schema.h"
#include "support/BaseDeTest.h"
#include "support/Monde.h"

#include <QApplication>
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPlainTextEdit>
#include <QTest>
#include <QTimer>
#include <QStyledItemDelegate>
#include <QToolButton>
#include <QTreeView>

using medication::FrmMedoc;
using outside::Bouton;

class TestFrmMedoc : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<support::Monde> monde_;
    std::unique_ptr<application::Fenetres> fenetres_;
    FrmMedoc* fenetre_ = nullptr;

    template <typename T> T* Trouve(const char* nom) const
    {
        auto* controle = fenetre_->findChild<T*>(QLatin1String(nom));
        [&] { QVERIFY2(controle, nom); }();
        return controle;
    }
    QString Texte(const char* nom) const { return Trouve<QLineEdit>(nom)->text(); }
    QString Poso() const { return Trouve<QPlainTextEdit>("TxtPoso")->toPlainText(); }
    void Clic(const char* nom) const { QTest::mouseClick(Trouve<QWidget>(nom), Qt::LeftButton); }
    void ClicNoeud(int rang, bool ferme = true) const
    {
        auto* arbre = Trouve<QTreeView>("TV");
        const QPoint point = arbre->visualRect(arbre->model()->index(rang, 0)).center();
        QTest::mouseClick(arbre->viewport(), Qt::LeftButton, {}, point);
        if (!ferme) {
            QTest::mouseDClick(arbre->viewport(), Qt::LeftButton, {}, point);
        }
    }
    QPoint CentreLigne(const char* liste, int rang) const
    {
        auto* vue = Trouve<QListView>(liste);
        return vue->visualRect(vue->model()->index(rang, 0)).center();
    }
    void PresseLigne(const char* liste, int rang) const
    {
        QTest::mouseClick(Trouve<QListView>(liste)->viewport(), Qt::LeftButton, {}, CentreLigne(liste, rang));
    }
    void ReprendLigne(const char* liste, int rang) const
    {
        const QPoint point = CentreLigne(liste, rang);
        PresseLigne(liste, rang);
        QTest::mouseDClick(Trouve<QListView>(liste)->viewport(), Qt::LeftButton, {}, point);
    }
    void GlisseLigne(const char* liste, int rang, QWidget* vers, QPoint point) const
    {
        QWidget* source = Trouve<QListView>(liste)->viewport();
        const QPoint depart = CentreLigne(liste, rang);
        const QPoint arrivee = source->mapFromGlobal(vers->mapToGlobal(point));
        QTest::mousePress(source, Qt::LeftButton, {}, depart);
        QMouseEvent glisse(QEvent::MouseMove, arrivee, source->mapToGlobal(arrivee), Qt::NoButton,
                           Qt::LeftButton, {});
        QApplication::sendEvent(source, &glisse);
        QTest::mouseRelease(source, Qt::LeftButton, {}, arrivee);
    }
    QStringList Titres(const prescription::LignesZone& lignes) const
    {
        QStringList titres;
        for (const auto& ligne : lignes.Lignes()) {
            titres.append(prescription::TitreDeLigne(ligne.Texte));
        }
        return titres;
    }
    prescription::Ordonnance& Ordo() { return monde_->Etat.Ordonnance; }
    QString Focus() const
    {
        return fenetre_->focusWidget() ? fenetre_->focusWidget()->objectName() : QString();
    }

private Q_SLOTS:
    void init()
    {
        monde_ = std::make_unique<support::Monde>();
        const QString travail = monde_->Etat.Chemins.CheminTravail;
        common::CreeDossier(travail);
        storage::CreeBase(common::Joint(travail, QStringLiteral("Medoc.mdb")), storage::GenreBase::Medoc);
        storage::Base& base = monde_->Etat.Bases.Medoc(travail);
        base.SupprimeOu(QStringLiteral("BddMed"), QStringLiteral("1 = 1"), {});
        const auto pose = [&](int num, const char16_t* nom, const QVariant& poso, const QVariant& notes) {
            support::AjouteLigne(base, QStringLiteral("BddMed"),
                                 {num, {}, {}, notes, poso, QString::fromUtf16(nom)});
        };
        pose(1, u"DOLIPRANE 1000 MG", QStringLiteral("1 comprimé matin* et soir"), QStringLiteral("à jeun"));
        pose(2, u"AMLOR 5 MG", {}, {});
        pose(3, u"METFORMINE 1000 MG", QStringLiteral("1 cp"), {});
        fenetres_ = std::make_unique<application::Fenetres>(monde_->Contexte);
        fenetre_ = &fenetres_->Donne<FrmMedoc>();
        fenetre_->show();
    }
    void cleanup()
    {
        QVERIFY(monde_->Boites.Epuise());
        fenetres_.reset();
    }

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

    void WindowsToComeAreDisabledWithAWord()
    {
        for (const char* nom : {"LblPoso", "LblOrdoMem", "CmdNouveau"}) {
            QVERIFY2(!Trouve<QPushButton>(nom)->isEnabled(), nom);
            QCOMPARE(Trouve<QPushButton>(nom)->toolTip(),
                     QStringLiteral("Disponible dans une prochaine version"));
        }
    }

    void TabGoesDownTheRoad()
    {
        QStringList road;
        ClicNoeud(0);
        Trouve<QLineEdit>("TxtCherche")->setFocus();
        for (int i = 0; i < 16; ++i) {
            road.append(Focus());
            QTest::keyClick(fenetre_->focusWidget(), Qt::Key_Tab);
        }
        const QString attendu =
            QStringLiteral("TxtCherche TV TxtMedoc TxtPoso CmdModifier CmdAjouter1 ChkALD "
                           "ChkDup ChkTri LstChoix1 CmdSaut CmdClear CmdAnnule CmdOrdo CmdAide "
                           "CmdRetire");
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

    void EnterInTheSearchReadsTheTableAgain()
    {
        support::AjouteLigne(monde_->Etat.Bases.Medoc(monde_->Etat.Chemins.CheminTravail),
                             QStringLiteral("BddMed"), {9, {}, {}, {}, {}, QStringLiteral("ZYLORIC")});
        QTest::keyClick(Trouve<QLineEdit>("TxtCherche"), Qt::Key_Return);
        QCOMPARE(Trouve<QTreeView>("TV")->model()->rowCount(), 4);
        QVERIFY(Ordo().LstChoix1.Vide());
    }

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

    void EscapeAsksBeforeItEmpties()
    {
        ClicNoeud(1, false);
        monde_->Boites.AttendContenant(outside::Genre::Question, QStringLiteral("Tout effacer"), Bouton::Non);
        QTest::keyClick(fenetre_, Qt::Key_Escape);
        QVERIFY(fenetre_->isVisible());
        QCOMPARE(Ordo().LstChoix1.rowCount(), 1);
        monde_->Boites.AttendContenant(outside::Genre::Question, QStringLiteral("Tout effacer"), Bouton::Oui);
        QTest::keyClick(fenetre_, Qt::Key_Escape);
        QVERIFY(!fenetre_->isVisible());
        QVERIFY(Ordo().LstChoix1.Vide());
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
