#include "support/PageDeTest.h"

#include <QTest>
#include <cmath>

using namespace Qt::StringLiterals;
using page::Cible;
using page::kTwipsParMillimetre;
using page::MesureHauteur;
using page::MesureLargeur;
using page::Surface;
using support::Mots;
using support::PageDeTest;
using support::Textes;
using support::Trouve;

namespace {

page::LigneEntete Rang(int numero, const QString& texte, double espaces = 0, const page::Police& police = {})
{
    return {.NumLigne = numero, .Texte = texte, .Police = police, .Espaces = espaces};
}

page::Dessin SurPapier(PageDeTest& page)
{
    Surface papier(Cible::Imprimante);
    return page.PeintEntete(papier);
}

std::optional<page::ItemImage> ImageDe(const page::Dessin& dessin)
{
    for (const page::Item& item : dessin.Items) {
        if (const auto* image = std::get_if<page::ItemImage>(&item)) {
            return *image;
        }
    }
    return std::nullopt;
}

void PoseLogo(PageDeTest& page, quint8 position)
{
    page.Logo = QImage(4, 4, QImage::Format_RGB32);
    settings::Options& options = page.Reglages.Options;
    options.LogoActif = 1;
    options.PositionLogo = position;
    options.LogoX = 2;
    options.LogoY = 3;
    options.LogoLargeur = 25;
    options.LogoHauteur = 15;
}

QRectF Place(const page::ItemImage& image)
{
    return {image.X, image.Y, image.Largeur, image.Hauteur};
}

} // namespace

class TestPeintEntete : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void surPapierLesRangsSeSuivent();
    void laCouleurEtLaPoliceDesRangs();
    void uneEtoileEtUnDollarFontUneLigne();
    void uneEtoileEtUnRangSimpleGardentLaLigne();
    void uneEtoileSeuleNeDessineRien();
    void leRangNeuf_data();
    void leRangNeuf();
    void lesModes_data();
    void lesModes();
    void leModeUnCommenceParUneLigneAuDeuxiemePassage();
    void leModeUnSansPraticienSauteTreizeLignes();
    void leRang22ArreteEtLe23NeSePeintPas();
    void sansRangRienNeSePeint();
    void unTexteNulNePrendPasDeLigne();
    void uneColonneNulleGardeCelleDAvant();
    void leLogoAGaucheSurPapier();
    void leLogoADroiteSurPapier();
    void leLogoADroiteDUnEnteteVide();
    void leBordDroitEstCeluiDeLaLigneLaPlusLongue();
    void unBordDroitHorsDeMesure();
    void leLogoInactifNeSePosePas();
    void laFaceSansMedecinNAQueSonFond_data();
    void laFaceSansMedecinNAQueSonFond();
    void laFaceEnTwips();
    void leLogoAGaucheDeLaFace();
    void leLogoADroiteDeLaFace();
    void uneAutreSurfaceGardeSonEchelle();
};

void TestPeintEntete::surPapierLesRangsSeSuivent()
{
    PageDeTest page;
    page.PoseEntete({Rang(0, u"Docteur"_s, 5), Rang(1, u"Adresse"_s), Rang(10, u"Praticien"_s)});
    const page::Dessin dessin = SurPapier(page);
    const double ligne = MesureHauteur({});
    QCOMPARE(Mots(dessin), (QStringList{u"Docteur"_s, u"Adresse"_s, u"Praticien"_s}));
    QCOMPARE(QPointF(Trouve(dessin, u"Docteur"_s).X, Trouve(dessin, u"Docteur"_s).Y), QPointF(15, 4));
    QCOMPARE(QPointF(Trouve(dessin, u"Adresse"_s).X, Trouve(dessin, u"Adresse"_s).Y), QPointF(10, 4 + ligne));
    // Rows 2 to 8 are blank lines, row 9 two of them.
    QCOMPARE(Trouve(dessin, u"Praticien"_s).Y, 4 + 11 * ligne);
}

void TestPeintEntete::laCouleurEtLaPoliceDesRangs()
{
    PageDeTest page;
    const page::Police police{.Nom = u"Times New Roman"_s, .Taille = 14, .Gras = true, .Souligne = true};
    page.Reglages.Look.CouleurEntete = page::Rvb(0, 128, 255);
    page.PoseEntete({Rang(0, u"Docteur"_s, 0, police), Rang(1, u"Adresse"_s)});
    const auto textes = Textes(SurPapier(page));
    QCOMPARE(textes[0].Police, police);
    QCOMPARE(textes[0].Encre, page::Rvb(0, 128, 255));
    QCOMPARE(textes[1].Y, 4 + MesureHauteur(police));
}

