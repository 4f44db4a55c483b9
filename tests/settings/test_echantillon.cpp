#include "page/Mesure.h"
#include "settings/Echantillon.h"
#include "support/PageDeTest.h"

#include <QFile>
#include <QTest>

using namespace Qt::StringLiterals;
using settings::Reglages;

namespace {

Reglages ReglagesEssai()
{
    Reglages reglages;
    reglages.Look.Titre = {.Nom = u"Arial"_s, .Taille = 11, .Gras = true};
    reglages.Look.Poso = {.Nom = u"Times New Roman"_s, .Taille = 10, .Italique = true};
    reglages.Options.SautsPrescription = 1;
    return reglages;
}

page::Dessin Peint(const Reglages& reglages)
{
    page::Surface cible(page::Cible::Autre, 105, 48);
    settings::PeintEchantillon(cible, reglages);
    return cible.Resultat();
}

/// From the first posology down to the second title.
double Intervalle(const Reglages& reglages)
{
    const auto textes = support::Textes(Peint(reglages));
    return textes.value(2).Y - textes.value(1).Y;
}

} // namespace

class TestEchantillon : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void leDessinAttendu();
    void laMargeDeMoitie();
    void lesSautsDeUnAQuatre();
    void leSautPersonnalise();
    void leSautEntreTitreEtPosologie();
    void peintDeuxFoisLaMemeChose();
    void lePapierPorteToutLEchantillon();
};

void TestEchantillon::leDessinAttendu()
{
    Reglages reglages = ReglagesEssai();
    reglages.Options.SautsPrescription = 2;
    QString obtenu = support::EnTexte(Peint(reglages));
    reglages.Options.SautPersonnalise = 1;
    reglages.Options.SautTitrePoso = 1;
    reglages.Marges.HauteurSaut = 2.5F;
    reglages.Marges.MargeGaucheOrdo = 15;
    obtenu += u"\n"_s + support::EnTexte(Peint(reglages));
    QFile fichier(QStringLiteral(RACINE_PROJET "/tests/settings/attendus/echantillon.txt"));
    if (qEnvironmentVariableIsSet("ECRIT_ATTENDUS")) {
        QVERIFY(fichier.open(QIODevice::WriteOnly));
        fichier.write(obtenu.toUtf8());
        return;
    }
    QVERIFY(fichier.open(QIODevice::ReadOnly));
    QCOMPARE(obtenu.split(u'\n'), QString::fromUtf8(fichier.readAll()).split(u'\n'));
}

void TestEchantillon::laMargeDeMoitie()
{
    Reglages reglages = ReglagesEssai();
    for (const float marge : {0.0F, 20.0F, 25.5F, -6.0F}) {
        reglages.Marges.MargeGaucheOrdo = marge;
        for (const page::ItemTexte& texte : support::Textes(Peint(reglages))) {
            QCOMPARE(texte.X, marge / 2.0);
        }
    }
}

// Between the two items stand the posology's own line, the gaps and the blank line above a title.
void TestEchantillon::lesSautsDeUnAQuatre()
{
    Reglages reglages = ReglagesEssai();
    const double ligne = page::MesureHauteur(reglages.Look.Poso);
    const double titre = page::MesureHauteur(reglages.Look.Titre);
    for (quint8 sauts = 1; sauts <= 4; ++sauts) {
        reglages.Options.SautsPrescription = sauts;
        QVERIFY(qAbs(Intervalle(reglages) - (ligne + sauts * ligne + titre)) < 1e-9);
    }
}

void TestEchantillon::leSautPersonnalise()
{
    Reglages reglages = ReglagesEssai();
    const double ligne = page::MesureHauteur(reglages.Look.Poso);
    const double titre = page::MesureHauteur(reglages.Look.Titre);
    reglages.Options.SautsPrescription = 3;
    reglages.Marges.HauteurSaut = 1.5F;
    QVERIFY(qAbs(Intervalle(reglages) - (4 * ligne + titre)) < 1e-9);
    reglages.Options.SautPersonnalise = 1;
    QVERIFY(qAbs(Intervalle(reglages) - (ligne + 3 * 1.5 + titre)) < 1e-9);
}

void TestEchantillon::leSautEntreTitreEtPosologie()
{
    Reglages reglages = ReglagesEssai();
    const double titre = page::MesureHauteur(reglages.Look.Titre);
    const auto ecart = [&] {
        const auto textes = support::Textes(Peint(reglages));
        return textes.value(1).Y - textes.value(0).Y;
    };
    QVERIFY(qAbs(ecart() - titre) < 1e-9);
    reglages.Options.SautTitrePoso = 1;
    QVERIFY(qAbs(ecart() - 2 * titre) < 1e-9);
}

void TestEchantillon::peintDeuxFoisLaMemeChose()
{
    page::Surface cible(page::Cible::Autre, 105, 48);
    settings::PeintEchantillon(cible, ReglagesEssai());
    settings::PeintEchantillon(cible, ReglagesEssai());
    QCOMPARE(support::EnTexte(cible.Resultat()), support::EnTexte(Peint(ReglagesEssai())));
}

void TestEchantillon::lePapierPorteToutLEchantillon()
{
    Reglages reglages = ReglagesEssai();
    const page::Dessin normal = settings::DessinEchantillon(reglages);
    QCOMPARE(QSizeF(normal.Largeur, normal.Hauteur), QSizeF(100, 56));
    reglages.Options.SautsPrescription = 4;
    reglages.Look.Poso.Taille = 20;
    const page::Dessin grand = settings::DessinEchantillon(reglages);
    for (const page::ItemTexte& texte : support::Textes(grand)) {
        QVERIFY(texte.X + texte.Largeur < grand.Largeur && texte.Y + texte.Hauteur < grand.Hauteur);
    }
    QCOMPARE(support::EnTexte(grand), support::EnTexte(Peint(reglages)));
    reglages.Options.SautPersonnalise = 1;
    reglages.Marges.HauteurSaut = 297;
    reglages.Marges.MargeGaucheOrdo = 32767;
    const page::Dessin immense = settings::DessinEchantillon(reglages);
    QCOMPARE(QSizeF(immense.Largeur, immense.Hauteur), QSizeF(210, 297));
}

QTEST_MAIN(TestEchantillon)
#include "test_echantillon.moc"
