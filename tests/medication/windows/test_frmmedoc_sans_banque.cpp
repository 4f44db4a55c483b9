#include "PosteBanque.h"
#include "application/Signaux.h"
#include "medication/messages.h"

using namespace Qt::StringLiterals;

// A search of the picker that finds no bank to ask.
class TestFrmMedocSansBanque : public QObject, private support::PosteBanque
{
    Q_OBJECT

private:
    int Noeuds() const { return Trouve<QTreeView>("TV")->model()->rowCount(); }
    bool Dit() const { return Trouve<QLabel>("LblSansBanque")->isVisible(); }
    void Ecrit(const QString& texte) const { Trouve<QLineEdit>("TxtCherche")->setText(texte); }
    void BanqueChange() { Q_EMIT monde_->Etat.Signaux.StatutBanqueChange(); }

private Q_SLOTS:
    void init()
    {
        PrepareBanque();
        Banque().Acces.reset();
        Banque().BanqueInitialisee = 1;
    }
    void cleanup() { Range(); }

    void TheWindowSaysSo()
    {
        QVERIFY(!Dit() && Noeuds() == 1); // the personal entry needs no bank
        Ecrit(u"DOLI"_s);
        QVERIFY(!Dit());
        Clic("PctCherch");
        QVERIFY(Dit() && Noeuds() == 0);
        QCOMPARE(Trouve<QLabel>("LblSansBanque")->text(), medication::messages::RechercheSansBanque());
        Ecrit({});
        QVERIFY(!Dit() && Noeuds() == 1);
        Cherche(u"DOLI"_s);
        QVERIFY(Dit());
    }

    void TheLocalModeSaysNothing()
    {
        Cherche(u"DOLI"_s);
        Banque().TypeBase = u"BIP"_s;
        fenetre_->hide();
        fenetre_->show();
        QVERIFY(!Dit());
    }

    void ABankThatAnswersLaterIsSearched()
    {
        Cherche(u"DOLI"_s);
        BanqueChange();
        QVERIFY(Dit());
        Banque().Acces = banque_;
        BanqueChange();
        QVERIFY(!Dit() && Noeuds() == 2);
        Cherche(u"XYZ"_s);
        QVERIFY(!Dit() && Noeuds() == 0); // the bank has none
    }

    void AStartUnderWayIsWaitedFor()
    {
        Banque().BanqueInitialisee = 0;
        Cherche(u"DOLI"_s);
        QCOMPARE(Trouve<QLabel>("LblSansBanque")->text(), medication::messages::RechercheEnAttente());
        Banque().BanqueInitialisee = 1;
        BanqueChange();
        QVERIFY(Dit());
        QCOMPARE(Trouve<QLabel>("LblSansBanque")->text(), medication::messages::RechercheSansBanque());
    }

    void ATextTooShortIsNotSearchedLater()
    {
        Cherche(u"DOLI"_s);
        Ecrit(u"DO"_s);
        Banque().Acces = banque_;
        BanqueChange();
        QVERIFY(!Dit());
        QCOMPARE(banque_->Demandes, QStringList());
    }

    void AFailedSessionIsNotBelieved()
    {
        Banque().Acces = banque_;
        Banque().SessionManquee = true;
        Cherche(u"DOLI"_s);
        QVERIFY(!Dit());
        Cherche(u"XYZ"_s);
        QVERIFY(Dit());
    }
};

int main(int nombre, char** arguments)
{
    QApplication application(nombre, arguments);
    application::style::Installe(application);
    TestFrmMedocSansBanque test;
    return QTest::qExec(&test, nombre, arguments);
}

#include "test_frmmedoc_sans_banque.moc"
