#include "application/windows/Style.h"

#include <QApplication>
#include <QDir>
#include <QDirIterator>
#include <QFontInfo>
#include <QLabel>
#include <QMessageBox>
#include <QRegularExpression>
#include <QTest>
#include <QToolButton>
#include <QTreeWidget>

using namespace application;

class TestStyle : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void ThePoliceIsInter() { QCOMPARE(QFontInfo(QApplication::font()).family(), QStringLiteral("Inter")); }

    void BoxesHaveItWhateverTheDesktopSays()
    {
        const QFont avant = QApplication::font("QMessageBox");
        QApplication::setFont(QFont(QStringLiteral("Liberation Mono"), 7), "QMessageBox");
        QMessageBox boite(QMessageBox::Information, QString(), QStringLiteral("Texte"));
        boite.ensurePolished();
        auto* texte = boite.findChild<QLabel*>(QStringLiteral("qt_msgbox_label"));
        texte->ensurePolished();
        QCOMPARE(QFontInfo(texte->font()).family(), QStringLiteral("Inter"));
        QCOMPARE(texte->font().pointSizeF(), QApplication::font().pointSizeF());
        QApplication::setFont(avant, "QMessageBox");
    }

    void QtSpeaksFrench()
    {
        QCOMPARE(QLocale().toString(QDate(2026, 11, 20), QStringLiteral("MMMM")), QStringLiteral("novembre"));
        QCOMPARE(QCoreApplication::translate("QPlatformTheme", "Cancel"), QStringLiteral("Annuler"));
    }

    void AnIconIsTinted()
    {
        const QImage encre = style::Icone(QStringLiteral("plus-lg")).pixmap(18, 18).toImage();
        const QImage clair = style::Icone(QStringLiteral("plus-lg"), true).pixmap(18, 18).toImage();
        QCOMPARE(encre.pixelColor(9, 9).name(), style::Teinte(style::Ton::Encre).name());
        QCOMPARE(clair.pixelColor(9, 9).name(), QStringLiteral("#ffffff"));
    }

    void AnIconIsWhiteOnASelectedRow()
    {
        const QIcon icone = style::Icone(QStringLiteral("plus-lg"), style::Ton::Rouge);
        QCOMPARE(icone.pixmap(18, 18, QIcon::Selected).toImage().pixelColor(9, 9).name(),
                 QStringLiteral("#ffffff"));
    }

    void ASelectedRowIsOneBar()
    {
        QTreeWidget arbre;
        arbre.setColumnCount(2);
        arbre.setRootIsDecorated(false);
        auto* rangee = new QTreeWidgetItem(&arbre, {QString(), QString()});
        arbre.setCurrentItem(rangee);
        arbre.resize(400, 120);
        arbre.show();
        const QImage image = arbre.viewport()->grab().toImage();
        const QRect place = arbre.visualItemRect(rangee);
        const int bord = arbre.columnViewportPosition(1);
        for (const int x : {bord - 1, bord}) {
            QCOMPARE(image.pixelColor(x, place.top()).name(), style::Teinte(style::Ton::Encre).name());
            QCOMPARE(image.pixelColor(x, place.bottom()).name(), style::Teinte(style::Ton::Encre).name());
        }
    }

    void AnIconFollowsThePixelDensity()
    {
        QCOMPARE(style::Icone(QStringLiteral("plus-lg")).pixmap(QSize(18, 18), 2.0).size(), QSize(36, 36));
    }

    void EveryIconOfTheSourcesExists_data()
    {
        QTest::addColumn<QString>("dossier");
        QTest::newRow("src") << QStringLiteral(RACINE_PROJET "/src");
        QTest::newRow("tools") << QStringLiteral(RACINE_PROJET "/tools");
    }

    void EveryIconOfTheSourcesExists()
    {
        QFETCH(QString, dossier);
        static const QRegularExpression nom(
            QStringLiteral("(?:Bouton|BoutonPrincipal|BoutonDestructeur|BoutonIcone|Icone)\\((?:[^;]*?)"
                           "QStringLiteral\\(\"([a-z0-9]+(?:-[a-z0-9]+)*)\"\\)"));
        QDirIterator fichiers(dossier, {QStringLiteral("*.cpp")}, QDir::Files, QDirIterator::Subdirectories);
        while (fichiers.hasNext()) {
            QFile fichier(fichiers.next());
            QVERIFY(fichier.open(QIODevice::ReadOnly));
            auto icones = nom.globalMatch(QString::fromUtf8(fichier.readAll()));
            while (icones.hasNext()) {
                const QString icone = icones.next().captured(1);
                QVERIFY2(QFile::exists(QStringLiteral(":/icones/%1-18.png").arg(icone)),
                         qPrintable(fichier.fileName() + QStringLiteral(": ") + icone));
            }
        }
    }

    void AButtonIs34High()
    {
        const std::unique_ptr<QPushButton> bouton(
            style::Bouton(QStringLiteral("CmdX"), QStringLiteral("&Ajouter"), {}, nullptr));
        bouton->ensurePolished();
        QCOMPARE(bouton->sizeHint().height(), style::kHauteurBouton);
        QCOMPARE(bouton->accessibleName(), QStringLiteral("Ajouter"));
        QVERIFY(!bouton->isDefault());
    }
};

int main(int nombre, char** arguments)
{
    QApplication application(nombre, arguments);
    style::Installe(application);
    TestStyle test;
    return QTest::qExec(&test, nombre, arguments);
}

#include "test_style.moc"
