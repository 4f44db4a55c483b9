#include "application/Signaux.h"
#include "page/Surface.h"
#include "settings/EffetDuRang.h"
#include "settings/EntetePropose.h"
#include "settings/FichiersReglages.h"
#include "storage/Jeu.h"
#include "support/BaseDeTest.h"
#include "support/Cabinet.h"

#include <QDir>
#include <QSignalSpy>
#include <QTest>

using namespace settings;

namespace {

struct Bureau : Cabinet
{
    storage::Base& Ordo() { return Etat.Bases.Ordo(Etat.Chemins.CheminMedecin); }
    QString Marges() const { return common::Joint(Etat.Chemins.CheminMedecin, QStringLiteral("Marges.cfg")); }
    bool Propose() { return EnteteAProposer(Contexte, page::LitEntete(Ordo())); }
};

} // namespace

class TestEntete : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theRowsGoAndComeBack();
    void aSaveMakesTwentyFourRowsInOrder();
    void marginsAreReadByTheirNumericPrefix();
    void aFailureAnywhereLeavesAllAsItWas_data();
    void aFailureAnywhereLeavesAllAsItWas();
    void aMarginFileThatCannotBeWrittenKeepsTheRows();
    void anotherRowOfColourDoesNotHideTheSavedOne();
    void theProposalHoldsOnlyWhatIsKnown_data();
    void theProposalHoldsOnlyWhatIsKnown();
    void aLongNameIsProposedAsLargeAsItFits();
    void anAcceptedProposalPutsThePractitionerFirst();
    void whatIsTypedWaitsForItsDoctor();
    void aRowSaysWhatItDoesOnPaper_data();
    void aRowSaysWhatItDoesOnPaper();
    void theProposalStandsAtFirstUseOnly();
    void decliningIsRemembered();
};

void TestEntete::theRowsGoAndComeBack()
{
    Bureau bureau;
    Entete entete = ChargeEntete(bureau.Contexte);
    QCOMPARE(entete.Rangs, PremiersRangs());
    entete.Rangs[3] = {
        QStringLiteral("l'Étoile \"$"), {QStringLiteral("Courier New"), 8.5F, true, true, true}, 7};
    entete.Rangs[22].Texte = QStringLiteral("un\r\ndeux");
    entete.Couleur = page::Rvb(255, 254, 253);
    entete.MargeBas = 12.5F;
    EnregistreEntete(bureau.Contexte, entete);
    bureau.Etat.Reglages.Look = {};
    QCOMPARE(ChargeEntete(bureau.Contexte), entete);
    QCOMPARE(bureau.Etat.Reglages.Look.CouleurEntete, page::Rvb(255, 254, 253));
    Reglages lus;
    ChargeReglages(lus, bureau.Etat.Chemins.CheminMedecin);
    QCOMPARE(lus.Marges.MargeBasEntete, 12.5F);
}

void TestEntete::aSaveMakesTwentyFourRowsInOrder()
{
    Bureau bureau;
    support::AjouteLigne(bureau.Ordo(), QStringLiteral("Entete"), {4, QStringLiteral("deux fois")});
    support::AjouteLigne(bureau.Ordo(), QStringLiteral("Entete"), {99, QStringLiteral("hors des rangs")});
    const Entete entete = ChargeEntete(bureau.Contexte);
    QCOMPARE(entete.Rangs[4].Texte, QStringLiteral("deux fois"));
    EnregistreEntete(bureau.Contexte, entete);
    const QStringList lignes = support::Lignes(bureau.Ordo(), QStringLiteral("Entete"));
    QCOMPARE(lignes.size(), 24);
    for (int rang = 0; rang < 24; ++rang) {
        QVERIFY(lignes.at(rang).startsWith(QStringLiteral("%1|").arg(rang)));
    }
}

