#include "medication/Composition.h"
#include "medication/messages.h"
#include "support/Hasard.h"

#include <QTest>

using namespace medication;

namespace {

const QString kBesoin = QStringLiteral("en cas de besoin,");
const QString kLibreMoment = QStringLiteral("n'importe quand");

/// A doctor at the composer: what he chooses, what he answers, what he was asked.
struct Poste
{
    medication::Choix Choix;
    Composition C;
    QStringList Invites;
    std::optional<QString> Reponse;
    Composition PendantLaDemande;

    void Choisit(int indice, const QString& texte)
    {
        ChangeCboP(C, Choix, indice, texte, [&](const QString& invite) {
            Invites.append(invite);
            PendantLaDemande = C;
            return Reponse;
        });
    }
};

} // namespace

class TestComposition : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void AskingForTheQuantity_data()
    {
        QTest::addColumn<QString>("moment");
        QTest::addColumn<QString>("invite");
        QTest::addColumn<QString>("phrase");
        QTest::newRow("need") << kBesoin
                              << QStringLiteral("Inscrire la quantité de la forme pharmaceutique "
                                                "choisie,\n à prendre en cas de besoin :")
                              << QStringLiteral("3  gélule(s) , en cas de besoin (max X par jour)");
        QTest::newRow("free") << kLibreMoment
                              << QStringLiteral("Inscrire la quantité de la forme pharmaceutique "
                                                "choisie,\n à prendre au moment voulu de la journée :")
                              << QStringLiteral("3 gélule(s) , toujours dans le même créneau horaire que "
                                                "vous pouvez choisir librement");
    }

    void AskingForTheQuantity()
    {
        QFETCH(QString, moment);
        QFETCH(QString, invite);
        QFETCH(QString, phrase);
        Poste poste;
        poste.Choisit(kForme, QStringLiteral("gélule(s)"));
        poste.Choisit(kMatin, QStringLiteral("1"));
        poste.Reponse = QStringLiteral("3");
        poste.Choisit(kRepas, moment);
        QCOMPARE(poste.Invites, QStringList{invite});
        QVERIFY(!poste.PendantLaDemande.QuantitesActives);
        QCOMPARE(poste.PendantLaDemande.CboP[kMatin], QString());
        QCOMPARE(poste.C.TxtPoso, phrase);
        QCOMPARE(poste.Choix.TexteQuantite, QStringLiteral("3"));
        QVERIFY(!poste.C.QuantitesActives);
        QCOMPARE(poste.C.CboP[kMatin], QString());
        QCOMPARE(poste.C.CboP[kRepas], moment);

        // A second time: asked again.
        poste.Reponse = QStringLiteral("4");
        poste.Choisit(kRepas, moment);
        QCOMPARE(poste.Invites.size(), 2);
        QCOMPARE(poste.C.TxtPoso, QStringLiteral("4") + phrase.mid(1));
    }

    void RecomposingWithoutAsking()
    {
        Poste poste;
        poste.Reponse = QStringLiteral("1");
        poste.Choisit(kRepas, kBesoin);
        poste.Choisit(kForme, QStringLiteral("lyo"));
        QCOMPARE(poste.Invites.size(), 1);
        QCOMPARE(poste.C.TxtPoso, QStringLiteral("1  lyo , en cas de besoin (max X par jour),  "));
        poste.Choisit(kFrequence, QStringLiteral("tous les jours,"));
        QCOMPARE(poste.C.TxtPoso,
                 QStringLiteral("1  lyo , en cas de besoin (max X par jour), tous les jours, "));
        QCOMPARE(PosologieRendue(poste.C.TxtPoso),
                 QStringLiteral("1  lyo , en cas de besoin (max X par jour), tous les jours"));
        QVERIFY(!poste.C.QuantitesActives);
        poste.Choisit(kRepas, QStringLiteral("après les repas,"));
        QVERIFY(poste.C.QuantitesActives);
        QCOMPARE(poste.C.TxtPoso, QStringLiteral("après les repas, tous les jours"));
    }

    void NoQuantityDropsTheMoment_data()
    {
        QTest::addColumn<QString>("moment");
        QTest::addColumn<bool>("annule");
        for (const QString& moment : {kBesoin, kLibreMoment}) {
            QTest::addRow("%s, cancel", qPrintable(moment)) << moment << true;
            QTest::addRow("%s, empty", qPrintable(moment)) << moment << false;
        }
    }

    void NoQuantityDropsTheMoment()
    {
        QFETCH(QString, moment);
        QFETCH(bool, annule);
        Poste poste;
        poste.Choix.TexteQuantite = QStringLiteral("7");
        poste.C = CommencePosologie(QStringLiteral("à la main"));
        if (!annule) {
            poste.Reponse = QString();
        }
        poste.Choisit(kRepas, moment);
        QCOMPARE(poste.Invites.size(), 1);
        QCOMPARE(poste.C.TxtPoso, QStringLiteral("à la main"));
        QVERIFY(poste.C.QuantitesActives);
        QCOMPARE(poste.C.CboP[kRepas], QString());
        QCOMPARE(poste.Choix.TexteQuantite, QStringLiteral("7"));
    }

    void EmptyingTheQuantitiesRecomposes()
    {
        Poste poste;
        poste.Choisit(kForme, QStringLiteral("gélule(s)"));
        poste.Choisit(kMatin, QStringLiteral("1"));
        poste.Choisit(kSoir, QStringLiteral("2"));
        poste.Choisit(kRepas, kBesoin);
        QCOMPARE(poste.PendantLaDemande.TxtPoso, QStringLiteral("en cas de besoin"));
        QCOMPARE(poste.Choix.DernierCboP, qint16(kSoir));
        QCOMPARE(poste.C.TxtPoso,
                 QStringLiteral("1  gélule(s)  le matin, 2  le soir")); // cancelled: it stays
        QVERIFY(poste.C.QuantitesActives);
    }

    void TheQuantityTypedOutlivesTheWindow()
    {
        Poste poste;
        poste.Reponse = QStringLiteral("6");
        poste.Choisit(kRepas, kLibreMoment);
        poste.C = CommencePosologie(QString());
        QCOMPARE(poste.C, Composition{});
        QCOMPARE(poste.Choix.TexteQuantite, QStringLiteral("6"));
    }

    void AnySequenceKeepsTheBoxesAndTheTextInOrder();

