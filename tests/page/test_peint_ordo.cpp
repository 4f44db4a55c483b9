#include "support/PageDeTest.h"

#include <QTest>

using namespace Qt::StringLiterals;
using page::Cible;
using page::MesureHauteur;
using page::MesureLargeur;
using support::Mots;
using support::PageDeTest;
using support::Textes;
using support::Trouve;

namespace {

/// The pen's X 0 and Y 0 of the body by default, seen from the sheet's corner.
constexpr double kGauche = 20;
constexpr double kHaut = 100;

double Ligne(const page::Police& police = {})
{
    return MesureHauteur(police);
}

} // namespace

class TestPeintOrdo : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void uneEntree();
    void surApercuLeCorpsCommenceALaMoitie();
    void laPoliceDeChaqueTexte();
    void lesIntervalles_data();
    void lesIntervalles();
    void leDernierIntervalleSuitAussiLaDerniereEntree();
    void sautTitrePoso();
    void titreCentre();
    void titreCentreEnA5();
    void lesSautsDeLigne_data();
    void lesSautsDeLigne();
    void titreVide();
    void laNumerotationTraverseLesZones();
    void lOrdreEstCeluiDesLignes();
    void unIndiceHorsDuTableauNePeintRien();
    void sansALDLaZone2NEstPasLue();
    void lesTitresDeZone();
    void laZone2VideGardeSonTitre();
    void lesTitresDeZoneAvecHauteurPersonnelle();
    void unePageEntiere();
};

void TestPeintOrdo::uneEntree()
{
    PageDeTest page;
    page.Ajoute1(u"DOLIPRANE 1 000 mg"_s, u"1 matin* et soir"_s);
    const page::Dessin dessin = page.PeintCorps();
    QCOMPARE(Mots(dessin), (QStringList{u"DOLIPRANE 1 000 mg"_s, u"1"_s, u"matin"_s, u"et"_s, u"soir"_s}));
    const auto textes = Textes(dessin);
    QCOMPARE(QPointF(textes[0].X, textes[0].Y), QPointF(kGauche, kHaut));
    QCOMPARE(QPointF(textes[1].X, textes[1].Y), QPointF(kGauche, kHaut + Ligne()));
    const double blanc = MesureLargeur(u" "_s, {});
    QCOMPARE(textes[2].X, kGauche + MesureLargeur(u"1"_s, {}) + blanc);
    QCOMPARE(textes[3].X, textes[2].X + MesureLargeur(u"matin"_s, {.Gras = true}) + blanc);
}

void TestPeintOrdo::surApercuLeCorpsCommenceALaMoitie()
{
    PageDeTest page;
    page.Ajoute1(u"DOLIPRANE"_s);
    QCOMPARE(Textes(page.PeintCorps(Cible::Apercu))[0].Y, kHaut / 2);
    page.Reglages.Marges.MargeHauteEntete = 30; // moves what is placed by number, not the body
    QCOMPARE(Textes(page.PeintCorps(Cible::Apercu))[0].Y, kHaut / 2);
}

void TestPeintOrdo::laPoliceDeChaqueTexte()
{
    PageDeTest page;
    page.Reglages.Look.Titre = {.Nom = u"Times New Roman"_s, .Taille = 12, .Gras = true};
    page.Reglages.Look.Poso = {.Taille = 11, .Italique = true};
    page.Ajoute1(u"A"_s, u"un deux* trois£ quatre$"_s);
    const auto textes = Textes(page.PeintCorps());
    QCOMPARE(textes[0].Police, page.Reglages.Look.Titre);
    QCOMPARE(textes[1].Police, page.Reglages.Look.Poso);
    QCOMPARE(textes[2].Police, (page::Police{u"Arial"_s, 11, true, true, false}));
    QCOMPARE(textes[3].Police, page.Reglages.Look.Poso);
    QCOMPARE(textes[4].Police, (page::Police{u"Arial"_s, 11, false, true, true}));
}

void TestPeintOrdo::lesIntervalles_data()
{
    QTest::addColumn<int>("sauts");
    QTest::addColumn<bool>("personnalise");
    QTest::addColumn<float>("hauteur");
    QTest::newRow("un") << 1 << false << 0.0F;
    QTest::newRow("deux") << 2 << false << 7.0F;
    QTest::newRow("quatre") << 4 << false << 0.0F;
    QTest::newRow("un de 3,5 mm") << 1 << true << 3.5F;
    QTest::newRow("trois de 3,5 mm") << 3 << true << 3.5F;
}