void TestEntete::marginsAreReadByTheirNumericPrefix()
{
    QCOMPARE(MargeTapee(u"12,5"), 12.0F);
    QCOMPARE(MargeTapee(u"12.5"), 12.5F);
    QCOMPARE(MargeTapee(u" 7 mm"), 7.0F);
    QCOMPARE(MargeTapee(u"abc"), 0.0F);
    QCOMPARE(MargeTapee(u""), 0.0F);
    QCOMPARE(MargeTapee(u"-3"), -3.0F);
    QCOMPARE(MargeTapee(u"1e30"), 9999.0F);
}

void TestEntete::aFailureAnywhereLeavesAllAsItWas_data()
{
    QTest::addColumn<QString>("instruction");
    QTest::newRow("the deletion") << "delete from";
    QTest::newRow("a row") << "insert into";
    QTest::newRow("the colour") << "CouleurPET";
    QTest::newRow("the end") << "commit";
}

void TestEntete::aFailureAnywhereLeavesAllAsItWas()
{
    QFETCH(QString, instruction);
    Bureau bureau;
    EcritMarges(bureau.Etat.Reglages.Marges, bureau.Etat.Chemins.CheminMedecin);
    const QByteArray marges = common::LitFichier(bureau.Marges());
    const QStringList avant = support::Lignes(bureau.Ordo(), QStringLiteral("Entete"));
    Entete entete = ChargeEntete(bureau.Contexte);
    entete.Rangs[0].Texte = QStringLiteral("12 rue des Lilas");
    entete.Rangs[23].Texte = QStringLiteral("Dr N.");
    entete.MargeGauche = 33;
    QSignalSpy face(&bureau.Etat.Signaux, &application::Signaux::FaceChange);
    bureau.Ordo().PoseCrochet(
        [&](const QString& lancee) { return lancee.contains(instruction, Qt::CaseInsensitive); });
    QVERIFY(!support::PhraseDEchec([&] { EnregistreEntete(bureau.Contexte, entete); }).isEmpty());
    bureau.Ordo().PoseCrochet({});
    QCOMPARE(support::Lignes(bureau.Ordo(), QStringLiteral("Entete")), avant);
    QCOMPARE(common::LitFichier(bureau.Marges()), marges);
    QCOMPARE(bureau.Etat.Reglages.Marges.MargeGaucheEntete, 10.0F);
    QVERIFY(bureau.Etat.Reglages.Look.NomSignature != QStringLiteral("Dr N."));
    QCOMPARE(face.count(), 0);
}

void TestEntete::aMarginFileThatCannotBeWrittenKeepsTheRows()
{
    Bureau bureau;
    const QStringList avant = support::Lignes(bureau.Ordo(), QStringLiteral("Entete"));
    QVERIFY(QDir().mkpath(bureau.Marges() + QStringLiteral("/un")));
    Entete entete = ChargeEntete(bureau.Contexte);
    entete.Rangs[0].Texte = QStringLiteral("12 rue des Lilas");
    entete.MargeGauche = 33;
    QVERIFY(!support::PhraseDEchec([&] { EnregistreEntete(bureau.Contexte, entete); }).isEmpty());
    QCOMPARE(support::Lignes(bureau.Ordo(), QStringLiteral("Entete")), avant);
    QCOMPARE(bureau.Etat.Reglages.Marges.MargeGaucheEntete, 10.0F);
}

void TestEntete::anotherRowOfColourDoesNotHideTheSavedOne()
{
    Bureau bureau;
    support::AjouteLigne(bureau.Ordo(), QStringLiteral("CouleurPET"), {255});
    Entete entete = ChargeEntete(bureau.Contexte);
    QCOMPARE(entete.Couleur, page::Couleur(255));
    entete.Couleur = page::Rvb(0, 0, 64);
    EnregistreEntete(bureau.Contexte, entete);
    QCOMPARE(ChargeEntete(bureau.Contexte).Couleur, page::Rvb(0, 0, 64));
}

