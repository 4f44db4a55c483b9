#include "BanqueFeinte.h"
#include "medication/Commandes.h"
#include "medication/Pharmacies.h"
#include "medication/messages.h"
#include "support/BaseDeTest.h"
#include "support/Monde.h"

#include <QBrush>
#include <QTest>

using namespace medication;
using outside::Bouton;

class TestPharmacieBanque : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<support::Monde> monde_;
    std::shared_ptr<support::BanqueFeinte> banque_;
    std::unique_ptr<Pharmacies> pharmacies_;

    Pharmacie& Banque() { return pharmacies_->EnService(); }
    Choix& ChoixEnMain() { return monde_->Etat.Choix; }
    storage::Base& Medoc() { return monde_->Etat.Bases.Medoc(monde_->Etat.Chemins.CheminTravail); }
    QStringList Lignes(const char* table) { return support::Lignes(Medoc(), QLatin1String(table)); }
    void Pose(const char* table, const QVariantList& champs)
    {
        support::AjouteLigne(Medoc(), QLatin1String(table), champs);
    }
    Noeud Personnel(const QString& titre) { return {QLatin1Char(' ') + titre, QStringLiteral("1")}; }
    Noeud Pack()
    {
        return {QStringLiteral("DOLIPRANE 1 000 mg"), QStringLiteral("3400930000011/11/101/1.16")};
    }
    void Clique(const Noeud& noeud) { ChoisitNoeud(ChoixEnMain(), Banque(), &noeud, 0); }
    void Relief(quint8 etat) { monde_->Etat.Reglages.Options.ReliefMedUtilises = etat; }

