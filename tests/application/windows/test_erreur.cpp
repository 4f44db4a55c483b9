#include "application/Sauvegarde.h"
#include "application/messages.h"
#include "application/windows/ApplicationQt.h"
#include "common/Erreur.h"
#include "common/Fichiers.h"
#include "startup/windows/FrmAPROPOS.h"
#include "startup/windows/FrmMedecins.h"
#include "startup/windows/ProgrammeDeTest.h"

#include <QPushButton>

using support::ProgrammeDeTest;

class TestErreur : public QObject
{
    Q_OBJECT

    static application::ApplicationQt& Boucle() { return *static_cast<application::ApplicationQt*>(qApp); }

    static QString FichierSauve(ProgrammeDeTest& programme)
    {
        return common::Joint(programme.Contexte().Chemins.CheminTravail,
                             QStringLiteral("Ordonnance sauvegardee.txt"));
    }

    static void Prescrit(ProgrammeDeTest& programme)
    {
        prescription::Ordonnance& ordonnance = programme.Contexte().Ordonnance;
        programme.Contexte().Patient.PatientCourant = QStringLiteral("Monsieur  MARTIN  Paul");
        programme.Contexte().Patient.DateOrdo = QStringLiteral("20/11/2026");
        ordonnance.OrdoZone1 = {{QStringLiteral("rayé"), {}},
                                {QStringLiteral("DOLIPRANE"), QStringLiteral("1 matin*")}};
        ordonnance.LstChoix1.Ajoute({QStringLiteral("  DOLIPRANE"), 1});
    }

private Q_SLOTS:
    void cleanup() { Boucle().SurErreur({}); }

    void WhatAHandlerThrowsReachesTheReceiver()
    {
        QStringList recus;
        Boucle().SurErreur([&](const QString& phrase, const QString& lieu) { recus = {phrase, lieu}; });
        QTimer::singleShot(0, this, [] {
            throw common::Erreur(QStringLiteral("Le disque est plein."), QStringLiteral("a.mdb"));
        });
        QTRY_COMPARE(recus, (QStringList{QStringLiteral("Le disque est plein."), QStringLiteral("a.mdb")}));
    }

    void AnyExceptionIsCaught()
    {
        QString recu;
        Boucle().SurErreur([&](const QString& phrase, const QString&) { recu = phrase; });
        QTimer::singleShot(0, this, [] { throw std::out_of_range("rang"); });
        QTRY_COMPARE(recu, application::messages::ErreurInterne(QStringLiteral("rang")));
    }

    void OnlyTheFirstFailureIsTold()
    {
        int recus = 0;
        Boucle().SurErreur([&](const QString&, const QString&) { ++recus; });
        for (int fois = 0; fois < 2; ++fois) {
            QTimer::singleShot(0, this, [] { throw std::runtime_error("x"); });
        }
        QTest::qWait(20);
        QCOMPARE(recus, 1);
    }

    void ThePrescriptionInHandIsKept()
    {
        ProgrammeDeTest programme;
        programme.Installe();
        Prescrit(programme);
        const QString fichier = FichierSauve(programme);
        programme.Boites.AttendStop(application::messages::ArretSurErreur(
                                        QStringLiteral("Le disque est plein."), QStringLiteral("Medoc.mdb")) +
                                    application::messages::OrdonnanceSauvee(common::CheminAffiche(fichier)));
        const QSignalSpy fin(programme.Programme.get(), &application::Application::Termine);
        programme.Programme->ArretSurErreur(QStringLiteral("Le disque est plein."),
                                            QStringLiteral("Medoc.mdb"));
        QCOMPARE(fin.count(), 1);
        QVERIFY(programme.Plateau.Bulle.isEmpty());
        QCOMPARE(common::LitFichier(fichier),
                 QByteArray("\xEF\xBB\xBFMonsieur  MARTIN  Paul\n\n20/11/2026\n\nDOLIPRANE\n1 matin*\n"));
    }

    void NothingInHandLeavesNoFile()
    {
        ProgrammeDeTest programme;
        programme.Installe();
        programme.Boites.AttendStop(
            application::messages::ArretSurErreur(QStringLiteral("Panne."), QString()));
        programme.Programme->ArretSurErreur(QStringLiteral("Panne."), {});
        QVERIFY(!common::FichierExiste(FichierSauve(programme)));
    }

    void AFailureUnderModalWindowsEndsTheProgramOnce()
    {
        ProgrammeDeTest programme;
        startup::FrmDepart& depart = programme.Installe();
        Boucle().SurErreur([&](const QString& phrase, const QString& lieu) {
            programme.Programme->ArretSurErreur(phrase, lieu);
        });
        const QSignalSpy fin(programme.Programme.get(), &application::Application::Termine);
        programme.Boites.AttendContenant(outside::Genre::Stop, QStringLiteral("Le disque est plein."));
        QTimer::singleShot(0, &depart, [&] {
            auto& medecins = programme.Fenetres().Donne<startup::FrmMedecins>();
            auto* aide = medecins.findChild<QPushButton*>(QStringLiteral("CmdAide"));
            aide->disconnect();
            connect(aide, &QPushButton::clicked, this, [] {
                throw common::Erreur(QStringLiteral("Le disque est plein."), QStringLiteral("a.mdb"));
            });
            QTimer::singleShot(0, &depart, [aide] { QTest::mouseClick(aide, Qt::LeftButton); });
            programme.Fenetres().OuvreModale<startup::FrmAPROPOS>();
        });
        QTest::mouseClick(depart.findChild<QPushButton*>(QStringLiteral("CmdMedecins")), Qt::LeftButton);
        QCOMPARE(fin.count(), 1);
        QVERIFY(programme.Boites.Epuise());
        for (const QWidget* fenetre : QApplication::topLevelWidgets()) {
            QVERIFY2(!fenetre->isVisible(), qPrintable(fenetre->objectName()));
        }
        QVERIFY(!QApplication::activeModalWidget());
        programme.Programme.reset(); // with a click that was never delivered to its end
    }

    void ADiskThatFailsIsSaid()
    {
        ProgrammeDeTest programme;
        programme.Installe();
        Prescrit(programme);
        programme.Contexte().Chemins.CheminTravail = programme.Chemin(QStringLiteral("nulle part"));
        programme.Boites.AttendContenant(outside::Genre::Stop, QStringLiteral("n'a pas pu être conservée"));
        programme.Programme->ArretSurErreur(QStringLiteral("Panne."), {});
    }

    void BothZonesAreKept()
    {
        ProgrammeDeTest programme;
        programme.Installe();
        Prescrit(programme);
        prescription::Ordonnance& ordonnance = programme.Contexte().Ordonnance;
        ordonnance.ChkALD = 1;
        ordonnance.OrdoZone2 = {{QStringLiteral("SPASFON"), {}}};
        ordonnance.LstChoix2.Ajoute({QStringLiteral("  SPASFON"), 0});
        QCOMPARE(
            application::TexteOrdonnance(programme.Contexte()),
            QStringLiteral("Monsieur  MARTIN  Paul\n\n20/11/2026\n\n--- Zone 1 ---\n\nDOLIPRANE\n1 matin*\n\n"
                           "--- Zone 2 ---\n\nSPASFON\n"));
    }
};

int main(int nombre, char** arguments)
{
    return support::LanceTest<TestErreur>(nombre, arguments);
}

#include "test_erreur.moc"
