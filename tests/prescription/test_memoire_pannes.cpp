#include "prescription/Memoire.h"
#include "support/BaseDeTest.h"
#include "support/Cabinet.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace prescription;
using outside::Bouton;
using outside::Genre;

namespace {

enum class Panne { Ecrivain, Verrou, Lecteur, Plein, LectureSeule };
enum class Geste { Remplace, Ajoute, Supprime };

/// A doctor with a prescription in hand that is stored for all patients, and a database that can be kept from
/// writing.
struct CabinetEnPanne : Cabinet
{
    CabinetEnPanne()
    {
        storage::CreeBase(chemin_, storage::GenreBase::Medoc);
        autre_ = std::make_unique<storage::Base>(chemin_, storage::GenreBase::Medoc);
        Prescrit(u"DOLIPRANE"_s);
        AttendNom(u"HTA"_s);
        MemoriseOrdonnance(Contexte);
        Medoc().Execute(u"pragma busy_timeout = 20"_s);
    }
    storage::Base& Medoc() { return Etat.Bases.Medoc(Etat.Chemins.CheminTravail); }
    QStringList Contenu()
    {
        return support::Lignes(*autre_, u"ListeOrdos"_s) + support::Lignes(*autre_, u"OrdoEnr"_s);
    }
    void AttendNom(const QString& nom)
    {
        Boites.AttendSaisie(u"Donnez un nom à cette ordonnance mémorisée :"_s, nom)
            .AttendContenant(Genre::Question, u"spécifique"_s, Bouton::Non);
    }
    /// Until `Repare` no change reaches the disk.
    void Provoque(Panne panne)
    {
        switch (panne) {
        case Panne::Ecrivain:
            autre_->Execute(u"begin immediate"_s);
            break;
        case Panne::Verrou: // not even a reader gets in
            autre_->Execute(u"begin exclusive"_s);
            break;
        case Panne::Lecteur: // a change can begin, and cannot be committed
            autre_->Execute(u"begin"_s);
            support::Lignes(*autre_, u"OrdoEnr"_s);
            break;
        case Panne::Plein:
            Medoc().Execute(u"pragma max_page_count = 1"_s);
            break;
        case Panne::LectureSeule:
            Medoc().Execute(u"pragma query_only = 1"_s);
            break;
        }
    }
    void Repare(Panne panne)
    {
        if (panne == Panne::Plein) {
            Medoc().Execute(u"pragma max_page_count = 1000000"_s);
        } else if (panne == Panne::LectureSeule) {
            Medoc().Execute(u"pragma query_only = 0"_s);
        } else {
            autre_->Execute(u"rollback"_s);
        }
    }
    /// What the gesture asks before it writes; `annonce`: the words about its failure, empty when it
    /// succeeds.
    void Fait(Geste geste, const QString& annonce)
    {
        if (geste == Geste::Ajoute) {
            AttendNom(u"Autre"_s);
        } else if (geste == Geste::Remplace) {
            Boites.AttendContenant(Genre::Question, u"Enregistrer les modifications de HTA ?"_s, Bouton::Oui);
        } else {
            Boites.AttendContenant(Genre::Question, u"Supprimer HTA"_s, Bouton::Oui);
        }
        if (!annonce.isEmpty()) {
            Boites.AttendContenant(Genre::Stop, annonce);
        } else if (geste == Geste::Supprime) {
            Boites.AttendContenant(Genre::Question, u"effacer"_s, Bouton::Non);
        }
        geste == Geste::Supprime ? void(SupprimeOrdonnanceMemorisee(Contexte)) : MemoriseOrdonnance(Contexte);
    }

private:
    QString chemin_ = common::Joint(Etat.Chemins.CheminTravail, u"Medoc.mdb"_s);
    std::unique_ptr<storage::Base> autre_;
};

} // namespace

class TestMemoirePannes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void NothingIsLostAndTheNextAttemptSucceeds_data();
    void NothingIsLostAndTheNextAttemptSucceeds();
    void AClosedDatabaseIsToldBeforeAnyQuestion();
};

void TestMemoirePannes::NothingIsLostAndTheNextAttemptSucceeds_data()
{
    QTest::addColumn<Panne>("panne");
    QTest::addColumn<Geste>("geste");
    QTest::addColumn<QString>("annonce");
    const std::array gestes = {std::pair("replace", Geste::Remplace), std::pair("add", Geste::Ajoute),
                               std::pair("delete", Geste::Supprime)};
    for (const auto& [nom, geste] : gestes) {
        QTest::addRow("being written, %s", nom)
            << Panne::Ecrivain << geste << u"utilisée par un autre poste"_s;
        QTest::addRow("being read, %s", nom) << Panne::Lecteur << geste << u"utilisée par un autre poste"_s;
        QTest::addRow("read-only, %s", nom) << Panne::LectureSeule << geste << u"en lecture seule"_s;
    }
    QTest::newRow("full, replace") << Panne::Plein << Geste::Remplace << u"plein"_s;
    QTest::newRow("full, add") << Panne::Plein << Geste::Ajoute << u"plein"_s;
}

void TestMemoirePannes::NothingIsLostAndTheNextAttemptSucceeds()
{
    QFETCH(Panne, panne);
    QFETCH(Geste, geste);
    QFETCH(QString, annonce);
    CabinetEnPanne cabinet;
    const QStringList avant = cabinet.Contenu();
    QCOMPARE(avant.size(), 2);
    Ordonnance& ordonnance = cabinet.Etat.Ordonnance;
    for (int ligne = 0; ligne < 60; ++ligne) { // more than a page of the file
        cabinet.Prescrit(u"AMLOR"_s, QString(200, u'x'));
    }
    ordonnance.OrdoMemorisee = geste == Geste::Ajoute ? 0 : 1;

    cabinet.Provoque(panne);
    cabinet.Fait(geste, annonce);
    cabinet.Repare(panne);
    QVERIFY(cabinet.Boites.Epuise());
    QCOMPARE(cabinet.Contenu(), avant);
    QCOMPARE(ordonnance.TitreMemo, u"HTA"_s);
    QCOMPARE(ordonnance.OrdoMemorisee, geste == Geste::Ajoute ? 0 : 1);
    QCOMPARE(ordonnance.LstChoix1.rowCount(), 61);

    cabinet.Fait(geste, {});
    QVERIFY(cabinet.Boites.Epuise());
    QCOMPARE(cabinet.Contenu().size(), geste == Geste::Supprime ? 0 : geste == Geste::Remplace ? 62 : 64);
}

void TestMemoirePannes::AClosedDatabaseIsToldBeforeAnyQuestion()
{
    CabinetEnPanne cabinet;
    const QStringList avant = cabinet.Contenu();
    cabinet.Provoque(Panne::Verrou);
    cabinet.Boites.AttendContenant(Genre::Stop, u"utilisée par un autre poste"_s);
    MemoriseOrdonnance(cabinet.Contexte);
    cabinet.Repare(Panne::Verrou);
    QVERIFY(cabinet.Boites.Epuise());
    QCOMPARE(cabinet.Contenu(), avant);
    cabinet.Fait(Geste::Remplace, {});
    QVERIFY(cabinet.Boites.Epuise());
}

QTEST_MAIN(TestMemoirePannes)
#include "test_memoire_pannes.moc"
