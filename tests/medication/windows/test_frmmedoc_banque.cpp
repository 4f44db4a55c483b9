#include "../BanqueFeinte.h"
#include "PosteMedoc.h"

#include <QMenu>

using outside::Bouton;

// The picker in the bank mode.
class TestFrmMedocBanque : public QObject, private support::PosteMedoc
{
    Q_OBJECT

private:
    std::shared_ptr<support::BanqueFeinte> banque_;

    storage::Base& Medoc() { return monde_->Etat.Bases.Medoc(monde_->Etat.Chemins.CheminTravail); }
    QStringList Lignes(const char* table) { return support::Lignes(Medoc(), QLatin1String(table)); }
    void Personnel(const char16_t* titre, const QVariant& poso = {})
    {
        support::AjouteLigne(Medoc(), QStringLiteral("Biblio"), {QString::fromUtf16(titre), poso});
    }
    QStringList Arbre() const
    {
        QStringList textes;
        const QAbstractItemModel* modele = Trouve<QTreeView>("TV")->model();
        for (int rang = 0; rang < modele->rowCount(); ++rang) {
            textes.append(modele->index(rang, 0).data().toString());
        }
        return textes;
    }
    void Cherche(const char* texte)
    {
        Trouve<QLineEdit>("TxtCherche")->setText(QLatin1String(texte));
        QTest::keyClick(Trouve<QLineEdit>("TxtCherche"), Qt::Key_Return);
    }
    void Montre()
    {
        fenetre_->hide();
        fenetre_->show();
    }
    void Relit()
    {
        monde_->Etat.Choix.BaseChangee = 1;
        Montre();
    }

private Q_SLOTS:
    void init()
    {
        Prepare(QStringLiteral("TVS"));
        for (const auto* table : {"Biblio", "Vidal", "MedUtile"}) {
            Medoc().SupprimeOu(QLatin1String(table), QStringLiteral("1 = 1"), {});
        }
        Personnel(u"QSP 3 mois#", QStringLiteral("en tout"));
        Personnel(u"Régime de l'enfant");
        banque_ = std::make_shared<support::BanqueFeinte>();
        banque_->Contenu = {
            {QStringLiteral("3400930000011"), 11, 101, 1.16F, QStringLiteral("DOLIPRANE 1 000 mg")},
            {QStringLiteral("3400930000012"), 12, 102, 2.F, QStringLiteral("DOLIRHUME & co")}};
        monde_->Etat.Banque.Acces = banque_;
        Relit();
    }
    void cleanup() { Range(); }

    void TheBankModeShowsItsControls()
    {
        for (const char* nom : {"Lbl1", "Lbl2", "Lbl5", "CmdCopyright", "CmdPerso", "CmdVD", "LblDatExp",
                                "HlbG", "HlbI", "ChkMono", "Lblmono", "ChkDCI", "lblDCI"}) {
            QVERIFY2(Trouve<QWidget>(nom)->isVisible(), nom);
        }
        QVERIFY(!Trouve<QWidget>("PctCherch")->isVisible());
        QCOMPARE(Trouve<QLabel>("Lbl2")->text(), QStringLiteral("Pharmacie personnelle"));
        QCOMPARE(Trouve<QPushButton>("CmdModifier")->text(), QStringLiteral("Enregistrer posologie"));
        QVERIFY(!Trouve<QWidget>("CmdNouveau")->isEnabled() && !Trouve<QWidget>("CmdRetire")->isEnabled());
    }

    void TheModeFollowsTheBase()
    {
        monde_->Etat.Banque.TypeBase = QStringLiteral("BIP");
        Montre();
        QCOMPARE(Arbre().front(), QStringLiteral("AMLOR 5 MG"));
        QVERIFY(!Trouve<QWidget>("CmdPerso")->isVisible() && Trouve<QWidget>("CmdRetire")->isEnabled());
        QCOMPARE(Trouve<QPushButton>("CmdModifier")->text(), QStringLiteral("Modifier données Med"));
        ClicNoeud(0);
        QCOMPARE(Texte("TxtMedoc"), QStringLiteral("AMLOR 5 MG"));
        monde_->Etat.Banque.TypeBase = QStringLiteral("VDE");
        Q_EMIT monde_->Etat.Signaux.MedecinChange();
        Montre();
        QCOMPARE(Arbre().front(), QStringLiteral(" QSP 3 mois#"));
    }

