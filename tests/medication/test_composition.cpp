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

QStringList QuantitesVoulues()
{
    return QStringLiteral("1/4|1/2|3/4|1|1 1/4|1 1/2|2|3|4|5|10|15|20|25|30").split(u'|');
}

} // namespace

class TestComposition : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void TheListsOfTheBoxes_data()
    {
        QTest::addColumn<int>("indice");
        QTest::addColumn<QString>("legende");
        QTest::addColumn<QString>("textes");
        const QString quantites = QuantitesVoulues().join(u'|');
        QTest::newRow("0") << 0 << QStringLiteral("Forme")
                           << QStringLiteral("comprimé(s)|comprimé(s) eff.|comprimé(s) orodisp.|gélule(s)|"
                                             "sachet(s)|ampoule(s)|cuillère(s) à soupe|cuillère(s) à café|"
                                             "cuillère(s) mesure|dose(s) poids|goutte(s)|pulvérisation(s)|"
                                             "inhalation(s)|application(s)|dose(s)|injection(s) IM|ovule|"
                                             "lyoc|lyo|dose 2,5 ml|dose 5 ml|dose 10 ml|dose 15 ml|suppo");
        QTest::newRow("1") << 1 << QStringLiteral("Matin") << quantites;
        QTest::newRow("2") << 2 << QStringLiteral("Midi") << quantites;
        QTest::newRow("3") << 3 << QStringLiteral("Soir") << quantites;
        QTest::newRow("4") << 4 << QStringLiteral("Coucher") << quantites;
        QTest::newRow("5") << 5 << QStringLiteral("Repas / horaire")
                           << QStringLiteral("en cas de besoin,|avant les repas,|au début des repas,|"
                                             "pendant les repas,|après les repas,|à la fin des repas,|"
                                             "à distance des repas,|n'importe quand");
        QTest::newRow("6") << 6 << QStringLiteral("Fréquence")
                           << QStringLiteral("tous les jours,|tous les 2 jours,|5 jours par semaine,|"
                                             "1 jour par semaine,|1 jour par mois,|"
                                             "du Xème au Xème jour du cycle,");
        QTest::newRow("7") << 7 << QStringLiteral("Durée")
                           << QStringLiteral("pendant 5 jours|pendant 6 jours|pendant 7 jours|"
                                             "pendant 8 jours|pendant 10 jours|pendant 14 jours|"
                                             "pendant 1 mois|pendant 3 mois|pendant 4 mois|pendant 6 mois");
    }

    void TheListsOfTheBoxes()
    {
        QFETCH(int, indice);
        QFETCH(QString, legende);
        QFETCH(QString, textes);
        QCOMPARE(LegendeCboP(indice), legende);
        QCOMPARE(ListeCboP(indice), textes.split(u'|'));
    }

    void TheSentenceOfMoments_data()
    {
        QTest::addColumn<QString>("choix"); // the eight texts, a bar between them
        QTest::addColumn<QString>("phrase");
        const auto rang = [](const char* nom, const char16_t* choix, const char16_t* phrase) {
            QTest::newRow(nom) << QString::fromUtf16(choix) << QString::fromUtf16(phrase);
        };
        rang("nothing", u"|||||||", u"  ");
        rang("form alone", u"gélule(s)|||||||", u"  ");
        rang("form once", u"comprimé(s)|1||1||||", u"1  comprimé(s)  le matin, 1  le soir");
        rang("whole and part", u"comprimé(s)|1 1/2||||||", u"1  comprimé(s) et 1/2  le matin");
        rang("whole and part later", u"comprimé(s)|1|1 1/4|||||",
             u"1  comprimé(s)  le matin, 1 et 1/4  le midi");
        rang("all four", u"goutte(s)|5|10|15|20|||",
             u"5  goutte(s)  le matin, 10  le midi, 15  le soir, 20  au coucher");
        rang("everything", u"gélule(s)|2|||1|avant les repas,|tous les jours,|pendant 7 jours",
             u"2  gélule(s)  le matin, 1  au coucher, avant les repas, tous les jours, pendant 7 jours");
        rang("no form", u"|1||1||||", u"1  le matin, 1  le soir");
        rang("three words", u"gélule(s)|1 ou 2||||||", u"1  gélule(s) et 2  le matin");
        rang("trailing blank", u"gélule(s)|1 ||||||", u"1  gélule(s) et   le matin");
        rang("form within a word", u"mat|1||1||||", u"1  mat  le matin, 1  le soir");
        rang("form of the words before", u"le matin|1||1||||", u"1  le matin  le matin, 1  le soir");
        rang("case counts", u"LE|1||1||||", u"1  LE  le matin, 1  le soir");
        rang("frequency, no duration", u"lyo|||1||pendant les repas,|tous les 2 jours,|",
             u"1  lyo  le soir, pendant les repas, tous les 2 jours");
        rang("duration alone", u"|||||||pendant 3 mois", u"  pendant 3 mois");
    }

    void TheSentenceOfMoments()
    {
        QFETCH(QString, choix);
        QFETCH(QString, phrase);
        const QStringList textes = choix.split(u'|');
        ChoixPosologie boites;
        std::copy(textes.begin(), textes.end(), boites.begin());
        for (const int dernier : {kForme, kMatin, kRepas, kDuree}) {
            QCOMPARE(EcritPoso(boites, dernier, QStringLiteral("9")), phrase);
        }
    }

    void TheFormIsNotRepeatedWithinAnEarlierQuantity()
    {
        // The first quantity is typed with the form in it.
        ChoixPosologie boites = {QStringLiteral("dose"), QStringLiteral("1dose(s)"), {}, QStringLiteral("2")};
        QCOMPARE(EcritPoso(boites, kForme, {}), QStringLiteral("1dose(s)  dose  le matin, 2  le soir"));
        boites = {QStringLiteral("dose"), {}, {}, {}};
        QCOMPARE(EcritPoso(boites, kForme, {}), QStringLiteral("  "));
    }

    void TheSentencesWithoutATimeOfDay_data()
    {
        QTest::addColumn<QString>("f");
        QTest::addColumn<QString>("r");
        QTest::addColumn<QString>("d");
        QTest::addColumn<QString>("besoin");
        QTest::addColumn<QString>("libre");
        QTest::newRow("alone") << QString() << QString() << QString()
                               << QStringLiteral("2   , en cas de besoin (max X par jour),  ")
                               << QStringLiteral("2  , toujours dans le même créneau horaire que vous pouvez "
                                                 "choisir librement,  ");
        QTest::newRow("form") << QStringLiteral("sachet(s)") << QString() << QString()
                              << QStringLiteral("2  sachet(s) , en cas de besoin (max X par jour),  ")
                              << QStringLiteral(
                                     "2 sachet(s) , toujours dans le même créneau horaire que vous "
                                     "pouvez choisir librement,  ");
        QTest::newRow("all")
            << QStringLiteral("sachet(s)") << QStringLiteral("tous les jours,")
            << QStringLiteral("pendant 5 jours")
            << QStringLiteral(
                   "2  sachet(s) , en cas de besoin (max X par jour), tous les jours, pendant 5 jours")
            << QStringLiteral("2 sachet(s) tous les jours, toujours dans le même créneau horaire que vous "
                              "pouvez choisir librement,  pendant 5 jours");
    }

    void TheSentencesWithoutATimeOfDay()
    {
        QFETCH(QString, f);
        QFETCH(QString, r);
        QFETCH(QString, d);
        QFETCH(QString, besoin);
        QFETCH(QString, libre);
        const QString quantite = QStringLiteral("2");
        ChoixPosologie boites = {f, {}, {}, {}, {}, kBesoin, r, d};
        for (const int dernier : {kForme, kFrequence, kDuree}) {
            QCOMPARE(EcritPoso(boites, dernier, quantite), besoin);
        }
        QCOMPARE(EcritPoso(boites, kRepas, quantite), CoupeVirgule(besoin));
        boites[kRepas] = kLibreMoment;
        for (const int dernier : {kForme, kFrequence, kDuree}) {
            QCOMPARE(EcritPoso(boites, dernier, quantite), libre);
        }
        QCOMPARE(EcritPoso(boites, kRepas, quantite), CoupeVirgule(libre));
    }

    void TheKindOfSentence_data()
    {
        QTest::addColumn<QString>("moment");
        QTest::addColumn<int>("dernier");
        QTest::addColumn<int>("cas");
        const auto rangs = [](const QString& moment, const QList<CasPosologie>& cas) {
            for (int i = 0; i < kNbCboP; ++i) {
                QTest::addRow("%s %d", qPrintable(moment), i) << moment << i << static_cast<int>(cas[i]);
            }
        };
        using enum CasPosologie;
        rangs(kBesoin, {Besoin, Moments, Moments, Moments, Moments, DemandeBesoin, Besoin, Besoin});
        rangs(kLibreMoment, {Libre, Moments, Moments, Moments, Moments, DemandeLibre, Libre, Libre});
        for (const char16_t* autre : {u"avant les repas,", u"", u"en cas de besoin", u"N'importe quand"}) {
            rangs(QString::fromUtf16(autre), QList<CasPosologie>(kNbCboP, Moments));
        }
    }

    void TheKindOfSentence()
    {
        QFETCH(QString, moment);
        QFETCH(int, dernier);
        QFETCH(int, cas);
        ChoixPosologie boites;
        boites[kRepas] = moment;
        QCOMPARE(static_cast<int>(CasDe(boites, dernier)), cas);
    }

    void TheEndComma()
    {
        QCOMPARE(CoupeVirgule(QStringLiteral(" 1  le matin,  ")), QStringLiteral("1  le matin"));
        QCOMPARE(CoupeVirgule(QStringLiteral("  ")), QStringLiteral("  "));
        QCOMPARE(CoupeVirgule(QStringLiteral(" 1 matin ")), QStringLiteral(" 1 matin "));
        QCOMPARE(CoupeVirgule(QStringLiteral("1,,")), QStringLiteral("1,"));
        QCOMPARE(CoupeVirgule(QString()), QString());
        QCOMPARE(PosologieRendue(QStringLiteral("  ")), QString());
        QCOMPARE(PosologieRendue(QStringLiteral(" 1 matin, ")), QStringLiteral("1 matin"));
        QCOMPARE(PosologieRendue(QStringLiteral(" 1 matin ")), QStringLiteral("1 matin"));
        QCOMPARE(PosologieRendue(QStringLiteral(" , ")), QString());
    }

    void AnOpenNumberIsSeen()
    {
        QVERIFY(ResteUnX(EcritPoso({QString(), {}, {}, {}, {}, kBesoin}, kRepas, QStringLiteral("1"))));
        QVERIFY(ResteUnX(QStringLiteral("du 5ème au Xème jour du cycle")));
        QVERIFY(!ResteUnX(QStringLiteral("1 , en cas de besoin (max 3 par jour)")));
        QVERIFY(!ResteUnX(QStringLiteral("1 XANAX")));
    }

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
