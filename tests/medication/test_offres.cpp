#include "common/CleDeTri.h"
#include "medication/Commandes.h"
#include "support/BaseDeTest.h"
#include "support/Hasard.h"
#include "support/Monde.h"

#include <QAbstractItemModelTester>
#include <QTest>

using namespace medication;

namespace {

QStringList Montrees(const OffresPosologie& offres)
{
    QStringList textes;
    for (int rang = 0; rang < offres.rowCount(); ++rang) {
        textes.append(offres.index(rang, 0).data().toString());
    }
    return textes;
}

QStringList Textes(const QList<Offre>& offres)
{
    QStringList textes;
    for (const Offre& offre : offres) {
        textes.append(QStringLiteral("%1 x%2").arg(offre.Texte).arg(offre.Fois));
    }
    return textes;
}

} // namespace

class TestOffres : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void TheMostFrequentComesFirst()
    {
        Ecrit(u"DOLIPRANE", u"1 le soir");
        Ecrit(u"DOLIPRANE", u"2 le matin");
        Ecrit(u"DOLIPRANE", u"2 le matin");
        Ecrit(u"DOLIPRANE", u" 2 le matin ");
        Ecrit(u"AMLOR", u"9 le midi");
        QCOMPARE(Lues(u"DOLIPRANE"), QStringLiteral("2 le matin x3|1 le soir x1").split(u'|'));
    }

    void EveryTableIsRead()
    {
        storage::Base& base = base_->Medoc();
        Ecrit(u"DOLIPRANE", u"a");
        Ecrit(u"DOLIPRANE", u"c");
        support::AjouteLigne(base, QStringLiteral("BddMed"),
                             {1, {}, {}, {}, QStringLiteral("b"), QStringLiteral("DOLIPRANE")});
        support::AjouteLigne(base, QStringLiteral("Biblio"),
                             {QStringLiteral("DOLIPRANE"), QStringLiteral("c")});
        support::AjouteLigne(base, QStringLiteral("Vidal"), {QStringLiteral("34009"), QStringLiteral("d")});
        QCOMPARE(Lues(u"DOLIPRANE"), QStringLiteral("c x2|a x1|b x1").split(u'|'));
        QCOMPARE(Lues(u"DOLIPRANE", u"34009"), QStringLiteral("c x2|a x1|b x1|d x1").split(u'|'));
        QCOMPARE(Lues(u"inconnu", u"34009"), QStringList{QStringLiteral("d x1")});
        QCOMPARE(Lues(u"inconnu", u"1"), QStringList());
    }

    void ATitleIsFoundByItsLetters()
    {
        Ecrit(u"PARACETAMOL", u"1");
        Ecrit(u"Doliprane 500", u"2");
        Ecrit(u"BÉTADINE", u"3");
        QCOMPARE(Lues(u"  Paracétamol   "), QStringList{QStringLiteral("1 x1")});
        QCOMPARE(Lues(u"DOLIPRANE 500"), QStringList{QStringLiteral("2 x1")});
        QCOMPARE(Lues(u"BÉTADINE"), QStringList{QStringLiteral("3 x1")});
        QCOMPARE(Lues(u"DOLIPRANE"), QStringList());
        QCOMPARE(Lues(u"D%"), QStringList());
        QCOMPARE(Lues(u"' or '1' = '1"), QStringList());
    }

    void ATitleIsFoundByItsName_data()
    {
        QTest::addColumn<QString>("titre");
        const QString f4(30, u' ');
        for (const QString& titre :
             {QStringLiteral("AMLOR"), QStringLiteral("#AMLOR"), QStringLiteral("AMLOR#"),
              QStringLiteral(" #amlor# "), QStringLiteral("AMLOR%1").arg(f4),
              QStringLiteral("AMLOR%1NSP").arg(f4), QStringLiteral("#AMLOR%1x#").arg(f4)}) {
            QTest::newRow(qPrintable(titre.simplified())) << titre;
        }
    }

    void ATitleIsFoundByItsName()
    {
        QFETCH(QString, titre);
        Ecrit(u"AMLOR", u"a");
        Ecrit(u"#Amlor", u"a");
        Ecrit(u"AMLOR#", u"b");
        Ecrit(u"#AMLOR#", u"c");
        Ecrit(QStringLiteral("AMLOR%1NSP").arg(QString(30, u' ')), u"d");
        Ecrit(u"AMLORIDINE", u"z");
        Ecrit(u"AMLOR 5 MG", u"z");
        Ecrit(u"##", u"z");
        QCOMPARE(Textes(LitOffres(base_->Medoc(), titre, {})),
                 QStringLiteral("a x2|b x1|c x1|d x1").split(u'|'));
    }

    void ALineJumpHasNoOffers()
    {
        Ecrit(u"#", u"a");
        Ecrit(u"##", u"b");
        QCOMPARE(Lues(u"#"), QStringList());
        QCOMPARE(Lues(u" ## "), QStringList());
        QCOMPARE(Lues(QString(40, u' ') + u'x'), QStringList());
    }

    void CapitalsWithAccentsCountForNothing()
    {
        Ecrit(u"PARACÉTAMOL", u"1");
        Ecrit(u"Bétadine", u"2");
        QCOMPARE(Lues(u"Paracétamol"), QStringList{QStringLiteral("1 x1")});
        QCOMPARE(Lues(u"BÉTADINE"), QStringList{QStringLiteral("2 x1")});
    }

    void LineEndsAreOne()
    {
        Ecrit(u"AMLOR", u"1 matin\r\n1 soir\r\n");
        Ecrit(u"AMLOR", u"1 matin\n1 soir");
        QCOMPARE(Lues(u"AMLOR"), QStringList{QStringLiteral("1 matin\n1 soir x2")});
    }

    void ALongOneShowsItsBeginningAndComesWhole()
    {
        const QString longue = QStringLiteral("<b>1</b> ") + QString(10000, u'x');
        OffresPosologie offres;
        offres.Remplit({{longue, 1}});
        offres.Restreint(QStringLiteral("1"));
        QVERIFY(longue.startsWith(offres.index(0, 0).data().toString()));
        QVERIFY(offres.index(0, 0).data().toString().size() < 1000);
        QVERIFY(offres.index(0, 0).data(Qt::ToolTipRole).toString().contains(QLatin1String("&lt;b&gt;")));
        QCOMPARE(offres.Texte(0), longue);
    }

    void BlankPosologiesAreLeftOut()
    {
        Ecrit(u"DOLIPRANE", u"");
        Ecrit(u"DOLIPRANE", u"  \n");
        support::AjouteLigne(base_->Medoc(), QStringLiteral("Biblio"), {QStringLiteral("DOLIPRANE"), {}});
        support::AjouteLigne(base_->Medoc(), QStringLiteral("Vidal"),
                             {QString(), QStringLiteral("sans code")});
        QCOMPARE(Lues(u"DOLIPRANE"), QStringList());
    }

    void TheIndexesServeTheReading();

    void TypingNarrowsTheOffers()
    {
        OffresPosologie offres;
        const QAbstractItemModelTester testeur(&offres);
        offres.Remplit({{QStringLiteral("1 gélule  le matin"), 5},
                        {QStringLiteral("1 le soir\npendant 5 jours"), 3},
                        {QStringLiteral("œuf"), 1}});
        QCOMPARE(Montrees(offres), QStringList());
        offres.Restreint(QStringLiteral("1"));
        QCOMPARE(Montrees(offres),
                 QStringLiteral("1 gélule  le matin|1 le soir pendant 5 jours").split(u'|'));
        QCOMPARE(offres.index(0, 0).data(Qt::UserRole).toInt(), 5);
        QCOMPARE(offres.Texte(1), QStringLiteral("1 le soir\npendant 5 jours"));
        QCOMPARE(offres.Texte(2), QString());
        QCOMPARE(offres.Texte(-1), QString());
        for (const char16_t* tape : {u"GELULE", u"  1   GÉL", u"gelule le"}) {
            offres.Restreint(QString::fromUtf16(tape));
            QCOMPARE(Montrees(offres), QStringList{QStringLiteral("1 gélule  le matin")});
        }
        offres.Restreint(QStringLiteral("soir pend"));
        QCOMPARE(Montrees(offres), QStringList{QStringLiteral("1 le soir pendant 5 jours")});
        offres.Restreint(QStringLiteral("oe"));
        QCOMPARE(Montrees(offres), QStringList{QStringLiteral("œuf")});
        for (const char16_t* tape : {u"", u"  \n", u"3", u"œuf "}) {
            offres.Restreint(QString::fromUtf16(tape));
            QCOMPARE(Montrees(offres), QStringList());
        }
        offres.Restreint(QStringLiteral("1"));
        offres.Remplit({});
        QCOMPARE(Montrees(offres), QStringList());
    }

    void WhatCannotBeReadOffersNothing()
    {
        support::Monde monde;
        OffresPosologie offres;
        offres.Remplit({{QStringLiteral("1"), 1}});
        RemplitOffres(monde.Contexte, offres, QStringLiteral("DOLIPRANE"), nullptr); // no database there
        offres.Restreint(QStringLiteral("1"));
        QCOMPARE(Montrees(offres), QStringList());

        common::CreeDossier(monde.Etat.Chemins.CheminTravail);
        storage::CreeBase(common::Joint(monde.Etat.Chemins.CheminTravail, QStringLiteral("Medoc.mdb")),
                          storage::GenreBase::Medoc);
        storage::Base& base = monde.Etat.Bases.Medoc(monde.Etat.Chemins.CheminTravail);
        base.PoseCrochet([](const QString&) { return true; });
        RemplitOffres(monde.Contexte, offres, QStringLiteral("DOLIPRANE"), nullptr);
        QCOMPARE(offres.rowCount(), 0);
    }

    void ThePackCountsWhileTheTreeFilledTheBoxes()
    {
        support::Monde monde;
        common::CreeDossier(monde.Etat.Chemins.CheminTravail);
        storage::CreeBase(common::Joint(monde.Etat.Chemins.CheminTravail, QStringLiteral("Medoc.mdb")),
                          storage::GenreBase::Medoc);
        support::AjouteLigne(monde.Etat.Bases.Medoc(monde.Etat.Chemins.CheminTravail),
                             QStringLiteral("Vidal"), {QStringLiteral("34009"), QStringLiteral("1 le soir")});
        const Noeud pack{QStringLiteral("DOLIPRANE"), QStringLiteral("34009/11/101/1.16")};
        const Noeud local{QStringLiteral("DOLIPRANE"), QStringLiteral("34009")};
        OffresPosologie offres;
        const auto nombre = [&](const Noeud* noeud, const QString& nom) {
            RemplitOffres(monde.Contexte, offres, nom, noeud);
            offres.Restreint(QStringLiteral("soir"));
            return offres.rowCount();
        };
        QCOMPARE(nombre(&pack, QStringLiteral("DOLIPRANE")), 1);
        QCOMPARE(nombre(&pack, QStringLiteral("  ")), 0);
        QCOMPARE(nombre(&local, QStringLiteral("DOLIPRANE")), 0);
        QCOMPARE(nombre(nullptr, QStringLiteral("DOLIPRANE")), 0);
        monde.Etat.Choix.OrigineEdition = 2;
        QCOMPARE(nombre(&pack, QStringLiteral("DOLIPRANE")), 0);
    }

    void AnyTextTypedNarrowsToWhatHoldsIt()
    {
        QRandomGenerator hasard(20261120);
        for (int tour = 0; tour < 300; ++tour) {
            QList<Offre> toutes;
            for (int i = hasard.bounded(6); i > 0; --i) {
                toutes.append({support::TexteAuHasard(hasard, 12), i});
            }
            OffresPosologie offres;
            offres.Remplit(toutes);
            const QString tape = support::TexteAuHasard(hasard, 2);
            offres.Restreint(tape);
            qsizetype place = -1; // the order stays
            for (int rang = 0; rang < offres.rowCount(); ++rang) {
                const Offre offre{offres.Texte(rang), offres.index(rang, 0).data(Qt::UserRole).toInt()};
                QVERIFY(toutes.indexOf(offre) > place);
                place = toutes.indexOf(offre);
            }
            for (const Offre& offre : toutes) {
                const bool montree = Montrees(offres).contains(offre.Texte);
                if (!tape.trimmed().isEmpty() && offre.Texte.simplified().contains(tape.simplified()) &&
                    offre.Texte != tape.trimmed() && !common::Replie(tape.simplified()).isEmpty()) {
                    QVERIFY2(montree, qPrintable(offre.Texte + u'|' + tape));
                }
            }
        }
    }

    void init() { base_ = std::make_unique<support::BaseDeTest>(); }
    void cleanup() { base_.reset(); }

