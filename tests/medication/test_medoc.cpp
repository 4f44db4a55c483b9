#include "medication/Commandes.h"
#include "medication/messages.h"
#include "support/Monde.h"

#include <QTest>

using namespace medication;
using outside::Bouton;

namespace {

/// A pharmacy of one entry, to see what a click does.
struct PharmacieFeinte : Pharmacie
{
    bool Disparue = false;

    QList<Noeud> Charge(const QString& recherche) override { return {{recherche, QStringLiteral("5")}}; }
    std::optional<Saisie> Lit(const Noeud&) override
    {
        return Disparue ? std::nullopt
                        : std::optional(Saisie{QStringLiteral("AMLOR"), QStringLiteral("1 cp")});
    }
    std::optional<QString> Notes(const QString&) override { return {}; }
    void Enregistre(Noeud&, const Saisie&, outside::Boites&) override {}
    bool Retire(const Noeud&, const QString&, outside::Boites&) override { return false; }
    QString Identifiant(const Noeud* noeud) const override
    {
        return noeud ? noeud->Etiquette : QStringLiteral("1");
    }
};

const Noeud kNoeud{QStringLiteral("AMLOR"), QStringLiteral("5")};

} // namespace

class TestMedoc : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<support::Monde> monde_;
    PharmacieFeinte pharmacie_;

    prescription::Ordonnance& Ordo() { return monde_->Etat.Ordonnance; }
    Choix& ChoixEnMain() { return monde_->Etat.Choix; }
    Suite Ajoute1(const QString& texte, const Noeud* noeud = &kNoeud)
    {
        return Ajoute(monde_->Contexte, pharmacie_, Zone::Un, {texte, QStringLiteral("p")}, noeud);
    }
    Suite Ajoute2(const QString& texte)
    {
        return Ajoute(monde_->Contexte, pharmacie_, Zone::Deux, {texte, QStringLiteral("p")}, nullptr);
    }