    void TheLastDayOfTheBaseIsShown()
    {
        const auto entier = [&] {
            const auto* etiquette = Trouve<QLabel>("LblDatExp");
            return etiquette->width() >= etiquette->sizeHint().width();
        };
        monde_->Etat.Banque.DateExpirationBase = QStringLiteral("31/12/2999");
        Montre();
        QCOMPARE(Trouve<QLabel>("LblDatExp")->text(), QStringLiteral("La base expire le 31/12/2999"));
        QTRY_VERIFY(entier());
        monde_->Etat.Banque.DateExpirationBase = QStringLiteral("31/12/1999");
        Montre();
        QCOMPARE(Trouve<QLabel>("LblDatExp")->text(), QStringLiteral("Fin d'exploitation de la base."));
        QTRY_VERIFY(entier());
    }

    void ABlankSearchShowsThePersonalPharmacy()
    {
        QCOMPARE(Arbre(),
                 QStringList({QStringLiteral(" QSP 3 mois#"), QStringLiteral(" Régime de l'enfant")}));
        QVERIFY(banque_->Demandes.isEmpty());
    }

    void TwoCharactersNeverAskTheBank()
    {
        Cherche("DO");
        QVERIFY(!Trouve<QWidget>("PctCherch")->isVisible());
        QVERIFY(banque_->Demandes.isEmpty());
        QCOMPARE(Arbre().size(), 2);
    }

    void ThreeCharactersAskOnEnterOrByThePicture()
    {
        Trouve<QLineEdit>("TxtCherche")->setText(QStringLiteral("DOL"));
        QVERIFY(Trouve<QWidget>("PctCherch")->isVisible());
        QVERIFY(banque_->Demandes.isEmpty());
        Clic("PctCherch");
        QCOMPARE(banque_->Demandes, QStringList({QStringLiteral("DOL/64")}));
        QCOMPARE(Arbre().front(), QStringLiteral("DOLIPRANE 1 000 mg"));
        Cherche("DOLIR");
        QCOMPARE(Arbre(), QStringList({QStringLiteral("DOLIRHUME & co")}));
        Trouve<QLineEdit>("TxtCherche")->setText(QStringLiteral("DO"));
        QVERIFY(!Trouve<QWidget>("PctCherch")->isVisible());
        QCOMPARE(Arbre().size(), 1);
        Trouve<QLineEdit>("TxtCherche")->clear();
        QCOMPARE(Arbre().front(), QStringLiteral(" QSP 3 mois#"));
    }

    void ThreeBlanksShowThePictureAndThePersonalPharmacy()
    {
        Cherche("DOLI");
        Trouve<QLineEdit>("TxtCherche")->setText(QStringLiteral("   "));
        QVERIFY(Trouve<QWidget>("PctCherch")->isVisible());
        QCOMPARE(Arbre().size(), 2);
        QCOMPARE(Arbre().front(), QStringLiteral(" QSP 3 mois#"));
    }

    void APersonalEntryIsPrescribedWithoutProduct()
    {
        ClicNoeud(0);
        QCOMPARE(Texte("TxtMedoc"), QStringLiteral("QSP 3 mois#"));
        QCOMPARE(Poso(), QStringLiteral("en tout"));
        Clic("CmdAjouter1");
        QCOMPARE(prescription::IdentifiantDeLigne(Ordo().LstChoix1.Lignes()[0].Texte), QStringLiteral("1"));
        QVERIFY(Lignes("MedUtile").isEmpty());
    }

    void APackIsPrescribedWithItsProduct()
    {
        support::AjouteLigne(Medoc(), QStringLiteral("Vidal"),
                             {QStringLiteral("3400930000011"), QStringLiteral("1 cp")});
        Cherche("DOLI");
        ClicNoeud(0);
        QCOMPARE(Texte("TxtMedoc"), QStringLiteral("DOLIPRANE 1 000 mg"));
        QCOMPARE(Poso(), QStringLiteral("1 cp"));
        Clic("CmdAjouter1");
        QCOMPARE(prescription::IdentifiantDeLigne(Ordo().LstChoix1.Lignes()[0].Texte), QStringLiteral("101"));
        QCOMPARE(Lignes("MedUtile"), QStringList({QStringLiteral("3400930000011")}));
    }

    void APackReachedByTheArrowsBringsItsOwnProduct()
    {
        Cherche("DOLIR");
        ClicNoeud(0);
        Cherche("DOLI");
        auto* arbre = Trouve<QTreeView>("TV");
        arbre->setFocus();
        arbre->setCurrentIndex(arbre->model()->index(0, 0));
        Trouve<QLineEdit>("TxtMedoc")->setText(QStringLiteral("à la main"));
        Clic("CmdAjouter1");
        QCOMPARE(prescription::IdentifiantDeLigne(Ordo().LstChoix1.Lignes()[0].Texte), QStringLiteral("101"));
        QCOMPARE(Lignes("MedUtile"), QStringList({QStringLiteral("3400930000011")}));
    }

