#include "outside/TravailPdf.h"

#include "common/Erreur.h"
#include "page/Surface.h"
#include "support/Monde.h"

#include <QDir>
#include <QProcess>
#include <QRegularExpression>
#include <QTest>

using namespace outside;

namespace {

page::Dessin Feuille(const QString& texte)
{
    page::Surface surface(page::Cible::Imprimante);
    surface.Font({.Nom = QStringLiteral("Arial"), .Taille = 12});
    surface.CurrentX(30);
    surface.CurrentY(40);
    surface.Print(texte);
    return surface.Resultat();
}

QString Sortie(const QString& programme, const QStringList& arguments)
{
    QProcess processus;
    processus.start(programme, arguments);
    return processus.waitForFinished() ? QString::fromUtf8(processus.readAllStandardOutput()) : QString();
}

} // namespace

class TestTravailPdf : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void TheFileIsNamed_data();
    void TheFileIsNamed();
    void ASecondFileHasAnotherName();
    void TheSheetsAreA4AndReadable();
    void TheTextStandsWhereItWasPainted();
    void TheFileIsOpened();
    void AFileThatNothingOpensIsNamed();
    void AFileThatCannotBeWrittenIsNamed();

private:
    const QDateTime instant_{QDate(2026, 11, 20), QTime(14, 5)};
};

void TestTravailPdf::TheFileIsNamed_data()
{
    QTest::addColumn<QString>("titre");
    QTest::addColumn<QString>("nom");
    QTest::newRow("patient") << QStringLiteral("MARTIN Paul")
                             << QStringLiteral("2026-11-20 14-05 MARTIN Paul.pdf");
    QTest::newRow("leaving the tree")
        << QStringLiteral("../../etc/passwd") << QStringLiteral("2026-11-20 14-05 etc passwd.pdf");
    QTest::newRow("drive and stars") << QStringLiteral("C:\\X*Y?")
                                     << QStringLiteral("2026-11-20 14-05 C X Y.pdf");
    QTest::newRow("no name") << QString() << QStringLiteral("2026-11-20 14-05.pdf");
    QTest::newRow("accents") << QStringLiteral("GÉRÔME Zoé")
                             << QStringLiteral("2026-11-20 14-05 GÉRÔME Zoé.pdf");
    QTest::newRow("longer than a file name")
        << QString(300, QChar(u'É'))
        << QStringLiteral("2026-11-20 14-05 %1.pdf").arg(QString(80, QChar(u'É')));
}

void TestTravailPdf::TheFileIsNamed()
{
    QFETCH(QString, titre);
    QFETCH(QString, nom);
    support::Monde monde;
    const QString dossier = monde.Dossier.path();
    QCOMPARE(CheminDuPdf({titre, {}, dossier}, instant_), common::Joint(dossier, nom));
}

void TestTravailPdf::ASecondFileHasAnotherName()
{
    support::Monde monde;
    const Travail travail{QStringLiteral("X"), {Feuille(QStringLiteral("a"))}, monde.Dossier.path()};
    EcritPdf(travail, CheminDuPdf(travail, instant_));
    EcritPdf(travail, CheminDuPdf(travail, instant_));
    QCOMPARE(QDir(monde.Dossier.path()).entryList(QDir::Files),
             QStringList(
                 {QStringLiteral("2026-11-20 14-05 X (2).pdf"), QStringLiteral("2026-11-20 14-05 X.pdf")}));
}

void TestTravailPdf::TheSheetsAreA4AndReadable()
{
    support::Monde monde;
    const QString chemin = monde.Chemin(QStringLiteral("essai.pdf"));
    EcritPdf({QStringLiteral("MARTIN Paul"),
              {Feuille(QStringLiteral("DOLIPRANE 500 mg")), Feuille(QStringLiteral("né(e) à Évreux"))},
              {}},
             chemin);
    const QString faits = Sortie(QStringLiteral("pdfinfo"), {chemin});
    QVERIFY2(faits.contains(QRegularExpression(QStringLiteral("Pages: +2\n"))), qPrintable(faits));
    QVERIFY2(faits.contains(QStringLiteral("(A4)")), qPrintable(faits));
    QVERIFY2(faits.contains(QRegularExpression(QStringLiteral("Title: +MARTIN Paul\n"))), qPrintable(faits));
    const QString texte =
        Sortie(QStringLiteral("pdftotext"), {QStringLiteral("-layout"), chemin, QStringLiteral("-")});
    QVERIFY2(texte.contains(QStringLiteral("DOLIPRANE 500 mg")), qPrintable(texte));
    QVERIFY2(texte.contains(QStringLiteral("né(e) à Évreux")), qPrintable(texte));
    const QString polices = Sortie(QStringLiteral("pdffonts"), {chemin});
    QVERIFY2(polices.contains(QStringLiteral(" yes ")), qPrintable(polices));
}

void TestTravailPdf::TheTextStandsWhereItWasPainted()
{
    support::Monde monde;
    const QString chemin = monde.Chemin(QStringLiteral("essai.pdf"));
    EcritPdf({{}, {Feuille(QStringLiteral("DOLIPRANE"))}, {}}, chemin);
    const QString places =
        Sortie(QStringLiteral("pdftotext"), {QStringLiteral("-bbox"), chemin, QStringLiteral("-")});
    const auto trouve =
        QRegularExpression(QStringLiteral("xMin=\"([0-9.]+)\" yMin=\"([0-9.]+)\"")).match(places);
    QVERIFY2(trouve.hasMatch(), qPrintable(places));
    constexpr double points = 72 / 25.4;
    QVERIFY(std::abs(trouve.captured(1).toDouble() - 30 * points) < 2);
    QVERIFY(std::abs(trouve.captured(2).toDouble() - 40 * points) < 4);
}

void TestTravailPdf::TheFileIsOpened()
{
    support::Monde monde;
    monde.Horloge.Instant = instant_;
    const QString chemin =
        ImprimeEnPdf({QStringLiteral("X"), {Feuille(QStringLiteral("a"))}, monde.Dossier.path()},
                     monde.Horloge, monde.Lanceur, monde.Boites);
    QVERIFY(common::FichierExiste(chemin));
    QCOMPARE(monde.Lanceur.Documents, QStringList{chemin});
}

void TestTravailPdf::AFileThatNothingOpensIsNamed()
{
    support::Monde monde;
    monde.Lanceur.Reussit = false;
    monde.Boites.AttendContenant(Genre::Information, QStringLiteral("MARTIN.pdf"));
    ImprimeEnPdf({QStringLiteral("MARTIN"), {Feuille(QStringLiteral("a"))}, monde.Dossier.path()},
                 monde.Horloge, monde.Lanceur, monde.Boites);
}

void TestTravailPdf::AFileThatCannotBeWrittenIsNamed()
{
    support::Monde monde;
    try {
        EcritPdf({{}, {Feuille(QStringLiteral("a"))}, {}}, monde.Chemin(QStringLiteral("absent/x.pdf")));
        QFAIL("nothing was told");
    } catch (const common::Erreur& erreur) {
        QVERIFY(erreur.Phrase().contains(QStringLiteral("x.pdf")));
    }
}

QTEST_MAIN(TestTravailPdf)
#include "test_travail_pdf.moc"
