#include "bank/Importateur.h"
#include "drugbank/PosteBanque.h"

#include <QTest>

using namespace drugbank;
using Poste = support::PosteBanque;

namespace {

/// The real library and a bank of the project's own files beside the program.
void PoseLaVraie(Poste& poste)
{
    const QString suffixe = QFileInfo(QStringLiteral(CHEMIN_BDP)).suffix();
    QVERIFY(QFile::copy(QStringLiteral(CHEMIN_BDP),
                        poste.Chemin(QStringLiteral("programme/scriptelle-bdp.%1").arg(suffixe))));
    banque::Importe(
        {.Dossier = QStringLiteral(RACINE_PROJET "/bank/extrait"),
         .Vers = poste.Chemin(QStringLiteral("programme/banque.sqlite")),
         .Interactions = QStringLiteral(RACINE_PROJET "/bank/extrait/thesaurus/interactions.txt")});
    poste.ChoisitPublique();
}

/// The start goes on while the library loads on its own thread.
void DemarreEtAttends(Poste& poste)
{
    poste.Demarre();
    QTRY_VERIFY_WITH_TIMEOUT((poste.Horloge.Passe(2000), poste.Banque.BanqueInitialisee == 1), 20'000);
    poste.Horloge.Passe(60'000);
}

} // namespace

/// The program's session over the open bank itself.
class TestBibliothequeSeance : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void ouvreInterrogeFerme();
    void fichierAbsent();
};

void TestBibliothequeSeance::ouvreInterrogeFerme()
{
    Poste poste;
    PoseLaVraie(poste);
    poste.Charge();
    QCOMPARE(poste.Banque.DateExpirationBase, QStringLiteral("18/05/2027"));
    DemarreEtAttends(poste);
    QVERIFY(BanqueRepond(poste.Banque));
    QCOMPARE(poste.Banque.RetourInitBanque, 0);
    QVERIFY2(poste.Banque.VersionBanque.startsWith(QStringLiteral("BDP ")),
             qPrintable(poste.Banque.VersionBanque));
    QCOMPARE(poste.Banque.Acces->RecherchePacks(QStringLiteral("parac 1 000"), 64).size(), 4);
    QVERIFY(poste.Banque.Acces->Interactions({90000185, 90000213}, 0).contains(QStringLiteral("mars 2021")));
    const QUrl page(poste.Banque.Acces->Monographie(9000001));
    QVERIFY(QFile::exists(page.toLocalFile()));
    poste.Ferme();
    QVERIFY(!QFile::exists(page.toLocalFile()));
}

void TestBibliothequeSeance::fichierAbsent()
{
    Poste poste;
    PoseLaVraie(poste);
    QVERIFY(QFile::remove(poste.Chemin(QStringLiteral("programme/banque.sqlite"))));
    poste.Charge();
    DemarreEtAttends(poste);
    QVERIFY(!BanqueRepond(poste.Banque)); // never "no interaction"
    QVERIFY(!poste.Banque.MessageBanque.contains(QStringLiteral("Pharmacie initialisée")));
    poste.Ferme();
}

QTEST_GUILESS_MAIN(TestBibliothequeSeance)
#include "test_bibliotheque_seance.moc"
