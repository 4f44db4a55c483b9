#include "ServeurDeTest.h"
#include "common/Fichiers.h"
#include "drugbank/windows/VueDocument.h"

#include <QBuffer>
#include <QElapsedTimer>
#include <QImage>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QTextBlock>

// Pages of files and of servers of this computer, and nothing else.
class TestVueDocument : public QObject
{
    Q_OBJECT

private:
    static constexpr int kDelai = 400;

    QTemporaryDir dossier_;
    std::unique_ptr<support::ServeurDeTest> serveur_;
    std::unique_ptr<drugbank::VueDocument> vue_;

    QString Pose(const char* nom, const QByteArray& octets)
    {
        const QString chemin = common::Joint(dossier_.path(), QLatin1String(nom));
        common::EcritFichier(chemin, octets);
        return chemin;
    }
    void Montre(const QUrl& adresse) { vue_->Montre(adresse.toString(QUrl::FullyEncoded)); }
    QString Texte() const { return vue_->toPlainText(); }
    static QByteArray Png(int cote, QRgb couleur = 0xff00ff00)
    {
        QImage image(cote, cote, QImage::Format_RGB32);
        image.fill(couleur);
        QByteArray octets;
        QBuffer tampon(&octets);
        image.save(&tampon, "PNG");
        return octets;
    }
    /// The side of the picture that stands in the text.
    int CoteDeLImage() const
    {
        for (QTextBlock bloc = vue_->document()->begin(); bloc.isValid(); bloc = bloc.next()) {
            for (auto mot = bloc.begin(); !mot.atEnd(); ++mot) {
                const QTextImageFormat format = mot.fragment().charFormat().toImageFormat();
                if (format.isValid()) {
                    return vue_->document()
                        ->resource(QTextDocument::ImageResource, QUrl(format.name()))
                        .value<QImage>()
                        .width();
                }
            }
        }
        return 0;
    }
    void Suit(const char* lien) { Q_EMIT vue_->anchorClicked(QUrl(QLatin1String(lien))); }
    bool Coloree(const QColor& couleur) const
    {
        const QImage image = vue_->grab().toImage();
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                if (image.pixelColor(x, y) == couleur) {
                    return true;
                }
            }
        }
        return false;
    }

