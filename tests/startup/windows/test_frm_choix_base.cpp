#include "startup/windows/ProgrammeDeTest.h"

#include <QLabel>

using support::ProgrammeDeTest;

class TestFrmChoixBase : public QObject
{
    Q_OBJECT

    static QComboBox* Liste(startup::FrmChoixBase& choix, const char* nom)
    {
        return choix.findChild<QComboBox*>(QLatin1String(nom));
    }

    static void Presse(startup::FrmChoixBase& choix, const char* nom)
    {
        choix.findChild<QAbstractButton*>(QLatin1String(nom))->click();
    }

private Q_SLOTS:
    void TheFirstStartMustBeAnswered()
    {
        ProgrammeDeTest programme;
        programme.AttendPremierLancement();
        const QSignalSpy fin(programme.Programme.get(), &application::Application::Termine);
        const bool demarre = programme.Demarre([&](startup::FrmChoixBase& choix) {
            QVERIFY(choix.isModal());
            QCOMPARE(Liste(choix, "CboBase")->currentIndex(), -1);
            QCOMPARE(Liste(choix, "CboBase")->count(), 3);
            QCOMPARE(Liste(choix, "CboMed")->currentText(), QStringLiteral("DR NEIBRE"));
            QCOMPARE(choix.findChild<QLabel*>(QStringLiteral("lblversion"))->text(),
                     QStringLiteral("Version [2.3.25]"));
            support::Capture(choix, QStringLiteral("FrmChoixBase"));
            programme.Boites.AttendQuestionInformation(startup::messages::ChoixObligatoire(),
                                                       outside::Bouton::Oui);
            Presse(choix, "CmdSuite");
            QVERIFY(choix.isVisible());
            programme.Boites.AttendQuestionInformation(startup::messages::ChoixObligatoire(),
                                                       outside::Bouton::Non);
            Presse(choix, "CmdSuite");
        });
        QVERIFY(!demarre);
        QCOMPARE(fin.count(), 1);
        QVERIFY(!programme.Fenetres().Presente<startup::FrmDepart>());
    }

    void ThePreviousChoiceIsProposed()
    {
        ProgrammeDeTest programme;
        programme.Installe();
        programme.Cree();
        const bool demarre = programme.Demarre([](startup::FrmChoixBase& choix) {
            QCOMPARE(Liste(choix, "CboBase")->currentIndex(), 0);
            QCOMPARE(choix.focusWidget()->objectName(), QStringLiteral("CmdSuite"));
            QCOMPARE(support::OrdreTab(choix).join(QLatin1Char(' ')),
                     QStringLiteral("CmdSuite CmdAnn CboBase CboMed"));
            QTest::keyClick(&choix, Qt::Key_Return);
        });
        QVERIFY(demarre);
        QCOMPARE(int(programme.Contexte().Chemins.TypeStockage), 1);
    }

    void ACommandOfTheListMovesTheFocus()
    {
        ProgrammeDeTest programme;
        programme.AttendPremierLancement();
        QVERIFY(programme.Demarre([&](startup::FrmChoixBase& choix) {
            QCOMPARE(choix.focusWidget()->objectName(), QStringLiteral("CboBase"));
            Liste(choix, "CboBase")->setCurrentIndex(0);
            QCOMPARE(choix.focusWidget()->objectName(), QStringLiteral("CmdSuite"));
            QTest::keyClick(&choix, Qt::Key_Enter);
        }));
    }

    void EveryOtherWayOutEndsTheProgram_data()
    {
        QTest::addColumn<QString>("voie");
        for (const char* voie : {"CmdAnn", "Echap", "fermeture"}) {
            QTest::newRow(voie) << QString::fromLatin1(voie);
        }
    }

    void EveryOtherWayOutEndsTheProgram()
    {
        QFETCH(QString, voie);
        ProgrammeDeTest programme;
        programme.AttendPremierLancement();
        const QSignalSpy fin(programme.Programme.get(), &application::Application::Termine);
        const bool demarre = programme.Demarre([&](startup::FrmChoixBase& choix) {
            if (voie == QLatin1String("CmdAnn")) {
                Presse(choix, "CmdAnn");
            } else if (voie == QLatin1String("Echap")) {
                QTest::keyClick(&choix, Qt::Key_Escape);
            } else {
                choix.close();
            }
        });
        QVERIFY(!demarre);
        QCOMPARE(fin.count(), 1);
    }

    void NoOtherWindowIsMadeBefore()
    {
        ProgrammeDeTest programme;
        programme.AttendPremierLancement();
        programme.Demarre([&](startup::FrmChoixBase& choix) {
            QCOMPARE(QApplication::topLevelWidgets(), QWidgetList{&choix});
            choix.reject();
        });
    }
};

int main(int nombre, char** arguments)
{
    return support::LanceTest<TestFrmChoixBase>(nombre, arguments);
}

#include "test_frm_choix_base.moc"