void TestEntete::theProposalHoldsOnlyWhatIsKnown_data()
{
    QTest::addColumn<QString>("medecin");
    QTest::addColumn<QString>("titre");
    QTest::addColumn<QString>("nom");
    QTest::addColumn<QString>("signature");
    const QString docteur = QStringLiteral("Docteur");
    QTest::newRow("a doctor") << "DR NEIBRE" << docteur << "NEIBRE"
                              << "Docteur NEIBRE";
    QTest::newRow("DR inside the name") << "DR ANDRE PAUL" << docteur << "ANDRE PAUL"
                                        << "Docteur ANDRE PAUL";
    QTest::newRow("a name that ends as a marker") << "DR US$" << docteur << "US$$"
                                                  << "Docteur US$";
    QTest::newRow("a name without a title") << "NEIBRE ANNE"
                                            << "*"
                                            << "NEIBRE ANNE"
                                            << "NEIBRE ANNE";
}

void TestEntete::theProposalHoldsOnlyWhatIsKnown()
{
    QFETCH(QString, medecin);
    QFETCH(QString, titre);
    QFETCH(QString, nom);
    QFETCH(QString, signature);
    const RangsEntete rangs = RangsProposes(medecin);
    QCOMPARE(rangs[10].Texte, QString());
    QCOMPARE(rangs[11].Texte, titre);
    QCOMPARE(rangs[12].Texte, nom);
    QVERIFY(rangs[12].Police.Gras);
    QVERIFY(rangs[12].Police.Taille > rangs[11].Police.Taille);
    QCOMPARE(rangs[13].Texte, QString(60, QLatin1Char('_')));
    QCOMPARE(rangs[22].Texte, QString());
    QCOMPARE(rangs[23].Texte, signature);
    for (size_t autre = 0; autre < 22; ++autre) {
        QVERIFY((autre >= 10 && autre <= 13) || rangs.at(autre).Texte == QStringLiteral("*"));
    }
}

void TestEntete::aLongNameIsProposedAsLargeAsItFits()
{
    const QString nom = QStringLiteral("DE LA TOUR DU PIN MARIE CHRISTINE");
    const page::Police police = RangsProposes(QStringLiteral("DR ") + nom)[12].Police;
    page::Surface mesure(page::Cible::Autre);
    mesure.Font(police);
    QVERIFY(mesure.TextWidth(nom) <= 100);
    mesure.FontSize(police.Taille + 1);
    QVERIFY(mesure.TextWidth(nom) > 100);
    QCOMPARE(RangsProposes(QStringLiteral("DR ") + QString(100, QLatin1Char('W')))[12].Police.Taille, 11.0F);
}

void TestEntete::anAcceptedProposalPutsThePractitionerFirst()
{
    Bureau bureau;
    QVERIFY(UtiliseEntete(bureau.Contexte));
    QCOMPARE(bureau.Etat.Reglages.Options.ModeEntete, quint8(1));
    Reglages lus;
    ChargeReglages(lus, bureau.Etat.Chemins.CheminMedecin);
    QCOMPARE(lus.Options.ModeEntete, quint8(1));
}

void TestEntete::whatIsTypedWaitsForItsDoctor()
{
    Bureau bureau;
    const Entete stockee = ChargeEntete(bureau.Contexte);
    Entete saisie = stockee;
    saisie.Rangs[0].Texte = QStringLiteral("12 rue des Lilas");
    SuspendEntete(bureau.Contexte, saisie, stockee);
    QCOMPARE(EnteteEnSuspens(bureau.Contexte, stockee), saisie);
    const QString chemin = bureau.Etat.Chemins.CheminMedecin;
    bureau.Etat.Chemins.CheminMedecin += QStringLiteral(" BIS");
    QCOMPARE(EnteteEnSuspens(bureau.Contexte, stockee), stockee);
    bureau.Etat.Chemins.CheminMedecin = chemin;
    SuspendEntete(bureau.Contexte, stockee, stockee);
    QVERIFY(bureau.Etat.Reglages.EntetesEnSuspens.isEmpty());
}

