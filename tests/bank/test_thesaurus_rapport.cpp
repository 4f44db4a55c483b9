#include "BanqueDeTest.h"
#include "BanqueDeThesaurus.h"
#include "bank/LigneDeCommande.h"
#include "bank/ThesaurusEcriture.h"
#include "bank/ThesaurusNoms.h"
#include "bank/ThesaurusRapport.h"

#include <QTest>

using namespace banque;

namespace {

/// Invented codes; the names are those of the public files.
const QList<SubstancePublique> kSubstances = {
    {1, {QStringLiteral("SIMVASTATINE")}},
    {2, {QStringLiteral("CHLORHYDRATE D'AMIODARONE"), QStringLiteral("AMIODARONE (CHLORHYDRATE D')")}},
    {3, {QStringLiteral("APIXABAN")}},
    {4, {QStringLiteral("WARFARINE SODIQUE")}},
    {5, {QStringLiteral("IBUPROFÈNE")}},
    {6, {QStringLiteral("LYSINATE D'IBUPROFÈNE")}},
    {7, {QStringLiteral("DICLOFÉNAC DE DIÉTHYLAMINE")}},
    {8, {QStringLiteral("KÉTOCONAZOLE")}},
    {9, {QStringLiteral("SULFATE FERREUX")}},
    {10, {QStringLiteral("COMPLEXE D'HYDROXYDE FERRIQUE - SACCHAROSE")}},
    {11, {QStringLiteral("FER")}},
    {12, {QStringLiteral("MACROGOL 4000")}},
    {13, {QStringLiteral("PARACÉTAMOL")}},
    {14, {QStringLiteral("DOXYCYCLINE MONOHYDRATÉE")}},
    {15, {QStringLiteral("WARFARINE")}},
    {16, {QStringLiteral("ZOLPIDEM (TARTRATE DE)")}},
    {17, {QStringLiteral("CARBAMAZÉPINE")}},
    {18, {QStringLiteral("IBUPROFENUM POUR PRÉPARATIONS HOMÉOPATHIQUES")}},
};
const QList<Fraction> kFractions = {{4, 15}, {6, 5}, {9, 11}, {10, 11}};

} // namespace