private Q_SLOTS:
    void init()
    {
        monde_ = std::make_unique<support::Monde>();
        pharmacie_.Disparue = false;
    }
    void cleanup() { QVERIFY(monde_->Boites.Epuise()); }

    void AClickGivesTheNode()
    {
        ChoixEnMain().OrigineEdition = 2;
        QCOMPARE(ChoisitNoeud(ChoixEnMain(), pharmacie_, &kNoeud, 3)->TxtMedoc, QStringLiteral("AMLOR"));
        QCOMPARE(ChoixEnMain().NoeudChoisi, 4);
        QCOMPARE(ChoixEnMain().OrigineEdition, quint8(0));
        QCOMPARE(ChoixEnMain().ArbreChoisi, quint8(1));
        QCOMPARE(ChoixEnMain().NoeudLu, kNoeud);
        QVERIFY(!ChoisitNoeud(ChoixEnMain(), pharmacie_, nullptr, -1));
        QCOMPARE(ChoixEnMain().NoeudChoisi, 4);
    }

    void NodeOneHundredReadsAsNone()
    {
        ChoisitNoeud(ChoixEnMain(), pharmacie_, &kNoeud, 99);
        QCOMPARE(ChoixEnMain().NoeudChoisi, kAucunNoeud);
    }

    void NodesBeyondSixteenBitsHaveTheirNumber()
    {
        ChoisitNoeud(ChoixEnMain(), pharmacie_, &kNoeud, 69999);
        QCOMPARE(ChoixEnMain().NoeudChoisi, 70000);
    }

    void AMedicationGoneMeanwhileShowsItsName()
    {
        pharmacie_.Disparue = true;
        QCOMPARE(*ChoisitNoeud(ChoixEnMain(), pharmacie_, &kNoeud, 0), (Saisie{QStringLiteral("AMLOR"), {}}));
    }

    void FillingForgetsTheNode()
    {
        ArbreMedicaments arbre;
        ChoixEnMain().NoeudChoisi = 4;
        ChoixEnMain().NoeudLu = kNoeud;
        ChargeMedicaments(ChoixEnMain(), pharmacie_, arbre, QStringLiteral("  DOLI "));
        QCOMPARE(ChoixEnMain().NoeudChoisi, kAucunNoeud);
        QCOMPARE(ChoixEnMain().NoeudLu, Noeud());
        QCOMPARE(arbre.Lis(0)->Texte, QStringLiteral("DOLI"));
    }

    void AddingTakesTheNodesIdentifier()
    {
        ChoixEnMain().NoeudChoisi = 4;
        QCOMPARE(Ajoute1(QStringLiteral("typed by hand")), Suite::Termine);
        QCOMPARE(prescription::IdentifiantDeLigne(Ordo().LstChoix1.Lignes()[0].Texte), QStringLiteral("5"));
        QCOMPARE(ChoixEnMain().NoeudChoisi, kAucunNoeud);
    }

    void AddingNothingOnlyMovesTheFocus()
    {
        QCOMPARE(Ajoute1(QString()), Suite::Recherche);
        ChoixEnMain().OrigineEdition = 2;
        QCOMPARE(Ajoute1(QStringLiteral("AMLOR")), Suite::Recherche);
        QVERIFY(Ordo().LstChoix1.Vide() && Ordo().OrdoZone1.isEmpty());
    }

    void AddingNeedsANodeInTheFirstZoneOnly()
    {
        QCOMPARE(Ajoute1(QStringLiteral("AMLOR"), nullptr), Suite::SansNoeud);
        QVERIFY(Ordo().OrdoZone1.isEmpty());
        QCOMPARE(Ajoute2(QStringLiteral("AMLOR")), Suite::Termine);
        QCOMPARE(Ordo().LstChoix2.rowCount(), 1);
    }

    void ALineTakenBackGoesBackToItsZoneOnly()
    {
        Ajoute1(QStringLiteral("AMLOR"));
        ReprendLigne(Ordo(), ChoixEnMain(), Zone::Un, 0);
        QCOMPARE(Ajoute2(QStringLiteral("AMLOR")), Suite::Termine);
        QVERIFY(Ordo().LstChoix1.Vide() && Ordo().LstChoix2.Vide());
        QCOMPARE(Ordo().OrdoZone1.size(), 1);

        QCOMPARE(Ajoute1(QStringLiteral("AMLOR 5"), nullptr), Suite::Termine);
        QCOMPARE(Ordo().OrdoZone1[0].Titre, QStringLiteral("AMLOR 5"));
        QCOMPARE(ChoixEnMain().OrigineEdition, quint8(0));
    }

    void ALineTakenBackBeforeAResetIsAFreshOne()
    {
        Ajoute1(QStringLiteral("AMLOR"));
        ReprendLigne(Ordo(), ChoixEnMain(), Zone::Un, 0);
        EffaceTout(monde_->Contexte);
        QCOMPARE(Ajoute1(QStringLiteral("DOLI")), Suite::Termine);
        QCOMPARE(Ordo().OrdoZone1,
                 QList<prescription::Entree>({{QStringLiteral("DOLI"), QStringLiteral("p")}}));
    }

    void AJumpGoesToTheOnlyZone()
    {
        QVERIFY(SauteLigne(monde_->Contexte));
        QCOMPARE(Ordo().LstChoix1.rowCount(), 1);
    }

    void AJumpAsksForTheZone_data()
    {
        QTest::addColumn<int>("reponse");
        QTest::addColumn<int>("zone1");
        QTest::addColumn<int>("zone2");
        QTest::newRow("yes") << int(Bouton::Oui) << 1 << 0;
        QTest::newRow("no") << int(Bouton::Non) << 0 << 1;
        QTest::newRow("cancel") << int(Bouton::Annuler) << 0 << 0;
    }
    void AJumpAsksForTheZone()
    {
        QFETCH(int, reponse);
        QFETCH(int, zone1);
        QFETCH(int, zone2);
        Ordo().ChkALD = 1;
        monde_->Boites.AttendQuestion(QStringLiteral("Zone ALD, tapez oui.\n\nZone non ALD, tapez non."),
                                      static_cast<Bouton>(reponse));
        QCOMPARE(SauteLigne(monde_->Contexte), zone1 + zone2 > 0);
        QCOMPARE(Ordo().LstChoix1.rowCount(), zone1);
        QCOMPARE(Ordo().LstChoix2.rowCount(), zone2);
    }

    void ClearingEmptiesBothZones()
    {
        Ajoute1(QStringLiteral("A"));
        Ajoute2(QStringLiteral("B"));
        CompteMedicaments(Ordo());
        ChoixEnMain().NoeudChoisi = 3;
        EffaceTout(monde_->Contexte);
        QVERIFY(Ordo().LstChoix1.Vide() && Ordo().LstChoix2.Vide());
        QVERIFY(Ordo().OrdoZone1.isEmpty() && Ordo().OrdoZone2.isEmpty());
        QCOMPARE(Ordo().NbMedZone1 + Ordo().NbMedZone2, 0);
        QCOMPARE(ChoixEnMain().NoeudChoisi, kAucunNoeud);
    }

    void AnEmptyPrescriptionIsToldAndGoesOn()
    {
        monde_->Boites.AttendInformation(QStringLiteral("Aucun médicament n'a été choisi !"));
        PrepareOrdonnance(monde_->Contexte);
    }

    void TheCountIsMadeAtTheHandOver()
    {
        Ajoute1(QStringLiteral("A"));
        QCOMPARE(Ordo().NbMedZone1, quint8(0));
        PrepareOrdonnance(monde_->Contexte);
        QCOMPARE(Ordo().NbMedZone1, quint8(1));
    }

    void TheHandOverPaintsThePrescription()
    {
        monde_->Etat.Apercu.ModeApercu = 2;
        Ajoute1(QStringLiteral("AMLOR"));
        MontreOrdonnance(monde_->Contexte);
        QCOMPARE(monde_->Etat.Apercu.ModeApercu, quint8(0));
        QVERIFY(!monde_->Etat.Apercu.PctOrdo.Items.isEmpty());
        EffaceTout(monde_->Contexte);
        QVERIFY(monde_->Etat.Apercu.PctOrdo.Items.isEmpty());
    }

    void EverySecondPressSelectsTheSearch()
    {
        QVERIFY(PresseRecherche(ChoixEnMain()));
        QVERIFY(!PresseRecherche(ChoixEnMain()));
        QVERIFY(PresseRecherche(ChoixEnMain()));
    }

    void F4TogglesThirtyBlanks_data()
    {
        QTest::addColumn<QString>("avant");
        QTest::addColumn<QString>("apres");
        QTest::newRow("none") << " A B" << QStringLiteral("A B") + QString(30, u' ');
        QTest::newRow("one") << " A B "
                             << "A B";
        QTest::newRow("thirty") << QStringLiteral("A") + QString(30, u' ') << "A";
        QTest::newRow("empty") << "" << QString(30, u' ');
    }
    void F4TogglesThirtyBlanks()
    {
        QFETCH(QString, avant);
        QFETCH(QString, apres);
        QCOMPARE(BasculeBlancs(avant), apres);
    }

    void TheHelpIsWordForWord()
    {
        QVERIFY(messages::Aide().startsWith(QStringLiteral(
            "L 'inscription, après un mot, et sans espace, de l'un des caractères suivants\n")));
        QCOMPARE(messages::Aide().count(u'\n'), 11);
        QVERIFY(messages::Aide().endsWith(QStringLiteral(
            "-A domicile par IDE', etc..., l'option de comptabilisation des médicaments, si elle "
            "est choisie, ignorera ces lignes.")));
    }

    void LeavingLosesNothingWithEmptyHands()
    {
        QVERIFY(RienEnMain(Ordo(), {}));
        QVERIFY(!RienEnMain(Ordo(), {QStringLiteral("A"), {}}));
        QVERIFY(!RienEnMain(Ordo(), {{}, QStringLiteral("1 matin")}));
        AjouteSaut(Ordo(), Zone::Deux);
        QVERIFY(!RienEnMain(Ordo(), {}));
    }
};

QTEST_MAIN(TestMedoc)
#include "test_medoc.moc"
