#include "settings/FichiersReglages.h"
#include "settings/MiseEnPage.h"
#include "settings/messages.h"
#include "support/BaseDeTest.h"
#include "support/Cabinet.h"

#include <QFile>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace settings;

namespace {

struct Bureau : Cabinet
{
    storage::Base& Ordo() { return Etat.Bases.Ordo(Etat.Chemins.CheminMedecin); }
    QString Fichier(const QString& nom) const { return common::Joint(Etat.Chemins.CheminMedecin, nom); }
    QByteArray Lu(const QString& nom) const { return common::LitFichier(Fichier(nom)); }
    QStringList Misenpage() { return support::Lignes(Ordo(), u"Misenpage"_s); }

    /// The controls as they are loaded, once the doctor's look is read.
    SaisieMiseEnPage Chargee()
    {
        ChargeLook(Etat.Reglages.Look, Ordo());
        return ChargeMiseEnPage(Contexte);
    }
};

// Its "Marges.cfg" is a directory: no file can take its place.
void EmpecheFichier(const Bureau& bureau, const QString& nom)
{
    common::CreeDossier(bureau.Fichier(nom));
    common::EcritFichier(bureau.Fichier(nom + u"/dedans"_s), "x");
}

} // namespace

class TestMiseEnPage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void lesControlesAuChargement();
    void sansMedecinLesTextesDuDepart();
    void enregistreTout();
    void deuxRangeesApresDeuxEnregistrements();
    void lePrefixeNumerique_data();
    void lePrefixeNumerique();
    void uneDecimaleStockeeReste();
    void uneValeurTropGrandeArreteTout_data();
    void uneValeurTropGrandeArreteTout();
    void sansMedecinRienNEstEnregistre();
    void uneTableRefuseeNEnregistreRien();
    void unFichierRefuseEstDit();
    void lesModifications();
    void laMargeHauteAuClic();
    void lesPolicesDecrites();
    void laPoliceDesCertificatsSansRangee();
};

void TestMiseEnPage::lesControlesAuChargement()
{
    Bureau bureau;
    bureau.Etat.Reglages.Marges.MargeGaucheOrdo = 12.5F;
    bureau.Etat.Reglages.Marges.MargeHauteDDN = -3;
    bureau.Etat.Reglages.Options.SautTitrePoso = 1;
    const SaisieMiseEnPage saisie = bureau.Chargee();
    QCOMPARE(saisie.CboInt, u"2"_s);
    QCOMPARE(saisie.CboM, u"100"_s);
    QCOMPARE(saisie.TxtM, u"12,5"_s);
    QCOMPARE(saisie.TxtL, u"170"_s);
    QCOMPARE(saisie.TxtE, u"70"_s);
    QCOMPARE(saisie.TxtG, u"100"_s);
    QCOMPARE(saisie.TxtHD, u"0"_s);
    QCOMPARE(saisie.TxtHddn, u"-3"_s);
    QVERIFY(saisie.ChkS);
    QVERIFY(!saisie.ChKSLP);
    QCOMPARE(saisie.TxtSLP, QString());
    QCOMPARE(saisie.Txt[0].Taille, 11.0F);
    QVERIFY(saisie.Txt[0].Gras);
    QCOMPARE(saisie.Txt[1].Taille, 10.0F);
}

void TestMiseEnPage::sansMedecinLesTextesDuDepart()
{
    Bureau bureau;
    bureau.Etat.Reglages.Marges.MargeGaucheOrdo = 33;
    bureau.Etat.Chemins.CheminMedecin.clear();
    QCOMPARE(ChargeMiseEnPage(bureau.Contexte).TxtM, u"20"_s);
    QCOMPARE(ChargeMiseEnPage(bureau.Contexte).CboInt, QString());
}

