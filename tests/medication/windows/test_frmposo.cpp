#include "PosteMedoc.h"
#include "medication/messages.h"
#include "medication/windows/FrmPoso.h"

#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QRandomGenerator>

using medication::FrmPoso;

class TestFrmPoso : public QObject, private support::PosteMedoc
{
    Q_OBJECT

private Q_SLOTS:
    void init() { Prepare(); }
    void cleanup() { Range(); }

    void WithoutAMedicationNothingOpens()
    {
        monde_->Boites.AttendInformation(medication::messages::SelectionnezUnMedicament());
        Clic("LblPoso");
        QVERIFY(!fenetres_->Presente<FrmPoso>());
    }

    void EnterInABoxAdds()
    {
        ClicNoeud(1);
        Dans([this](FrmPoso&) {
            Tape(0, "lyo");
            Tape(1, "1 1/2");
            QTest::keyClick(Boite(1), Qt::Key_Return);
        });
        QCOMPARE(Ordo().OrdoZone1.size(), 1);
        QCOMPARE(Ordo().OrdoZone1[0].Posologie, QStringLiteral("1  lyo et 1/2  le matin"));
    }

    void EscapeLeavesThePosology()
    {
        ClicNoeud(2);
        Dans([this](FrmPoso& f) {
            Tape(4, "2");
            QTest::keyClick(&f, Qt::Key_Escape);
        });
        QCOMPARE(Poso(), QStringLiteral("1 cp"));
        QCOMPARE(Ordo().OrdoZone1.size(), 0);
    }

    void TypingShowsNothingThatWasNotTyped()
    {
        ClicNoeud(1);
        Dans([this](FrmPoso& f) {
            Tape(0, "dose");
            QCOMPARE(Boite(0)->currentText(), QStringLiteral("dose"));
            Tape(1, "1");
            Boite(2)->setFocus();
            QCOMPARE(Boite(1)->currentIndex(), 3); // a text typed is its row
            QTest::keyClick(&f, Qt::Key_Escape);
        });
    }

    void NoTextOfAListIsCut()
    {
        ClicNoeud(1);
        Dans([this](FrmPoso& f) {
            f.resize(f.minimumSizeHint());
            QCoreApplication::sendPostedEvents();
            for (int i = 0; i < medication::kNbCboP; ++i) {
                for (const QString& texte : medication::ListeCboP(i)) {
                    constexpr int kBords = 2 * 2 + 1; // of a QLineEdit, and its caret
                    const QLineEdit* ligne = Boite(i)->lineEdit();
                    QVERIFY2(ligne->fontMetrics().horizontalAdvance(texte) + kBords <= ligne->width(),
                             qPrintable(texte));
                }
            }
            QTest::keyClick(&f, Qt::Key_Escape);
        });
    }

    void TheWheelChoosesNothing()
    {
        ClicNoeud(1);
        Dans([this](FrmPoso& f) {
            Boite(1)->setFocus();
            QWheelEvent roue({4, 4}, Boite(1)->mapToGlobal(QPointF(4, 4)), {}, {0, -120}, Qt::NoButton, {},
                             Qt::NoScrollPhase, false);
            QApplication::sendEvent(Boite(1), &roue);
            QCOMPARE(Boite(1)->currentText(), QString());
            QTest::keyClick(&f, Qt::Key_Escape);
        });
    }

    void TheArrowOpensTheListAndChoosesNothing()
    {
        ClicNoeud(1);
        Dans([this](FrmPoso& f) {
            QTest::keyClick(Boite(5), Qt::Key_Down);
            QVERIFY(Boite(5)->view()->isVisible());
            QCOMPARE(Boite(5)->currentText(), QString());
            QTest::keyClick(Boite(5)->view(), Qt::Key_Escape);
            QVERIFY(f.isVisible());
            QTest::keyClick(&f, Qt::Key_Escape);
        });
    }

    void AReplacedTextCanBeUndone()
    {
        ClicNoeud(2);
        Dans([this](FrmPoso& f) {
            Tape(3, "4");
            auto* texte = f.findChild<QPlainTextEdit*>(QStringLiteral("TxtPoso"));
            QCOMPARE(texte->toPlainText(), QStringLiteral("4  le soir"));
            texte->undo();
            QCOMPARE(texte->toPlainText(), QStringLiteral("1 cp"));
            QTest::keyClick(&f, Qt::Key_Escape);
        });
    }

