#include "BanqueDeTest.h"
#include "PosteBdp.h"

#include <QTest>

using support::Inconnus;
using support::PosteBdp;

namespace {

constexpr qint32 kSimvastatine = 90000213;
constexpr qint32 kAmiodarone = 90000185;
constexpr qint32 kRamipril = 90000108;
constexpr qint32 kMethotrexate = 90000276;
constexpr qint32 kIbuprofene = 90000045;
constexpr qint32 kOmeprazole = 90000472;
constexpr qint32 kArnica = 91000008;
constexpr qint32 kCoamoxivel = 91000001;

} // namespace

class TestBibliothequeInteractions : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void interactions();
    void sourceDesInteractions();
    void niveaux();
    void produitsNonVerifies();
    void voies();
    void voiesLocales();
    void sansThesaurus();

private:
    PosteBdp poste_{support::DossierExtrait(), support::ThesaurusExtrait()};
    QString Rapport(const QList<qint32>& produits, qint32 niveau = 0)
    {
        return poste_.Requetes->Interactions(produits, niveau);
    }
};

void TestBibliothequeInteractions::init()
{
    QCOMPARE(poste_.Demarre(), 0);
}

void TestBibliothequeInteractions::cleanup()
{
    poste_.Libere();
}

void TestBibliothequeInteractions::interactions()
{
    const QString rapport = Rapport({kAmiodarone, kSimvastatine, kAmiodarone, 0});
    QCOMPARE(rapport.count(QStringLiteral("<<<<<")), 1);
    QVERIFY(rapport.startsWith(QStringLiteral(
        "        1- : AMIODARONE VELMONT 200 mg, comprimé sécable\r\n        AMIODARONE\r\n\r\n"
        "        2- : SIMVASTATINE VELMONT 20 mg, comprimé pelliculé\r\n        SIMVASTATINE\r\n")));
    QVERIFY(rapport.contains(QStringLiteral("Niveau d'interaction : Association déconseillée\r\n")));
    QVERIFY(rapport.contains(QStringLiteral("Choisir une autre statine.")));
    QVERIFY(Inconnus(rapport).isEmpty());
    QVERIFY(Rapport({kAmiodarone, kRamipril}).isEmpty());
    QVERIFY(Rapport({0}).isEmpty());
    // The highest of conditional levels, the advice whole.
    const QString conditionnelle = Rapport({kMethotrexate, kIbuprofene}, 3);
    QVERIFY(conditionnelle.contains(QStringLiteral("Niveau d'interaction :  Association contre-indiquée")));
    QVERIFY(conditionnelle.contains(QStringLiteral("Contre-indication - Précaution d'emploi")));
}

void TestBibliothequeInteractions::sourceDesInteractions()
{
    const QString source =
        QStringLiteral("Source : ANSM, Thésaurus des interactions médicamenteuses, mars 2021\r\n");
    const QString avecAvis = Rapport({kAmiodarone, kSimvastatine});
    QVERIFY2(avecAvis.contains(source), qPrintable(avecAvis));
    QVERIFY(avecAvis.indexOf(source) > avecAvis.indexOf(QStringLiteral("Commentaires sur les précautions")));
    // Without advice it stands behind the risk, and no empty heading is made for it.
    const QString sansAvis = Rapport({kAmiodarone, 90000353});
    QVERIFY(sansAvis.contains(source));
    QVERIFY(!sansAvis.contains(QStringLiteral("Commentaires sur les précautions")));
}

void TestBibliothequeInteractions::niveaux()
{
    const QList<qint32> produits = {kAmiodarone, 90000192, kSimvastatine, kMethotrexate, kIbuprofene};
    const auto gravites = [&](qint32 niveau) {
        QStringList lues;
        for (const QString& bloc :
             Rapport(produits, niveau).split(QStringLiteral("Niveau d'interaction : ")).mid(1)) {
            lues.append(bloc.section(QStringLiteral("\r\n"), 0, 0).trimmed());
        }
        return lues;
    };
    const QString ci = QStringLiteral("Association contre-indiquée");
    const QString ad = QStringLiteral("Association déconseillée");
    const QString pe = QStringLiteral("Précaution d'emploi");
    QCOMPARE(gravites(0), QStringList({ci, ad, pe}));
    QCOMPARE(gravites(1), QStringList({ci, ad, pe}));
    QCOMPARE(gravites(2), QStringList({ci, ad}));
    QCOMPARE(gravites(3), QStringList({ci}));
    QCOMPARE(gravites(-5), gravites(0));
    QCOMPARE(gravites(77), gravites(3));
}