void TestMiseEnPage::enregistreTout()
{
    Bureau bureau;
    SaisieMiseEnPage saisie = bureau.Chargee();
    saisie.CboInt = u"4"_s;
    saisie.TxtM = u"12.5"_s;
    saisie.TxtL = u"150"_s;
    saisie.TxtE = u"71"_s;
    saisie.TxtG = u"102"_s;
    saisie.TxtHD = u"5"_s;
    saisie.TxtGD = u"6"_s;
    saisie.TxtHddn = u"7"_s;
    saisie.TxtGddn = u"-8"_s;
    saisie.ChkS = true;
    saisie.Txt = {page::Police{.Nom = u"Times New Roman"_s, .Taille = 12.5F, .Gras = true},
                  page::Police{.Nom = u"Courier New"_s, .Taille = 9, .Italique = true, .Souligne = true}};
    bureau.Boites.AttendInformation(u"Mise en page enregistrée !"_s);
    QVERIFY(EnregistreMiseEnPage(bureau.Contexte, saisie).Enregistree);
    QCOMPARE(bureau.Lu(u"Marges.cfg"_s), QByteArray("10,4,10,12.5,100,150,71,102,0,5,6,7,-8\r\n"));
    const QByteArrayList options = bureau.Lu(u"Options.cfg"_s).split(',');
    QCOMPARE(options.value(7), QByteArray("4"));
    QCOMPARE(options.value(9), QByteArray("1"));
    QCOMPARE(bureau.Misenpage(),
             (QStringList{u"0|Times New Roman|12.5|1|0|0"_s, u"1|Courier New|9|0|1|1"_s}));
    QCOMPARE(bureau.Etat.Reglages.Look.Titre, saisie.Txt[0]);
    QCOMPARE(bureau.Etat.Reglages.Look.Poso, saisie.Txt[1]);
    QCOMPARE(int(bureau.Etat.Reglages.Marges.MargeGaucheDDN), -8);
    QVERIFY(!MiseEnPageModifiee(ReglagesStockes(bureau.Contexte), ChargeMiseEnPage(bureau.Contexte)));
}

void TestMiseEnPage::deuxRangeesApresDeuxEnregistrements()
{
    Bureau bureau;
    support::AjouteLigne(bureau.Ordo(), u"Misenpage"_s, {7, u"Arial"_s, 8, 0, 0, 0});
    const SaisieMiseEnPage saisie = bureau.Chargee();
    bureau.Boites.AttendInformation(messages::MiseEnPageEnregistree())
        .AttendInformation(messages::MiseEnPageEnregistree());
    EnregistreMiseEnPage(bureau.Contexte, saisie);
    EnregistreMiseEnPage(bureau.Contexte, saisie);
    QCOMPARE(bureau.Misenpage(), (QStringList{u"0|Arial|11|1|0|0"_s, u"1|Arial|10|0|0|0"_s}));
}

void TestMiseEnPage::lePrefixeNumerique_data()
{
    QTest::addColumn<QString>("texte");
    QTest::addColumn<float>("simple");
    QTest::addColumn<int>("entier");
    QTest::newRow("virgule") << u"25,8"_s << 25.0F << 25;
    QTest::newRow("point") << u"25.8"_s << 25.8F << 26;
    QTest::newRow("unité") << u"30 mm"_s << 30.0F << 30;
    QTest::newRow("lettres") << u"abc"_s << 0.0F << 0;
    QTest::newRow("vide") << QString() << 0.0F << 0;
    QTest::newRow("négatif") << u"-4"_s << -4.0F << -4;
    QTest::newRow("au pair") << u"2.5"_s << 2.5F << 2;
    QTest::newRow("bord") << u"32767"_s << 32767.0F << 32767;
}

void TestMiseEnPage::lePrefixeNumerique()
{
    QFETCH(QString, texte);
    QFETCH(float, simple);
    QFETCH(int, entier);
    Bureau bureau;
    SaisieMiseEnPage saisie = bureau.Chargee();
    saisie.TxtM = saisie.TxtE = texte;
    bureau.Boites.AttendInformation(messages::MiseEnPageEnregistree());
    QVERIFY(EnregistreMiseEnPage(bureau.Contexte, saisie).Enregistree);
    QCOMPARE(bureau.Etat.Reglages.Marges.MargeGaucheOrdo, simple);
    QCOMPARE(int(bureau.Etat.Reglages.Marges.MargeHautePatient), entier);
}

// It is shown as "12,5", of which a text typed by the doctor would keep the 12 alone.
void TestMiseEnPage::uneDecimaleStockeeReste()
{
    Bureau bureau;
    bureau.Etat.Reglages.Marges.MargeGaucheOrdo = 12.5F;
    bureau.Boites.AttendInformation(messages::MiseEnPageEnregistree());
    EnregistreMiseEnPage(bureau.Contexte, bureau.Chargee());
    QCOMPARE(bureau.Etat.Reglages.Marges.MargeGaucheOrdo, 12.5F);
}

