#include "CertificatDeTest.h"
#include "certificates/Bandeaux.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace certificat_de_test;
using page::Cible;
using support::Mots;
using support::PageDeTest;
using support::Textes;
using support::Trouve;

class TestPeintCertificat : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void uneLigne();
    void surApercuLeTexteCommenceALaMoitie();
    void lesMacros_data();
    void lesMacros();
    void uneMacroCoupeeParUnBlancReste();
    void uneMacroColleeAUnMarqueurEstGrasse();
    void lesMarqueursDUnMot();
    void lesLignesSeSuivent();
    void uneLigneVide();
    void lesFinsDeLigne_data();
    void lesFinsDeLigne();
    void lesBlancsDeTeteDecalent();
    void unRetourALaLigneDescendDeDeux();
    void unMotAussiLargeQueLaPlaceVaALaLigne();
    void unMotTropLong();
    void leDecalage();
    void laHauteurCompareeCommeTexte_data();
    void laHauteurCompareeCommeTexte();
    void uneHauteurAbsenteDevientZero();
    void lesTitresDeZonePrennentLaPoliceDeTxtCert_data();
    void lesTitresDeZonePrennentLaPoliceDeTxtCert();
    void unCertificatALD();
    void unePageEntiere();
    void lIdentiteDuPatient();
    void sansIdentitePasDeBloc();
    void lePiedSuit();
};

void TestPeintCertificat::uneLigne()
{
    PageDeTest page;
    const auto textes = Textes(page.PeintCertificat(u"Je soussigné certifie\r\n"_s));
    QCOMPARE(textes.size(), 3);
    QCOMPARE(QPointF(textes[0].X, textes[0].Y), QPointF(kGauche, kHaut));
    QVERIFY(Proche(textes[1].X, kGauche + L(u"Je "_s)));
    QVERIFY(Proche(textes[2].X, kGauche + L(u"Je soussigné "_s)));
    QCOMPARE(textes[2].Y, kHaut);
    QCOMPARE(textes[2].Encre, page::kNoir);
}

void TestPeintCertificat::surApercuLeTexteCommenceALaMoitie()
{
    PageDeTest page;
    page.Reglages.Marges.MargeHauteEntete = 30; // moves what is placed by number only
    QCOMPARE(Textes(page.PeintCertificat(u"mot"_s, Cible::Apercu))[0].Y, kHaut / 2);
    QCOMPARE(Textes(page.PeintCertificat(u"mot"_s))[0].Y, kHaut);
}

void TestPeintCertificat::lesMacros_data()
{
    QTest::addColumn<QString>("texte");
    QTest::addColumn<QStringList>("mots");
    QTest::newRow("name") << u"<N>"_s << QStringList{u"Monsieur  MARTIN  Paul"_s};
    QTest::newRow("birth date") << u"<DN>"_s << QStringList{u"20/03/1953"_s};
    QTest::newRow("date of the document") << u"<DJ>"_s << QStringList{u"20/11/2026"_s};
    QTest::newRow("address") << u"<AD>"_s << QStringList{u"1 rue Basse "_s, u"75000 PARIS "_s};
    QTest::newRow("doctor") << u"<DR>"_s << QStringList{u"Docteur NEIBRE"_s};
    QTest::newRow("signature") << u"<EL>"_s << QStringList{u"(Signature électronique)"_s};
    QTest::newRow("glued") << u"né(<DN>),"_s << QStringList{u"né(20/03/1953),"_s};
    QTest::newRow("twice") << u"<DJ>/<DJ>"_s << QStringList{u"20/11/2026/20/11/2026"_s};
    QTest::newRow("lower case") << u"<n>"_s << QStringList{u"<n>"_s};
    QTest::newRow("unknown") << u"<NBsp>"_s << QStringList{u"<NBsp>"_s};
}

void TestPeintCertificat::lesMacros()
{
    QFETCH(QString, texte);
    PageDeTest page;
    page.Patient.AdressePatient = u"1 rue Basse\r\n75000 PARIS"_s;
    page.Reglages.Look.NomSignature = u"Docteur NEIBRE"_s;
    QTEST(Mots(page.PeintCertificat(texte)), "mots");
}

void TestPeintCertificat::uneMacroCoupeeParUnBlancReste()
{
    PageDeTest page;
    QCOMPARE(Mots(page.PeintCertificat(u"<D N>"_s)), (QStringList{u"<D"_s, u"N>"_s}));
}

