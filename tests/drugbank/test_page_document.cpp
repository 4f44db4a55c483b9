#include "common/Fichiers.h"
#include "drugbank/PageDocument.h"

#include <QTemporaryDir>
#include <QTest>
#include <QUrl>

// The bytes of a page become what is shown.
class TestPageDocument : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir dossier_;

    QUrl Pose(const char* nom, const QByteArray& octets)
    {
        const QString chemin = common::Joint(dossier_.path(), QLatin1String(nom));
        common::EcritFichier(chemin, octets);
        return QUrl::fromLocalFile(chemin);
    }

private Q_SLOTS:
    void TheCharacterSetIsThatOfThePage_data()
    {
        QTest::addColumn<QByteArray>("octets");
        QTest::addColumn<QByteArray>("jeu");
        const QByteArray court("<p>d\xE9j\xE0 5 \x80</p>");
        const QByteArray long_ = QStringLiteral("<p>déjà 5 €</p>").toUtf8();
        QTest::newRow("1252, not named") << court << QByteArray();
        QTest::newRow("UTF-8, not named") << long_ << QByteArray();
        QTest::newRow("1252 in the page")
            << "<META content=\"text/html; charset=windows-1252\">" + court << QByteArray();
        QTest::newRow("8859-1 in the page") << "<meta charset=ISO-8859-1>" + court << QByteArray();
        QTest::newRow("UTF-8 in the page") << "<meta charset='utf-8'>" + long_ << QByteArray();
        QTest::newRow("UTF-8 as XML") << "<?xml version='1.0' encoding='UTF-8'?>" + long_ << QByteArray();
        QTest::newRow("the server is believed")
            << "<meta charset=\"utf-8\">" + court << QByteArray("Windows-1252");
        QTest::newRow("unknown name") << "<meta charset=\"x-a\">" + court << QByteArray();
        QTest::newRow("byte order mark") << "\xEF\xBB\xBF" + long_ << QByteArray("iso-8859-1");
    }
    void TheCharacterSetIsThatOfThePage()
    {
        QFETCH(const QByteArray, octets);
        QFETCH(const QByteArray, jeu);
        QVERIFY(drugbank::HtmlDeLaPage(octets, jeu).endsWith(QStringLiteral("<p>déjà 5 €</p>")));
    }

    void APlainTextStaysOne()
    {
        const QString html = drugbank::HtmlDeLaPage("dose & 5 mg\nmatin");
        QVERIFY(html.contains(QStringLiteral("dose &amp; 5 mg\nmatin")));
    }

    void BytesThatAreNoTextAreNoPage()
    {
        QVERIFY(drugbank::HtmlDeLaPage("%PDF-1.4 <a>").isNull());
        QVERIFY(drugbank::HtmlDeLaPage(QByteArray("<a>\0\1", 5)).isNull());
    }

    void AnAbsurdTableIsTamed()
    {
        QCOMPARE(drugbank::HtmlDeLaPage("<td colspan=\"99999999\" ROWSPAN = 1000 colspan=12>"),
                 QStringLiteral("<td colspan=\"100\" ROWSPAN = 100 colspan=12>"));
        const QByteArray emboitees = QByteArray("<table><tr><td>").repeated(50'000) + "fin";
        const QString html = drugbank::HtmlDeLaPage(emboitees);
        QVERIFY(html.contains(QStringLiteral("fin")) && !html.contains(QStringLiteral("<table")));
        const QByteArray longue = "<table>" + QByteArray("<tr><td>d&eacute;j\xE0</td>").repeated(30'000);
        QVERIFY(drugbank::HtmlDeLaPage("<script>\na</script>" + longue)
                    .contains(QStringLiteral("  d&eacute;jà ")));
        QVERIFY(
            !drugbank::HtmlDeLaPage("<script>secret</script>" + longue).contains(QStringLiteral("secret")));
        const QByteArray suivies = QByteArray("<table></table>").repeated(100);
        QCOMPARE(drugbank::HtmlDeLaPage(suivies), QString::fromLatin1(suivies));
    }

    void AFileIsReadUpToItsLimit()
    {
        const QUrl page = Pose("page.htm", "12345");
        QCOMPARE(drugbank::LitLeFichier(page, 5).Octets, QByteArray("12345"));
        const drugbank::Recu trop = drugbank::LitLeFichier(page, 4);
        QVERIFY(trop.Octets.isEmpty());
        QCOMPARE(trop.Manque,
                 QStringLiteral("Le document « page.htm » est trop grand pour être montré ici."));
    }

    void WhatIsNoFileIsTold()
    {
        const QString absent = QStringLiteral("Le document « rien.htm » est introuvable.");
        const QUrl rien = QUrl::fromLocalFile(common::Joint(dossier_.path(), QStringLiteral("rien.htm")));
        QCOMPARE(drugbank::LitLeFichier(rien, 10).Manque, absent);
        QVERIFY(!drugbank::LitLeFichier(QUrl::fromLocalFile(dossier_.path()), 10).Manque.isEmpty());
        QVERIFY(
            !drugbank::LitLeFichier(QUrl::fromLocalFile(QStringLiteral("/dev/zero")), 10).Manque.isEmpty());
    }

    void ASentenceIsShownAsItStands()
    {
        QCOMPARE(drugbank::PageDUnePhrase(QStringLiteral("a <b> & c")),
                 QStringLiteral("<p>a &lt;b&gt; &amp; c</p>"));
    }
};

QTEST_APPLESS_MAIN(TestPageDocument)
#include "test_page_document.moc"