void TestMiseEnPage::uneValeurTropGrandeArreteTout_data()
{
    QTest::addColumn<QString>("texte");
    QTest::addColumn<int>("rang");
    for (int rang = 0; rang < static_cast<int>(CasesMarges().size()); ++rang) {
        const char* nom = CasesMarges()[static_cast<size_t>(rang)].Nom;
        QTest::addRow("%s plus", nom) << u"32768"_s << rang;
        QTest::addRow("%s moins", nom) << u"-40000"_s << rang;
        QTest::addRow("%s immense", nom) << u"1e300"_s << rang;
    }
}

void TestMiseEnPage::uneValeurTropGrandeArreteTout()
{
    QFETCH(QString, texte);
    QFETCH(int, rang);
    const CaseMarge& marge = CasesMarges()[static_cast<size_t>(rang)];
    Bureau bureau;
    SaisieMiseEnPage saisie = bureau.Chargee();
    const QStringList avant = bureau.Misenpage();
    saisie.Txt[0].Taille = 20;
    saisie.TxtM = u"5"_s;
    saisie.*marge.Texte = texte;
    bureau.Boites.AttendStop(messages::ValeurTropGrande(marge.Libelle(), texte));
    const BilanMiseEnPage bilan = EnregistreMiseEnPage(bureau.Contexte, saisie);
    QVERIFY(!bilan.Enregistree);
    QVERIFY(bilan.TropGrand);
    QCOMPARE(QLatin1String(bilan.TropGrand->Nom), QLatin1String(marge.Nom));
    QCOMPARE(bureau.Misenpage(), avant);
    QVERIFY(!common::FichierExiste(bureau.Fichier(u"Marges.cfg"_s)));
    QCOMPARE(bureau.Etat.Reglages.Marges.MargeGaucheOrdo, 20.0F);
    QCOMPARE(bureau.Etat.Reglages.Look.Titre.Taille, 11.0F);
}

void TestMiseEnPage::sansMedecinRienNEstEnregistre()
{
    Bureau bureau;
    bureau.Etat.Chemins.CheminMedecin.clear();
    bureau.Boites.AttendInformation(u"Choisissez d'abord un médecin utilisateur."_s);
    QVERIFY(!EnregistreMiseEnPage(bureau.Contexte, ChargeMiseEnPage(bureau.Contexte)).Enregistree);
    QVERIFY(!common::FichierExiste(u"Marges.cfg"_s));
    QVERIFY(!common::FichierExiste(u"/Marges.cfg"_s));
}

void TestMiseEnPage::uneTableRefuseeNEnregistreRien()
{
    Bureau bureau;
    SaisieMiseEnPage saisie = bureau.Chargee();
    const QStringList avant = bureau.Misenpage();
    saisie.Txt[1].Taille = 20;
    saisie.TxtM = u"5"_s;
    int ajouts = 0;
    bureau.Ordo().PoseCrochet([&](const QString& instruction) {
        return instruction.startsWith(u"insert"_s) && ++ajouts == 2; // the second row
    });
    bureau.Boites.AttendContenant(outside::Genre::Stop, u"La mise en page n'a pas pu être enregistrée."_s);
    QVERIFY(!EnregistreMiseEnPage(bureau.Contexte, saisie).Enregistree);
    bureau.Ordo().PoseCrochet({});
    QCOMPARE(ajouts, 2);
    QCOMPARE(bureau.Misenpage(), avant);
    QVERIFY(!common::FichierExiste(bureau.Fichier(u"Marges.cfg"_s)));
    QCOMPARE(bureau.Etat.Reglages.Marges.MargeGaucheOrdo, 20.0F);
}

