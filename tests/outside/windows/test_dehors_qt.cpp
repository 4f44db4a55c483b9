#include "application/windows/ApplicationQt.h"
#include "application/windows/Style.h"
#include "common/Fichiers.h"
#include "outside/windows/BoitesQt.h"
#include "outside/windows/DemarrageSystemeQt.h"
#include "outside/windows/LanceurQt.h"

#include <QAbstractButton>
#include <QDir>
#include <QFileDialog>
#include <QInputDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QTreeView>

using outside::Bouton;
using outside::Genre;

namespace {

/// Acts in the box that opens next, once it is active.
template <typename Boite> void DansLaBoite(const std::function<void(Boite&)>& action)
{
    auto* attente = new QTimer(qApp);
    QObject::connect(attente, &QTimer::timeout, attente, [attente, action] {
        auto* boite = qobject_cast<Boite*>(QApplication::activeModalWidget());
        if (boite && boite->isActiveWindow()) {
            attente->stop();
            attente->deleteLater();
            action(*boite);
        }
    });
    attente->start(5);
}

QStringList Textes(const QMessageBox& boite)
{
    QList<QAbstractButton*> boutons = boite.buttons();
    std::ranges::sort(boutons, {}, [](const QAbstractButton* bouton) { return bouton->x(); });
    QStringList textes;
    for (const QAbstractButton* bouton : boutons) {
        textes += bouton->text();
    }
    return textes;
}

void Capture(QWidget& fenetre, const QString& nom)
{
    QDir().mkpath(QStringLiteral(RACINE_CONSTRUCTION "/captures"));
    fenetre.grab().save(QStringLiteral(RACINE_CONSTRUCTION "/captures/%1.png").arg(nom));
}

} // namespace

class TestDehorsQt : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void AQuestionInFrench()
    {
        outside::BoitesQt boites;
        DansLaBoite<QMessageBox>([](QMessageBox& boite) {
            QCOMPARE(boite.windowTitle(), QStringLiteral("Scriptelle"));
            QCOMPARE(boite.text(), QStringLiteral("Supprimer <b>DR A</b> ?\nVraiment ?"));
            QCOMPARE(boite.textFormat(), Qt::PlainText);
            QCOMPARE(Textes(boite), (QStringList{QStringLiteral("&Oui"), QStringLiteral("&Non")}));
            QCOMPARE(boite.defaultButton()->text(), QStringLiteral("&Non"));
            QVERIFY(!boite.iconPixmap().isNull());
            Capture(boite, QStringLiteral("Boite-question"));
            QTest::keyClick(&boite, Qt::Key_O, Qt::AltModifier);
        });
        QVERIFY(boites.Question(QStringLiteral("Supprimer <b>DR A</b> ?\nVraiment ?"), Bouton::Non));
    }

    void EnterPressesTheDefault()
    {
        outside::BoitesQt boites;
        DansLaBoite<QMessageBox>([](QMessageBox& boite) { QTest::keyClick(&boite, Qt::Key_Return); });
        QVERIFY(!boites.Question(QStringLiteral("?"), Bouton::Non));
    }

    void EscapeStandsForTheGentlestButton_data()
    {
        QTest::addColumn<QList<Bouton>>("boutons");
        QTest::addColumn<Bouton>("attendu");
        QTest::newRow("OK") << QList{Bouton::OK} << Bouton::OK;
        QTest::newRow("Oui, Non") << QList{Bouton::Oui, Bouton::Non} << Bouton::Non;
        QTest::newRow("Oui, Non, Annuler")
            << QList{Bouton::Oui, Bouton::Non, Bouton::Annuler} << Bouton::Annuler;
        QTest::newRow("OK, Annuler") << QList{Bouton::OK, Bouton::Annuler} << Bouton::Annuler;
    }

    void EscapeStandsForTheGentlestButton()
    {
        QFETCH(QList<Bouton>, boutons);
        QFETCH(Bouton, attendu);
        outside::BoitesQt boites;
        DansLaBoite<QMessageBox>([](QMessageBox& boite) { QTest::keyClick(&boite, Qt::Key_Escape); });
        QCOMPARE(boites.Montre({Genre::Stop, QStringLiteral("?"), boutons, boutons.first()}), attendu);
    }

    void AnInputKeepsItsLine()
    {
        outside::BoitesQt boites;
        DansLaBoite<QInputDialog>([](QInputDialog& boite) {
            QCOMPARE(boite.windowTitle(), QStringLiteral("Hauteur"));
            QCOMPARE(boite.textValue(), QStringLiteral("Dr "));
            Capture(boite, QStringLiteral("Boite-saisie"));
            boite.findChild<QLineEdit*>()->setText(QStringLiteral("Dr Neibre"));
            QTest::keyClick(&boite, Qt::Key_Return);
        });
        QCOMPARE(
            boites.Demande({QStringLiteral("Nom\nPrénom"), QStringLiteral("Dr "), QStringLiteral("Hauteur")}),
            std::optional(QStringLiteral("Dr Neibre")));
        DansLaBoite<QInputDialog>([](QInputDialog& boite) { QTest::keyClick(&boite, Qt::Key_Escape); });
        QVERIFY(!boites.Demande({QStringLiteral("Nom"), {}}).has_value());
    }

    void ADirectoryHasNoTrailingSeparator()
    {
        QCOMPARE(outside::SansSeparateur(QStringLiteral("/media/CLE/")), QStringLiteral("/media/CLE"));
        QCOMPARE(outside::SansSeparateur(QStringLiteral("E:/")), QStringLiteral("E:"));
        QCOMPARE(outside::SansSeparateur(QStringLiteral("/")), QStringLiteral("/"));
        QCOMPARE(outside::SansSeparateur(QString()), QString());
    }

    void TheEntryOfTheDesktopQuotesThePath()
    {
        QCOMPARE(outside::EntreeDeDemarrage(QStringLiteral("/opt/a b/$x`\"%\\/Scriptelle")),
                 QStringLiteral("[Desktop Entry]\nType=Application\nName=Scriptelle\n"
                                "Exec=\"/opt/a b/\\\\$x\\\\`\\\\\"%%\\\\\\\\/Scriptelle\"\n"));
    }

