#pragma once

#include "application/windows/Application.h"
#include "application/windows/ApplicationQt.h"
#include "application/windows/Style.h"
#include "common/Fichiers.h"
#include "startup/messages.h"
#include "startup/windows/FrmChoixBase.h"
#include "startup/windows/FrmDepart.h"
#include "storage/Schema.h"
#include "support/BoitesScript.h"
#include "support/DehorsFeint.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QDir>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <memory>

namespace support {

/// The real program over a fresh installation, with the outer edge of tests.
struct ProgrammeDeTest
{
    using Reponse = std::function<void(startup::FrmChoixBase&)>;

    QTemporaryDir Dossier;
    BoitesScript Boites;
    ImprimantesFeintes Imprimantes;
    HorlogeFixe Horloge;
    PlateauFeint Plateau;
    DemarrageSystemeFeint DemarrageSysteme;
    LanceurFeint Lanceur;
    std::unique_ptr<application::Application> Programme;

    ProgrammeDeTest()
    {
        using storage::GenreBase;
        common::CreeDossier(Chemin(QStringLiteral("programme/BasesInstal")));
        common::CreeDossier(Chemin(QStringLiteral("DUPONT")));
        storage::CreeBase(Chemin(QStringLiteral("programme/Medoc.mdb")), GenreBase::Medoc);
        storage::CreeBase(Chemin(QStringLiteral("programme/Ordo.mdb")), GenreBase::Ordo);
        storage::CreeBase(Chemin(QStringLiteral("programme/BasesInstal/Ordo.mdb")), GenreBase::Ordo);
        Cree();
    }

    QString Chemin(const QString& nom) const { return common::Joint(Dossier.path(), nom); }

    /// A program that has not started yet, over what the former one left.
    void Cree()
    {
        Programme.reset();
        const application::Dehors dehors{Boites, Imprimantes, Horloge, Plateau, DemarrageSysteme, Lanceur};
        const QString programme = Chemin(QStringLiteral("programme"));
        Programme = std::make_unique<application::Application>(dehors, programme, programme);
    }

    /// Scripts the boxes of a first start with that doctor.
    void AttendPremierLancement(const QString& medecin = QStringLiteral("Dr Neibre"))
    {
        namespace messages = startup::messages;
        Boites.AttendInformation(messages::RepertoireUtilisateur())
            .AttendDossier(messages::TitreRepertoireUtilisateur(), Chemin(QStringLiteral("DUPONT")))
            .AttendInformation(messages::PremierMedecin())
            .AttendSaisie(messages::InvitePremierMedecin(), medecin, QStringLiteral("Dr "))
            .AttendInformation(messages::Bienvenue());
    }

    /// Starts the program; `reponse` acts in `FrmChoixBase` once it is shown.
    bool Demarre(const Reponse& reponse)
    {
        QTimer attente;
        QObject::connect(&attente, &QTimer::timeout, &attente, [&] {
            auto* choix = Fenetres().Presente<startup::FrmChoixBase>();
            if (choix && choix->isVisible()) {
                attente.stop();
                reponse(*choix);
            }
        });
        attente.start(1);
        return Programme->Demarre();
    }

    /// A first start of one doctor that works on his own disk, up to `FrmDepart`.
    startup::FrmDepart& Installe()
    {
        AttendPremierLancement();
        Demarre([](startup::FrmChoixBase& choix) {
            choix.findChild<QComboBox*>(QStringLiteral("CboBase"))->setCurrentIndex(0);
            choix.findChild<QAbstractButton*>(QStringLiteral("CmdSuite"))->click();
        });
        return Fenetres().Donne<startup::FrmDepart>();
    }

    application::Fenetres& Fenetres() { return Programme->Fenetres(); }
    application::Contexte& Contexte() { return Programme->Contexte(); }
};

/// Keeps a window's picture below the build directory, for the eye.
inline void Capture(QWidget& fenetre, const QString& nom)
{
    const QString dossier = QStringLiteral(RACINE_CONSTRUCTION "/captures");
    QDir().mkpath(dossier);
    fenetre.grab().save(common::Joint(dossier, nom + QStringLiteral(".png")));
}

/// The object names that Tab walks through, from the control that has the focus.
inline QStringList OrdreTab(const QWidget& fenetre)
{
    QStringList noms;
    const QWidget* premier = fenetre.focusWidget();
    for (const QWidget* controle = premier; controle;) {
        if (controle->focusPolicy() & Qt::TabFocus && controle->isVisibleTo(&fenetre) &&
            !controle->objectName().startsWith(QLatin1String("qt_"))) {
            noms += controle->objectName();
        }
        controle = controle->nextInFocusChain();
        controle = controle == premier ? nullptr : controle;
    }
    return noms;
}

/// A test's `main`: the class runs under the program's style and net.
template <typename Test> int LanceTest(int nombre, char** arguments)
{
    application::ApplicationQt application(nombre, arguments);
    QApplication::setQuitOnLastWindowClosed(false);
    application::style::Installe(application);
    Test test;
    return QTest::qExec(&test, nombre, arguments);
}

} // namespace support
