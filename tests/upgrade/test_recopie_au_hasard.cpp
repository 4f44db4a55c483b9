#include "AtelierRecopie.h"

#include <QRandomGenerator>
#include <QTest>

using storage::GenreBase;

class TestRecopieAuHasard : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { TravailleEnMemoire(); }
    void commeLigneParLigne();
};

namespace {

const QVariant kNul;

QVariant UnDe(QRandomGenerator& hasard, const QVariantList& valeurs)
{
    return valeurs[hasard.bounded(static_cast<int>(valeurs.size()))];
}

using temoin::Lignes;

/// Old tables of the given widths with rows that are easily mistaken for one another.
void PoseAuHasard(QRandomGenerator& hasard, AncienneBase& medoc)
{
    const QVariantList noms{kNul,         U(""),
                            U("*"),       U("A"),
                            U("A B"),     U("A  B"),
                            U("M.  A B"), U("A   B"),
                            U("MARTIN"),  U("MARTIN Paul"),
                            U(" "),       U("TIN"),
                            U("É  A"),    U("a  b"),
                            U("M. A"),    U("M. MARTIN  Paul")};
    const QVariantList dates{kNul, U(""), U("0"), U("20/03/1953"), U("01/01/2000")};
    const QVariantList nombres{kNul,         0,        1,       2,  U("3"), U("x"), U("3400930000011"),
                               2147483648LL, U("1,5"), U(" 7"), -5, 2.5};
    const int largeurListe = 2 + hasard.bounded(3);
    const int largeurLignes = 5 + hasard.bounded(4);
    medoc.Table(U("ListeOrdos"), largeurListe);
    medoc.Table(U("OrdoEnr"), largeurLignes, hasard.bounded(2) ? QStringList() : QStringList{U("IdProduit")});
    medoc.Table(U("Patients"), 11);
    for (int reste = hasard.bounded(10); reste > 0; --reste) {
        const QVariantList ligne{U("t"), UnDe(hasard, noms), UnDe(hasard, nombres), UnDe(hasard, dates)};
        medoc.Ajoute(U("ListeOrdos"), ligne.mid(0, largeurListe));
    }
    for (int reste = hasard.bounded(20); reste > 0; --reste) {
        const QVariantList ligne{U("t"),
                                 U("#x"),
                                 kNul,
                                 UnDe(hasard, nombres),
                                 UnDe(hasard, noms),
                                 UnDe(hasard, dates),
                                 UnDe(hasard, nombres),
                                 UnDe(hasard, nombres)};
        medoc.Ajoute(U("OrdoEnr"), ligne.mid(0, largeurLignes));
    }
    for (int rang = hasard.bounded(6); rang > 0; --rang) {
        medoc.Ajoute(U("Patients"),
                     QVariantList{20 - 3 * rang, kNul, UnDe(hasard, noms), UnDe(hasard, dates)} +
                         QVariantList(7));
    }
}

QStringList EnTexte(const Lignes& lignes)
{
    QStringList textes;
    for (const QVariantList& ligne : lignes) {
        QStringList champs;
        for (const QVariant& champ : ligne) {
            champs.append(champ.isValid() ? champ.toString() : U("<null>"));
        }
        textes.append(champs.join(u'|'));
    }
    return textes;
}

} // namespace

/// Any old tables: the whole-table statements and the index of names give what the rule gives row by row.
void TestRecopieAuHasard::commeLigneParLigne()
{
    QRandomGenerator hasard(1953);
    int reparations = 0;
    for (int essai = 0; essai < 100; ++essai) {
        Atelier atelier;
        {
            AncienneBase medoc(atelier.Ancien, GenreBase::Medoc);
            PoseAuHasard(hasard, medoc);
        }
        atelier.Recopie();
        storage::Base ancien(atelier.Ancien, GenreBase::Medoc, storage::Disposition::Telle);
        Lignes liste = temoin::ListeOrdos(ancien);
        Lignes lignes = temoin::OrdoEnr(ancien);
        const bool repare = temoin::RepareDates(temoin::Lit(ancien, U("Patients"), 11), liste, lignes);
        reparations += repare ? 1 : 0;
        QCOMPARE(atelier.Repare, repare);
        QCOMPARE(EnTexte(atelier.Valeurs("ListeOrdos", 4)), EnTexte(liste));
        QCOMPARE(EnTexte(atelier.Valeurs("OrdoEnr", 8)), EnTexte(lignes));
    }
    QVERIFY(reparations > 15);
}

QTEST_GUILESS_MAIN(TestRecopieAuHasard)
#include "test_recopie_au_hasard.moc"
