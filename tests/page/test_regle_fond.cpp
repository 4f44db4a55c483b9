#include "support/PageDeTest.h"

#include <QTest>

using namespace Qt::StringLiterals;
using page::Cible;
using page::kPixelsParMillimetre;
using page::Surface;
using support::Textes;
using support::Traits;

class TestRegleFond : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void laRegleMarqueChaqueCentimetre();
    void lesDegresDuFond();
    void leFondAToutesLesHauteurs();
    void leFondHorizontal();
    void leFondDUneFenetreMinuscule();
    void leFondRendLaCouleurEtLesTwips();
};

void TestRegleFond::laRegleMarqueChaqueCentimetre()
{
    Surface regle(Cible::Autre, 230, 8);
    page::PeintRegle(regle);
    const auto textes = Textes(regle.Resultat());
    QCOMPARE(textes.size(), 43);
    for (int centimetre = 1; centimetre <= 21; ++centimetre) {
        const page::ItemTexte trait = textes[2 * centimetre - 2];
        const page::ItemTexte nombre = textes[2 * centimetre - 1];
        QCOMPARE(trait.Texte, u"|"_s);
        QCOMPARE(trait.Police.Taille, 6.0F);
        QVERIFY(qAbs(trait.X - (10 * centimetre - 5)) < 1e-9);
        QCOMPARE(nombre.Texte.trimmed(), QString::number(centimetre));
        QCOMPARE(nombre.Police.Taille, 8.0F);
        QVERIFY(qAbs(nombre.X - (10 * centimetre - (centimetre > 9 ? 1 : 0))) < 1e-9);
        QCOMPARE(nombre.Y + trait.Y, 0.0);
    }
    QCOMPARE(textes.constLast().Texte, u"|"_s);
    QVERIFY(qAbs(textes.constLast().X - 215) < 1e-9);
}

// 100 pixels high, of which 10 and 20 are left out: 70 steps.
void TestRegleFond::lesDegresDuFond()
{
    Surface face(Cible::Depart, 50, 100 / kPixelsParMillimetre);
    page::PeintFond(face, 0, 70, 255, 140, 0, 255, 10, 20, true);
    const auto traits = Traits(face.Resultat());
    QCOMPARE(traits.size(), 71);
    QCOMPARE(traits[0].Encre, page::Rvb(2, 69, 255)); // the first line is one step away already
    QCOMPARE(traits[69].Encre, page::Rvb(140, 0, 255));
    QCOMPARE(traits[70].Encre, page::Rvb(142, 0, 255)); // held within a colour's range
    QVERIFY(qAbs(traits[0].Y * kPixelsParMillimetre - 10) < 1e-9);
    QVERIFY(qAbs(traits[70].Y * kPixelsParMillimetre - 80) < 1e-9);
    QCOMPARE(traits[0].X, 0.0);
    QCOMPARE(traits[0].X2, 50.0);
    QCOMPARE(traits[0].Epaisseur, 1);
}

void TestRegleFond::leFondAToutesLesHauteurs()
{
    for (int hauteur = 40; hauteur < 1200; ++hauteur) {
        Surface face(Cible::Depart, 50, hauteur / kPixelsParMillimetre);
        page::PeintFond(face, 255, 255, 255, 222, 235, 250, 15, 18, true);
        QCOMPARE(Traits(face.Resultat()).size(), hauteur - 15 - 18 + 1);
    }
}

void TestRegleFond::leFondHorizontal()
{
    Surface face(Cible::Autre, 100 / kPixelsParMillimetre, 40);
    page::PeintFond(face, 0, 0, 0, 100, 100, 100, 0, 0, false);
    const auto traits = Traits(face.Resultat());
    QCOMPARE(traits.size(), 101);
    QCOMPARE(traits[50].X, traits[50].X2);
    QCOMPARE(traits[50].Y2, 40.0);
    QCOMPARE(traits[49].Encre, page::Rvb(50, 50, 50));
}

void TestRegleFond::leFondDUneFenetreMinuscule()
{
    Surface face(Cible::Depart, 5, 5);
    page::PeintFond(face, 255, 255, 255, 222, 235, 250, 15, 18, true);
    QVERIFY(Traits(face.Resultat()).isEmpty());
}

void TestRegleFond::leFondRendLaCouleurEtLesTwips()
{
    Surface face(Cible::Depart, 50, 50);
    face.ForeColor(page::Rvb(1, 2, 3));
    page::PeintFond(face, 255, 255, 255, 222, 235, 250, 15, 18, true);
    QCOMPARE(face.ForeColor(), page::Rvb(1, 2, 3));
    QCOMPARE(face.ScaleMode(), page::Echelle::Twips);
}

QTEST_MAIN(TestRegleFond)
#include "test_regle_fond.moc"
