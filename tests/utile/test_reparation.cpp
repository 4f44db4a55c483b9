#include "Soin.h"

#include "ArbreDeTest.h"
#include "PagesSqlite.h"
#include "messages.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace support;
using utile::Bilan;
using utile::GenrePage;
using utile::Issue;

namespace {

const QDateTime kMoment(QDate(2026, 11, 21), QTime(6, 52, 18));
constexpr int kPage = 4096;

Bilan Soigne(const utile::BaseTrouvee& base)
{
    return utile::Soigne(base, kMoment);
}

/// The pages of a kind behind the first.
QList<quint32> PagesDe(const QString& chemin, GenrePage genre)
{
    const utile::PagesSqlite pages(Octets(chemin));
    QList<quint32> trouvees;
    for (quint32 page = 2; page <= pages.Nombre(); ++page) {
        if (utile::PageArbre(pages, page).Genre() == genre) {
            trouvees.append(page);
        }
    }
    return trouvees;
}

void DetruitPage(const QString& chemin, quint32 page)
{
    Gate(chemin, (page - 1LL) * kPage, QByteArray(kPage, '\xA5'));
}

qint64 Perdues(const Bilan& bilan)
{
    qint64 perdues = 0;
    for (const utile::BilanTable& table : bilan.Tables) {
        perdues += table.Perdues;
    }
    return perdues;
}

qint64 Nombre(const QMap<QString, QStringList>& contenu)
{
    qint64 nombre = 0;
    for (const QStringList& lignes : contenu) {
        nombre += lignes.size();
    }
    return nombre;
}

/// Every row that is there now was there before, in the same order.
bool EstUnePartie(const QMap<QString, QStringList>& partie, const QMap<QString, QStringList>& tout)
{
    for (auto table = partie.begin(); table != partie.end(); ++table) {
        qsizetype place = -1;
        for (const QString& ligne : table.value()) {
            if (ligne.contains(utile::messages::TexteIllisible())) {
                continue;
            }
            place = tout.value(table.key()).indexOf(ligne, place + 1);
            if (place < 0) {
                return false;
            }
        }
    }
    return true;
}

} // namespace

class TestReparation : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void UnePageDeFeuilleDetruite();
    void DesOctetsRetournes();
    void DesPagesDIndexDetruites();
    void DesNoeudsDetruits();
    void UnEnteteDetruit_data();
    void UnEnteteDetruit();
    void UneSuiteDeTexteDetruite();
    void UnFichierCoupe();
    void UneAncienneDispositionAbimee();
    void UnSecteurDetruit_data();
    void UnSecteurDetruit();
};

void TestReparation::UnePageDeFeuilleDetruite()
{
    const ArbreDeTest arbre;
    arbre.Remplit(1000, false);
    const auto avant = Contenu(arbre.Medoc());
    const auto feuilles = PagesDe(arbre.Medoc().Chemin, GenrePage::Feuille);
    for (qsizetype i = feuilles.size() / 3; i < feuilles.size(); i += feuilles.size() / 5) {
        DetruitPage(arbre.Medoc().Chemin, feuilles[i]);
    }
    const QByteArray octets = Octets(arbre.Medoc().Chemin);
    const Bilan bilan = Soigne(arbre.Medoc());
    QCOMPARE(bilan.Apres, utile::messages::RepareeAvecPertes());
    const auto apres = Contenu(arbre.Medoc());
    QVERIFY(EstUnePartie(apres, avant));
    QCOMPARE(Nombre(avant) - Nombre(apres), Perdues(bilan));
    QVERIFY(Perdues(bilan) > 0 && Perdues(bilan) < 500);
    QCOMPARE(Octets(bilan.Copie), octets);
    QCOMPARE(Soigne(arbre.Medoc()).Apres, utile::messages::DejaCompacte());
}