private:
    void Ecrit(QStringView titre, const char16_t* posologie)
    {
        support::AjouteLigne(base_->Medoc(), QStringLiteral("OrdoEnr"),
                             {QStringLiteral("modèle"), titre.toString(), QString::fromUtf16(posologie), 1,
                              QStringLiteral("*"), QStringLiteral("0"), 1, 1});
    }
    QStringList Lues(QStringView titre, const char16_t* cip = u"")
    {
        return Textes(LitOffres(base_->Medoc(), titre.toString(), QString::fromUtf16(cip)));
    }

    std::unique_ptr<support::BaseDeTest> base_;
};

void TestOffres::TheIndexesServeTheReading()
{
    QString instruction;
    base_->Medoc().PoseCrochet([&](const QString& lancee) {
        instruction = lancee;
        return false;
    });
    LitOffres(base_->Medoc(), QStringLiteral("DOLIPRANE"), QStringLiteral("1"));
    base_->Medoc().PoseCrochet({});
    QStringList chemins;
    base_->Medoc().Parcourt(QStringLiteral("explain query plan ") + instruction,
                            QVariantList(instruction.count(u'?'), QStringLiteral("x")),
                            [&](const storage::Rangee& rangee) { chemins.append(rangee.Texte(3)); });
    for (const char* index : {"OrdoEnrTitreLigne", "BddMedNom", "BiblioTitre", "VidalCIP"}) {
        QVERIFY2(!chemins.filter(QLatin1String(index)).isEmpty(), qPrintable(chemins.join(u'\n')));
    }
    QVERIFY2(chemins.filter(QStringLiteral("SCAN OrdoEnr")).isEmpty(), qPrintable(chemins.join(u'\n')));
}

QTEST_GUILESS_MAIN(TestOffres)
#include "test_offres.moc"
