#include "common/CleDeTri.h"
#include "patients/Repertoire.h"
#include "support/Hasard.h"

#include <QTest>

using namespace patients;

namespace {

/// A directory with these names, keyed from 1 in their order.
Repertoire Fait(const QStringList& noms)
{
    storage::Textes textes;
    for (const QString& nom : noms) {
        textes.Ajoute(static_cast<qint64>(textes.Rangees.size()) + 1, nom);
    }
    Repertoire repertoire;
    repertoire.Remplit(textes);
    return repertoire;
}

QStringList Noms(const Repertoire& repertoire)
{
    QStringList noms;
    for (int rang = 0; rang < repertoire.Nombre(); ++rang) {
        noms << repertoire.Nom(rang).toString();
    }
    return noms;
}

QString Majuscules(QStringView texte)
{
    QString majuscules;
    for (const QChar c : texte) {
        majuscules += common::Majuscule(c);
    }
    return majuscules;
}

/// The walk from the first entry to the last, as the rule tells it.
int ChercheParParcours(const Repertoire& repertoire, const QString& texte)
{
    const QString cherche = texte.trimmed();
    for (int rang = 0; !cherche.isEmpty() && rang < repertoire.Nombre(); ++rang) {
        const QStringView entree = repertoire.Nom(rang).trimmed().left(cherche.size());
        if (Majuscules(entree) == Majuscules(cherche)) {
            return rang;
        }
    }
    return -1;
}

} // namespace

class TestRepertoire : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void Ordre()
    {
        const QStringList attendu = {QStringLiteral("1ER  Essai"),   QStringLiteral("ÉCUYER  Anne"),
                                     QStringLiteral("EDMOND  Luc"),  QStringLiteral("ELIE  Paul"),
                                     QStringLiteral("ÉLIE  Paul"),   QStringLiteral("Élie  Paule"),
                                     QStringLiteral("MARTIN  Zoé"),  QStringLiteral("MARTIN-LE GALL  Ada"),
                                     QStringLiteral("martine  Léa"), QStringLiteral("OEIL  A"),
                                     QStringLiteral("ŒUF  B"),       QStringLiteral("OFFICE  C"),
                                     QStringLiteral("ZOLA  Émile")};
        QStringList melange = attendu;
        std::ranges::reverse(melange);
        QCOMPARE(Noms(Fait(melange)), attendu);
    }

    void MemeNomDansLOrdreDesCles()
    {
        const Repertoire repertoire =
            Fait({QStringLiteral("MARTIN  Paul"), QStringLiteral("MARTIN  Paul"), QStringLiteral("AB  C")});
        QCOMPARE(repertoire.Index(0), 3);
        QCOMPARE(repertoire.Index(1), 1);
        QCOMPARE(repertoire.Index(2), 2);
    }

    void Cherche_data()
    {
        QTest::addColumn<QString>("texte");
        QTest::addColumn<QString>("trouve");
        QTest::newRow("debut") << QStringLiteral("dup") << QStringLiteral("DUPOND  Jean");
        QTest::newRow("plus long") << QStringLiteral("DUPONT") << QStringLiteral("DUPONT  Anne");
        QTest::newRow("deux blancs") << QStringLiteral("dupont  z") << QStringLiteral("DUPONT  Zoé");
        QTest::newRow("blancs autour") << QStringLiteral("  dupont ") << QStringLiteral("DUPONT  Anne");
        QTest::newRow("accent") << QStringLiteral("é") << QStringLiteral("ÉBÈNE  Luc");
        QTest::newRow("sans accent") << QStringLiteral("e") << QStringLiteral("EBENE  Marc");
        QTest::newRow("accent dedans") << QStringLiteral("ébè") << QStringLiteral("ÉBÈNE  Luc");
        QTest::newRow("prenom") << QStringLiteral("jean") << QString();
        QTest::newRow("rien") << QStringLiteral("dupontel") << QString();
        QTest::newRow("ligature") << QStringLiteral("oe") << QString();
        QTest::newRow("vide") << QString() << QString();
        QTest::newRow("blancs") << QStringLiteral("   ") << QString();
        QTest::newRow("apostrophe") << QStringLiteral("d'a") << QStringLiteral("D'ARC  Jeanne");
        QTest::newRow("guillemet") << QStringLiteral("\"x") << QStringLiteral("\"X\"  Y");
    }

    void Cherche()
    {
        QFETCH(QString, texte);
        QFETCH(QString, trouve);
        const Repertoire repertoire = Fait(
            {QStringLiteral("DUPONT  Zoé"), QStringLiteral("DUPONT  Anne"), QStringLiteral("DUPOND  Jean"),
             QStringLiteral("ÉBÈNE  Luc"), QStringLiteral("EBENE  Marc"), QStringLiteral("ŒUF  Luc"),
             QStringLiteral("D'ARC  Jeanne"), QStringLiteral("\"X\"  Y"), QString()});
        const int rang = repertoire.Cherche(texte);
        QCOMPARE(rang < 0 ? QString() : repertoire.Nom(rang).toString(), trouve);
    }

    void CommeLeParcours()
    {
        QRandomGenerator hasard(20261120);
        for (int tour = 0; tour < 60; ++tour) {
            QStringList noms;
            for (int i = hasard.bounded(200); i > 0; --i) {
                noms << support::TexteAuHasard(hasard, 16);
            }
            const Repertoire repertoire = Fait(noms);
            for (int i = 0; i < 300; ++i) {
                const QString texte = support::TexteAuHasard(hasard, i % 3 == 0 ? 14 : 4);
                QCOMPARE(repertoire.Cherche(texte), ChercheParParcours(repertoire, texte));
            }
            for (const QString& nom : noms) {
                QCOMPARE(repertoire.Cherche(nom), ChercheParParcours(repertoire, nom));
            }
        }
    }

    void InsereASaPlace()
    {
        QRandomGenerator hasard(11);
        Repertoire peuAPeu;
        QStringList noms;
        for (int i = 1; i <= 300; ++i) {
            noms << support::TexteAuHasard(hasard, 14);
            peuAPeu.Insere(peuAPeu.Place(i, noms.last()), i, noms.last());
        }
        const Repertoire dUnCoup = Fait(noms);
        QCOMPARE(Noms(peuAPeu), Noms(dUnCoup));
        for (int rang = 0; rang < dUnCoup.Nombre(); ++rang) {
            QCOMPARE(peuAPeu.Index(rang), dUnCoup.Index(rang));
        }
    }

    void Retire()
    {
        Repertoire repertoire =
            Fait({QStringLiteral("A  A"), QStringLiteral("B  B"), QStringLiteral("C  C")});
        repertoire.Retire(1);
        QCOMPARE(Noms(repertoire), QStringList({QStringLiteral("A  A"), QStringLiteral("C  C")}));
        QCOMPARE(repertoire.Cherche(u"b"), -1);
        QCOMPARE(repertoire.Cherche(u"c"), 1);
    }
};

QTEST_GUILESS_MAIN(TestRepertoire)
#include "test_repertoire.moc"