void TestReparation::DesOctetsRetournes()
{
    const ArbreDeTest modele;
    modele.Remplit(600);
    const auto avant = Contenu(modele.Medoc());
    const QByteArray sains = Octets(modele.Medoc().Chemin);
    quint32 hasard = 12345;
    for (int essai = 0; essai < 15; ++essai) {
        const ArbreDeTest arbre;
        QByteArray octets = sains;
        for (int i = 0; i < 20; ++i) {
            hasard = hasard * 1664525U + 1013904223U;
            const auto place = static_cast<qsizetype>(hasard) % octets.size();
            octets[place] = static_cast<char>(octets[place] ^ (1 + static_cast<int>(hasard >> 29)));
        }
        common::EcritFichier(arbre.Medoc().Chemin, octets);
        const Bilan bilan = Soigne(arbre.Medoc());
        QVERIFY2(bilan.Issue == Issue::Saine || bilan.Issue == Issue::Pertes, qPrintable(bilan.Phrase));
        const auto apres = Contenu(arbre.Medoc());
        QVERIFY2(Nombre(apres) > Nombre(avant) * 3 / 5, qPrintable(QString::number(Nombre(apres))));
        if (!bilan.Copie.isEmpty()) {
            QCOMPARE(Octets(bilan.Copie), octets);
        }
    }
}

void TestReparation::DesPagesDIndexDetruites()
{
    const ArbreDeTest arbre;
    arbre.Remplit(800);
    const auto avant = Contenu(arbre.Medoc());
    for (const GenrePage genre : {GenrePage::FeuilleIndex, GenrePage::NoeudIndex}) {
        for (const quint32 page : PagesDe(arbre.Medoc().Chemin, genre)) {
            DetruitPage(arbre.Medoc().Chemin, page);
        }
    }
    const Bilan bilan = Soigne(arbre.Medoc());
    QCOMPARE(bilan.Apres, utile::messages::Reparee());
    QCOMPARE(Perdues(bilan), 0);
    QCOMPARE(Contenu(arbre.Medoc()), avant);
    const storage::Base courante(arbre.Medoc().Chemin, storage::GenreBase::Medoc);
}

void TestReparation::DesNoeudsDetruits()
{
    const ArbreDeTest arbre;
    arbre.Remplit(1500);
    const auto avant = Contenu(arbre.Medoc());
    for (const quint32 page : PagesDe(arbre.Medoc().Chemin, GenrePage::Noeud)) {
        DetruitPage(arbre.Medoc().Chemin, page);
    }
    const Bilan bilan = Soigne(arbre.Medoc());
    QCOMPARE(Contenu(arbre.Medoc()), avant);
    QCOMPARE(Perdues(bilan), 0);
}

void TestReparation::UnEnteteDetruit_data()
{
    QTest::addColumn<int>("octets");
    QTest::newRow("header") << 100;
    QTest::newRow("page") << kPage;
}

void TestReparation::UnEnteteDetruit()
{
    QFETCH(const int, octets);
    const ArbreDeTest arbre;
    arbre.Remplit(700);
    const auto avant = Contenu(arbre.Medoc());
    Gate(arbre.Medoc().Chemin, 0, QByteArray(octets, '\0'));
    const Bilan bilan = Soigne(arbre.Medoc());
    QVERIFY(bilan.Phrase.contains(utile::messages::PeutEtreSupprimees()));
    QCOMPARE(Contenu(arbre.Medoc()), avant);
}

void TestReparation::UneSuiteDeTexteDetruite()
{
    const ArbreDeTest arbre;
    arbre.Remplit(100);
    const auto avant = Contenu(arbre.Medoc());
    const QByteArray octets = Octets(arbre.Medoc().Chemin);
    const auto place = octets.indexOf(QString(1500, u'é').toUtf8(), octets.size() / 2);
    QVERIFY(place > 0);
    Gate(arbre.Medoc().Chemin, place / kPage * kPage, "\xFF\xFF\xFF\xFF");
    const Bilan bilan = Soigne(arbre.Medoc());
    const auto apres = Contenu(arbre.Medoc());
    QCOMPARE(Nombre(apres), Nombre(avant));
    const auto patients = std::ranges::find(bilan.Tables, u"Patients"_s, &utile::BilanTable::Nom);
    QCOMPARE(patients->Incompletes, 1);
    QCOMPARE(apres.value(u"Patients"_s).filter(u"[illisible]"_s).size(), 1);
    QVERIFY(apres.value(u"Patients"_s).filter(u"[illisible]"_s).first().contains(u"pénicilline"_s));
}