void TestBibliothequeInteractions::produitsNonVerifies()
{
    QCOMPARE(Inconnus(Rapport({kOmeprazole, kArnica, kAmiodarone, 12, 0, 12, 90000066})),
             QStringList(
                 {QStringLiteral(
                      "OMEPRAZOLE VELMONT 20 mg, gélule gastro-résistante (non vérifié : substance inconnue "
                      "du thésaurus, OMÉPRAZOLE)"),
                  QStringLiteral(
                      "ARNICA VELMONT, degré de dilution compris entre 2CH et 30CH (non vérifié : médicament "
                      "homéopathique)"),
                  QStringLiteral("Produit 12 (non vérifié : absent de la banque)"),
                  QStringLiteral(
                      "AMOXICILLINE VELMONT 500 mg, gélule (non vérifié : substance inconnue du thésaurus, "
                      "AMOXICILLINE ANHYDRE)")}));
    poste_.Modifie(QStringLiteral("insert into thesaurus_substances(entree, code) values(1, 90060)"));
    poste_.Modifie(QStringLiteral("delete from compositions where cis = 90000143"));
    poste_.Libere();
    QCOMPARE(poste_.Demarre(), 0);
    QCOMPARE(Inconnus(Rapport({kCoamoxivel, 90000143})),
             QStringList(
                 {QStringLiteral(
                      "COAMOXIVEL 1 g/125 mg, poudre pour suspension buvable en sachet (vérifié en partie : "
                      "seule la substance ACIDE CLAVULANIQUE est vérifiée, substance inconnue du thésaurus, "
                      "AMOXICILLINE ANHYDRE)"),
                  QStringLiteral("FUROSEMIDE VELMONT 40 mg, comprimé sécable (non vérifié : composition "
                                 "absente de la banque)")}));
    poste_.Modifie(QStringLiteral("delete from thesaurus_substances where code = 90060"));
}

/// An ointment is reported, with what the document says of local routes; a tablet without.
void TestBibliothequeInteractions::voiesLocales()
{
    const QString regle =
        QStringLiteral("Le thésaurus indique : « Les voies locales ne comptent pas, sauf dans les "
                       "cas suivants :\r\n- collyres de l'essai\r\n- gouttes de l'essai »");
    QVERIFY(!Rapport({kMethotrexate, kIbuprofene}).contains(regle));
    poste_.Modifie(
        QStringLiteral("update specialites set voies = 'cutanée;ophtalmique' where cis = 90000045"));
    const QString rapport = Rapport({kMethotrexate, kIbuprofene});
    QCOMPARE(rapport.count(QStringLiteral(" : voie cutanée et ophtalmique.")), 1);
    QVERIFY2(rapport.contains(regle), qPrintable(rapport));
    QVERIFY(rapport.indexOf(regle) < rapport.indexOf(QStringLiteral("Source : ")));
    poste_.Modifie(QStringLiteral("update specialites set voies = 'cutanée;orale' where cis = 90000045"));
    QVERIFY(!Rapport({kMethotrexate, kIbuprofene}).contains(regle));
    poste_.Modifie(QStringLiteral("update specialites set voies = 'orale' where cis = 90000045"));
}

/// Some interactions name every medication taken by mouth: those that the thesaurus does not know too, never
/// what is not swallowed, and no homeopathy.
void TestBibliothequeInteractions::voies()
{
    poste_.Modifie(QStringLiteral(
        "insert into thesaurus_substances(entree, code) select id, 90033 from thesaurus_entrees "
        "where nom = 'RÉSINES CHÉLATRICES'"));
    poste_.Modifie(QStringLiteral("update specialites set voies = 'sublinguale' where cis = 90000318"));
    poste_.Modifie(QStringLiteral("update specialites set voies = 'sublinguale;orale' where cis = 91000008"));
    poste_.Libere();
    QCOMPARE(poste_.Demarre(), 0);
    const auto couples = [&](qint32 produit) {
        return Rapport({90000318, produit}).count(QStringLiteral("RÉSINES CHÉLATRICES\r\n"));
    };
    QCOMPARE(couples(kOmeprazole), 1);
    QCOMPARE(couples(91000003), 0); // injected
    QCOMPARE(couples(kArnica), 0);
    poste_.Modifie(QStringLiteral("delete from thesaurus_substances where code = 90033"));
}

void TestBibliothequeInteractions::sansThesaurus()
{
    poste_.Libere();
    PosteBdp sans(support::DossierExtrait());
    QCOMPARE(sans.Demarre(), 0);
    const QString rapport = sans.Requetes->Interactions({kAmiodarone, kSimvastatine}, 0);
    QCOMPARE(Inconnus(rapport).size(), 2);
    QVERIFY(rapport.contains(
        QStringLiteral("AMIODARONE VELMONT 200 mg, comprimé sécable (non vérifié : la banque ne contient "
                       "pas le thésaurus des interactions)")));
}

QTEST_GUILESS_MAIN(TestBibliothequeInteractions)
#include "test_bibliotheque_interactions.moc"
