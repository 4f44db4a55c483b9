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
        texte_ = essai::DonneePublique(QStringLiteral("interactions/thesaurus_2023-09.txt.xz"));
        if (texte_.isEmpty()) {
            QSKIP("the published thesaurus is not on this machine");
        }
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

private:
    essai::BanqueDeThesaurus banque_;
    QByteArray texte_;
    Thesaurus thesaurus_;
    ChiffresThesaurus chiffres_;
};

QTEST_GUILESS_MAIN(TestThesaurusReel)
#include "test_thesaurus_reel.moc"