    void TheKeyboardReachesTheOnlyPack()
    {
        auto* cherche = Trouve<QLineEdit>("TxtCherche");
        Cherche("DOLIR");
        QTest::keyClick(cherche, Qt::Key_Down);
        QCOMPARE(Focus(), QStringLiteral("TV"));
        QCOMPARE(Texte("TxtMedoc"), QStringLiteral("DOLIRHUME & co"));
        QTest::keyClick(fenetre_->focusWidget(), Qt::Key_Return);
        QTest::keyClick(fenetre_->focusWidget(), Qt::Key_Return);
        QCOMPARE(prescription::IdentifiantDeLigne(Ordo().LstChoix1.Lignes()[0].Texte), QStringLiteral("102"));
    }

    void EnterReadsTheNodeThatTabReached()
    {
        Cherche("DOLIR");
        Trouve<QTreeView>("TV")->setFocus(Qt::TabFocusReason);
        QTest::keyClick(fenetre_->focusWidget(), Qt::Key_Return);
        QCOMPARE(Texte("TxtMedoc"), QStringLiteral("DOLIRHUME & co"));
    }

    void AnEmptyTreeTakesNoKey()
    {
        Cherche("RIEN");
        for (const auto touche : {Qt::Key_Down, Qt::Key_Return}) {
            QTest::keyClick(Trouve<QLineEdit>("TxtCherche"), touche);
            QTest::keyClick(Trouve<QTreeView>("TV"), touche);
        }
        QCOMPARE(Texte("TxtMedoc"), QString());
    }

    void TheCommonNameComesAndGoes()
    {
        Cherche("DOLI");
        ClicNoeud(0);
        Clic("ChkDCI");
        QCOMPARE(Texte("TxtMedoc"), QStringLiteral("PARACETAMOL"));
        Clic("ChkDCI");
        QCOMPARE(Texte("TxtMedoc"), QStringLiteral("DOLIPRANE 1 000 mg"));
    }

    void APosologyIsMemorised()
    {
        Cherche("DOLI");
        ClicNoeud(0);
        Trouve<QPlainTextEdit>("TxtPoso")->setPlainText(QStringLiteral("2 cp"));
        monde_->Boites.AttendInformation(QStringLiteral("Modifications enregistrées !"));
        Clic("CmdModifier");
        ClicNoeud(1);
        QCOMPARE(Poso(), QString());
        ClicNoeud(0);
        QCOMPARE(Poso(), QStringLiteral("2 cp"));
    }

    void APersonalEntryIsChangedTwice()
    {
        ClicNoeud(1);
        for (const char16_t* titre : {u"L'\"eau\"", u"Eau"}) {
            Trouve<QLineEdit>("TxtMedoc")->setText(QString::fromUtf16(titre));
            monde_->Boites.AttendInformation(QStringLiteral("Modifications enregistrées !"));
            Clic("CmdModifier");
        }
        QCOMPARE(Lignes("Biblio")[1], QStringLiteral("Eau|"));
        QCOMPARE(Arbre()[1], QStringLiteral(" Eau"));
    }

    void F5DeletesAPersonalEntry()
    {
        ClicNoeud(0);
        monde_->Boites.AttendQuestion(QStringLiteral("Supprimer \"QSP 3 mois\" ?"), Bouton::Non, Bouton::Non);
        QTest::keyClick(fenetre_->focusWidget(), Qt::Key_F5);
        QCOMPARE(Texte("TxtMedoc"), QStringLiteral("QSP 3 mois#"));
        monde_->Boites.AttendQuestion(QStringLiteral("Supprimer \"QSP 3 mois\" ?"), Bouton::Oui, Bouton::Non);
        QTest::keyClick(fenetre_->focusWidget(), Qt::Key_F5);
        QCOMPARE(Arbre(), QStringList({QStringLiteral(" Régime de l'enfant")}));
        QCOMPARE(Texte("TxtMedoc") + Poso(), QString());
        ClicNoeud(0);
        monde_->Boites.AttendQuestion(QStringLiteral("Supprimer \"Régime de l'enfant\" ?"), Bouton::Oui,
                                      Bouton::Non);
        QTest::keyClick(Trouve<QWidget>("TxtPoso"), Qt::Key_F5);
        QVERIFY(Lignes("Biblio").isEmpty());
    }

    void F5LeavesAPackAlone()
    {
        Cherche("DOLI");
        ClicNoeud(0);
        QTest::keyClick(fenetre_->focusWidget(), Qt::Key_F5);
        QCOMPARE(Arbre().size(), 2);
    }