void TestPeintCertificat::uneMacroColleeAUnMarqueurEstGrasse()
{
    PageDeTest page;
    page.Patient.AdressePatient = u"Paris\r\nFrance"_s;
    page.Reglages.Look.Certif = {.Taille = 11, .Italique = true};
    const auto textes = Textes(page.PeintCertificat(u"<N>* <DN>$ <AD>* fin"_s));
    QCOMPARE(textes[0].Texte, u"Monsieur  MARTIN  Paul"_s);
    QCOMPARE(textes[0].Police, (page::Police{.Taille = 11, .Gras = true, .Italique = true}));
    QCOMPARE(textes[1].Texte, u"20/03/1953"_s);
    QCOMPARE(textes[1].Police, (page::Police{.Taille = 11, .Italique = true, .Souligne = true}));
    QVERIFY(textes[2].Police.Gras && textes[3].Police.Gras);
    QCOMPARE(textes[4].Police, page.Reglages.Look.Certif);
}

void TestPeintCertificat::lesMarqueursDUnMot()
{
    PageDeTest page;
    const auto textes = Textes(page.PeintCertificat(u"mot** mo*t a* mot,£ mot*$£"_s));
    QCOMPARE(Mots(page.PeintCertificat(u"mot** mo*t a* mot,£ mot*$£"_s)),
             (QStringList{u"mot*"_s, u"mo*"_s, u"a"_s, u"mot,"_s, u"mot"_s}));
    QVERIFY(textes[0].Police.Gras && textes[1].Police.Gras && textes[2].Police.Gras);
    QVERIFY(!textes[3].Police.Gras && textes[3].Police.Italique);
    QVERIFY(textes[4].Police.Gras && textes[4].Police.Italique && textes[4].Police.Souligne);
}

void TestPeintCertificat::lesLignesSeSuivent()
{
    PageDeTest page;
    page.Reglages.Look.Certif = {.Nom = u"Times New Roman"_s, .Taille = 13};
    const auto textes = Textes(page.PeintCertificat(u"un\r\ndeux\r\ntrois\r\n"_s));
    const double pas = 2 * H(page.Reglages.Look.Certif) + 1;
    for (int rang = 0; rang < 3; ++rang) {
        QCOMPARE(textes[rang].X, kGauche);
        QVERIFY(Proche(textes[rang].Y, kHaut + rang * pas));
        QCOMPARE(textes[rang].Police, page.Reglages.Look.Certif);
    }
}

void TestPeintCertificat::uneLigneVide()
{
    PageDeTest page;
    const auto textes = Textes(page.PeintCertificat(u"un\r\n\r\ndeux"_s));
    QCOMPARE(textes.size(), 2);
    QVERIFY(Proche(textes[1].Y, kHaut + 2 * (2 * H() + 1)));
    page.Reglages.Look.Certif.Souligne = true; // the blank of a line without words is printed
    QCOMPARE(Mots(page.PeintCertificat(u"\r\n"_s)), QStringList{u" "_s});
    QVERIFY(page.PeintCertificat({}).Items.isEmpty());
}

void TestPeintCertificat::lesFinsDeLigne_data()
{
    QTest::addColumn<QString>("fin");
    QTest::newRow("CR LF") << u"\r\n"_s;
    QTest::newRow("LF") << u"\n"_s;
    QTest::newRow("CR") << u"\r"_s;
}

void TestPeintCertificat::lesFinsDeLigne()
{
    QFETCH(QString, fin);
    PageDeTest page;
    const auto textes = Textes(page.PeintCertificat(u"un"_s + fin + u"deux"_s + fin));
    QVERIFY(Proche(textes[1].Y, kHaut + 2 * H() + 1));
}

void TestPeintCertificat::lesBlancsDeTeteDecalent()
{
    PageDeTest page;
    const auto textes = Textes(page.PeintCertificat(u"    quatre   trois"_s));
    QVERIFY(Proche(textes[0].X, kGauche + L(u"    "_s)));
    QVERIFY(Proche(textes[1].X, kGauche + L(u"    quatre   "_s)));
}

void TestPeintCertificat::unRetourALaLigneDescendDeDeux()
{
    PageDeTest page;
    page.Reglages.Marges.LongueurLigne = static_cast<float>(L(u"un deux"_s) + 1);
    const auto textes = Textes(page.PeintCertificat(u"un deux trois"_s));
    QCOMPARE(QPointF(textes[1].X, textes[1].Y), QPointF(kGauche + L(u"un "_s), kHaut));
    QCOMPARE(textes[2].X, kGauche);
    QVERIFY(Proche(textes[2].Y, kHaut + 2 * H()));
}

