#include "PosteMedoc.h"
#include "medication/windows/FrmNouveauM.h"

using outside::Bouton;

// The window of new entries, beside the picker that shows them.
class TestFrmNouveauM : public QObject, private support::PosteMedoc
{
    Q_OBJECT

private:
    medication::FrmNouveauM* nouveau_ = nullptr;

    template <typename T> T* Du(const char* nom) const
    {
        auto* controle = nouveau_->findChild<T*>(QLatin1String(nom));
        [&] { QVERIFY2(controle, nom); }();
        return controle;
    }
    storage::Base& Medoc() { return monde_->Etat.Bases.Medoc(monde_->Etat.Chemins.CheminTravail); }
    QStringList Lignes(const char* table) { return support::Lignes(Medoc(), QLatin1String(table)); }
    QStringList Textes(const QAbstractItemView* vue) const
    {
        QStringList textes;
        for (int rang = 0; rang < vue->model()->rowCount(); ++rang) {
            textes.append(vue->model()->index(rang, 0).data().toString());
        }
        return textes;
    }
    QStringList LstP() const { return Textes(Du<QListView>("LstP")); }
    QStringList Arbre() const { return Textes(Trouve<QTreeView>("TV")); }

    void Ouvre(const char* typeBase, const QStringList& titres = {})
    {
        Prepare(QLatin1String(typeBase));
        Medoc().SupprimeOu(QStringLiteral("Biblio"), QStringLiteral("1 = 1"), {});
        for (const QString& titre : titres) {
            support::AjouteLigne(Medoc(), QStringLiteral("Biblio"), {titre, {}});
        }
        Q_EMIT monde_->Etat.Signaux.PharmacieChange();
        Rouvre();
    }
    void Rouvre()
    {
        fenetres_->Decharge<medication::FrmNouveauM>();
        nouveau_ = &fenetres_->Donne<medication::FrmNouveauM>();
        nouveau_->show();
    }
    void Tape(const QString& nom, const QString& poso) const
    {
        Du<QLineEdit>("TxtNom")->setText(nom);
        Du<QPlainTextEdit>("TxtPoso")->setPlainText(poso);
    }
    QString Boites() const
    {
        return Du<QLineEdit>("TxtNom")->text() + u'|' + Du<QPlainTextEdit>("TxtPoso")->toPlainText();
    }
    void Presse(const char* nom) const { QTest::mouseClick(Du<QWidget>(nom), Qt::LeftButton); }
    void F5(int rang) const
    {
        auto* liste = Du<QListView>("LstP");
        QTest::mouseClick(liste->viewport(), Qt::LeftButton, {},
                          liste->visualRect(liste->model()->index(rang, 0)).center());
        QTest::keyClick(liste, Qt::Key_F5);
    }
    void AttendCapitales(Bouton reponse)
    {
        monde_->Boites.AttendQuestion(QStringLiteral("Enregistrer le texte en majuscules ?"), reponse);
    }
    void AttendSuppression(const char16_t* texte, Bouton reponse)
    {
        monde_->Boites.AttendQuestion(QStringLiteral("Supprimer \"") + QString::fromUtf16(texte) +
                                          QStringLiteral("\" ?"),
                                      reponse, Bouton::Non);
    }

private Q_SLOTS:
    void cleanup() { Range(); }

    void TheLocalModeHidesTheMemory()
    {
        Ouvre("BIP", {QStringLiteral("QSP 3 mois")});
        QCOMPARE(Du<QLabel>("LblPharma")->text().remove(u'&'), QStringLiteral("PHARMACIE  SCRIPTELLE"));
        QCOMPARE(Du<QLabel>("LblTitre")->text().remove(u'&'), QStringLiteral("Nom du médicament    "));
        QCOMPARE(Du<QLabel>("LblPoso")->text().remove(u'&'), QStringLiteral("Posologie"));
        QVERIFY(!Du<QWidget>("lblAS")->isVisible() && !Du<QWidget>("CmdSupp")->isVisible());
        QVERIFY(LstP().isEmpty());
        QCOMPARE(nouveau_->focusWidget()->objectName(), QStringLiteral("TxtNom"));
    }

    void TheBankModeListsTheMemory()
    {
        Ouvre("TVS", {QStringLiteral("QSP 3 mois#"), QStringLiteral("L'eau")});
        nouveau_->NommeBibliotheque();
        QCOMPARE(Du<QLabel>("LblPharma")->text().remove(u'&'), QStringLiteral("PHARMACIE PERSONNELLE"));
        QCOMPARE(Du<QLabel>("LblTitre")->text().remove(u'&'),
                 QStringLiteral("Bibliothèque personnelle : Titre"));
        QCOMPARE(Du<QLabel>("LblPoso")->text().remove(u'&'), QStringLiteral("Commentaires ou posologie"));
        QCOMPARE(Du<QPushButton>("lblAS")->text().remove(u'&'), QStringLiteral("A savoir ..."));
        QCOMPARE(Du<QPushButton>("CmdOK")->text().remove(u'&'), QStringLiteral("Enregistrer"));
        QCOMPARE(Du<QPushButton>("CmdAnnuler")->text().remove(u'&'), QStringLiteral("Annuler / Quitter"));
        QCOMPARE(LstP(),
                 QStringList({QString(), QStringLiteral("  QSP 3 mois#"), QStringLiteral("  L'eau")}));
    }