void TestReparation::UnFichierCoupe()
{
    const ArbreDeTest modele;
    modele.Remplit(300);
    const auto avant = Contenu(modele.Medoc());
    const QByteArray sains = Octets(modele.Medoc().Chemin);
    qint64 dernier = 0;
    for (qsizetype taille = 50; taille < sains.size(); taille += sains.size() / 25 + 13) {
        const ArbreDeTest arbre;
        common::EcritFichier(arbre.Medoc().Chemin, sains.first(taille));
        const Bilan bilan = Soigne(arbre.Medoc());
        if (bilan.Issue == Issue::Laissee) {
            QVERIFY(taille < sains.size() / 3);
            QVERIFY2(Octets(arbre.Medoc().Chemin) == sains.first(taille),
                     qPrintable(QString::number(taille)));
            continue;
        }
        QCOMPARE(bilan.Issue, Issue::Pertes);
        const auto apres = Contenu(arbre.Medoc());
        QVERIFY2(EstUnePartie(apres, avant), qPrintable(QString::number(taille)));
        dernier = Nombre(apres);
        QCOMPARE(Octets(bilan.Copie), sains.first(taille));
    }
    QVERIFY(dernier > Nombre(avant) * 9 / 10);
}

void TestReparation::UneAncienneDispositionAbimee()
{
    const ArbreDeTest arbre;
    arbre.Remplit(600, false);
    {
        storage::Base base(arbre.Medoc().Chemin, storage::GenreBase::Medoc);
        base.Execute(u"drop table Vidal"_s);
        base.Execute(u"alter table ListeOrdos drop column Datenais"_s);
        base.Execute(u"pragma user_version = 0"_s);
    }
    const auto avant = Contenu(arbre.Medoc());
    const auto feuilles = PagesDe(arbre.Medoc().Chemin, GenrePage::Feuille);
    DetruitPage(arbre.Medoc().Chemin, feuilles[feuilles.size() / 3]);
    const Bilan bilan = Soigne(arbre.Medoc());
    QCOMPARE(bilan.Apres, utile::messages::RepareeAvecPertes());
    auto apres = Contenu(arbre.Medoc());
    QCOMPARE(apres.take(u"Vidal"_s), QStringList());
    QCOMPARE(Nombre(avant) - Nombre(apres), Perdues(bilan));
    QCOMPARE(apres.value(u"ListeOrdos"_s).size(), 600);
    apres.remove(u"ListeOrdos"_s); // it has its column again
    QVERIFY(EstUnePartie(apres, avant));
    const storage::Base courante(arbre.Medoc().Chemin, storage::GenreBase::Medoc);
}

void TestReparation::UnSecteurDetruit_data()
{
    QTest::addColumn<QByteArray>("octets");
    QTest::newRow("zeros") << QByteArray(512, '\0');
    QTest::newRow("ones") << QByteArray(512, '\xFF');
}

/// Half a row looks as whole as the others.
void TestReparation::UnSecteurDetruit()
{
    QFETCH(const QByteArray, octets);
    const ArbreDeTest arbre;
    arbre.Remplit(400, false);
    const auto avant = Contenu(arbre.Medoc());
    const auto feuilles = PagesDe(arbre.Medoc().Chemin, GenrePage::Feuille);
    for (qsizetype i = 0; i < feuilles.size(); i += 7) {
        Gate(arbre.Medoc().Chemin, (feuilles[i] - 1LL) * kPage + 2048, octets);
    }
    const Bilan bilan = Soigne(arbre.Medoc());
    const auto apres = Contenu(arbre.Medoc());
    QVERIFY(EstUnePartie(apres, avant));
    QCOMPARE(Nombre(avant) - Nombre(apres), Perdues(bilan));
    QVERIFY(Perdues(bilan) > 0 && Nombre(apres) > Nombre(avant) * 9 / 10);
}

QTEST_GUILESS_MAIN(TestReparation)
#include "test_reparation.moc"
