#include "jet/CopieJet.h"
#include "jet/PagesJet.h"

#include <QTest>

using storage::Disposition;
using support::CopieJet;
using support::DonneesJet;
using support::PagesJet;

namespace {

const QString kPetit = QStringLiteral("petit/Medoc.mdb");

QList<QVariantList> Rangees(const CopieJet& copie, const QString& table)
{
    storage::Base base(copie.Chemin(), copie.Genre(), Disposition::Telle);
    QList<QVariantList> rangees;
    storage::Jeu jeu = base.Table(table);
    for (jeu.MoveFirst(); !jeu.Fin(); jeu.MoveNext()) {
        QVariantList rangee;
        for (qsizetype i = 0; i < base.ChercheTable(table)->Colonnes.size(); ++i) {
            rangee.append(jeu.Champ(static_cast<int>(i)));
        }
        rangees.append(rangee);
    }
    return rangees;
}

} // namespace

/// Rows as the other engine leaves them when the layout of a table was changed by hand.
class TestLignesJet : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void LitUneTableQuiAPerduUneColonne();
    void LitDesLignesDAvantUneColonne();
    void RefuseUnNombreDeColonnesAbime();
    void PrendUneColonneQuePersonneNeLit();
};

void TestLignesJet::initTestCase()
{
    if (!DonneesJet::Presentes()) {
        QSKIP("the Jet files are not here");
    }
}

void TestLignesJet::LitUneTableQuiAPerduUneColonne()
{
    const CopieJet saine(kPetit);
    QCOMPARE(saine.Convertit(), QString());
    CopieJet copie(kPetit);
    PagesJet pages(copie.Contenu());
    const qsizetype patients = pages.Definitions(11, 10).constFirst();
    pages.Deux(patients + PagesJet::kRangs, 12);
    QList<qsizetype> debuts;
    pages.Lignes(patients, [&](qsizetype debut, qsizetype) { debuts.append(debut); });
    QVERIFY(debuts.size() > 20);
    for (const qsizetype debut : std::as_const(debuts)) {
        pages.Deux(debut, 12);
    }
    copie.Ecris(pages.Octets);
    QCOMPARE(copie.Convertit(), QString());
    QCOMPARE(Rangees(copie, QStringLiteral("Patients")), Rangees(saine, QStringLiteral("Patients")));
}

/// `Vidal` and `Biblio`: a row without posology loses the column.
void TestLignesJet::LitDesLignesDAvantUneColonne()
{
    const CopieJet saine(kPetit);
    QCOMPARE(saine.Convertit(), QString());
    CopieJet copie(kPetit);
    PagesJet pages(copie.Contenu());
    int courtes = 0;
    for (const qsizetype table : pages.Definitions(2, 2)) {
        QList<std::pair<qsizetype, qsizetype>> lignes;
        pages.Lignes(table, [&](qsizetype debut, qsizetype fin) { lignes.append({debut, fin}); });
        for (const auto& [debut, fin] : std::as_const(lignes)) {
            const int presentes = pages.Octets[fin];
            if ((presentes & 2) == 0) {
                pages.Deux(debut, 1);
                pages.Deux(fin - 2, 1);
                pages.Octets[fin] = static_cast<char>(presentes | 0xFE);
                ++courtes;
            }
        }
    }
    QVERIFY(courtes > 0);
    copie.Ecris(pages.Octets);
    QCOMPARE(copie.Convertit(), QString());
    for (const QString& table : {QStringLiteral("Vidal"), QStringLiteral("Biblio")}) {
        QCOMPARE(Rangees(copie, table), Rangees(saine, table));
    }
}

/// It must not pass for rows of before a column: their values would be lost.
void TestLignesJet::RefuseUnNombreDeColonnesAbime()
{
    for (const int nombre : {0, 1, 3, 10, 12, 255}) {
        CopieJet copie(kPetit);
        PagesJet pages(copie.Contenu());
        qsizetype premiere = 0;
        pages.Lignes(pages.Definitions(11, 10).constFirst(),
                     [&](qsizetype debut, qsizetype) { premiere = premiere ? premiere : debut; });
        pages.Deux(premiere, static_cast<quint16>(nombre));
        copie.Ecris(pages.Octets);
        const QString phrase = copie.Convertit();
        QVERIFY2(phrase.contains(QStringLiteral("est endommagée")), qPrintable(QString::number(nombre)));
        QVERIFY(copie.Intacte());
    }
}

/// The second column of `BddMed` as a binary one.
void TestLignesJet::PrendUneColonneQuePersonneNeLit()
{
    constexpr char kTexte = 10;
    constexpr char kBinaire = 9;
    CopieJet copie(kPetit);
    PagesJet pages(copie.Contenu());
    const qsizetype definition = pages.Definitions(6, 5).constFirst();
    // The columns stand behind the header and the indexes; this one is the second.
    constexpr qsizetype kEntete = 63;
    constexpr qsizetype kParIndex = 12;
    constexpr qsizetype kParColonne = 25;
    const qsizetype colonne = definition + kEntete + kParIndex * pages.Deux(definition + 51) + kParColonne;
    QCOMPARE(pages.Octets[colonne], kTexte);
    pages.Octets[colonne] = kBinaire;
    copie.Ecris(pages.Octets);
    QCOMPARE(copie.Convertit(), QString());
    const QList<QVariantList> rangees = Rangees(copie, QStringLiteral("BddMed"));
    QCOMPARE(rangees.size(), 40);
    QVERIFY(rangees[0][1].toByteArray().contains("desloratadine"));
    QCOMPARE(rangees[0][5].toString(), QStringLiteral("CANDÉSARTAN 75 µg, comprimé sécable"));
}

QTEST_GUILESS_MAIN(TestLignesJet)
#include "test_lignes_jet.moc"