    void NoSequenceOfChoicesLosesWhatWasTyped()
    {
        ClicNoeud(2);
        Dans([this](FrmPoso& f) {
            auto* texte = f.findChild<QPlainTextEdit*>(QStringLiteral("TxtPoso"));
            QRandomGenerator hasard(20261121);
            for (int geste = 0; geste < 150; ++geste) {
                QTest::keyClicks(texte, QStringLiteral("a la main %1").arg(geste));
                const QString main = texte->toPlainText();
                ChoisitAuHasard(hasard);
                for (int i = 0; i < medication::kNbCboP; ++i) {
                    QCOMPARE(Boite(i)->isEnabled(), !medication::EstQuantite(i) || !SansHeure());
                }
                for (int pas = 0; pas < 6 && texte->toPlainText() != main; ++pas) {
                    QTest::keyClick(texte, Qt::Key_Z, Qt::ControlModifier);
                }
                QCOMPARE(texte->toPlainText(), main);
            }
            QTest::keyClick(&f, Qt::Key_Escape);
        });
    }

    void WhatTheBoxHeldBeforeComesBack()
    {
        ClicNoeud(2);
        auto* poso = Trouve<QPlainTextEdit>("TxtPoso");
        QTest::keyClicks(poso, QStringLiteral("ma phrase "));
        const QString avant = Poso();
        Dans([this](FrmPoso& f) {
            Tape(3, "4");
            f.findChild<QPushButton*>(QStringLiteral("CmdQuitter"))->click();
        });
        QCOMPARE(Poso(), QStringLiteral("4  le soir"));
        QTest::keyClick(poso, Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(Poso(), avant);
    }

    void AFailureToStoreStillAddsTheLine()
    {
        ClicNoeud(2);
        monde_->Etat.Bases.Medoc(monde_->Etat.Chemins.CheminTravail)
            .SupprimeOu(QStringLiteral("BddMed"), QStringLiteral("1 = 1"), {});
        monde_->Boites.Attend(outside::Genre::Exclamation, medication::messages::Disparu(),
                              outside::Bouton::OK);
        Dans([](FrmPoso& f) { f.findChild<QPushButton*>(QStringLiteral("CmdEnregistrer"))->click(); });
        QCOMPARE(Ordo().OrdoZone1.size(), 1);
    }

private:
    /// Opens the composer and acts in it, as it is modal; the action closes it.
    void Dans(const std::function<void(FrmPoso&)>& agit)
    {
        QTimer::singleShot(0, fenetre_, [this, agit] {
            auto& f = fenetres_->Donne<FrmPoso>();
            QVERIFY(f.isVisible());
            agit(f);
            if (f.isVisible()) {
                f.reject();
                QFAIL("the composer stayed open");
            }
        });
        Clic("LblPoso");
    }
    QComboBox* Boite(int indice) const
    {
        return fenetres_->Presente<FrmPoso>()->findChild<QComboBox*>(QStringLiteral("CboP(%1)").arg(indice));
    }
    bool SansHeure() const
    {
        return Boite(medication::kRepas)->currentIndex() == 0 ||
               Boite(medication::kRepas)->currentIndex() == 7;
    }
    /// A row, or a letter typed, in a box that takes it; a quantity asked for is given or refused.
    void ChoisitAuHasard(QRandomGenerator& hasard)
    {
        QComboBox* boite = Boite(hasard.bounded(int(medication::kNbCboP)));
        const int rang = hasard.bounded(boite->count());
        if (!boite->isEnabled()) {
            return;
        }
        if (hasard.bounded(4) == 0) {
            QTest::keyClick(boite, Qt::Key_X);
            return;
        }
        if (boite == Boite(medication::kRepas) && (rang == 0 || rang == 7)) {
            const bool donnee = hasard.bounded(2) == 0;
            monde_->Boites.AttendSaisie(rang == 0 ? medication::messages::QuantiteAuBesoin()
                                                  : medication::messages::QuantiteAuMomentVoulu(),
                                        donnee ? std::optional(QStringLiteral("2")) : std::nullopt,
                                        QStringLiteral("1"));
        }
        boite->setCurrentIndex(rang);
        Q_EMIT boite->textActivated(boite->currentText());
    }
    void Tape(int indice, const char* texte) const { QTest::keyClicks(Boite(indice), QLatin1String(texte)); }
};

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    application::style::Installe(application);
    TestFrmPoso test;
    return QTest::qExec(&test, argc, argv);
}

#include "test_frmposo.moc"
