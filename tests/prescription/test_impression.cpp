#include "common/Erreur.h"
#include "prescription/Envoi.h"
#include "prescription/Feuillets.h"
#include "prescription/Impression.h"
#include "prescription/Journal.h"
#include "prescription/messages.h"

#include "support/Cabinet.h"

#include <QDir>
#include <QTest>

using namespace prescription;

namespace {

/// A printer that has no paper.
struct ImprimantesEnPanne : support::ImprimantesFeintes
{
    void Imprime(const QString& nom, const outside::Travail& /*travail*/) override
    {
        throw common::Erreur(QStringLiteral("Plus de papier."), nom);
    }
};

QStringList Textes(const page::Dessin& dessin)
{
    QStringList textes;
    for (const page::Item& item : dessin.Items) {
        if (const auto* texte = std::get_if<page::ItemTexte>(&item)) {
            textes.append(texte->Texte);
        }
    }
    return textes;
}

const page::ItemTexte& PremierTexte(const page::Dessin& dessin)
{
    return std::get<page::ItemTexte>(dessin.Items.constFirst());
}

QString FichierJournal(const Cabinet& cabinet)
{
    return common::Joint(cabinet.Etat.Chemins.CheminMedecin, QStringLiteral("Journal_Docteur NEIBRE.log"));
}

} // namespace

class TestImpression : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void TheNumberOfSheets_data();
    void TheNumberOfSheets();
    void OneJobWithoutBlankSheet();
    void CopiesAreMarkedBeforeTheirContent();
    void TheMarkTakesItsLook();
    void AnInactiveMarkLeavesEqualCopies();
    void TheFirstJobIsAbandonedOnce();
    void TheJournalLine();
    void ThreeSheetsGiveOneLine();
    void TheJournalIsAppendedTo();
    void WithoutJournalNothingIsWritten();
    void AFailedJournalIsTold();
    void TheJournalStaysInItsTree();
    void TheJournalKeepsOneLineAPrinting();
    void AVanishedPrinterIsNamed();
    void WithoutChosenPrinterTheDefaultPrints();
    void AFailedPrintIsToldAndNotJournalled();
    void LostLinesAreAskedFor();
    void LostLinesPrintOnYes();
    void ThePdfFolderIsMade();
    void WithoutLetterheadNothingIsPrinted();
};

void TestImpression::TheNumberOfSheets_data()
{
    QTest::addColumn<int>("dup");
    QTest::addColumn<int>("tri");
    QTest::addColumn<int>("mode");
    QTest::addColumn<int>("nombre");
    QTest::newRow("single") << 0 << 0 << 0 << 1;
    QTest::newRow("duplicate") << 1 << 0 << 0 << 2;
    QTest::newRow("triplicate") << 0 << 1 << 0 << 3;
    QTest::newRow("duplicate first") << 1 << 1 << 0 << 2;
    QTest::newRow("certificate") << 1 << 0 << 1 << 1;
    QTest::newRow("back from a certificate") << 0 << 1 << 2 << 3;
}

void TestImpression::TheNumberOfSheets()
{
    QFETCH(int, dup);
    QFETCH(int, tri);
    QFETCH(int, mode);
    Ordonnance ordonnance;
    ordonnance.ChkDup = static_cast<quint8>(dup);
    ordonnance.ChkTri = static_cast<quint8>(tri);
    QTEST(static_cast<int>(NombreDeCopies(ordonnance, static_cast<quint8>(mode))), "nombre");
}

void TestImpression::OneJobWithoutBlankSheet()
{
    Cabinet cabinet;
    cabinet.Prescrit(QStringLiteral("DOLIPRANE 500 MG"));
    QVERIFY(ImprimeDocument(cabinet.Contexte));
    QCOMPARE(cabinet.Imprimantes.Travaux.size(), 1);
    const auto& tirage = cabinet.Imprimantes.Travaux.constFirst();
    QCOMPARE(tirage.Imprimante, QStringLiteral("Bureau"));
    QCOMPARE(tirage.Travail.Titre, QStringLiteral("MARTIN Paul"));
    QCOMPARE(tirage.Travail.Pages.size(), 1);
    const QStringList textes = Textes(tirage.Travail.Pages.constFirst());
    QVERIFY(textes.contains(QStringLiteral("Monsieur  MARTIN  Paul")));
    QVERIFY(textes.contains(QStringLiteral("DOLIPRANE 500 MG")));
    QVERIFY(!textes.contains(QStringLiteral("DUPLICATA")));
    QVERIFY(cabinet.Imprimantes.Abandons.isEmpty());
}

