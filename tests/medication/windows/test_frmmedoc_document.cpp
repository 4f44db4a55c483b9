#include "../BanqueFeinte.h"
#include "PosteMedoc.h"

#include <QTextBrowser>

// The document of the medication in hand, beside the lists.
class TestFrmMedocDocument : public QObject, private support::PosteMedoc
{
    Q_OBJECT

private:
    std::shared_ptr<support::BanqueFeinte> banque_;

    QString Document() const { return Trouve<QTextBrowser>("WB")->toPlainText(); }
    bool DocumentVisible() const { return Trouve<QWidget>("WB")->isVisible(); }
    QString Adresse() const { return monde_->Etat.Choix.AdresseWB; }
    void Cherche(const char* texte) const
    {
        Trouve<QLineEdit>("TxtCherche")->setText(QLatin1String(texte));
        QTest::keyClick(Trouve<QLineEdit>("TxtCherche"), Qt::Key_Return);
    }
    void Montre()
    {
        fenetre_->hide();
        fenetre_->show();
    }
    QString Pose(const char* nom, const QByteArray& octets)
    {
        const QString chemin = common::Joint(monde_->Etat.Chemins.CheminProgramme, QLatin1String(nom));
        common::EcritFichier(chemin, octets);
        return QUrl::fromLocalFile(chemin).toString();
    }
    static QString SansDocument() { return QStringLiteral("Il n'y a pas de document pour ce médicament."); }
    /// What `FrmInd` shows once `CmdDocuments` is clicked.
    QString Documents(QString* titre = nullptr) const
    {
        QString texte;
        QTimer::singleShot(0, fenetre_, [&] {
            QWidget* fenetre = QApplication::activeModalWidget();
            QVERIFY(fenetre);
            QCOMPARE(fenetre->objectName(), QStringLiteral("FrmInd"));
            texte = fenetre->findChild<QPlainTextEdit*>(QStringLiteral("Txt"))->toPlainText();
            if (titre) {
                *titre = fenetre->findChild<QLabel*>(QStringLiteral("Lbl"))->text();
            }
            QTest::mouseClick(fenetre->findChild<QWidget*>(QStringLiteral("CmdFerme")), Qt::LeftButton);
        });
        Clic("CmdDocuments");
        return texte;
    }

private Q_SLOTS:
    void init()
    {
        Prepare(QStringLiteral("TVS"));
        common::CreeDossier(monde_->Etat.Chemins.CheminProgramme);
        common::CopieFichier(
            QStringLiteral(RACINE_PROJET "/src/medication/zeromono.htm"),
            common::Joint(monde_->Etat.Chemins.CheminProgramme, QStringLiteral("zeromono.htm")));
        support::AjouteLigne(monde_->Etat.Bases.Medoc(monde_->Etat.Chemins.CheminTravail),
                             QStringLiteral("Biblio"), {QStringLiteral("QSP 3 mois"), {}});
        banque_ = std::make_shared<support::BanqueFeinte>();
        banque_->Contenu = {{QStringLiteral("34"), 11, 101, 1.16F, QStringLiteral("DOLIPRANE")},
                            {QStringLiteral("35"), 12, 102, 0.F, QStringLiteral("DOLKO")}};
        banque_->Monographies = {{11, Pose("mono.htm", "<p>Monographie de DOLIPRANE</p>")}};
        monde_->Etat.Banque.Acces = banque_;
        monde_->Etat.Choix.BaseChangee = 1;
        Montre();
    }
    void cleanup() { Range(); }

    void APackShowsItsMonograph()
    {
        QVERIFY(DocumentVisible());
        QCOMPARE(Document(), QString());
        QCOMPARE(Adresse(), QStringLiteral("about:blank"));
        Cherche("DOL");
        ClicNoeud(0);
        QCOMPARE(Document(), QStringLiteral("Monographie de DOLIPRANE"));
        QCOMPARE(Adresse(), banque_->Monographies.value(11));
        QCOMPARE(Focus(), QStringLiteral("TxtMedoc"));
    }

    void APackWithoutOneAndAPersonalEntryHaveNoDocument()
    {
        ClicNoeud(0);
        QVERIFY(Document().contains(SansDocument()));
        QVERIFY(Adresse().endsWith(QStringLiteral("/zeromono.htm")));
        Cherche("DOL");
        QCOMPARE(Document(), QString());
        ClicNoeud(1);
        QVERIFY(Document().contains(SansDocument()));
    }

    void WithoutABankNothingIsSaidOfDocuments()
    {
        Cherche("DOL");
        monde_->Etat.Banque.Acces.reset();
        ClicNoeud(0);
        QCOMPARE(Document(),
                 QStringLiteral("La banque de médicaments n'est pas ouverte : aucun document ne peut "
                                "lui être demandé."));
        QCOMPARE(Documents(), Document());
    }

    void TheDocumentLeavesWithItsMedication_data()
    {
        QTest::addColumn<QString>("geste");
        for (const char* geste : {"DO", "", "CmdAjouter1", "CmdClear", "PctCherch"}) {
            QTest::newRow(*geste ? geste : "empty") << QString::fromLatin1(geste);
        }
    }
    void TheDocumentLeavesWithItsMedication()
    {
        QFETCH(const QString, geste);
        Cherche("DOL");
        ClicNoeud(0);
        QVERIFY(!Document().isEmpty());
        if (geste.size() > 2) {
            Clic(geste.toLatin1().constData());
        } else {
            Trouve<QLineEdit>("TxtCherche")->setText(geste);
        }
        QCOMPARE(Document(), QString());
        QCOMPARE(Adresse(), QStringLiteral("about:blank"));
    }