    void ANameIsNeeded_data()
    {
        QTest::addColumn<QString>("typeBase");
        QTest::newRow("local") << QStringLiteral("BIP");
        QTest::newRow("bank") << QStringLiteral("TVS");
    }
    void ANameIsNeeded()
    {
        QFETCH(const QString, typeBase);
        Ouvre(typeBase.toLatin1().constData());
        Tape(QStringLiteral("   "), QStringLiteral("p"));
        monde_->Boites.AttendStop(QStringLiteral("Aucune indication de nom de médicament !"));
        Presse("CmdOK");
        QCOMPARE(Lignes("BddMed").size(), 3);
        QVERIFY(Lignes("Biblio").isEmpty());
        QCOMPARE(Boites(), QStringLiteral("   |p"));
    }

    void TheLocalModeStoresInCapitalsAndKeepsTheBoxes()
    {
        Ouvre("BIP");
        Tape(QStringLiteral("l'ibuprofène \"200\""), QStringLiteral("1 cp"));
        Presse("CmdOK");
        QCOMPARE(Lignes("BddMed").back(), QStringLiteral("4|<null>|<null>|<null>|1 cp|L'IBUPROFÈNE \"200\""));
        QVERIFY(Arbre().contains(QStringLiteral("L'IBUPROFÈNE \"200\"")));
        QCOMPARE(Boites(), QStringLiteral("l'ibuprofène \"200\"|1 cp"));
        QVERIFY(LstP().isEmpty());
    }

    void MicrogramsStayMicrograms()
    {
        for (const bool banque : {false, true}) {
            Ouvre(banque ? "TVS" : "BIP");
            Tape(QStringLiteral("lévothyrox 25 \u00b5g"), {});
            if (banque) {
                AttendCapitales(Bouton::Oui);
            }
            Presse("CmdOK");
            QVERIFY(Arbre().filter(QStringLiteral("LÉVOTHYROX 25 \u00b5G")).size() == 1);
            Range();
        }
    }

    void ADoubleClickStoresOnceAndASecondClickAgain()
    {
        Ouvre("BIP");
        Tape(QStringLiteral("a"), {});
        Presse("CmdOK");
        QTest::mouseDClick(Du<QWidget>("CmdOK"), Qt::LeftButton);
        QTest::mouseRelease(Du<QWidget>("CmdOK"), Qt::LeftButton);
        QCOMPARE(Lignes("BddMed").size(), 4);
        Presse("CmdOK");
        QCOMPARE(Lignes("BddMed").size(), 5);
    }

    void EnterHeldDownStoresOnce()
    {
        Ouvre("BIP");
        Tape(QStringLiteral("a"), {});
        for (const char* nom : {"TxtNom", "CmdOK"}) {
            const auto avant = Lignes("BddMed").size();
            Du<QWidget>(nom)->setFocus();
            for (const bool repete : {false, true, true}) {
                QKeyEvent touche(QEvent::KeyPress, Qt::Key_Return, {}, QStringLiteral("\r"), repete);
                QApplication::sendEvent(Du<QWidget>(nom), &touche);
            }
            QCOMPARE(Lignes("BddMed").size(), avant + 1);
        }
    }

    void TheLocalModeSaysWhatItHasStored()
    {
        Ouvre("BIP");
        Tape(QStringLiteral("doliprane"), {});
        const auto dit = [&] {
            const auto etiquettes = Du<QListView>("LstP")->findChildren<QLabel*>();
            return etiquettes.front()->text().startsWith(QLatin1String("doliprane\n"));
        };
        QVERIFY(!dit());
        Presse("CmdOK");
        QVERIFY(dit());
    }

    void APastedNameIsOneLine()
    {
        Ouvre("BIP");
        auto* nom = Du<QLineEdit>("TxtNom");
        nom->insert(QStringLiteral("doli\r\n1 g\n"));
        Presse("CmdOK");
        QVERIFY(Lignes("BddMed").back().endsWith(QLatin1String("|DOLI 1 G")));
    }

    void AnEntryInCapitalsShowsAsTypedUntilTheWindowReloads()
    {
        Ouvre("TVS");
        Tape(QStringLiteral("qsp l'été"), QStringLiteral("p"));
        AttendCapitales(Bouton::Oui);
        Presse("CmdOK");
        QCOMPARE(Lignes("Biblio"), QStringList({QStringLiteral("QSP L'ÉTÉ|p")}));
        QCOMPARE(LstP(), QStringList({QStringLiteral("  qsp l'été")}));
        QCOMPARE(Arbre(), QStringList({QStringLiteral(" QSP L'ÉTÉ")}));
        QCOMPARE(Boites(), QStringLiteral("|"));
        Rouvre();
        QCOMPARE(LstP(), QStringList({QString(), QStringLiteral("  QSP L'ÉTÉ")}));
    }