void TestPeintEntete::uneEtoileEtUnDollarFontUneLigne()
{
    PageDeTest page;
    const page::Police grande{.Taille = 16};
    page.PoseEntete({Rang(0, u"Docteur *"_s, 5, grande), Rang(1, u"NEIBRE$"_s, 90), Rang(2, u"Suite"_s)});
    const auto textes = Textes(SurPapier(page));
    QCOMPARE(textes[0].Texte, u"Docteur "_s);
    QCOMPARE(textes[0].X, 10.0); // a row with a mark does not set its own X
    QCOMPARE(textes[1].Texte, u"NEIBRE"_s);
    QCOMPARE(textes[1].X, 10 + textes[0].Largeur);
    QCOMPARE(textes[1].Y, textes[0].Y);
    QCOMPARE(textes[2].Y, 4 + MesureHauteur({})); // the line ends in the second row's font
}

void TestPeintEntete::uneEtoileEtUnRangSimpleGardentLaLigne()
{
    PageDeTest page;
    page.PoseEntete({Rang(0, u"Docteur*"_s), Rang(1, u"Tél."_s, 90)});
    const auto textes = Textes(SurPapier(page));
    QCOMPARE(textes[1].Y, textes[0].Y);
    QCOMPARE(textes[1].X, 100.0);
}

void TestPeintEntete::uneEtoileSeuleNeDessineRien()
{
    PageDeTest page;
    page.PoseEntete({Rang(0, u"*"_s), Rang(1, u"Adresse"_s)});
    const page::Dessin dessin = SurPapier(page);
    QCOMPARE(Mots(dessin), QStringList{u"Adresse"_s});
    QCOMPARE(Trouve(dessin, u"Adresse"_s).Y, 4.0);
}

void TestPeintEntete::leRangNeuf_data()
{
    QTest::addColumn<QString>("texte");
    QTest::addColumn<int>("lignes");
    QTest::newRow("étoile") << u"*"_s << 1;
    QTest::newRow("vide") << QString() << 2;
    QTest::newRow("texte") << u"Tél."_s << 1; // its own line, and none between the blocks
}

void TestPeintEntete::leRangNeuf()
{
    QFETCH(QString, texte);
    QFETCH(int, lignes);
    PageDeTest page;
    page.PoseEntete({Rang(9, texte), Rang(10, u"Praticien"_s)});
    QCOMPARE(Trouve(SurPapier(page), u"Praticien"_s).Y, 4 + (9 + lignes) * MesureHauteur({}));
}

void TestPeintEntete::lesModes_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<QStringList>("textes");
    QTest::newRow("0") << 0 << QStringList{u"Adresse"_s, u"Praticien"_s};
    QTest::newRow("1") << 1 << QStringList{u"Praticien"_s, u"Adresse"_s};
    QTest::newRow("2") << 2 << QStringList();
    QTest::newRow("255") << 255 << QStringList();
}

void TestPeintEntete::lesModes()
{
    QFETCH(int, mode);
    PageDeTest page;
    page.Reglages.Options.ModeEntete = static_cast<quint8>(mode);
    page.PoseEntete({Rang(0, u"Adresse"_s), Rang(10, u"Praticien"_s)});
    QTEST(Mots(SurPapier(page)), "textes");
}

void TestPeintEntete::leModeUnCommenceParUneLigneAuDeuxiemePassage()
{
    PageDeTest page;
    page.Reglages.Options.ModeEntete = 1;
    page.PoseEntete({Rang(0, u"Adresse"_s), Rang(10, u"Praticien"_s)});
    const page::Dessin dessin = SurPapier(page);
    QCOMPARE(Trouve(dessin, u"Praticien"_s).Y, 4.0);
    QCOMPARE(Trouve(dessin, u"Adresse"_s).Y, 4 + 13 * MesureHauteur({})); // rows 10 to 21, then a blank line
}

void TestPeintEntete::leModeUnSansPraticienSauteTreizeLignes()
{
    PageDeTest page;
    page.Reglages.Options.ModeEntete = 1;
    page.PoseEntete({Rang(0, u"Adresse"_s)});
    QCOMPARE(Trouve(SurPapier(page), u"Adresse"_s).Y, 4 + 13 * MesureHauteur({}));
}