    void ALongerSearchTextKeepsTheDocumentUntilItIsAsked()
    {
        Cherche("DOL");
        ClicNoeud(0);
        Trouve<QLineEdit>("TxtCherche")->setText(QStringLiteral("DOLK"));
        QVERIFY(!Document().isEmpty());
    }

    void ComingBackFindsTheSameDocument()
    {
        Cherche("DOL");
        ClicNoeud(0);
        Montre();
        QCOMPARE(Document(), QStringLiteral("Monographie de DOLIPRANE"));
        monde_->Etat.Choix.NoeudChoisi = medication::kAucunNoeud;
        Montre();
        QCOMPARE(Document(), QString());
    }

    void ChkMonoHidesAndShowsIt()
    {
        Cherche("DOL");
        ClicNoeud(0);
        const int large = Trouve<QWidget>("LstChoix1")->width();
        Clic("ChkMono");
        QVERIFY(!DocumentVisible());
        QCOMPARE(Adresse(), QStringLiteral("about:blank"));
        QTRY_VERIFY(Trouve<QWidget>("LstChoix1")->width() > large);
        QCOMPARE(monde_->Etat.Reglages.Options.EtatChkMono, 0);
        ClicNoeud(1);
        ClicNoeud(0);
        QCOMPARE(Adresse(), QStringLiteral("about:blank"));
        Clic("ChkMono");
        QVERIFY(DocumentVisible());
        QCOMPARE(Document(), QStringLiteral("Monographie de DOLIPRANE"));
        QTRY_COMPARE(Trouve<QWidget>("LstChoix1")->width(), large);
    }

    void ChkMonoWithoutANodeShowsNothing()
    {
        Clic("ChkMono");
        Clic("ChkMono");
        QVERIFY(DocumentVisible());
        QCOMPARE(Document(), QString());
    }

    void TheLocalModeHasNone()
    {
        monde_->Etat.Banque.TypeBase = QStringLiteral("BIP");
        Montre();
        QVERIFY(!DocumentVisible());
        ClicNoeud(0);
        QCOMPARE(Adresse(), QStringLiteral("about:blank"));
    }

    void TheArrowsBringTheDocumentToo()
    {
        Cherche("DOL");
        QTest::keyClick(Trouve<QLineEdit>("TxtCherche"), Qt::Key_Down);
        QCOMPARE(Document(), QStringLiteral("Monographie de DOLIPRANE"));
        QTest::keyClick(Trouve<QTreeView>("TV"), Qt::Key_Down);
        QVERIFY(Document().contains(SansDocument()));
    }

    void TheCommonNameThatIsMissingIsTold()
    {
        Cherche("DOL");
        Clic("ChkDCI");
        ClicNoeud(0);
        QCOMPARE(Texte("TxtMedoc"), QStringLiteral("PARACETAMOL"));
        monde_->Boites.AttendInformation(QStringLiteral("Ce produit n'a pas de DCI."));
        ClicNoeud(1);
        QCOMPARE(Texte("TxtMedoc"), QStringLiteral("DOLKO"));
        QVERIFY(Document().contains(SansDocument()));
    }

    void ThePageOpensInTheBrowser()
    {
        QVERIFY(!Trouve<QWidget>("CmdNavigateur")->isEnabled());
        Cherche("DOL");
        ClicNoeud(0);
        Clic("CmdNavigateur");
        QCOMPARE(monde_->Lanceur.Documents, QStringList({common::Joint(monde_->Etat.Chemins.CheminProgramme,
                                                                       QStringLiteral("mono.htm"))}));
        Q_EMIT Trouve<QTextBrowser>("WB")->anchorClicked(QUrl(QStringLiteral("https://example.org/a b")));
        QVERIFY(Trouve<QLabel>("LblWB")->isVisible());
        monde_->Lanceur.Reussit = false;
        Clic("CmdNavigateur");
        QCOMPARE(monde_->Lanceur.Documents.back(), QStringLiteral("https://example.org/a%20b"));
        QCOMPARE(Trouve<QLabel>("LblWB")->text(),
                 QStringLiteral("Aucun navigateur n'a ouvert cette adresse."));
        ClicNoeud(0);
        QVERIFY(!Trouve<QLabel>("LblWB")->isVisible());
    }

    void TheDocumentsOfTheBankAreListed()
    {
        banque_->ListeDocuments = {{11,
                                    {{1, QStringLiteral("Doliprane"), QStringLiteral("Mono")},
                                     {2, QStringLiteral("Avis"), QString()},
                                     {3, QString(), QStringLiteral("ALD")}}}};
        Cherche("DOL");
        Clic("CmdDocuments");
        QVERIFY(!QApplication::activeModalWidget() || QApplication::activeModalWidget() == fenetre_);
        ClicNoeud(0);
        QString titre;
        QCOMPARE(Documents(&titre), QStringLiteral("Mono : Doliprane\nAvis\nALD"));
        QCOMPARE(titre, QStringLiteral("DOLIPRANE"));
        ClicNoeud(1);
        QCOMPARE(Documents(), QStringLiteral("La banque n'a aucun document pour ce médicament."));
    }

    void NothingIsCutOnASmallScreen()
    {
        fenetre_->resize(1366, 728);
        QTRY_COMPARE(fenetre_->width(), 1366);
        QVERIFY(fenetre_->minimumSizeHint().width() <= 1366);
        QVERIFY(fenetre_->minimumSizeHint().height() <= 728);
        QVERIFY(Trouve<QWidget>("WB")->height() >= 200);
        QVERIFY(Trouve<QWidget>("WB")->width() >= 380);
        QVERIFY(Trouve<QWidget>("LstChoix1")->width() >= 380);
    }
};

QTEST_MAIN(TestFrmMedocDocument)
#include "test_frmmedoc_document.moc"
