#include "jet/CopieJet.h"
#include "utile/ArbreDeTest.h"

#include "Soin.h"
#include "messages.h"

#include <QTest>

#include <random>

using namespace Qt::StringLiterals;
using support::CopieJet;
using support::DonneesJet;
using utile::Bilan;
using utile::Issue;

namespace {

constexpr qsizetype kPage = 4096;
constexpr qsizetype kSecteur = 512;

using Rangees = QMap<qint64, QVariantList>;

/// The rows of all tables, by their keys.
QMap<QString, Rangees> ParCles(const QString& chemin)
{
    QMap<QString, Rangees> contenu;
    storage::Base base(chemin, storage::GenreBase::Medoc, storage::Disposition::Telle);
    for (const storage::Table& table : base.Tables()) {
        base.Parcourt(u"select rowid, * from "_s + storage::Cite(table.Nom), {},
                      [&](const storage::Rangee& rangee) {
                          QVariantList valeurs;
                          for (int i = 1; i <= table.Colonnes.size(); ++i) {
                              valeurs.append(rangee.EstNull(i) ? QVariant() : rangee.Texte(i));
                          }
                          contenu[table.Nom].insert(rangee.Entier(0), valeurs);
                      });
    }
    return contenu;
}

/// What disks, cut copies and lost writes do to a file.
class Degats
{
public:
    explicit Degats(unsigned graine) : hasard_(graine) {}

    QByteArray Sur(QByteArray octets, int genre)
    {
        const int fois = 1 + De(6);
        for (int i = 0; i < fois; ++i) {
            Un(octets, genre, fois);
        }
        if (genre == 8) {
            octets.truncate(octets.size() / 10 * (2 + De(8)) + De(5000));
        }
        return octets;
    }

private:
    int De(qsizetype nombre) { return static_cast<int>(hasard_() % static_cast<unsigned>(nombre)); }

    QByteArray Bruit(qsizetype longueur)
    {
        QByteArray bruit(longueur, '\0');
        std::ranges::generate(bruit, [&] { return static_cast<char>(hasard_()); });
        return bruit;
    }

    void Un(QByteArray& octets, int genre, int fois)
    {
        const qsizetype page = De(octets.size() / kPage) * kPage;
        const qsizetype secteur = De(octets.size() / kSecteur) * kSecteur;
        switch (genre) {
        case 0:
            octets.replace(page, kPage, QByteArray(kPage, '\0'));
            break;
        case 1:
            octets.replace(page, kPage, Bruit(kPage));
            break;
        case 2:
            octets.replace(secteur, kSecteur, QByteArray(kSecteur, '\0'));
            break;
        case 3:
            octets.replace(secteur, kSecteur, Bruit(kSecteur));
            break;
        case 4:
            octets.replace(secteur, kSecteur, QByteArray(kSecteur, '\xFF'));
            break;
        case 5:
            octets.replace(page, kPage, octets.mid(De(octets.size() / kPage) * kPage, kPage));
            break;
        case 6:
            octets.replace(0, fois % 2 ? kPage : 100, Bruit(fois % 2 ? kPage : 100));
            break;
        case 7:
            octets.replace(page, 16 * kPage,
                           Bruit(16 * kPage).first(std::min(16 * kPage, octets.size() - page)));
            break;
        default:
            break;
        }
    }

    std::mt19937 hasard_;
};

bool EstFidele(const QVariantList& lue, const QVariantList& vraie)
{
    const bool incomplete = lue.contains(QVariant(utile::messages::TexteIllisible()));
    for (qsizetype i = 0; i < vraie.size(); ++i) {
        const bool avouee = incomplete && (lue[i].isNull() || lue[i] == utile::messages::TexteIllisible());
        if (!avouee && lue[i] != vraie[i]) {
            return false;
        }
    }
    return true;
}

} // namespace

class TestReparationCabinet : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void DesDegats_data();
    void DesDegats();

private:
    QByteArray sains_;
    QMap<QString, Rangees> avant_;
};

void TestReparationCabinet::initTestCase()
{
    if (!DonneesJet::Presentes()) {
        QSKIP("needs the shared data");
    }
    const CopieJet cabinet(u"gros/Medoc.mdb"_s);
    QCOMPARE(cabinet.Convertit(), QString());
    sains_ = common::LitFichier(cabinet.Chemin());
    avant_ = ParCles(cabinet.Chemin());
}

void TestReparationCabinet::DesDegats_data()
{
    QTest::addColumn<int>("genre");
    for (int essai = 0; essai < 9; ++essai) {
        QTest::addRow("%d", essai) << essai;
    }
}

void TestReparationCabinet::DesDegats()
{
    QFETCH(const int, genre);
    const support::ArbreDeTest arbre;
    const QString chemin = arbre.Medoc().Chemin;
    const int essai = QString::fromLatin1(QTest::currentDataTag()).toInt();
    const QByteArray abimes = Degats(static_cast<unsigned>(essai) + 1).Sur(sains_, genre);
    common::EcritFichier(chemin, abimes);
    const Bilan bilan = utile::Soigne(arbre.Medoc(), QDateTime(QDate(2026, 11, 21), QTime(8, 0)));
    QVERIFY2(bilan.Issue == Issue::Saine || bilan.Issue == Issue::Pertes, qPrintable(bilan.Phrase));
    QVERIFY(bilan.Copie.isEmpty() || common::LitFichier(bilan.Copie) == abimes);
    const auto apres = ParCles(chemin);
    int fausses = 0;
    for (auto table = apres.begin(); table != apres.end(); ++table) {
        const Rangees& vraies = avant_[table.key()];
        for (auto ligne = table->begin(); ligne != table->end(); ++ligne) {
            if (!vraies.contains(ligne.key()) || !EstFidele(*ligne, vraies[ligne.key()])) {
                if (fausses++ < 3) {
                    qWarning() << genre << table.key() << ligne.key() << *ligne << vraies.value(ligne.key());
                }
            }
        }
        const auto dite = std::ranges::find(bilan.Tables, table.key(), &utile::BilanTable::Nom);
        const qint64 perdues = vraies.size() - table->size();
        const bool comptee =
            dite->Inconnu || (dite->AuPlus ? perdues <= dite->Perdues : perdues == dite->Perdues);
        if (!comptee) {
            qWarning() << genre << table.key() << "lost" << perdues << "told" << dite->Perdues << dite->AuPlus
                       << bilan.Phrase;
        }
        fausses += !comptee;
    }
    QCOMPARE(fausses, 0);
}

QTEST_GUILESS_MAIN(TestReparationCabinet)
#include "test_reparation_cabinet.moc"