void TestImpression::CopiesAreMarkedBeforeTheirContent()
{
    Cabinet cabinet;
    cabinet.Prescrit(QStringLiteral("DOLIPRANE 500 MG"));
    cabinet.Etat.Ordonnance.ChkTri = 1;
    QVERIFY(ImprimeDocument(cabinet.Contexte));
    QCOMPARE(cabinet.Imprimantes.Travaux.size(), 1);
    const QList<page::Dessin>& pages = cabinet.Imprimantes.Travaux.constFirst().Travail.Pages;
    QCOMPARE(pages.size(), 3);
    QVERIFY(!Textes(pages.at(0)).contains(QStringLiteral("DUPLICATA")));
    for (int copie : {1, 2}) {
        const page::ItemTexte& marque = PremierTexte(pages.at(copie));
        QCOMPARE(marque.Texte, QStringLiteral("DUPLICATA"));
        QCOMPARE(marque.X, 35.0);
        QCOMPARE(marque.Y, 140.0);
        QCOMPARE(Textes(pages.at(copie)).mid(1), Textes(pages.at(0)));
    }
}

void TestImpression::TheMarkTakesItsLook()
{
    Cabinet cabinet;
    cabinet.Prescrit(QStringLiteral("DOLIPRANE 500 MG"));
    cabinet.Etat.Ordonnance.ChkDup = 1;
    cabinet.Etat.Reglages.Dupli = {.DupliPolice = QStringLiteral("Arial"),
                                   .DupliTaille = 24,
                                   .DupliItalique = 1,
                                   .DupliGras = 1,
                                   .DupliCouleur = 0x0000C8,
                                   .DupliX = 12,
                                   .DupliY = 200,
                                   .DupliActif = 1,
                                   .DupliTexte = QStringLiteral("COPIE*PATIENT")};
    QVERIFY(ImprimeDocument(cabinet.Contexte));
    const page::Dessin& copie = cabinet.Imprimantes.Travaux.constFirst().Travail.Pages.at(1);
    const page::ItemTexte& marque = PremierTexte(copie);
    QCOMPARE(marque.Texte, QStringLiteral("COPIE"));
    QCOMPARE(marque.X, 12.0);
    QCOMPARE(marque.Y, 200.0);
    QCOMPARE(marque.Police.Taille, 24.0F);
    QVERIFY(marque.Police.Gras && marque.Police.Italique && !marque.Police.Souligne);
    QCOMPARE(marque.Encre, page::Rvb(200, 0, 0));
    const auto& seconde = std::get<page::ItemTexte>(copie.Items.at(1));
    QCOMPARE(seconde.Texte, QStringLiteral("PATIENT"));
    QCOMPARE(seconde.X, marque.X);
    QCOMPARE(seconde.Y, marque.Y + marque.Hauteur);
    QVERIFY(seconde.Police == marque.Police && seconde.Encre == marque.Encre);
}

void TestImpression::AnInactiveMarkLeavesEqualCopies()
{
    Cabinet cabinet;
    cabinet.Prescrit(QStringLiteral("DOLIPRANE 500 MG"));
    cabinet.Etat.Ordonnance.ChkDup = 1;
    cabinet.Etat.Reglages.Dupli.DupliActif = 0;
    QVERIFY(ImprimeDocument(cabinet.Contexte));
    const QList<page::Dessin>& pages = cabinet.Imprimantes.Travaux.constFirst().Travail.Pages;
    QCOMPARE(pages.size(), 2);
    QCOMPARE(Textes(pages.at(0)), Textes(pages.at(1)));
}