#ifndef Q_OS_WIN
    void StartWithTheDesktopNamesTheRunningProgram()
    {
        QStandardPaths::setTestModeEnabled(true);
        const QString fichier = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
                                QStringLiteral("/autostart/Scriptelle.desktop");
        outside::DemarrageSystemeQt demarrage(QStringLiteral("/usr/bin/Scriptelle"));
        demarrage.Active(QStringLiteral("/data/Scriptelle.exe"));
        QVERIFY(common::LitFichier(fichier).contains("\nExec=\"/usr/bin/Scriptelle\"\n"));
        demarrage.Desactive();
        QVERIFY(!common::FichierExiste(fichier));
        demarrage.Desactive();
    }
#endif

    void TheFileDialogueWritesFrenchDatesOnAnySystem()
    {
        QTemporaryDir dossier;
        QVERIFY(QDir(dossier.path()).mkdir(QStringLiteral("NEIBRE")));
        QFileDialog dialogue(nullptr, {}, dossier.path());
        dialogue.setOption(QFileDialog::DontUseNativeDialog);
        dialogue.show();
        auto* arbre = dialogue.findChild<QTreeView*>();
        QTRY_VERIFY(arbre->model()->rowCount(arbre->rootIndex()) == 1);
        const QString date = arbre->model()->index(0, 3, arbre->rootIndex()).data().toString();
        QCOMPARE(date.first(10), QFileInfo(dossier.filePath(QStringLiteral("NEIBRE")))
                                     .lastModified()
                                     .toString(QStringLiteral("dd/MM/yyyy")));
        QCOMPARE(qgetenv("LC_ALL"), QByteArray("C.UTF-8"));
    }

    void AMissingDocumentIsNotOpened()
    {
        outside::LanceurQt lanceur;
        QVERIFY(!lanceur.Ouvre(QStringLiteral("/nulle/part/Aide.pdf")));
        QVERIFY(!lanceur.Lance(QStringLiteral("/nulle/part/Utile.exe")));
    }
};

int main(int nombre, char** arguments)
{
    application::style::ParleFrancais();
    application::ApplicationQt application(nombre, arguments);
    application::style::Installe(application);
    TestDehorsQt test;
    return QTest::qExec(&test, nombre, arguments);
}

#include "test_dehors_qt.moc"