void TestMiseEnPage::unFichierRefuseEstDit()
{
    Bureau bureau;
    SaisieMiseEnPage saisie = bureau.Chargee();
    saisie.TxtM = u"5"_s;
    saisie.CboInt = u"3"_s;
    EmpecheFichier(bureau, u"Options.cfg"_s);
    bureau.Boites.AttendContenant(outside::Genre::Stop, u"Les polices et les marges sont enregistrées."_s);
    QVERIFY(!EnregistreMiseEnPage(bureau.Contexte, saisie).Enregistree);
    QVERIFY(bureau.Lu(u"Marges.cfg"_s).startsWith("10,4,10,5,"));
    QCOMPARE(int(bureau.Etat.Reglages.Options.SautsPrescription), 3);
    EmpecheFichier(bureau, u"Marges.cfg.d"_s);
    QVERIFY(QFile::remove(bureau.Fichier(u"Marges.cfg"_s)));
    EmpecheFichier(bureau, u"Marges.cfg"_s);
    bureau.Boites.AttendContenant(outside::Genre::Stop, u"Les polices sont enregistrées."_s);
    QVERIFY(!EnregistreMiseEnPage(bureau.Contexte, saisie).Enregistree);
}

void TestMiseEnPage::lesModifications()
{
    Bureau bureau;
    SaisieMiseEnPage saisie = bureau.Chargee();
    EcritMarges(bureau.Etat.Reglages.Marges, bureau.Etat.Chemins.CheminMedecin);
    EcritOptions(bureau.Etat.Reglages.Options, bureau.Etat.Chemins.CheminMedecin);
    const Reglages stockes = ReglagesStockes(bureau.Contexte);
    const auto change = [&](auto&& geste) {
        SaisieMiseEnPage autre = saisie;
        geste(autre);
        return MiseEnPageModifiee(stockes, autre);
    };
    QVERIFY(!change([](SaisieMiseEnPage&) {}));
    QVERIFY(!change([](SaisieMiseEnPage& s) { s.TxtM = u"20.0"_s; }));
    QVERIFY(change([](SaisieMiseEnPage& s) { s.TxtM = u"21"_s; }));
    QVERIFY(change([](SaisieMiseEnPage& s) { s.TxtGddn = u"1"_s; }));
    QVERIFY(change([](SaisieMiseEnPage& s) { s.CboInt = u"1"_s; }));
    QVERIFY(change([](SaisieMiseEnPage& s) { s.CboM = u"110"_s; }));
    QVERIFY(change([](SaisieMiseEnPage& s) { s.ChkS = true; }));
    QVERIFY(change([](SaisieMiseEnPage& s) { s.ChKSLP = true; }));
    QVERIFY(change([](SaisieMiseEnPage& s) { s.Txt[1].Souligne = true; }));
    // The variable changed at once, the file has not.
    ChoisitMargeHaute(bureau.Contexte, u"120"_s);
    saisie = ChargeMiseEnPage(bureau.Contexte);
    QVERIFY(MiseEnPageModifiee(ReglagesStockes(bureau.Contexte), saisie));
}

void TestMiseEnPage::laMargeHauteAuClic()
{
    Bureau bureau;
    ChoisitMargeHaute(bureau.Contexte, u"130"_s);
    QCOMPARE(bureau.Etat.Reglages.Marges.MargeHauteOrdo, 130.0F);
}

void TestMiseEnPage::lesPolicesDecrites()
{
    page::Police police{.Nom = u"Times New Roman"_s, .Taille = 9.5F};
    QCOMPARE(DecritPolice(police), u"Times New Roman()"_s);
    QCOMPARE(DecritPoliceChoisie(police), u"Times New Roman  (9,5      )"_s);
    police.Gras = police.Souligne = true;
    QCOMPARE(DecritPolice(police), u"Times New Roman(GU)"_s);
    QCOMPARE(DecritPoliceChoisie(police), u"Times New Roman  (9,5  G    U)"_s);
    police.Italique = true;
    QCOMPARE(DecritPolice(police), u"Times New Roman(GIU)"_s);
    QCOMPARE(DecritPoliceChoisie(police), u"Times New Roman  (9,5  G  I  U)"_s);
}

void TestMiseEnPage::laPoliceDesCertificatsSansRangee()
{
    Bureau bureau;
    const page::Police txtCert{.Nom = u"Courier New"_s, .Taille = 7, .Gras = true};
    Look look;
    ChargeLook(look, bureau.Ordo(), txtCert);
    QCOMPARE(look.Certif.Taille, 11.0F);
    auto jeu = bureau.Ordo().Table(u"Certificat"_s);
    jeu.Delete();
    ChargeLook(look, bureau.Ordo(), txtCert);
    QCOMPARE(look.Certif, txtCert);
}

QTEST_MAIN(TestMiseEnPage)
#include "test_mise_en_page.moc"
