#include "BanqueDeTest.h"
#include "PosteReel.h"

#include "drugbank/AdresseDocument.h"
#include "drugbank/PageDocument.h"

#include <QRandomGenerator>
#include <QTest>
#include <QUrl>

using drugbank::Pack;

/// The library over the published files, and over the project's own where those do not stand.
class TestBibliothequeReelle : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void connaitLesMedicaments();
    void recherchesAuHasard();
    void ordonnancesAuHasard();
    void pagesQueLaVueMontre();

private:
    support::PosteReel poste_;
};

void TestBibliothequeReelle::connaitLesMedicaments()
{
    if (!support::DonneesReelles::Presentes()) {
        QSKIP("the public files do not stand beside the project");
    }
    drugbank::RequetesBanque& requetes = *poste_.Poste->Requetes;
    const auto premier = [&](const char* nom) {
        return requetes.RecherchePacks(QString::fromUtf8(nom), 64).value(0);
    };
    const Pack doliprane = premier("doliprane 1000 comp");
    QVERIFY(doliprane.Prix > 0);
    const QString page =
        QString::fromUtf8(common::LitFichier(QUrl(requetes.Monographie(doliprane.Id)).toLocalFile()));
    QVERIFY(page.contains(QStringLiteral("PARACÉTAMOL")));
    QCOMPARE(requetes.NomDCI(doliprane.Produit), QStringLiteral("PARACÉTAMOL"));
    QVERIFY(requetes.Generiques(premier("amlodipine").Produit).size() > 20);
    const QString rapport =
        requetes.Interactions({premier("coumadine 5").Produit, premier("daktarin gel buccal").Produit}, 3);
    QVERIFY2(rapport.contains(QStringLiteral(" Association contre-indiquée")), qPrintable(rapport));
    QVERIFY(rapport.contains(
        QStringLiteral("Source : ANSM, Thésaurus des interactions médicamenteuses, septembre 2023")));
}

/// Questions of every kind, with a fixed seed: each answers at once with packs that are whole.
void TestBibliothequeReelle::recherchesAuHasard()
{
    const QString lettres = QStringLiteral("aeiourstnlmdpcézœ 0125,./'-%&µ\u00a0\u0416");
    QRandomGenerator hasard(20260519);
    drugbank::RequetesBanque& requetes = *poste_.Poste->Requetes;
    qsizetype trouves = 0;
    QString nom = QStringLiteral("PARACETAMOL 500 mg, comprimé");
    for (int i = 0; i < 10'000; ++i) {
        QString question;
        if (i % 3 == 0) {
            question = nom.mid(hasard.bounded(int(nom.size())), 1 + hasard.bounded(12));
        } else {
            for (int j = hasard.bounded(i % 100 == 1 ? 400 : 8); j >= 0; --j) {
                question += lettres[hasard.bounded(int(lettres.size()))];
            }
        }
        const QList<Pack> packs = requetes.RecherchePacks(question, i % 2 ? 64 : 255);
        QVERIFY(packs.size() <= 50);
        for (const Pack& pack : packs) {
            QVERIFY(!pack.Nom.isEmpty() && pack.Id > 0 && pack.Produit > 0 && pack.Prix >= 0 &&
                    pack.Cip.size() == 13);
        }
        if (!packs.isEmpty()) {
            nom = packs[hasard.bounded(int(packs.size()))].Nom;
            QCOMPARE(requetes.ProduitDuCip(packs.first().Cip), packs.first().Produit);
        }
        trouves += packs.size();
    }
    QVERIFY2(trouves > 10'000, qPrintable(QString::number(trouves)));
}

/// Every product of a prescription is either checked whole or named with its reason; the order of the lines
/// changes nothing of what is found.
void TestBibliothequeReelle::ordonnancesAuHasard()
{
    QRandomGenerator hasard(20260519);
    drugbank::RequetesBanque& requetes = *poste_.Poste->Requetes;
    qsizetype couples = 0;
    for (int i = 0; i < 40; ++i) {
        QList<qint32> produits;
        for (int j = 0; j < 20; ++j) {
            const QString lettre(QChar(u'a' + hasard.bounded(26)));
            const QList<Pack> packs = requetes.RecherchePacks(lettre, 64);
            if (!packs.isEmpty()) {
                produits.append(packs[hasard.bounded(int(packs.size()))].Produit);
            }
        }
        const QString rapport = requetes.Interactions(produits, i % 4);
        std::reverse(produits.begin(), produits.end());
        const QString inverse = requetes.Interactions(produits, i % 4);
        const QString bloc = QStringLiteral("<<<<<");
        QCOMPARE(rapport.count(bloc), inverse.count(bloc));
        QCOMPARE(support::Inconnus(rapport).size(), support::Inconnus(inverse).size());
        couples += rapport.count(bloc);
    }
    QVERIFY(couples > 0);
}

/// The program's view takes the address, and shows each page as a page: some are long, none is too much.
void TestBibliothequeReelle::pagesQueLaVueMontre()
{
    drugbank::RequetesBanque& requetes = *poste_.Poste->Requetes;
    int pages = 0;
    qint64 plusLongue = 0;
    for (char16_t a = u'a'; a <= u'z'; ++a) {
        for (char16_t b = u'a'; b <= u'z'; b += 5) {
            const QList<Pack> packs = requetes.RecherchePacks(QString(QChar(a)) + QChar(b), 64);
            for (const Pack& pack : packs.first(qMin<qsizetype>(3, packs.size()))) {
                const QUrl adresse = drugbank::AdresseDepuisTexte(requetes.Monographie(pack.Id));
                QCOMPARE(drugbank::SortDeLAdresse(adresse), drugbank::Sort::Fichier);
                const drugbank::Recu recu = drugbank::LitLeFichier(adresse, drugbank::kPageMaximum);
                QVERIFY2(recu.Manque.isEmpty(), qPrintable(recu.Manque));
                const QString html = drugbank::HtmlDeLaPage(recu.Octets);
                QVERIFY2(html.contains(QStringLiteral("</h1>")) && html.contains(QStringLiteral("</table>")),
                         qPrintable(pack.Nom));
                plusLongue = qMax(plusLongue, recu.Octets.size());
                ++pages;
            }
        }
    }
    QVERIFY(pages > 20);
    QVERIFY(plusLongue < 1'000'000);
}

QTEST_GUILESS_MAIN(TestBibliothequeReelle)
#include "test_bibliotheque_reelle.moc"