private Q_SLOTS:
    void init()
    {
        serveur_ = std::make_unique<support::ServeurDeTest>();
        vue_ = std::make_unique<drugbank::VueDocument>(nullptr, kDelai);
        vue_->resize(500, 400);
        vue_->show();
    }

    void AFileIsShownInItsCharacterSet()
    {
        vue_->Montre(Pose("a.htm", "<title>Fiche</title><p>d\xE9j\xE0 vu \x80</p>"));
        QCOMPARE(Texte(), QStringLiteral("déjà vu €"));
        QCOMPARE(vue_->Titre(), QStringLiteral("Fiche"));
        QCOMPARE(vue_->Adresse().fileName(), QStringLiteral("a.htm"));
        vue_->Montre(QStringLiteral("about:blank"));
        QCOMPARE(Texte(), QString());
        QCOMPARE(vue_->Adresse(), QUrl(QStringLiteral("about:blank")));
        QVERIFY(vue_->AOuvrirDehors().isEmpty());
    }

    void AMissingFileIsTold()
    {
        vue_->Montre(common::Joint(dossier_.path(), QStringLiteral("rien.htm")));
        QCOMPARE(Texte(), QStringLiteral("Le document « rien.htm » est introuvable."));
    }

    void ScriptsAreNeitherRunNorShown()
    {
        vue_->Montre(Pose("s.htm", "<script>document.write('a')</script><p onclick='b()'>texte</p>"
                                   "<noscript></noscript><meta http-equiv=refresh content='0;url=b.htm'>"));
        QTest::qWait(50);
        QCOMPARE(Texte().trimmed(), QStringLiteral("texte"));
        QCOMPARE(vue_->Adresse().fileName(), QStringLiteral("s.htm"));
        Suit("javascript:alert(1)");
        QVERIFY(vue_->AOuvrirDehors().fileName() == QStringLiteral("s.htm"));
        QCOMPARE(vue_->Remarque(), QStringLiteral("Ce lien n'est pas de ceux qui peuvent être suivis."));
    }

    void PicturesAndStyleSheetsOfFilesAreShown()
    {
        Pose("point.png", Png(40, 0xffff0000));
        Pose("style.css", "p { background-color: #00ff00 }");
        vue_->Montre(Pose("i.htm", "<link rel=stylesheet href=style.css><p>a<img src='point.png'></p>"));
        QCOMPARE(CoteDeLImage(), 40);
        QVERIFY(Coloree(QColor(255, 0, 0)));
        QVERIFY(Coloree(QColor(0, 255, 0)));
    }

    void PicturesSideBySideAreAllNamed()
    {
        Pose("a.png", Png(11));
        vue_->Montre(Pose("d.htm", "<table><tr><td><img src=a.png><img src=a.png></td></tr></table>"));
        QCOMPARE(CoteDeLImage(), 11);
        const QString html = vue_->toHtml();
        QVERIFY(html.contains(QStringLiteral("wb:0")) && html.contains(QStringLiteral("wb:1")));
        QVERIFY(!html.contains(QStringLiteral("a.png")));
    }

    void APictureByItsBareNameIsHeldToTheSameRules()
    {
        // Beyond the limit of pixels; the toolkit would open the file by itself.
        QImage grande(6000, 4000, QImage::Format_Mono);
        grande.fill(0);
        const QString chemin = common::Joint(dossier_.path(), QStringLiteral("grande.png"));
        QVERIFY(grande.save(chemin));
        vue_->Montre(Pose("g.htm", "<img src='" + chemin.toUtf8() + "'>"));
        QCOMPARE(CoteDeLImage(), 1);
    }

    void AServerOfThisComputerIsShownWithoutWaiting()
    {
        serveur_->Pose("/m", "<p>\xC3\xA9t\xC3\xA9</p>", "text/html; charset=utf-8");
        Montre(serveur_->Adresse("/m"));
        QCOMPARE(Texte(), QString());
        QTRY_COMPARE(Texte(), QStringLiteral("été"));
        QCOMPARE(vue_->AOuvrirDehors(), serveur_->Adresse("/m"));
        QVERIFY(!serveur_->Entetes[0].contains("Cookie"));
    }

    void WhatAPageOfAServerNamesComesFromThere()
    {
        serveur_->Pose("/m", "<link rel=stylesheet href='s.css'><p>texte <img src='/i.png'></p>");
        serveur_->Pose("/s.css", "p { background-color: #0000ff }", "text/css");
        serveur_->Pose("/i.png", Png(30, 0xffff0000), "image/png");
        Montre(serveur_->Adresse("/m"));
        QTRY_COMPARE(CoteDeLImage(), 30);
        QVERIFY(Coloree(QColor(255, 0, 0)));
        QTRY_VERIFY(Coloree(QColor(0, 0, 255)));
        QCOMPARE(serveur_->Demandes.size(), 3);
        QTest::qWait(50);
        QCOMPARE(serveur_->Demandes.size(), 3);
    }

    void NothingIsLoadedFromElsewhere()
    {
        // The server listens on 127.0.0.1: by any other name it would be another computer.
        const QByteArray ailleurs = "http://0.0.0.0:" + QByteArray::number(serveur_->serverPort());
        serveur_->Pose("/i.png", Png(30), "image/png");
        serveur_->Pose("/s.css", "p { color: #00ff00 }", "text/css");
        vue_->Montre(Pose("e.htm", "<link rel=stylesheet href='" + ailleurs + "/s.css'><style>@import url(" +
                                       ailleurs + "/s.css); p { background-image: url(" + ailleurs +
                                       "/i.png) }</style><body background='" + ailleurs +
                                       "/i.png'><p>texte <img src='" + ailleurs + "/i.png'></p>"));
        QTest::qWait(100);
        QCOMPARE(Texte().left(5), QStringLiteral("texte"));
        QVERIFY(serveur_->Demandes.isEmpty());
        QCOMPARE(CoteDeLImage(), 1);
    }

    void ARedirectionStaysOnThisComputer()
    {
        serveur_->Renvoie("/a", "/b?x=1");
        serveur_->Pose("/b?x=1", "<p>ici</p>");
        Montre(serveur_->Adresse("/a"));
        QTRY_COMPARE(Texte(), QStringLiteral("ici"));
        QCOMPARE(vue_->Adresse(), serveur_->Adresse("/b?x=1"));

        const QByteArray ailleurs = "http://0.0.0.0:" + QByteArray::number(serveur_->serverPort()) + "/b?x=1";
        serveur_->Renvoie("/c", ailleurs);
        serveur_->Demandes.clear();
        Montre(serveur_->Adresse("/c"));
        QTRY_COMPARE(Texte(),
                     QStringLiteral("Le document renvoie hors de ce poste, à 0.0.0.0 : il n'a pas été "
                                    "chargé."));
        QCOMPARE(serveur_->Demandes, QList<QByteArray>({"/c"}));

        serveur_->Renvoie("/f", "file:///etc/hostname");
        Montre(serveur_->Adresse("/f"));
        QTRY_VERIFY(Texte().contains(QStringLiteral("127.0.0.1")) ||
                    Texte().contains(QStringLiteral("hors")));

        serveur_->Renvoie("/r", "/r");
        Montre(serveur_->Adresse("/r"));
        QTRY_VERIFY(Texte().startsWith(QStringLiteral("Le document n'a pas pu être obtenu de 127.0.0.1:")));
    }

    void ASilentServerIsGivenUp()
    {
        serveur_->Reponses.insert("/lent", QByteArray());
        Montre(serveur_->Adresse("/lent"));
        QTRY_COMPARE(vue_->placeholderText(), QStringLiteral("Chargement du document…"));
        QTRY_VERIFY(Texte().endsWith(QStringLiteral("n'a pas donné le document à temps.")));
        QCOMPARE(vue_->placeholderText(), QString());
    }

    void ALateAnswerNeverCoversAnotherPage()
    {
        serveur_->Reponses.insert("/lent", QByteArray());
        Montre(serveur_->Adresse("/lent"));
        QTRY_COMPARE(serveur_->Demandes.size(), 1);
        vue_->Montre(Pose("autre.htm", "<p>autre</p>"));
        QTest::qWait(kDelai + 100);
        QCOMPARE(Texte(), QStringLiteral("autre"));
    }

    void WhatAServerLacksOrOverdoesIsTold()
    {
        Montre(serveur_->Adresse("/absent.htm"));
        QTRY_COMPARE(Texte(), QStringLiteral("Le document « absent.htm » est introuvable."));
        serveur_->Pose("/grand.htm", QByteArray(drugbank::kPageMaximum + 10, 'a'));
        Montre(serveur_->Adresse("/grand.htm"));
        QTRY_COMPARE(Texte(),
                     QStringLiteral("Le document « grand.htm » est trop grand pour être montré ici."));
        const QUrl ferme = serveur_->Adresse("/m");
        serveur_->close();
        Montre(ferme);
        QTRY_VERIFY(Texte().startsWith(QStringLiteral("Le document n'a pas pu être obtenu")));
    }

    void ALinkWithinIsFollowedAndLeftAgain()
    {
        Pose("b.htm", "<p>deux</p>");
        vue_->Montre(
            Pose("a.htm", "<p>un <a href='b.htm'>b</a> <a href='#c'>c</a></p><p><a name=c>fin</a></p>"));
        Suit("#c");
        QVERIFY(!vue_->PeutReculer());
        Suit("b.htm");
        QCOMPARE(Texte(), QStringLiteral("deux"));
        QVERIFY(vue_->PeutReculer());
        QTest::keyClick(vue_.get(), Qt::Key_Left, Qt::AltModifier);
        QVERIFY(Texte().startsWith(QStringLiteral("un")));
        QVERIFY(!vue_->PeutReculer());
    }

    void ALinkElsewhereIsOfferedOnly()
    {
        vue_->Montre(Pose("a.htm", "<p>un</p>"));
        QCOMPARE(vue_->AOuvrirDehors(), vue_->Adresse());
        Suit("https://example.org/x?y=1");
        QCOMPARE(Texte(), QStringLiteral("un"));
        QCOMPARE(vue_->AOuvrirDehors(), QUrl(QStringLiteral("https://example.org/x?y=1")));
        QCOMPARE(vue_->Remarque(),
                 QStringLiteral("Lien hors de ce poste (example.org) : le bouton « Navigateur » l'ouvre."));
        vue_->Montre(QStringLiteral("https://example.org/page"));
        QVERIFY(Texte().startsWith(
            QStringLiteral("Ce document est hors de ce poste : https://example.org/page")));
        QCOMPARE(vue_->AOuvrirDehors(), QUrl(QStringLiteral("https://example.org/page")));
        vue_->Montre(QStringLiteral("ftp://example.org/page"));
        QVERIFY(vue_->AOuvrirDehors().isEmpty());
    }

    void AProgramIsNeverOpened()
    {
        const QString programme = Pose("a.exe", QByteArray("MZ\0\0", 4));
        vue_->Montre(Pose("a.htm", "<p>un</p>"));
        Suit("a.exe");
        QCOMPARE(Texte(), QStringLiteral("Ce document n'est pas une page qui puisse être montrée ici."));
        QVERIFY(vue_->AOuvrirDehors().isEmpty());
    }

    void APictureAloneIsAPage()
    {
        vue_->Montre(Pose("seule.png", Png(25)));
        QCOMPARE(CoteDeLImage(), 25);
        serveur_->Pose("/seule.png", Png(26), "image/png");
        Montre(serveur_->Adresse("/seule.png"));
        QTRY_COMPARE(CoteDeLImage(), 26);
        QCOMPARE(serveur_->Demandes.size(), 1);
    }

    void EnterStaysInThePage()
    {
        vue_->Montre(Pose("a.htm", "<p>un</p>"));
        QKeyEvent entree(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
        QApplication::sendEvent(vue_.get(), &entree);
        QVERIFY(entree.isAccepted());
    }

    void ALargePageIsShownInTime()
    {
        QByteArray page;
        while (page.size() < 1'000'000) {
            page += "<h3>Posologie</h3><p>Adulte : 1 comprim\xE9, 3 fois par jour, pendant 5 jours. "
                    "<b>Ne pas d\xE9passer</b> 4 g.</p><table border=1><tr><td>a</td><td>b</td></tr></table>";
        }
        QElapsedTimer montre;
        montre.start();
        vue_->Montre(Pose("grande.htm", page));
        qInfo("1 MB in %lld ms", montre.elapsed());
        QVERIFY(Texte().size() > 500'000);
    }
};

QTEST_MAIN(TestVueDocument)
#include "test_vue_document.moc"