void TestEntete::aRowSaysWhatItDoesOnPaper_data()
{
    QTest::addColumn<int>("rang");
    QTest::addColumn<QString>("avant");
    QTest::addColumn<QString>("texte");
    QTest::addColumn<int>("espaces");
    QTest::addColumn<QString>("morceau");
    QTest::newRow("a star alone") << 3 << ""
                                  << "*" << 0 << "ne s'imprime pas";
    QTest::newRow("empty") << 3 << ""
                           << "" << 0 << "une ligne blanche sur";
    QTest::newRow("the last of the address, a star") << 9 << ""
                                                     << "*" << 0 << "une ligne blanche avant";
    QTest::newRow("the last of the address, empty") << 9 << ""
                                                    << "" << 0 << "deux lignes blanches";
    QTest::newRow("opens a line") << 3 << ""
                                  << "Tél.*" << 0 << "« * » à la fin";
    QTest::newRow("ends a line") << 3 << "Tél.*"
                                 << "02 99$" << 0 << "« $ » à la fin";
    QTest::newRow("would cover the row before") << 3 << "Tél.*"
                                                << "02 99" << 0 << "recouvrir";
    QTest::newRow("a lone star covers nothing") << 3 << "*"
                                                << "02 99" << 0 << "Pour la décaler";
    QTest::newRow("shifted") << 3 << ""
                             << "02 99" << 7 << "Décalée de 7 mm";
    QTest::newRow("the first row") << 0 << ""
                                   << "12 rue" << 0 << "Pour la décaler";
    QTest::newRow("the foot") << 22 << ""
                              << "*" << 0 << "bas de chaque ordonnance";
    QTest::newRow("the signature") << 23 << ""
                                   << "*" << 0 << "certificats";
}

void TestEntete::aRowSaysWhatItDoesOnPaper()
{
    QFETCH(int, rang);
    QFETCH(QString, avant);
    QFETCH(QString, texte);
    QFETCH(int, espaces);
    QFETCH(QString, morceau);
    RangsEntete rangs;
    rangs.at(static_cast<size_t>(std::max(0, rang - 1))).Texte = avant;
    rangs.at(static_cast<size_t>(rang)) = {texte, {}, static_cast<qint16>(espaces)};
    QVERIFY2(EffetDuRang(rangs, rang).contains(morceau), qPrintable(EffetDuRang(rangs, rang)));
}

void TestEntete::theProposalStandsAtFirstUseOnly()
{
    Bureau bureau;
    QVERIFY(bureau.Propose());
    QVERIFY(UtiliseEntete(bureau.Contexte));
    QVERIFY(!bureau.Propose());
    QCOMPARE(bureau.Etat.Reglages.Look.NomSignature, QStringLiteral("Docteur NEIBRE"));
    // A letterhead of his own is not written over.
    Entete entete = ChargeEntete(bureau.Contexte);
    entete.Rangs[12].Texte = QStringLiteral("Anne NEIBRE");
    EnregistreEntete(bureau.Contexte, entete);
    QVERIFY(UtiliseEntete(bureau.Contexte));
    QCOMPARE(ChargeEntete(bureau.Contexte).Rangs[12].Texte, QStringLiteral("Anne NEIBRE"));
}

void TestEntete::decliningIsRemembered()
{
    Bureau bureau;
    QVERIFY(LaisseEntete(bureau.Contexte));
    QVERIFY(!bureau.Propose());
    QCOMPARE(common::LitFichier(
                 common::Joint(bureau.Etat.Chemins.CheminMedecin, QStringLiteral("EntetePropose.cfg"))),
             QByteArray("1\r\n"));
    QCOMPARE(support::Lignes(bureau.Ordo(), QStringLiteral("Entete")).at(5),
             QStringLiteral("5|Tel|Arial|10|0|0|0|0"));
    bureau.Etat.Chemins.CheminMedecin.clear();
    QVERIFY(!EnteteAProposer(bureau.Contexte, LignesDe(PremiersRangs())));
}

QTEST_MAIN(TestEntete)
#include "test_entete.moc"