/// Links and report, on the project's own extract.
class TestThesaurusRapport : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        thesaurus_ = LitThesaurus(essai::Extrait(QStringLiteral("interactions.txt")));
        liens_ = Lie(thesaurus_, kSubstances, kFractions);
        interactions_ = std::make_unique<Interactions>(thesaurus_, liens_);
    }

    void NamesLead_data()
    {
        QTest::addColumn<QString>("entree");
        QTest::addColumn<QList<int>>("codes");
        QTest::newRow("salt") << QStringLiteral("AMIODARONE") << QList<int>{2};
        QTest::newRow("fraction") << QStringLiteral("ibuprofene") << QList<int>{5, 6};
        QTest::newRow("hydrate") << QStringLiteral("doxycycline") << QList<int>{14};
        QTest::newRow("equivalence") << QStringLiteral("FER") << QList<int>{9, 10, 11};
        QTest::newRow("a route of its own")
            << QStringLiteral("SELS DE FER PAR VOIE INJECTABLE") << QList<int>{10};
        QTest::newRow("nothing") << QStringLiteral("LITHIUM") << QList<int>{};
    }
    void NamesLead()
    {
        QFETCH(const QString, entree);
        QList<int> codes = liens_.values(thesaurus_.Place(entree));
        std::ranges::sort(codes);
        QTEST(codes, "codes");
    }

    void NoNameLeadsAstray_data()
    {
        QTest::addColumn<QString>("nom");
        QTest::addColumn<QString>("cle");
        const auto rang = [](const char* nom, const char* cle) {
            QTest::newRow(nom) << QString::fromUtf8(nom) << QString::fromUtf8(cle);
        };
        rang("IODURE DE POTASSIUM", "POTASSIUM");
        rang("CLAVULANATE DE POTASSIUM", "POTASSIUM");
        rang("DINITRATE D'ISOSORBIDE", "ISOSORBIDE");
        rang("FLUORURE DE SODIUM", "SODIUM");
        rang("NICOTINAMIDE", "NICOTINE");
        rang("NORADRÉNALINE", "ADRENALINE");
        rang("APOMORPHINE (CHLORHYDRATE D')", "MORPHINE");
        rang("MORPHINE POUR PRÉPARATIONS HOMÉOPATHIQUES", "MORPHINE");
        rang("PANTOTHÉNATE DE CALCIUM", "CALCIUM");
    }
    void NoNameLeadsAstray()
    {
        QFETCH(const QString, nom);
        QFETCH(const QString, cle);
        QVERIFY(!FormesPubliques(nom).contains(cle));
    }

    void ClassesAreExpanded()
    {
        QCOMPARE(Couples({{{8}}, {{1}}}),
                 QStringList{QStringLiteral("0-1 INHIBITEURS PUISSANTS DU CYP3A4 + SIMVASTATINE 3")});
        QCOMPARE(
            Couples({{{3}}, {{7}}}),
            QStringList{QStringLiteral("0-1 ANTICOAGULANTS ORAUX + ANTI-INFLAMMATOIRES NON STÉROÏDIENS 2")});
    }

    void ReferencesAreFollowed()
    {
        QCOMPARE(Couples({{{16}}, {{17}}}),
                 QStringList{QStringLiteral("0-1 MÉDICAMENTS SÉDATIFS + MÉDICAMENTS SÉDATIFS 0")});
    }

    void OthersAreTwoDifferentSubstances()
    {
        QCOMPARE(Couples({{{3}}, {{4, 15}}}),
                 QStringList{QStringLiteral("0-1 ANTICOAGULANTS ORAUX + ANTICOAGULANTS ORAUX 0")});
        QVERIFY(Couples({{{5}}, {{6}}}).isEmpty());      // ibuprofen and its salt
        QVERIFY(Couples({{{4, 15}}, {{15}}}).isEmpty()); // warfarin twice
        QVERIFY(!Couples({{{5}}, {{7}}}).isEmpty());
    }

    void IronByMouthAndIronByVein()
    {
        QCOMPARE(Couples({{{9, 11}}, {{10, 11}}}),
                 QStringList{QStringLiteral("0-1 FER + SELS DE FER PAR VOIE INJECTABLE 2")});
        QVERIFY(Couples({{{9, 11}}, {{9, 11}}}).isEmpty());
    }

    void ARouteIsASide()
    {
        QVERIFY(Couples({{{12}}, {{13}}}).isEmpty());
        QCOMPARE(Couples({{{12}}, {{13}, true}}),
                 QStringList{QStringLiteral(
                     "0-1 LAXATIFS (TYPE MACROGOL) + MÉDICAMENTS ADMINISTRÉS PAR VOIE ORALE 0")});
    }

    void TheLevelIsALowerBound()
    {
        const QList<ProduitAVerifier> liste = {{{1}}, {{2}}, {{8}}, {{3}}, {{4}}};
        QCOMPARE(Couples(liste),
                 (QStringList{QStringLiteral("0-2 SIMVASTATINE + INHIBITEURS PUISSANTS DU CYP3A4 3"),
                              QStringLiteral("0-1 SIMVASTATINE + AMIODARONE 2"),
                              QStringLiteral("3-4 ANTICOAGULANTS ORAUX + ANTICOAGULANTS ORAUX 0")}));
        QCOMPARE(Couples(liste, Niveau::ContreIndication).size(), 1);
    }

    void WhatCouldNotBeCheckedIsSaid()
    {
        const RapportInteractions rapport =
            interactions_->Rapport({{{1}}, {{13}}, {{}}, {{1, 13}}, {{18}}}, Niveau::APrendreEnCompte);
        QCOMPARE(rapport.NonVerifies, (QList<int>{1, 2, 4}));
        QCOMPARE(rapport.Partiels, (QList<int>{3}));
    }

    void TheBankGivesBackWhatWasWritten()
    {
        essai::BanqueDeThesaurus banque;
        for (const SubstancePublique& substance : kSubstances) {
            for (const QString& nom : substance.Noms) {
                banque.Ajoute(QStringLiteral("insert into substances_noms values(?, ?)"),
                              {substance.Code, nom});
            }
        }
        for (const Fraction& fraction : kFractions) {
            const QString ligne = QStringLiteral("insert into compositions values(?, 'comprimé', ?, ?, 1)");
            banque.Ajoute(ligne, {fraction.Active, fraction.Active, QStringLiteral("SA")});
            banque.Ajoute(ligne, {fraction.Active, fraction.Therapeutique, QStringLiteral("FT")});
            banque.Ajoute(QStringLiteral("insert into specialites values(?, 1, 0)"), {fraction.Active});
        }
        QCOMPARE(ChargeFractions(banque.Base()), kFractions);
        const ChiffresThesaurus chiffres =
            ImporteThesaurus(banque.Base(), essai::Extrait(QStringLiteral("interactions.txt")));
        QCOMPARE(chiffres.Lues, 56);
        QCOMPARE(chiffres.Verifiables, int(kFractions.size()));
        QCOMPARE(chiffres.Interactions, int(thesaurus_.Interactions.size()));
        const Interactions relues = Interactions::DepuisBase(banque.Base());
        QCOMPARE(relues.Liste().size(), thesaurus_.Interactions.size());
        const QList<ProduitAVerifier> liste = {{{1}}, {{2}},     {{8}},      {{5}},
                                               {{7}}, {{9, 11}}, {{10, 11}}, {{14}}};
        QCOMPARE(Texte(relues, liste), Texte(*interactions_, liste));
        QVERIFY(Texte(relues, liste).size() > 4);
        QSqlQuery source(QStringLiteral("select valeur from information where cle = 'source_thesaurus'"),
                         banque.Base());
        QVERIFY(source.next());
        QCOMPARE(source.value(0).toString(),
                 QStringLiteral("ANSM, Thésaurus des interactions médicamenteuses, mars 2021"));
    }

    void TheImportTakesTheThesaurusIn()
    {
        const QTemporaryDir dossier;
        const QString vers = common::Joint(dossier.path(), QStringLiteral("banque.sqlite"));
        const auto demande = LitArguments(
            {QStringLiteral("importer"), support::DossierExtrait(), QStringLiteral("--interactions"),
             support::DossierExtrait() + QStringLiteral("/thesaurus/interactions.txt"),
             QStringLiteral("--vers"), vers});
        QVERIFY(demande.has_value());
        const Bilan bilan = Importe(*demande);
        QVERIFY(TexteBilan(bilan).contains(QStringLiteral("Interactions lues : 56 (0 sans niveau lisible)")));
        const QSqlDatabase base =
            QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), QStringLiteral("import"));
        QSqlDatabase ouverte = base;
        ouverte.setDatabaseName(vers);
        QVERIFY(ouverte.open());
        QCOMPARE(Interactions::DepuisBase(ouverte).Liste().size(), thesaurus_.Interactions.size());
        ouverte.close();
    }

    void ATextWithoutInteractionsLeavesTheFormerBank()
    {
        const QTemporaryDir dossier;
        const QString vers = common::Joint(dossier.path(), QStringLiteral("banque.sqlite"));
        common::EcritFichier(vers, "former");
        const Demande demande{.Dossier = support::DossierExtrait(),
                              .Vers = vers,
                              .Interactions = support::DossierExtrait() + QStringLiteral("/CIS_MITM.txt")};
        QVERIFY_THROWS_EXCEPTION(common::Erreur, Importe(demande));
        QCOMPARE(common::LitFichier(vers), QByteArray("former"));
    }

private:
    static QStringList Texte(const Interactions& interactions, const QList<ProduitAVerifier>& liste,
                             Niveau minimum = Niveau::APrendreEnCompte)
    {
        QStringList lignes;
        for (const CoupleSignale& couple : interactions.Rapport(liste, minimum).Couples) {
            lignes.append(QStringLiteral("%1-%2 %3 + %4 %5")
                              .arg(couple.ProduitA)
                              .arg(couple.ProduitB)
                              .arg(interactions.Entrees()[couple.EntreeA].Nom,
                                   interactions.Entrees()[couple.EntreeB].Nom)
                              .arg(int(interactions.Liste()[couple.Interaction].Niveau)));
        }
        return lignes;
    }
    QStringList Couples(const QList<ProduitAVerifier>& liste, Niveau minimum = Niveau::APrendreEnCompte) const
    {
        return Texte(*interactions_, liste, minimum);
    }

    Thesaurus thesaurus_;
    LiensThesaurus liens_;
    std::unique_ptr<Interactions> interactions_;
};

QTEST_GUILESS_MAIN(TestThesaurusRapport)
#include "test_thesaurus_rapport.moc"