void TestPeintOrdo::lesIntervalles()
{
    QFETCH(int, sauts);
    QFETCH(bool, personnalise);
    QFETCH(float, hauteur);
    PageDeTest page;
    page.Reglages.Options.SautsPrescription = static_cast<quint8>(sauts);
    page.Reglages.Options.SautPersonnalise = personnalise;
    page.Reglages.Marges.HauteurSaut = hauteur;
    page.Ajoute1(u"PREMIER"_s, u"une ligne"_s);
    page.Ajoute1(u"SECOND"_s);
    const double pas = personnalise ? hauteur : Ligne();
    QCOMPARE(Trouve(page.PeintCorps(), u"SECOND"_s).Y, kHaut + 2 * Ligne() + sauts * pas);
}

// The gap behind the last entry is seen in the place of the second heading's rule.
void TestPeintOrdo::leDernierIntervalleSuitAussiLaDerniereEntree()
{
    PageDeTest page;
    page.Ordonnance.ChkALD = 1;
    const double sansEntree = support::Traits(page.PeintCorps())[2].Y;
    page.Reglages.Options.SautsPrescription = 3;
    page.Ajoute1(u"SEUL"_s, u"une ligne"_s);
    const double avecEntree = support::Traits(page.PeintCorps())[2].Y;
    // Without an entry the blank line and the gap stand in the heading's own font.
    const double correction = Ligne() - Ligne({.Taille = 9});
    QCOMPARE(avecEntree, sansEntree + 5 * Ligne() + correction);
}

void TestPeintOrdo::sautTitrePoso()
{
    PageDeTest page;
    page.Reglages.Options.SautTitrePoso = 1;
    page.Reglages.Look.Titre.Taille = 14;
    page.Ajoute1(u"TITRE"_s, u"poso"_s);
    QCOMPARE(Trouve(page.PeintCorps(), u"poso"_s).Y, kHaut + 2 * Ligne({.Taille = 14}));
}

void TestPeintOrdo::titreCentre()
{
    PageDeTest page;
    page.Ajoute1(u"#TITRE#"_s, u"poso"_s);
    const page::Dessin dessin = page.PeintCorps();
    const double gauche = 105 - MesureLargeur(u"#TITRE#"_s, {}) / 2;
    QCOMPARE(Trouve(dessin, u"TITRE"_s).X, gauche);
    QCOMPARE(Trouve(dessin, u"poso"_s).X, gauche);
}

void TestPeintOrdo::titreCentreEnA5()
{
    PageDeTest page;
    page.Reglages.Options.FormatA4 = 0;
    page.Reglages.Marges.MargeGaucheOrdo = 5;
    page.Ajoute1(u"#TITRE"_s);
    QCOMPARE(Trouve(page.PeintCorps(), u"TITRE"_s).X, 105 - MesureLargeur(u"#TITRE"_s, {}) / 2);
}

void TestPeintOrdo::lesSautsDeLigne_data()
{
    QTest::addColumn<QString>("titre");
    QTest::newRow("##") << u"##"_s;
    QTest::newRow("#") << u"#"_s;
}

void TestPeintOrdo::lesSautsDeLigne()
{
    QFETCH(QString, titre);
    PageDeTest page;
    page.Reglages.Options.IncrementeMedicaments = 1;
    page.Reglages.Options.SautsPrescription = 1;
    page.Ajoute1(titre);
    page.Ajoute1(u"SUITE"_s);
    const page::Dessin dessin = page.PeintCorps();
    QCOMPARE(Mots(dessin), (QStringList{u"1- "_s, u"SUITE"_s}));
    QCOMPARE(Trouve(dessin, u"SUITE"_s).Y, kHaut + 3 * Ligne());
    QCOMPARE(page.Ordonnance.LigneJournal, u"20/11/2026*MARTIN  Paul*20/03/1953*##*SUITE"_s);
}