void TestImpression::TheFirstJobIsAbandonedOnce()
{
    Cabinet cabinet;
    cabinet.Prescrit(QStringLiteral("DOLIPRANE 500 MG"));
    cabinet.Etat.Impression.EtatImprimante = 1;
    QVERIFY(ImprimeDocument(cabinet.Contexte));
    QCOMPARE(int(cabinet.Etat.Impression.EtatImprimante), 2);
    QCOMPARE(cabinet.Imprimantes.Abandons.size(), 1);
    QCOMPARE(cabinet.Imprimantes.Travaux.size(), 1);
    QCOMPARE(Textes(cabinet.Imprimantes.Abandons.constFirst().Pages.constFirst()),
             Textes(cabinet.Imprimantes.Travaux.constFirst().Travail.Pages.constFirst()));
    QVERIFY(ImprimeDocument(cabinet.Contexte));
    QCOMPARE(cabinet.Imprimantes.Abandons.size(), 1);
    QCOMPARE(cabinet.Imprimantes.Travaux.size(), 2);
}

void TestImpression::TheJournalLine()
{
    Cabinet cabinet;
    cabinet.Etat.Reglages.Options.TenirJournal = 1;
    cabinet.Etat.Patient.DateOrdo = QStringLiteral("01/01/2020");
    cabinet.Prescrit(QStringLiteral("DOLIPRANE 500 MG GÉLULE"));
    cabinet.Prescrit(QStringLiteral("A RENOUVELER 2 FOIS#"));
    QVERIFY(ImprimeDocument(cabinet.Contexte));
    QCOMPARE(common::LitFichier(FichierJournal(cabinet)),
             QByteArray("20/11/2026*MARTIN  Paul*20/03/1953*DOLIPRANE500MGG\xC9LULE*ARENOUVELER2FOIS#\n"));
}

void TestImpression::ThreeSheetsGiveOneLine()
{
    Cabinet cabinet;
    cabinet.Etat.Reglages.Options.TenirJournal = 1;
    cabinet.Etat.Ordonnance.ChkTri = 1;
    cabinet.Prescrit(QStringLiteral("ASPIRINE"));
    QVERIFY(ImprimeDocument(cabinet.Contexte));
    QCOMPARE(common::LitFichier(FichierJournal(cabinet)),
             QByteArray("20/11/2026*MARTIN  Paul*20/03/1953*ASPIRINE\n"));
}

void TestImpression::TheJournalIsAppendedTo()
{
    Cabinet cabinet;
    cabinet.Etat.Reglages.Options.TenirJournal = 1;
    QVERIFY(ImprimeDocument(cabinet.Contexte));
    cabinet.Prescrit(QStringLiteral("ASPIRINE"));
    QVERIFY(ImprimeDocument(cabinet.Contexte));
    QCOMPARE(common::LitFichier(FichierJournal(cabinet)),
             QByteArray("20/11/2026*MARTIN  Paul*20/03/1953\n"
                        "20/11/2026*MARTIN  Paul*20/03/1953*ASPIRINE\n"));
}

void TestImpression::WithoutJournalNothingIsWritten()
{
    Cabinet cabinet;
    QVERIFY(ImprimeDocument(cabinet.Contexte));
    QVERIFY(!common::FichierExiste(FichierJournal(cabinet)));
}

void TestImpression::AFailedJournalIsTold()
{
    Cabinet cabinet;
    cabinet.Etat.Reglages.Options.TenirJournal = 1;
    common::CreeDossier(FichierJournal(cabinet));
    cabinet.Boites.AttendContenant(
        outside::Genre::Stop,
        QStringLiteral("L'ordonnance est imprimée, mais elle n'a pas pu être inscrite"));
    QVERIFY(ImprimeDocument(cabinet.Contexte));
    QCOMPARE(cabinet.Imprimantes.Travaux.size(), 1);
}

void TestImpression::TheJournalStaysInItsTree()
{
    Cabinet cabinet;
    cabinet.Etat.Reglages.Options.TenirJournal = 1;
    cabinet.Etat.Medecins.NomMedecinSignature = QStringLiteral("/../../Docteur X");
    cabinet.Boites.AttendContenant(outside::Genre::Stop, QStringLiteral("ne peut pas servir de nom"));
    QVERIFY(ImprimeDocument(cabinet.Contexte));
    QVERIFY(!common::FichierExiste(cabinet.Chemin(QStringLiteral("DataVelmont/Docteur X.log"))));
}

void TestImpression::TheJournalKeepsOneLineAPrinting()
{
    Cabinet cabinet;
    TientJournal(FichierJournal(cabinet), QStringLiteral("a\r\nb\u20AC\u0416"));
    QCOMPARE(common::LitFichier(FichierJournal(cabinet)), QByteArray("a  b\x80?\n"));
}