private Q_SLOTS:
    void init()
    {
        monde_ = std::make_unique<support::Monde>();
        monde_->Etat.Banque.TypeBase = QStringLiteral("TVS");
        const QString travail = monde_->Etat.Chemins.CheminTravail;
        common::CreeDossier(travail);
        storage::CreeBase(common::Joint(travail, QStringLiteral("Medoc.mdb")), storage::GenreBase::Medoc);
        for (const auto* table : {"BddMed", "Biblio", "Vidal", "MedUtile"}) {
            Medoc().SupprimeOu(QLatin1String(table), QStringLiteral("1 = 1"), {});
        }
        banque_ = std::make_shared<support::BanqueFeinte>();
        banque_->Contenu = {
            {QStringLiteral("3400930000011"), 11, 101, 1.16F, QStringLiteral("DOLIPRANE 1 000 mg")},
            {QStringLiteral("0034009"), 12, 102, 0.F, QStringLiteral("DOLI SIROP")}};
        monde_->Etat.Banque.Acces = banque_;
        pharmacies_ = std::make_unique<Pharmacies>(monde_->Contexte);
    }
    void cleanup() { QVERIFY(monde_->Boites.Epuise()); }

    void ThePharmacyFollowsTheBase()
    {
        Pose("BddMed", {1, {}, {}, {}, {}, QStringLiteral("AMLOR")});
        Pose("Biblio", {QStringLiteral("QSP 3 mois"), {}});
        QCOMPARE(Banque().Charge({})[0].Texte, QStringLiteral(" QSP 3 mois"));
        monde_->Etat.Banque.TypeBase = QStringLiteral("BIP");
        QCOMPARE(Banque().Charge({})[0].Texte, QStringLiteral("AMLOR"));
        monde_->Etat.Banque.TypeBase = QStringLiteral("VDE");
        QCOMPARE(Banque().Charge({})[0].Texte, QStringLiteral(" QSP 3 mois"));
    }

    void ABlankSearchShowsThePersonalEntriesAlone()
    {
        QVERIFY(Banque().Charge(QStringLiteral("  ")).isEmpty());
        Pose("Biblio", {QStringLiteral("Z"), {}});
        Pose("Biblio", {QStringLiteral("L'A"), {}});
        QCOMPARE(Banque().Charge(QString()),
                 QList<Noeud>({Personnel(QStringLiteral("Z")), Personnel(QStringLiteral("L'A"))}));
        QVERIFY(banque_->Demandes.isEmpty());
    }

    void ASearchAsksTheBank()
    {
        Pose("Biblio", {QStringLiteral("DOLI"), {}});
        monde_->Etat.Banque.FiltreBanque = 128;
        const QList<Noeud> noeuds = Banque().Charge(QStringLiteral("doli"));
        QCOMPARE(banque_->Demandes, QStringList({QStringLiteral("doli/128")}));
        QCOMPARE(noeuds,
                 QList<Noeud>({Pack(), {QStringLiteral("DOLI SIROP"), QStringLiteral("34009/12/102/0")}}));
    }

    void WithoutABankASearchFindsNothing()
    {
        monde_->Etat.Banque.Acces.reset();
        QVERIFY(Banque().Charge(QStringLiteral("DOLI")).isEmpty());
    }

    void UsedPacksAreMarkedWhenTheOptionsAskForIt()
    {
        Pose("MedUtile", {QStringLiteral("3400930000011")});
        QVERIFY(!Banque().Charge(QStringLiteral("DOLI"))[0].Utile);
        Relief(1);
        const QList<Noeud> noeuds = Banque().Charge(QStringLiteral("DOLI"));
        QVERIFY(noeuds[0].Utile && !noeuds[1].Utile);
    }

    void ACipWithLeadingZerosIsNeverMarked()
    {
        Relief(1);
        const Noeud sirop = Banque().Charge(QStringLiteral("DOLI SIROP"))[0];
        Clique(sirop);
        Banque().Prescrit(&sirop);
        QCOMPARE(Lignes("MedUtile"), QStringList({QStringLiteral("34009")}));
        QVERIFY(!Banque().Charge(QStringLiteral("DOLI SIROP"))[0].Utile);
    }

    void AClickReadsThePersonalEntry()
    {
        Pose("Biblio", {QStringLiteral("  L'\"eau\" "), QStringLiteral("p")});
        Pose("Biblio", {QStringLiteral("nulle"), {}});
        QCOMPARE(*Banque().Lit(Personnel(QStringLiteral("  L'\"eau\" "))),
                 (Saisie{QStringLiteral("L'\"eau\""), QStringLiteral("p")}));
        QCOMPARE(*Banque().Lit(Personnel(QStringLiteral("nulle"))), (Saisie{QStringLiteral("nulle"), {}}));
        QCOMPARE(*Banque().Lit(Personnel(QStringLiteral("partie"))), (Saisie{QStringLiteral("partie"), {}}));
    }

    void AClickOnAPackSplitsItsTag()
    {
        Pose("Vidal", {QStringLiteral("3400930000011"), QStringLiteral("1 cp")});
        Clique(Pack());
        QCOMPARE(ChoixEnMain().InfoPack.join(u' '), QStringLiteral("3400930000011 11 101 1.16"));
        QCOMPARE(*Banque().Lit(Pack()),
                 (Saisie{QStringLiteral("DOLIPRANE 1 000 mg"), QStringLiteral("1 cp")}));
        Clique(Personnel(QStringLiteral("A")));
        QCOMPARE(ChoixEnMain().InfoPack.value(1), QStringLiteral("11"));
    }

    void TheCommonNameReplacesTheTradeName()
    {
        ChoixEnMain().ChkDCI = 1;
        QCOMPARE(Banque().Lit(Pack())->TxtMedoc, QStringLiteral("PARACETAMOL"));
        QCOMPARE(Banque().Lit({QStringLiteral("X "), QStringLiteral("1/2/103/4")})->TxtMedoc,
                 QStringLiteral("X"));
        QCOMPARE(Banque().Lit(Personnel(QStringLiteral("A")))->TxtMedoc, QStringLiteral("A"));
    }

    void AProductWithoutACommonNameIsTold()
    {
        const Noeud sans{QStringLiteral(" X "), QStringLiteral("1/2/3/4")};
        QCOMPARE(Banque().Lit(sans)->TxtMedoc, QStringLiteral("X"));
        ChoixEnMain().ChkDCI = 1;
        monde_->Boites.AttendInformation(QStringLiteral("Ce produit n'a pas de DCI."));
        QCOMPARE(Banque().Lit(sans)->TxtMedoc, QStringLiteral("X"));
        monde_->Etat.Banque.Acces.reset();
        QCOMPARE(Banque().Lit(sans)->TxtMedoc, QStringLiteral("X"));
    }

    void AFreshLineBearsTheProduct()
    {
        const Noeud pack = Pack();
        const Noeud personnel = Personnel(QStringLiteral("A"));
        Clique(pack);
        QCOMPARE(Banque().Identifiant(&pack), QStringLiteral("101"));
        QCOMPARE(Banque().Identifiant(&personnel), QStringLiteral("1"));
        QCOMPARE(Banque().Identifiant(nullptr), QStringLiteral("1"));
    }

    void TheFirstPrescriptionMarksThePackOnce()
    {
        const Noeud pack = Pack();
        const Noeud personnel = Personnel(QStringLiteral("A"));
        Clique(pack);
        Ajoute(monde_->Contexte, Banque(), Zone::Un, {QStringLiteral("D"), {}}, &pack);
        Ajoute(monde_->Contexte, Banque(), Zone::Deux, {QStringLiteral("D"), {}}, &pack);
        Ajoute(monde_->Contexte, Banque(), Zone::Un, {QStringLiteral("A"), {}}, &personnel);
        Ajoute(monde_->Contexte, Banque(), Zone::Deux, {QStringLiteral("A"), {}}, nullptr);
        QCOMPARE(Lignes("MedUtile"), QStringList({QStringLiteral("3400930000011")}));
    }

    void AMarkThatIsRefusedIsToldAndTheLineStays()
    {
        const Noeud pack = Pack();
        Clique(pack);
        Medoc().PoseCrochet([](const QString& instruction) { return instruction.startsWith(u"insert"); });
        monde_->Boites.AttendContenant(outside::Genre::Stop, QStringLiteral("Medoc.mdb"));
        QCOMPARE(Ajoute(monde_->Contexte, Banque(), Zone::Un, {QStringLiteral("D"), {}}, &pack),
                 Suite::Termine);
        Medoc().PoseCrochet({});
        QCOMPARE(monde_->Etat.Ordonnance.LstChoix1.rowCount(), 1);
    }

    void AMarkTakenAwayComesBackWithThePrescription()
    {
        Relief(1);
        const Noeud pack = Pack();
        Clique(pack);
        Banque().Prescrit(&pack);
        ArbreMedicaments arbre;
        ChargeMedicaments(ChoixEnMain(), Banque(), arbre, QStringLiteral("DOLI"));
        QVERIFY(arbre.data(arbre.index(0, 0), Qt::FontRole).value<QFont>().bold());
        Demarque(monde_->Contexte, arbre, 0);
        QVERIFY(Lignes("MedUtile").isEmpty());
        QCOMPARE(*arbre.Lis(0), pack);
        QVERIFY(!arbre.data(arbre.index(0, 0), Qt::FontRole).isValid());
        QVERIFY(!arbre.data(arbre.index(0, 0), Qt::BackgroundRole).isValid());
        QCOMPARE(arbre.data(arbre.index(0, 0), Qt::ForegroundRole).value<QBrush>().color(),
                 QColor(Qt::black));
        Demarque(monde_->Contexte, arbre, -1);
        Banque().Prescrit(&pack);
        QVERIFY(Banque().Charge(QStringLiteral("DOLI"))[0].Utile);
    }

    void APosologyIsMemorisedForThePack()
    {
        Noeud pack = Pack();
        monde_->Boites.AttendInformation(QStringLiteral("Modifications enregistrées !"));
        Banque().Enregistre(pack, {QStringLiteral("autre nom"), QStringLiteral("l'eau")}, monde_->Boites);
        QCOMPARE(Lignes("Vidal"), QStringList({QStringLiteral("3400930000011|l'eau")}));
        QCOMPARE(pack, Pack());
    }

    void AnEmptyPosologyIsAskedAbout()
    {
        const QString question =
            QStringLiteral("La posologie n'est pas renseignée.\n\nVoulez-vous continuer ?");
        Pose("Vidal", {QStringLiteral("3400930000011"), QStringLiteral("1 cp")});
        Noeud pack = Pack();
        monde_->Boites.AttendQuestion(question, Bouton::Non);
        Banque().Enregistre(pack, {QStringLiteral("D"), QString()}, monde_->Boites);
        QCOMPARE(PharmacieBanque(monde_->Contexte).Lit(pack)->TxtPoso, QStringLiteral("1 cp"));
        monde_->Boites.AttendQuestion(question, Bouton::Oui);
        monde_->Boites.AttendInformation(QStringLiteral("Modifications enregistrées !"));
        Banque().Enregistre(pack, {QStringLiteral("D"), QString()}, monde_->Boites);
        QCOMPARE(Banque().Lit(pack)->TxtPoso, QString());
        QCOMPARE(Lignes("Vidal").size(), 1);
    }

    void APersonalEntryTakesBothBoxesAndItsNodeFollows()
    {
        Pose("Biblio", {QStringLiteral("L'eau"), QStringLiteral("p")});
        ArbreMedicaments arbre;
        ChargeMedicaments(ChoixEnMain(), Banque(), arbre, {});
        Clique(*arbre.Lis(0));
        for (const char* titre : {"L'\"eau\"", "Sel"}) {
            monde_->Boites.AttendInformation(QStringLiteral("Modifications enregistrées !"));
            EnregistreSaisie(monde_->Contexte, Banque(), arbre, {QLatin1String(titre), QStringLiteral("q")});
        }
        QCOMPARE(Lignes("Biblio"), QStringList({QStringLiteral("Sel|q")}));
        QCOMPARE(arbre.Noeuds(), QList<Noeud>({Personnel(QStringLiteral("Sel"))}));
    }

    void APersonalEntryKeepsAName()
    {
        Pose("Biblio", {QStringLiteral("A"), QStringLiteral("p")});
        Noeud noeud = Personnel(QStringLiteral("A"));
        monde_->Boites.AttendStop(QStringLiteral("Aucune indication de nom de médicament !"));
        Banque().Enregistre(noeud, {QStringLiteral("  "), QStringLiteral("q")}, monde_->Boites);
        QCOMPARE(Lignes("Biblio"), QStringList({QStringLiteral("A|p")}));
    }

    void WithoutAClickNothingIsMemorised()
    {
        Noeud aucun;
        Banque().Enregistre(aucun, {QStringLiteral("A"), QStringLiteral("q")}, monde_->Boites);
        QVERIFY(Lignes("Vidal").isEmpty() && Lignes("Biblio").isEmpty());
    }

    void AnEntryThatIsGoneIsTold()
    {
        Noeud noeud = Personnel(QStringLiteral("A"));
        const QString partie =
            QStringLiteral("Cette entrée n'est plus dans la pharmacie personnelle : rien n'a été changé.");
        monde_->Boites.AttendContenant(outside::Genre::Exclamation, partie);
        Banque().Enregistre(noeud, {QStringLiteral("B"), {}}, monde_->Boites);
        monde_->Boites.AttendQuestion(QStringLiteral("Supprimer \"A\" ?"), Bouton::Oui, Bouton::Non);
        monde_->Boites.AttendContenant(outside::Genre::Exclamation, partie);
        QVERIFY(Banque().Retire(noeud, QStringLiteral("A"), monde_->Boites));
    }

    void F5AsksThenDeletesThePersonalEntry()
    {
        Pose("Biblio", {QStringLiteral("#L'a#b  "), {}});
        Pose("Biblio", {QStringLiteral("#L'a#b"), {}});
        const Noeud noeud = Personnel(QStringLiteral("#L'a#b  "));
        const QString question = QStringLiteral("Supprimer \"L'ab\" ?");
        monde_->Boites.AttendQuestion(question, Bouton::Non, Bouton::Non);
        QVERIFY(!Banque().Retire(noeud, QStringLiteral("#L'a#b"), monde_->Boites));
        QCOMPARE(Lignes("Biblio").size(), 2);
        monde_->Boites.AttendQuestion(question, Bouton::Oui, Bouton::Non);
        QVERIFY(Banque().Retire(noeud, QStringLiteral("#L'a#b"), monde_->Boites));
        QCOMPARE(Lignes("Biblio"), QStringList({QStringLiteral("#L'a#b|<null>")}));
    }

    void F5DeletesWhatTheQuestionNamed()
    {
        Pose("Biblio", {QStringLiteral("A"), {}});
        Pose("Biblio", {QStringLiteral("B"), {}});
        monde_->Boites.AttendQuestion(QStringLiteral("Supprimer \"B\" ?"), Bouton::Oui, Bouton::Non);
        QVERIFY(Banque().Retire(Personnel(QStringLiteral("A")), QStringLiteral("B"), monde_->Boites));
        QCOMPARE(Lignes("Biblio"), QStringList({QStringLiteral("A|<null>")}));
    }

    void F5LeavesPacksAndEmptyBoxesAlone()
    {
        QVERIFY(!Banque().Retire(Pack(), QStringLiteral("DOLIPRANE"), monde_->Boites));
        QVERIFY(!Banque().Retire(Personnel(QStringLiteral("A")), QStringLiteral(" "), monde_->Boites));
    }

    void TheBankHasNoNotes() { QVERIFY(!Banque().Notes(QStringLiteral("1"))); }

    void TheLastDayIsTold_data()
    {
        QTest::addColumn<QString>("base");
        QTest::addColumn<QString>("expiration");
        QTest::addColumn<QString>("attendu");
        const QString fin = QStringLiteral("Fin d'exploitation de la base.");
        const auto rang = [](const char* nom, const char* base, const char* date, const QString& attendu) {
            QTest::newRow(nom) << QString::fromLatin1(base) << QString::fromLatin1(date) << attendu;
        };
        rang("to come", "TVS", "21/11/2026", QStringLiteral("La base expire le 21/11/2026"));
        rang("today", "TVS", "20/11/2026", fin);
        rang("past", "VDE", "01/01/2026", fin);
        rang("unknown", "TVS", "", fin);
        rang("local", "BIP", "21/11/2026", QString());
    }
    void TheLastDayIsTold()
    {
        QFETCH(const QString, base);
        QFETCH(const QString, expiration);
        drugbank::Banque banque;
        banque.TypeBase = base;
        banque.DateExpirationBase = expiration;
        QTEST(Validite(banque, QDate(2026, 11, 20)), "attendu");
    }
};

QTEST_MAIN(TestPharmacieBanque)
#include "test_pharmacie_banque.moc"