void TestPeintOrdo::titreVide()
{
    PageDeTest page;
    page.Reglages.Options.IncrementeMedicaments = 1;
    page.Ajoute1(QString(), u"poso"_s);
    const page::Dessin dessin = page.PeintCorps();
    QCOMPARE(Mots(dessin), QStringList{u"poso"_s});
    QCOMPARE(Textes(dessin)[0].Y, kHaut);
}

void TestPeintOrdo::laNumerotationTraverseLesZones()
{
    PageDeTest page;
    page.Ordonnance.ChkALD = 1;
    page.Reglages.Options.IncrementeMedicaments = 1;
    page.Ajoute1(u"UN"_s);
    page.Ajoute1(u"A renouveler 2 fois#"_s);
    page.Ajoute1(u"#DEUX"_s);
    page.Ajoute2(u"TROIS"_s);
    const page::Dessin dessin = page.PeintCorps();
    QStringList numeros;
    for (const QString& mot : Mots(dessin)) {
        if (mot.endsWith(u"- "_s)) {
            numeros.append(mot);
        }
    }
    QCOMPARE(numeros, (QStringList{u"1- "_s, u"2- "_s, u"3- "_s}));
    QCOMPARE(Trouve(dessin, u"1- "_s).X, kGauche);
    QCOMPARE(Trouve(dessin, u"UN"_s).X, kGauche + MesureLargeur(u"1- "_s, {}));
    QCOMPARE(Trouve(dessin, u"2- "_s).X, 105 - MesureLargeur(u"#DEUX"_s, {}) / 2);
}

void TestPeintOrdo::lOrdreEstCeluiDesLignes()
{
    PageDeTest page;
    page.Ajoute1(u"A"_s);
    page.Ajoute1(u"B"_s);
    page.Ajoute1(u"C"_s);
    page.Ordonnance.LstChoix1.Deplace(2, 1);
    page.Ordonnance.LstChoix1.Retire(0);
    QCOMPARE(Mots(page.PeintCorps()), (QStringList{u"C"_s, u"B"_s}));
}

void TestPeintOrdo::unIndiceHorsDuTableauNePeintRien()
{
    PageDeTest page;
    page.Ordonnance.LstChoix1.Ajoute({u"  A"_s, 7});
    page.Ordonnance.LstChoix1.Ajoute({u"  B"_s, -1});
    QVERIFY(Mots(page.PeintCorps()).isEmpty());
}

void TestPeintOrdo::sansALDLaZone2NEstPasLue()
{
    PageDeTest page;
    page.Ajoute1(u"A"_s);
    page.Ajoute2(u"B"_s);
    const page::Dessin dessin = page.PeintCorps();
    QCOMPARE(Mots(dessin), QStringList{u"A"_s});
    QVERIFY(support::Traits(dessin).isEmpty());
}

void TestPeintOrdo::lesTitresDeZone()
{
    PageDeTest page;
    page.Ordonnance.ChkALD = 1;
    page.Ajoute1(u"A"_s);
    page.Ajoute2(u"B"_s);
    page.Reglages.Options.SautsPrescription = 1;
    const page::Dessin dessin = page.PeintCorps();
    const page::Police gras{.Taille = 9, .Gras = true};
    const page::Police maigre{.Taille = 9};
    const QString titre = u"Prescriptions relatives au traitement de l'affection de longue durée reconnue "
                          "(liste ou hors liste)"_s;
    const page::ItemTexte premier = Trouve(dessin, titre);
    QCOMPARE(premier.Police, gras);
    QCOMPARE(premier.X, 105 - MesureLargeur(titre, gras) / 2);
    QCOMPARE(premier.Y, kHaut + Ligne(gras));
    QCOMPARE(Trouve(dessin, u"(AFFECTION EXONERANTE)"_s).Police, maigre);
    QCOMPARE(Trouve(dessin, u"(AFFECTION EXONERANTE)"_s).Y, kHaut + 2 * Ligne(gras));
    const auto traits = support::Traits(dessin);
    QCOMPARE(traits.size(), 4);
    for (const page::ItemTrait& trait : traits) {
        QCOMPARE(QPointF(trait.X, trait.X2), QPointF(10, 200));
        QCOMPARE(trait.Epaisseur, 2);
        QCOMPARE(trait.Encre, page::kNoir);
    }
    QCOMPARE(traits[0].Y, kHaut);
    QCOMPARE(traits[1].Y, kHaut + 4 * Ligne(maigre));
    const double corps = kHaut + 6 * Ligne(maigre);
    QCOMPARE(Trouve(dessin, u"A"_s).Y, corps);
    QCOMPARE(Trouve(dessin, u"A"_s).X, kGauche);
    // Behind A: its posology's line, one gap, the blank line; then the second heading's own gap.
    const double second = corps + 4 * Ligne() + Ligne(gras);
    QCOMPARE(traits[2].Y, second);
    const page::ItemTexte sansRapport =
        Trouve(dessin, u"Prescriptions SANS RAPPORT avec l'affection de longue durée"_s);
    QCOMPARE(sansRapport.Y, second + Ligne(gras));
    QCOMPARE(Trouve(dessin, u"(MALADIES INTERCURRENTES)"_s).Police, maigre);
    QCOMPARE(Trouve(dessin, u"B"_s).Y, second + 6 * Ligne(maigre));
    QCOMPARE(Trouve(dessin, u"B"_s).X, kGauche);
}