    void F2AndF4InTheBankMode()
    {
        ClicNoeud(0);
        QTest::keyClick(Trouve<QWidget>("TxtMedoc"), Qt::Key_F2);
        QVERIFY(!QApplication::activeModalWidget() || QApplication::activeModalWidget() == fenetre_);
        QTest::keyClick(Trouve<QWidget>("TxtMedoc"), Qt::Key_F4);
        QCOMPARE(Texte("TxtMedoc"), QStringLiteral("QSP 3 mois#") + QString(30, u' '));
        monde_->Boites.AttendQuestion(QStringLiteral("Supprimer \"QSP 3 mois") + QString(30, u' ') +
                                          QStringLiteral("\" ?"),
                                      Bouton::Oui, Bouton::Non);
        QTest::keyClick(Trouve<QWidget>("TxtMedoc"), Qt::Key_F5);
        QCOMPARE(Arbre().size(), 1);
    }

    void ANewEntryShowsOnceTheSearchIsEmpty()
    {
        Cherche("DOLI");
        Personnel(u"Nouveau");
        Q_EMIT monde_->Etat.Signaux.PharmacieChange();
        QCOMPARE(Arbre().front(), QStringLiteral("DOLIPRANE 1 000 mg"));
        QCOMPARE(banque_->Demandes.size(), 2);
        Trouve<QLineEdit>("TxtCherche")->clear();
        QCOMPARE(Arbre().back(), QStringLiteral(" Nouveau"));
    }

    void AUsedPackIsUnmarkedThroughItsMenu()
    {
        monde_->Etat.Reglages.Options.ReliefMedUtilises = 1;
        support::AjouteLigne(Medoc(), QStringLiteral("MedUtile"), {QStringLiteral("3400930000012")});
        Cherche("DOLI");
        auto* arbre = Trouve<QTreeView>("TV");
        const auto centre = [&](int rang) {
            return arbre->visualRect(arbre->model()->index(rang, 0)).center();
        };
        const auto gras = [&] {
            return arbre->model()->index(1, 0).data(Qt::FontRole).value<QFont>().bold();
        };
        auto* menu = Trouve<QMenu>("mnuDemarquer");
        QVERIFY(gras());
        ClicNoeud(0);
        QTest::mouseClick(arbre->viewport(), Qt::RightButton, {}, centre(0));
        QVERIFY(!menu->isVisible());
        QTest::mouseClick(arbre->viewport(), Qt::RightButton, {}, centre(1));
        QVERIFY(menu->isVisible());
        auto* entree = Trouve<QAction>("mnuDemark");
        QCOMPARE(entree->text(), QStringLiteral("Marquer DOLIRHUME && co comme utilisation non fréquente ?"));
        menu->hide();
        entree->trigger();
        QVERIFY(Lignes("MedUtile").isEmpty());
        QVERIFY(!gras());
        QCOMPARE(Texte("TxtMedoc"), QStringLiteral("DOLIRHUME & co"));
    }

    void AFilterSearchesThenEmptiesTheBox()
    {
        Cherche("DOLI");
        Trouve<QAction>("mnu255")->trigger();
        QCOMPARE(banque_->Demandes.back(), QStringLiteral("DOLI/255"));
        QCOMPARE(Texte("TxtCherche"), QString());
        QCOMPARE(Arbre().front(), QStringLiteral(" QSP 3 mois#"));
        QVERIFY(Trouve<QAction>("mnu255")->isChecked() && !Trouve<QAction>("mnu64")->isChecked());
        QCOMPARE(Focus(), QStringLiteral("TxtCherche"));
    }

    void TheMonographBoxIsKept()
    {
        monde_->PoseMedecin();
        QVERIFY(Trouve<QCheckBox>("ChkMono")->isChecked());
        Clic("ChkMono");
        QCOMPARE(monde_->Etat.Reglages.Options.EtatChkMono, quint8(0));
        QVERIFY(
            QFile::exists(common::Joint(monde_->Etat.Chemins.CheminMedecin, QStringLiteral("Options.cfg"))));
    }

    void ThePersonalPharmacyHasItsOwnCaptions()
    {
        QStringList textes;
        QTimer::singleShot(0, this, [&] {
            QWidget* nouveau = QApplication::activeModalWidget();
            for (const char* nom : {"LblTitre", "LblPoso"}) {
                textes.append(nouveau->findChild<QLabel*>(QLatin1String(nom))->text().remove(u'&'));
            }
            QTest::keyClick(nouveau, Qt::Key_Escape);
        });
        Clic("CmdPerso");
        QCOMPARE(textes, QStringList({QStringLiteral("Bibliothèque personnelle : Titre"),
                                      QStringLiteral("Commentaires ou posologie")}));
        QCOMPARE(Focus(), QStringLiteral("TxtCherche"));
    }
};

int main(int nombre, char** arguments)
{
    QApplication application(nombre, arguments);
    application::style::Installe(application);
    TestFrmMedocBanque test;
    return QTest::qExec(&test, nombre, arguments);
}

#include "test_frmmedoc_banque.moc"
