#include "settings/windows/AtelierEntete.h"

#include "startup/messages.h"

#include <QImage>

using namespace settings;

namespace {

/// A logo at the left (1), at the right (2), or none (0).
void PoseLogo(Atelier& atelier, int position)
{
    Options& options = atelier.Etat.Reglages.Options;
    options.LogoActif = position > 0 ? 1 : 0;
    options.PositionLogo = static_cast<quint8>(position);
    options.LogoLargeur = 30;
    options.LogoHauteur = 20;
    options.FichierLogo = common::Joint(atelier.Etat.Chemins.CheminMedecin, QStringLiteral("logo.bmp"));
    QImage image(60, 40, QImage::Format_RGB32);
    image.fill(Qt::blue);
    QVERIFY(image.save(options.FichierLogo));
}

/// Rows on one line and shifted, a font, a margin and a colour, all by mouse and keys.
void Dessine(Atelier& atelier)
{
    const QStringList textes{QStringLiteral("Docteur *"), QStringLiteral("Anne NEIBRE$"),
                             QStringLiteral("12 rue des Lilas"), QStringLiteral("Tél.*"),
                             QStringLiteral("02 99 00 00 00")};
    for (int rang = 0; rang < textes.size(); ++rang) {
        atelier.Txt(rang).setText(textes.at(rang));
    }
    atelier.Txt(1).setFocus();
    atelier.Boites.AttendPolice(
        page::Police{.Nom = QStringLiteral("Courier New"), .Taille = 14, .Gras = true});
    atelier.Clique("CmdPolice");
    QTest::mouseClick(&atelier.Txt(4), Qt::LeftButton);
    atelier.Txt(4).setCursorPosition(0);
    QTest::keyClicks(&atelier.Txt(4), QString(60, QLatin1Char(' ')));
    atelier.Un<QLineEdit>("TxtMH").setText(QStringLiteral("9"));
    atelier.Boites.AttendInformation(messages::CouleurDeTouteLEntete()).AttendCouleur(page::Rvb(0, 0, 128));
    atelier.Clique("CmdCouleur");
}

} // namespace

class TestFeuilleEntete : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void ThePictureShowsWhatIsStored();
    void TheSheetFollowsTheTyping();
    void ThePrintedSheetIsThePreviewItemByItem_data();
    void ThePrintedSheetIsThePreviewItemByItem();
    void ADoubleClickPrintsOneSheet();
    void WithoutDoctorNothingIsStoredOrPrinted();
};

void TestFeuilleEntete::ThePictureShowsWhatIsStored()
{
    Atelier atelier;
    atelier.Ouvre();
    QCOMPARE(support::Mots(atelier.Feuille("PctEntete")),
             QStringList({QStringLiteral("Tel"), QStringLiteral("Fax")}));
    atelier.Txt(5).setText(QStringLiteral("Téléphone"));
    QCOMPARE(support::Mots(atelier.Feuille("PctEntete")),
             QStringList({QStringLiteral("Tel"), QStringLiteral("Fax")}));
    const page::ItemTexte premier = support::Trouve(atelier.Feuille("PctEntete"), QStringLiteral("Tel"));
    QCOMPARE(premier.X, 0.0);
    QCOMPARE(premier.Y, 3.0);
}

void TestFeuilleEntete::TheSheetFollowsTheTyping()
{
    Atelier atelier;
    atelier.Ouvre();
    atelier.Txt(0).setText(QStringLiteral("12 rue des Lilas"));
    atelier.Un<QLineEdit>("TxtMG").setText(QStringLiteral("30"));
    QVERIFY(atelier.Modifie());
    QCOMPARE(support::Trouve(atelier.Feuille("PctFeuille"), QStringLiteral("12 rue des Lilas")).X, 30.0);
    QCOMPARE(atelier.Etat.Reglages.Marges.MargeGaucheEntete, 10.0F);
    atelier.Txt(0).setText(QStringLiteral("*"));
    atelier.Un<QLineEdit>("TxtMG").setText(QStringLiteral("10"));
    QVERIFY(!atelier.Modifie());
}