void TestPeintOrdo::laZone2VideGardeSonTitre()
{
    PageDeTest page;
    page.Ordonnance.ChkALD = 1;
    page.Reglages.Options.FormatA4 = 0; // the rules run past the narrow page
    page.Ajoute1(u"A"_s);
    const page::Dessin dessin = page.PeintCorps();
    Trouve(dessin, u"(MALADIES INTERCURRENTES)"_s);
    QCOMPARE(support::Traits(dessin)[3].X2, 200.0);
}

void TestPeintOrdo::lesTitresDeZoneAvecHauteurPersonnelle()
{
    PageDeTest page;
    page.Ordonnance.ChkALD = 1;
    page.Reglages.Options.SautPersonnalise = 1;
    page.Reglages.Marges.HauteurSaut = 2;
    page.Ajoute1(u"A"_s);
    QCOMPARE(Trouve(page.PeintCorps(), u"A"_s).Y, kHaut + 5 * Ligne({.Taille = 9}) + 2);
}

void TestPeintOrdo::unePageEntiere()
{
    PageDeTest page;
    page.Ordonnance.ChkALD = 1;
    page.Ordonnance.NbMedZone1 = 2;
    page.Ordonnance.NbMedZone2 = 1;
    page.Reglages.Options.IncrementeMedicaments = page.Reglages.Options.TotalMedicaments = 1;
    page.Reglages.Look.Titre = {.Taille = 11, .Gras = true};
    page.Patient.PoidsPatient = u"72,5"_s;
    page.PoseEntete(
        {{.NumLigne = 0, .Texte = u"Docteur NEIBRE*"_s, .Police = {.Taille = 14, .Gras = true}},
         {.NumLigne = 1, .Texte = u", généraliste$"_s, .Police = {.Italique = true}},
         {.NumLigne = 9, .Texte = u"*"_s, .Police = {}},
         {.NumLigne = 10, .Texte = u"12 rue des Lilas"_s, .Police = {}, .Espaces = 5},
         {.NumLigne = 22, .Texte = u"Membre d'une association agréée.\r\n"_s, .Police = {.Taille = 8}}});
    page.Reglages.Look.CouleurEntete = page::Rvb(0, 0, 128);
    page.Ajoute1(
        u"DOLIPRANE 1 000 mg cp : B/8"_s,
        u"1 comprimé matin* et soir$ à avaler avec un grand verre d'eau au milieu du repas, sans dépasser "
        "quatre£ comprimés par jour"_s);
    page.Ajoute1(u"##"_s);
    page.Ajoute1(u"#LEVOTHYROX 75 µg cp"_s, u"1 le matin*$ à jeun"_s);
    page.Ajoute1(u"#QSP 3 mois#"_s);
    page.Ajoute2(u"SPASFON cp"_s, u"2 cp\r\nen cas de douleur*"_s);
    const page::Dessin feuille = page.PeintFeuille();
    QCOMPARE(support::Obtenues(feuille), support::Attendues(u"feuille.txt"_s, feuille));
}

QTEST_MAIN(TestPeintOrdo)
#include "test_peint_ordo.moc"
