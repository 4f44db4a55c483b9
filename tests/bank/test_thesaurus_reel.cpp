#include "BanqueDeThesaurus.h"
#include "bank/ThesaurusEcriture.h"
#include "bank/ThesaurusRapport.h"

#include <QTest>

using namespace banque;

/// The published document and the public files, where they lie beside the project.
class TestThesaurusReel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        if (!essai::DonneesPubliquesPresentes()) {
            QSKIP("the public data are not on this machine");
        }
        texte_ = essai::DonneePublique(QStringLiteral("interactions/thesaurus_2023-09.txt.xz"));
        QVERIFY(!texte_.isEmpty());
        banque_.Remplit(essai::DonneePublique(QStringLiteral("bdpm/CIS_COMPO_bdpm.txt.xz")),
                        essai::DonneePublique(QStringLiteral("bdpm/CIS_bdpm.txt.xz")));
        thesaurus_ = LitThesaurus(texte_);
        chiffres_ = ImporteThesaurus(banque_.Base(), texte_);
        for (const QString& ligne : chiffres_.Lignes() + chiffres_.Desaccords + chiffres_.Uniques) {
            qInfo("%s", qUtf8Printable(ligne));
        }
    }

    void EveryInteractionIsRead()
    {
        QCOMPARE(chiffres_.Lues, 3216);
        QCOMPARE(chiffres_.SansNiveau, 0);
        QCOMPARE(thesaurus_.Edition, QStringLiteral("septembre 2023"));
    }

    void ItReachesThePublicFiles()
    {
        QVERIFY(chiffres_.Liees >= 0.90 * chiffres_.Interactions);
        QCOMPARE(chiffres_.Specialites, 12135);
        QVERIFY(chiffres_.Verifiables >= 0.78 * chiffres_.Specialites);
    }

    /// Public substances that several entries claim: each of them for a reason.
    void AmbiguousNamesAreThese()
    {
        QSqlQuery requete(QStringLiteral("select group_concat(nom, ' = ') from (select t.code, e.nom from"
                                         " thesaurus_substances t join thesaurus_entrees e on e.id = t.entree"
                                         " where not e.classe order by t.code, e.nom) group by code"
                                         " having count(*) > 1"),
                          banque_.Base());
        QSet<QString> trouves;
        while (requete.next()) {
            trouves.insert(requete.value(0).toString());
        }
        const QSet<QString> attendus = {
            QStringLiteral("CAFEINE = THÉINE"),
            QStringLiteral("SACUBITRIL = valsartan"),
            QStringLiteral("FER = SELS DE FER PAR VOIE INJECTABLE"),
            QStringLiteral("MAGNÉSIUM = magnesium (trisilicate de)"),
            QStringLiteral("MAGNÉSIUM = magnesium (hydroxyde de)"),
            QStringLiteral("OXYBATE DE SODIUM = sodium (oxybate de)"),
            QStringLiteral("POTASSIUM = potassium (citrate de)"),
            QStringLiteral("iloprost = iloprost trometamol"),
            QStringLiteral("perindopril tert-butylamine = périndopril"),
            QStringLiteral("levothyroxine = thyroxines"),
            QStringLiteral("noradrenaline = norepinephrine"),
        };
        QVERIFY2(trouves == attendus,
                 qUtf8Printable((QStringList(trouves.values()) << QString()).join(u'\n')));
    }

    void WhatTheDocumentPrintsOnOneSideOnly()
    {
        QCOMPARE(chiffres_.Uniques.size(), 7);
        QCOMPARE(chiffres_.Desaccords,
                 QStringList{QStringLiteral("INDUCTEURS ENZYMATIQUES PUISSANTS + LÉDIPASVIR : "
                                            "les deux impressions diffèrent")});
    }

    /// Both halves of the document, the report asked as a practice would.
    void KnownCouples()
    {
        const Interactions interactions = Interactions::DepuisBase(banque_.Base());
        const auto produit = [&](const char* nom) {
            QSqlQuery requete(banque_.Base());
            requete.prepare(QStringLiteral("select code from substances_noms where nom = ?"));
            requete.addBindValue(QString::fromUtf8(nom));
            requete.exec();
            return ProduitAVerifier{{requete.next() ? requete.value(0).toInt() : -1}, true, false};
        };
        const RapportInteractions rapport =
            interactions.Rapport({produit("CHLORHYDRATE D'AMIODARONE"), produit("SIMVASTATINE"),
                                  produit("CLARITHROMYCINE"), produit("LÉVÉTIRACÉTAM")},
                                 Niveau::Deconseillee);
        QStringList dites;
        for (const CoupleSignale& couple : rapport.Couples) {
            dites.append(QStringLiteral("%1-%2 %3")
                             .arg(couple.ProduitA)
                             .arg(couple.ProduitB)
                             .arg(int(interactions.Liste()[couple.Interaction].Niveau)));
        }
        QVERIFY(dites.contains(QStringLiteral("1-2 3")));
        QVERIFY(!dites.contains(QStringLiteral("0-1 1")));
        QCOMPARE(rapport.NonVerifies, QList<int>{3});
    }

private:
    essai::BanqueDeThesaurus banque_;
    QByteArray texte_;
    Thesaurus thesaurus_;
    ChiffresThesaurus chiffres_;
};

QTEST_GUILESS_MAIN(TestThesaurusReel)
#include "test_thesaurus_reel.moc"