    void AnEntryMayKeepItsSmallLetters()
    {
        Ouvre("TVS", {QStringLiteral("A")});
        Tape(QStringLiteral("qsp"), QString());
        AttendCapitales(Bouton::Non);
        Presse("CmdOK");
        QVERIFY(Lignes("Biblio")[1].startsWith(QLatin1String("qsp|")));
        QCOMPARE(LstP().back(), QStringLiteral("  qsp"));
    }

    void AnEmptyMemoryHasNotEvenTheEmptyRow()
    {
        Ouvre("TVS");
        QVERIFY(LstP().isEmpty());
    }

    void F5DeletesARowAndTheTreeFollows()
    {
        Ouvre("TVS", {QStringLiteral("L'eau#"), QStringLiteral("\"QSP\" %")});
        AttendSuppression(u"  L'eau", Bouton::Non);
        F5(1);
        QCOMPARE(LstP().size(), 3);
        AttendSuppression(u"  L'eau", Bouton::Oui);
        F5(1);
        QCOMPARE(Lignes("Biblio"), QStringList({QStringLiteral("\"QSP\" %|<null>")}));
        QCOMPARE(LstP(), QStringList({QString(), QStringLiteral("  \"QSP\" %")}));
        QCOMPARE(Arbre(), QStringList({QStringLiteral(" \"QSP\" %")}));
    }

    void F5DeletesAnEntryJustStoredInCapitals()
    {
        Ouvre("TVS");
        Tape(QStringLiteral("qsp"), QString());
        AttendCapitales(Bouton::Oui);
        Presse("CmdOK");
        AttendSuppression(u"  qsp", Bouton::Oui);
        F5(0);
        QVERIFY(Lignes("Biblio").isEmpty() && LstP().isEmpty());
    }

    void F5NeedsARowWithATitle()
    {
        Ouvre("TVS", {QStringLiteral("A")});
        QTest::keyClick(Du<QListView>("LstP"), Qt::Key_F5);
        F5(0);
        QCOMPARE(LstP().size(), 2);
    }

    void AnEntryDeletedMeanwhileIsTold()
    {
        Ouvre("TVS", {QStringLiteral("A")});
        Medoc().SupprimeOu(QStringLiteral("Biblio"), QStringLiteral("1 = 1"), {});
        AttendSuppression(u"  A", Bouton::Oui);
        monde_->Boites.AttendContenant(outside::Genre::Exclamation,
                                       QStringLiteral("n'est plus dans la pharmacie personnelle"));
        F5(1);
        QCOMPARE(LstP().size(), 1);
    }

    void AFailedBaseIsToldAndTheBoxesStay()
    {
        Ouvre("BIP");
        Tape(QStringLiteral("doli"), QStringLiteral("p"));
        Medoc().PoseCrochet([](const QString& instruction) { return instruction.startsWith(u"insert"); });
        monde_->Boites.AttendContenant(outside::Genre::Stop, QStringLiteral("Medoc.mdb"));
        Presse("CmdOK");
        Medoc().PoseCrochet({});
        QCOMPARE(Boites(), QStringLiteral("doli|p"));
        QCOMPARE(Lignes("BddMed").size(), 3);
    }

    void CmdSuppOnlyTells()
    {
        Ouvre("TVS", {QStringLiteral("A")});
        monde_->Boites.AttendInformation(QStringLiteral(
            "Pour supprimer une entrée de la Pharmacie Personnelle,\nil faut la sélectionner, et "
            "appuyer sur F5."));
        Presse("CmdSupp");
        QCOMPARE(Lignes("Biblio").size(), 1);
    }

    void TwoMessagesTellWhatToKnow()
    {
        Ouvre("TVS");
        monde_->Boites.AttendInformation(QStringLiteral(
            "En mode \"Base Vidal\", il faut que la zone de texte \"Reherche rapide\" soit vide "
            "pour faire apparaitre les enregistrements de la pharmacie personnelle."));
        monde_->Boites.AttendInformation(QStringLiteral(
            "Les astuces de formatage de textes sont les mêmes que pour les médicaments chosis."));
        Presse("lblAS");
    }

    void CancelUnloads()
    {
        Ouvre("BIP");
        Presse("CmdAnnuler");
        QVERIFY(!nouveau_->isVisible());
    }
};

int main(int nombre, char** arguments)
{
    QApplication application(nombre, arguments);
    application::style::Installe(application);
    TestFrmNouveauM test;
    return QTest::qExec(&test, nombre, arguments);
}

#include "test_frmnouveaum.moc"