private:
    static QString TexteAuHasard(QRandomGenerator& hasard, int indice);
    static bool SansHeure(const QString& moment) { return moment == kBesoin || moment == kLibreMoment; }
    static ChoixPosologie Attendues(ChoixPosologie boites, int indice, const QString& texte, bool refuse);
    static QStringList Pieces(const ChoixPosologie& boites, const QString& quantite);
};

/// What the boxes have to hold after a choice: nothing goes but what the moment takes away.
ChoixPosologie TestComposition::Attendues(ChoixPosologie boites, int indice, const QString& texte,
                                          bool refuse)
{
    boites[size_t(indice)] = texte;
    if (SansHeure(boites[kRepas])) {
        std::fill(&boites[kMatin], &boites[kRepas], QString());
    }
    if (refuse) {
        boites[kRepas].clear();
    }
    return boites;
}

/// What the doctor chose or typed and has to find again in the sentence.
QStringList TestComposition::Pieces(const ChoixPosologie& boites, const QString& quantite)
{
    QStringList pieces = {boites[kFrequence], boites[kDuree]};
    if (SansHeure(boites[kRepas])) {
        pieces << quantite << boites[kForme];
    } else {
        pieces << boites[kRepas];
        for (int i = kMatin; i <= kCoucher; ++i) {
            const QString& texte = boites[size_t(i)];
            if (!texte.isEmpty()) {
                pieces << texte.section(u' ', 0, 0) << texte.section(u' ', -1) << boites[kForme];
            }
        }
    }
    for (QString& piece : pieces) {
        piece = CoupeVirgule(piece.trimmed()).trimmed();
    }
    return pieces;
}

QString TestComposition::TexteAuHasard(QRandomGenerator& hasard, int indice)
{
    const QStringList liste = ListeCboP(indice);
    switch (hasard.bounded(5)) {
    case 0:
        return {};
    case 1:
        return support::TexteAuHasard(hasard, 6);
    case 2:
        return hasard.bounded(2) == 0 ? kBesoin : kLibreMoment;
    default:
        return liste[hasard.bounded(static_cast<int>(liste.size()))];
    }
}

void TestComposition::AnySequenceKeepsTheBoxesAndTheTextInOrder()
{
    QRandomGenerator hasard(20261120);
    for (int tour = 0; tour < 400; ++tour) {
        Poste poste;
        poste.C = CommencePosologie(support::TexteAuHasard(hasard, 8));
        for (int geste = 0; geste < 12; ++geste) {
            const int indice = hasard.bounded(int(kNbCboP));
            if (EstQuantite(indice) && !poste.C.QuantitesActives) {
                continue; // greyed
            }
            const QString aLaMain = support::TexteAuHasard(hasard, 8);
            poste.C.TxtPoso = aLaMain;
            poste.Reponse.reset();
            if (hasard.bounded(3) > 0) {
                poste.Reponse = support::TexteAuHasard(hasard, 2);
            }
            const qsizetype demandes = poste.Invites.size();
            const QString texte = TexteAuHasard(hasard, indice);
            const bool demande = indice == kRepas && SansHeure(texte);
            const bool refuse = demande && poste.Reponse.value_or(QString()).isEmpty();
            const ChoixPosologie attendues = Attendues(poste.C.CboP, indice, texte, refuse);
            poste.Choisit(indice, texte);

            QCOMPARE(poste.Invites.size(), demandes + (demande ? 1 : 0));
            QCOMPARE(QStringList(poste.C.CboP.begin(), poste.C.CboP.end()),
                     QStringList(attendues.begin(), attendues.end()));
            QCOMPARE(poste.C.QuantitesActives, !SansHeure(attendues[kRepas]));
            if (refuse) {
                QCOMPARE(poste.C.TxtPoso, aLaMain);
                continue;
            }
            for (const QString& piece : Pieces(attendues, poste.Choix.TexteQuantite)) {
                QVERIFY2(poste.C.TxtPoso.contains(piece), qPrintable(poste.C.TxtPoso + u'|' + piece));
            }
        }
    }
}

QTEST_GUILESS_MAIN(TestComposition)
#include "test_composition.moc"