void TestPeintEntete::leRang22ArreteEtLe23NeSePeintPas()
{
    PageDeTest page;
    page.PoseEntete({Rang(21, u"dernier"_s), Rang(22, u"bas de page"_s), Rang(23, u"signature"_s)});
    QCOMPARE(Mots(SurPapier(page)), QStringList{u"dernier"_s});
}

void TestPeintEntete::sansRangRienNeSePeint()
{
    PageDeTest page;
    page.Reglages.Options.ModeEntete = 1;
    QVERIFY(SurPapier(page).Items.isEmpty());
}

void TestPeintEntete::unTexteNulNePrendPasDeLigne()
{
    PageDeTest page;
    page.PoseEntete({Rang(0, u"Docteur"_s), Rang(2, u"Adresse"_s)});
    page.Entete[1].Nulles.set(page::kTexte);
    QCOMPARE(Trouve(SurPapier(page), u"Adresse"_s).Y, 4 + MesureHauteur({}));
}

// A row whose text is null has set its font all the same; one that is null in some columns sets the others.
void TestPeintEntete::uneColonneNulleGardeCelleDAvant()
{
    PageDeTest page;
    page.PoseEntete({Rang(0, u"Docteur"_s), Rang(1, u"-"_s, 0, {.Taille = 16, .Italique = true}),
                     Rang(2, u"Adresse"_s, 7, {.Nom = u"Times New Roman"_s, .Taille = 9, .Gras = true})});
    page.Entete[1].Nulles.set(page::kTexte);
    page.Entete[2].Nulles.set(page::kTaille).set(page::kItalique).set(page::kEspaces);
    const page::ItemTexte adresse = Trouve(SurPapier(page), u"Adresse"_s);
    QCOMPARE(adresse.Police, (page::Police{u"Times New Roman"_s, 16, true, true, false}));
    QCOMPARE(adresse.X, 10.0);
}

void TestPeintEntete::leLogoAGaucheSurPapier()
{
    PageDeTest page;
    PoseLogo(page, 1);
    page.PoseEntete({Rang(0, u"Docteur"_s)});
    const page::Dessin dessin = SurPapier(page);
    QCOMPARE(Place(ImageDe(dessin).value()), QRectF(12, 7, 25, 15));
    QCOMPARE(Trouve(dessin, u"Docteur"_s).X, 35.0);
    QCOMPARE(Trouve(dessin, u"Docteur"_s).Y, 4.0);
}

void TestPeintEntete::leLogoADroiteSurPapier()
{
    PageDeTest page;
    PoseLogo(page, 2);
    page.PoseEntete({Rang(0, u"Docteur NEIBRE, médecine générale"_s)});
    const page::Dessin dessin = SurPapier(page);
    QCOMPARE(Trouve(dessin, u"Docteur NEIBRE, médecine générale"_s).X, 10.0);
    const double bord = std::nearbyint(MesureLargeur(u"Docteur NEIBRE, médecine générale"_s, {}));
    QCOMPARE(Place(ImageDe(dessin).value()), QRectF(10 + bord + 2, 7, 25, 15));
}

void TestPeintEntete::leLogoADroiteDUnEnteteVide()
{
    PageDeTest page;
    PoseLogo(page, 2);
    page.PoseEntete({});
    QCOMPARE(Place(ImageDe(SurPapier(page)).value()), QRectF(12, 7, 25, 15));
}

void TestPeintEntete::leBordDroitEstCeluiDeLaLigneLaPlusLongue()
{
    PageDeTest page;
    PoseLogo(page, 2);
    page.PoseEntete({Rang(0, u"la plus longue des lignes de l'en-tête"_s), Rang(1, u"courte"_s),
                     Rang(2, u"décalée"_s, 120)});
    const double bord = std::nearbyint(120 + MesureLargeur(u"décalée"_s, {}));
    QCOMPARE(ImageDe(SurPapier(page)).value().X, 10 + bord + 2);
}

// A row whose right edge is no whole number of 16 bits is drawn and leaves the edge as it was.
void TestPeintEntete::unBordDroitHorsDeMesure()
{
    PageDeTest page;
    PoseLogo(page, 2);
    page.PoseEntete({Rang(0, u"Docteur"_s), Rang(1, u"trop loin"_s, 32760), Rang(2, u"Adresse"_s)});
    Surface face(Cible::Depart, 200, 120);
    const page::Dessin dessin = page.PeintEntete(face);
    const double bord = std::nearbyint(MesureLargeur(u"Adresse"_s, {}) * kTwipsParMillimetre);
    QCOMPARE(ImageDe(dessin).value().X, (bord + 400) / kTwipsParMillimetre + 2);
}