void TestFeuilleEntete::ThePrintedSheetIsThePreviewItemByItem_data()
{
    QTest::addColumn<int>("ordre");
    QTest::addColumn<int>("logo");
    QTest::addColumn<bool>("aLaMarge");
    QTest::newRow("address first") << 0 << 0 << true;
    QTest::newRow("practitioner first") << 1 << 0 << true;
    QTest::newRow("a logo at the left") << 0 << 1 << false;
    QTest::newRow("a logo at the right") << 1 << 2 << false;
}

void TestFeuilleEntete::ThePrintedSheetIsThePreviewItemByItem()
{
    QFETCH(int, ordre);
    QFETCH(int, logo);
    QFETCH(bool, aLaMarge);
    Atelier atelier;
    atelier.Etat.Reglages.Options.ModeEntete = static_cast<quint8>(ordre);
    PoseLogo(atelier, logo);
    atelier.Ouvre();
    Dessine(atelier);
    const QString apercu = support::EnTexte(atelier.Feuille("PctFeuille"));
    QVERIFY(apercu.contains(QLatin1String("Anne NEIBRE")));
    atelier.Boites.AttendInformation(messages::EnteteEnregistree());
    atelier.Clique("CmdEnregistrer");
    QCOMPARE(support::EnTexte(atelier.Feuille("PctFeuille")), apercu);

    atelier.Clique("CmdImpression");
    QCOMPARE(atelier.Imprimantes.Travaux.size(), 1);
    QCOMPARE(atelier.Imprimantes.Travaux.constFirst().Imprimante, QStringLiteral("Bureau"));
    const page::Dessin papier = atelier.Imprimantes.Travaux.constFirst().Travail.Pages.constFirst();
    QCOMPARE(atelier.Imprimantes.Travaux.constFirst().Travail.Pages.size(), 1);
    // The letterhead is the sheet's beginning, on both.
    page::Dessin entete = papier;
    const page::ItemTexte pied = support::Textes(papier).constLast();
    entete.Items.removeLast();
    QVERIFY(entete.Items.size() > 4);
    QVERIFY(apercu.startsWith(support::EnTexte(entete).chopped(1)));
    // The foot stands as on a prescription, but from the letterhead's left margin.
    const page::ItemTexte surLaFeuille = support::Trouve(atelier.Feuille("PctFeuille"), pied.Texte);
    QCOMPARE(pied.Y, surLaFeuille.Y);
    QCOMPARE(pied.Y, 297.0 - 10 + 9);
    QCOMPARE(qFuzzyCompare(pied.X, 10.0), aLaMarge);
    QCOMPARE(pied.Police, surLaFeuille.Police);
    QCOMPARE(pied.Encre, page::Rvb(0, 0, 128));
    support::Capture(*atelier.Fenetre, QStringLiteral("entete_dessinee"));
}

void TestFeuilleEntete::ADoubleClickPrintsOneSheet()
{
    Atelier atelier;
    atelier.Ouvre();
    auto& bouton = atelier.Un<QPushButton>("CmdImpression");
    QTest::mouseClick(&bouton, Qt::LeftButton);
    QTest::mouseDClick(&bouton, Qt::LeftButton);
    QTest::mouseRelease(&bouton, Qt::LeftButton);
    QCOMPARE(atelier.Imprimantes.Travaux.size(), 1);
}

void TestFeuilleEntete::WithoutDoctorNothingIsStoredOrPrinted()
{
    Atelier atelier;
    atelier.Etat.Chemins.CheminMedecin.clear();
    atelier.Ouvre();
    QCOMPARE(atelier.Feuille("PctEntete").Items.size(), qsizetype(0));
    atelier.Boites.AttendInformation(startup::messages::ChoisissezMedecin());
    atelier.Clique("CmdEnregistrer");
    atelier.Boites.AttendInformation(startup::messages::ChoisissezMedecin());
    atelier.Clique("CmdImpression");
    QVERIFY(atelier.Imprimantes.Travaux.isEmpty());
}

int main(int nombre, char** arguments)
{
    return support::LanceTest<TestFeuilleEntete>(nombre, arguments);
}

#include "test_feuille_entete.moc"