void TestPeintCertificat::unMotAussiLargeQueLaPlaceVaALaLigne()
{
    PageDeTest page;
    const float largeur = static_cast<float>(L(u"longueur exacte"_s));
    page.Reglages.Marges.LongueurLigne = std::nextafter(largeur, 0.0F);
    QVERIFY(Textes(page.PeintCertificat(u"longueur exacte"_s))[1].Y > kHaut);
    page.Reglages.Marges.LongueurLigne = std::nextafter(largeur, 200.0F);
    QCOMPARE(Textes(page.PeintCertificat(u"longueur exacte"_s))[1].Y, kHaut);
}

void TestPeintCertificat::unMotTropLong()
{
    PageDeTest page;
    const QString long_(300, u'w');
    const auto textes = Textes(page.PeintCertificat(long_ + u" suite"_s));
    QCOMPARE(textes[0].Texte, long_);
    QCOMPARE(textes[0].X, kGauche);
    QVERIFY(Proche(textes[0].Y, kHaut + 2 * H()));
    QVERIFY(Proche(textes[1].Y, kHaut + 4 * H()));
}

void TestPeintCertificat::leDecalage()
{
    PageDeTest page;
    page.Certificat.DecalageCertif = 6;
    page.Reglages.Marges.LongueurLigne = static_cast<float>(L(u"un deux"_s) + 5);
    const auto textes = Textes(page.PeintCertificat(u"un deux"_s));
    QCOMPARE(textes[0].X, kGauche + 6);
    QVERIFY(Proche(textes[1].Y, kHaut + 2 * H())); // the shift narrows the measure
    QCOMPARE(textes[1].X, kGauche + 6);
}

void TestPeintCertificat::laHauteurCompareeCommeTexte_data()
{
    QTest::addColumn<QString>("hauteur");
    QTest::addColumn<double>("saut");
    QTest::newRow("none") << QString() << 1.0;
    QTest::newRow("0") << u"0"_s << 1.0;
    QTest::newRow("2") << u"2"_s << 1.0;
    QTest::newRow("10 as text is below 2") << u"10"_s << 1.0;
    QTest::newRow("19,5") << u"19,5"_s << 1.0;
    QTest::newRow("2,5") << u"2,5"_s << 2.5;
    QTest::newRow("20") << u"20"_s << 20.0;
    QTest::newRow("3,5") << u"3,5"_s << 3.5;
    QTest::newRow("3.5") << u"3.5"_s << 3.5;
    QTest::newRow("9") << u"9"_s << 9.0;
    QTest::newRow("no number") << u"abc"_s << 1.0;
    QTest::newRow("out of all measure") << QString(400, u'9') << 297.0;
}

void TestPeintCertificat::laHauteurCompareeCommeTexte()
{
    QFETCH(double, saut);
    PageDeTest page;
    QFETCH(QString, hauteur);
    page.Reglages.TxtSLP = hauteur;
    const auto textes = Textes(page.PeintCertificat(u"un\r\ndeux"_s));
    QVERIFY(Proche(textes[1].Y, kHaut + 2 * H() + saut));
}

void TestPeintCertificat::uneHauteurAbsenteDevientZero()
{
    PageDeTest page;
    page.PeintCertificat(u"un"_s);
    QCOMPARE(page.Reglages.TxtSLP, u"0"_s);
    page.Reglages.TxtSLP = u"3,5"_s;
    page.PeintCertificat(u"un"_s);
    QCOMPARE(page.Reglages.TxtSLP, u"3,5"_s);
}

void TestPeintCertificat::lesTitresDeZonePrennentLaPoliceDeTxtCert_data()
{
    QTest::addColumn<QString>("ligne");
    QTest::addColumn<bool>("titre");
    QTest::newRow("illness") << u"de l'affection de longue durée reconnue"_s << true;
    QTest::newRow("22 rules") << QString(22, u'_') << true;
    QTest::newRow("21 rules") << QString(21, u'_') << false;
    QTest::newRow("zone 1") << u"( AFFECTION* EXONERANTE* )"_s << true;
    QTest::newRow("zone 2") << u"( MALADIES* INTERCURRENTES* )"_s << true;
    QTest::newRow("without the marker") << u"( MALADIES INTERCURRENTES )"_s << false;
    QTest::newRow("a text") << u"certifie"_s << false;
}