void TestPeintEntete::leLogoInactifNeSePosePas()
{
    PageDeTest page;
    PoseLogo(page, 1);
    page.Reglages.Options.LogoActif = 0;
    page.PoseEntete({Rang(0, u"Docteur"_s)});
    QVERIFY(!ImageDe(SurPapier(page)).has_value());
    QCOMPARE(Trouve(SurPapier(page), u"Docteur"_s).X, 10.0);
}

void TestPeintEntete::laFaceSansMedecinNAQueSonFond_data()
{
    QTest::addColumn<bool>("travail");
    QTest::addColumn<bool>("medecin");
    QTest::newRow("sans médecin") << true << false;
    QTest::newRow("sans dossier") << false << true;
}

void TestPeintEntete::laFaceSansMedecinNAQueSonFond()
{
    QFETCH(bool, travail);
    QFETCH(bool, medecin);
    PageDeTest page;
    page.AvecTravail = travail;
    page.AvecMedecin = medecin;
    page.PoseEntete({Rang(0, u"Docteur"_s)});
    Surface face(Cible::Depart, 200, 120);
    const page::Dessin dessin = page.PeintEntete(face);
    QVERIFY(Mots(dessin).isEmpty());
    QVERIFY(!support::Traits(dessin).isEmpty());
}

void TestPeintEntete::laFaceEnTwips()
{
    PageDeTest page;
    page.Reglages.Look.CouleurEntete = page::Rvb(255, 0, 0);
    page.PoseEntete({Rang(0, u"Docteur"_s, 567)});
    Surface face(Cible::Depart, 200, 120);
    page.PeintEntete(face);
    const page::ItemTexte docteur = Trouve(page.PeintEntete(face), u"Docteur"_s); // a second time: no trace
    QCOMPARE(Textes(face.Resultat()).size(), 1);
    QCOMPARE(docteur.X, (400 + 567) / kTwipsParMillimetre);
    QCOMPARE(docteur.Y, 1200 / kTwipsParMillimetre);
    QCOMPARE(docteur.Encre, page::Rvb(0, 0, 64));
    QCOMPARE(face.ScaleMode(), page::Echelle::Twips);
    QCOMPARE(face.ScaleLeft(), 0.0);
}

void TestPeintEntete::leLogoAGaucheDeLaFace()
{
    PageDeTest page;
    PoseLogo(page, 1);
    page.PoseEntete({Rang(0, u"Docteur"_s)});
    Surface face(Cible::Depart, 200, 120);
    const page::Dessin dessin = page.PeintEntete(face);
    QCOMPARE(Place(ImageDe(dessin).value()), QRectF(1 + 2, 1500 / kTwipsParMillimetre + 3, 25, 15));
    QCOMPARE(Trouve(dessin, u"Docteur"_s).X, 25.0);
}

void TestPeintEntete::leLogoADroiteDeLaFace()
{
    PageDeTest page;
    PoseLogo(page, 2);
    page.PoseEntete({Rang(0, u"Docteur NEIBRE"_s)});
    Surface face(Cible::Depart, 200, 120);
    const page::Dessin dessin = page.PeintEntete(face);
    const double bord = std::nearbyint(MesureLargeur(u"Docteur NEIBRE"_s, {}) * kTwipsParMillimetre);
    QCOMPARE(Place(ImageDe(dessin).value()),
             QRectF((bord + 400) / kTwipsParMillimetre + 2, 1500 / kTwipsParMillimetre + 3, 25, 15));
}

void TestPeintEntete::uneAutreSurfaceGardeSonEchelle()
{
    PageDeTest page;
    PoseLogo(page, 1);
    page.Reglages.Look.CouleurEntete = page::Rvb(9, 8, 7);
    page.PoseEntete({Rang(0, u"Docteur"_s, 6)});
    Surface autre(Cible::Autre, 160, 60);
    autre.ScaleLeft(-4);
    autre.Print(u"reste d'avant"_s);
    const page::Dessin dessin = page.PeintEntete(autre);
    QCOMPARE(Mots(dessin), QStringList{u"Docteur"_s});
    QVERIFY(!ImageDe(dessin).has_value());
    QCOMPARE(QPointF(Trouve(dessin, u"Docteur"_s).X, Trouve(dessin, u"Docteur"_s).Y), QPointF(10, 3));
    QCOMPARE(Trouve(dessin, u"Docteur"_s).Encre, page::Rvb(9, 8, 7));
}

QTEST_MAIN(TestPeintEntete)
#include "test_peint_entete.moc"