void TestImpression::AVanishedPrinterIsNamed()
{
    Cabinet cabinet;
    cabinet.Etat.Reglages.Options.Imprimante = QStringLiteral("Laser du couloir");
    QCOMPARE(AvisImprimante(cabinet.Contexte),
             messages::ImprimanteIntrouvable(QStringLiteral("Laser du couloir"), QStringLiteral("Bureau")));
    QVERIFY(ImprimeDocument(cabinet.Contexte));
    QCOMPARE(cabinet.Imprimantes.Travaux.constFirst().Imprimante, QStringLiteral("Bureau"));
    QCOMPARE(cabinet.Etat.Reglages.Options.Imprimante, QStringLiteral("Laser du couloir"));
}

void TestImpression::WithoutChosenPrinterTheDefaultPrints()
{
    Cabinet cabinet;
    cabinet.Etat.Reglages.Options.Imprimante.clear();
    QVERIFY(ImprimeDocument(cabinet.Contexte));
    QCOMPARE(cabinet.Imprimantes.Travaux.constFirst().Imprimante, QStringLiteral("Bureau"));
}

void TestImpression::AFailedPrintIsToldAndNotJournalled()
{
    Cabinet cabinet;
    ImprimantesEnPanne enPanne;
    application::Contexte contexte =
        cabinet.Etat.Contexte({cabinet.Boites, enPanne, cabinet.Horloge, cabinet.Plateau,
                               cabinet.DemarrageSysteme, cabinet.Lanceur});
    cabinet.Etat.Reglages.Options.TenirJournal = 1;
    cabinet.Boites.AttendStop(QStringLiteral("L'impression sur « Bureau » a échoué.\nPlus de papier."));
    QVERIFY(!ImprimeDocument(contexte));
    QVERIFY(!common::FichierExiste(FichierJournal(cabinet)));
}

void TestImpression::LostLinesAreAskedFor()
{
    Cabinet cabinet;
    cabinet.Etat.Reglages.Options.TenirJournal = 1;
    cabinet.Deborde();
    cabinet.Boites.AttendContenant(outside::Genre::Question,
                                   QStringLiteral("lignes de l'ordonnance dépassent"), outside::Bouton::Non);
    QVERIFY(!ImprimeDocument(cabinet.Contexte));
    QVERIFY(cabinet.Imprimantes.Travaux.isEmpty());
    QVERIFY(!common::FichierExiste(FichierJournal(cabinet)));
}

void TestImpression::LostLinesPrintOnYes()
{
    Cabinet cabinet;
    cabinet.Etat.Impression.EtatImprimante = 1;
    cabinet.Deborde();
    cabinet.Boites.AttendContenant(outside::Genre::Question, QStringLiteral("Imprimer quand même ?"),
                                   outside::Bouton::Oui);
    QVERIFY(ImprimeDocument(cabinet.Contexte));
    QCOMPARE(cabinet.Imprimantes.Travaux.constFirst().Travail.Pages.size(), 1);
}

void TestImpression::ThePdfFolderIsMade()
{
    Cabinet cabinet;
    cabinet.Etat.Reglages.Options.Imprimante = outside::NomFichierPdf();
    QVERIFY(ImprimeDocument(cabinet.Contexte));
    const outside::Travail& travail = cabinet.Imprimantes.Travaux.constFirst().Travail;
    QCOMPARE(travail.CheminPdf, common::Joint(cabinet.Etat.Chemins.CheminTravail, QStringLiteral("PDF")));
    QVERIFY(common::DossierExiste(travail.CheminPdf));
}

void TestImpression::WithoutLetterheadNothingIsPrinted()
{
    Cabinet cabinet;
    common::EcritFichier(common::Joint(cabinet.Etat.Chemins.CheminMedecin, QStringLiteral("Ordo.mdb")),
                         "pas une base");
    cabinet.Boites.AttendContenant(outside::Genre::Stop, QStringLiteral("Ordo.mdb"));
    QVERIFY(!ImprimeDocument(cabinet.Contexte));
    QVERIFY(cabinet.Imprimantes.Travaux.isEmpty());
}

QTEST_MAIN(TestImpression)
#include "test_impression.moc"