void TestPeintCertificat::lesTitresDeZonePrennentLaPoliceDeTxtCert()
{
    QFETCH(QString, ligne);
    PageDeTest page;
    page.Reglages.Look.Certif = {.Nom = u"Times New Roman"_s, .Taille = 14, .Souligne = true};
    const auto textes = Textes(page.PeintCertificat(ligne));
    QTEST(textes.constLast().Police.Taille == 10, "titre");
    QTEST(textes.constLast().Police.Nom == u"Arial"_s, "titre");
    QTEST(!textes.constLast().Police.Souligne, "titre");
}

void TestPeintCertificat::unCertificatALD()
{
    PageDeTest page;
    page.Reglages.Look.Certif = {.Taille = 11};
    const QString fin = u"\r\n"_s;
    const auto dessin = page.PeintCertificat(certificates::BandeauALD1() + fin + u"METFORMINE 1000*"_s + fin +
                                             u"1 matin et soir"_s + fin + fin + fin + fin +
                                             certificates::BandeauALD2() + fin + u"DOLIPRANE"_s + fin);
    QCOMPARE(support::Obtenues(dessin), support::Attendues(u"certificat_ald.txt"_s, dessin));
    for (const page::ItemTexte& item : Textes(dessin)) {
        QVERIFY(item.X + item.Largeur < 190); // no heading wraps
    }
}

void TestPeintCertificat::unePageEntiere()
{
    PageDeTest page;
    page.Certificat.IdentiteCertif = 1;
    page.Certificat.DecalageCertif = 4;
    page.Reglages.Look.Certif = {.Nom = u"Times New Roman"_s, .Taille = 12};
    page.Reglages.Look.NomSignature = u"Docteur NEIBRE"_s;
    page.Patient.AdressePatient = CinqLignes();
    page.Reglages.TxtSLP = u"3,5"_s;
    const auto dessin = page.PeintCertificat(
        u"    CERTIFICAT*$ MEDICAL*$\r\n\r\nJe soussigné, <DR> , certifie avoir examiné ce jour <DJ>* le "
        "patient <N>£ né le <DN>, demeurant à <AD> et avoir constaté qu'il va bien.\r\n\r\nFait pour servir "
        "et valoir ce que de droit.\r\n<EL>\r\n"_s);
    QCOMPARE(support::Obtenues(dessin), support::Attendues(u"certificat.txt"_s, dessin));
}

void TestPeintCertificat::lIdentiteDuPatient()
{
    PageDeTest page;
    page.Certificat.IdentiteCertif = 1;
    page.Certificat.DecalageCertif = 10; // of the text, not of the patient block
    const auto dessin = page.PeintCertificat(u"texte"_s);
    const auto bloc = support::EnTexte(page.PeintPatient());
    QVERIFY(support::EnTexte(dessin).startsWith(bloc));
    QCOMPARE(Trouve(dessin, u"texte"_s).X, kGauche + 10);
    QCOMPARE(Trouve(dessin, u"texte"_s).Y, kHaut);
    QCOMPARE(Trouve(page.PeintCertificat(u"texte"_s, Cible::Apercu), u"texte"_s).Y, kHaut / 2);
}

void TestPeintCertificat::sansIdentitePasDeBloc()
{
    PageDeTest page;
    page.Patient.ModePatient = 2; // asks nothing: BoitesScript would fail
    page.Patient.DateNaissance.clear();
    QCOMPARE(Mots(page.PeintCertificat(u"texte"_s)), QStringList{u"texte"_s});
}

void TestPeintCertificat::lePiedSuit()
{
    PageDeTest page;
    page.ModeApercu = 1;
    page.PoseEntete({{.NumLigne = 22, .Texte = u"pied"_s, .Police = {}}});
    page::Surface surface(Cible::Imprimante);
    page::Modele modele = page.Modele();
    page::PeintCertificat(surface, modele, {page.Certificat, u"texte"_s, page.Reglages.TxtSLP}, page.Boites);
    page::PeintOrdo(surface, modele);
    QCOMPARE(Mots(surface.Resultat()), (QStringList{u"texte"_s, u"pied"_s}));
    QCOMPARE(Trouve(surface.Resultat(), u"pied"_s).X, kGauche);
    QVERIFY(Proche(Trouve(surface.Resultat(), u"pied"_s).Y, 297 - 10 + 4));
}

QTEST_MAIN(TestPeintCertificat)
#include "test_peint_certificat.moc"
