#include "storage/Base.h"
#include "support/BaseDeTest.h"

#include <QtTest>

using storage::Disposition;
using storage::GenreBase;
using support::BaseDeTest;
using support::Lignes;
using support::PhraseDEchec;

namespace {

const QString kPatients = QStringLiteral("Patients");
const QString kOrdoEnr = QStringLiteral("OrdoEnr");

/// Runs statements on the practice's database, marks it as of an older layout and closes it.
void RendAncienne(BaseDeTest& base, const QStringList& instructions)
{
    for (const QString& instruction : instructions) {
        base.Medoc().Execute(instruction);
    }
    base.Medoc().Execute(QStringLiteral("pragma user_version = 0"));
    base.Bases().FermeMedoc();
}

QByteArray Octets(const QString& chemin)
{
    QFile fichier(chemin);
    return fichier.open(QIODevice::ReadOnly) ? fichier.readAll() : QByteArray();
}

QStringList AncienOrdoEnr()
{
    return {QStringLiteral("drop table OrdoEnr"),
            QStringLiteral("create table OrdoEnr (Titre TEXT, TitreLigne TEXT, Posologie TEXT, Zone INTEGER, "
                           "Patient TEXT, Datenais TEXT, IdProduit TEXT)"),
            QStringLiteral("insert into OrdoEnr values ('Angine', 'A', '', null, '*', '0', '3400999123457')"),
            QStringLiteral("insert into OrdoEnr values ('Angine', 'B', null, 2, '*', '0', 'sans code')")};
}

} // namespace

class TestDisposition : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void OuvreTelleSansRienEcrire();
    void CompleteTablesEtColonnes();
    void GardeLeCompteur();
    void InsereUneColonneASaPlace();
    void ReconnaitLesColonnesParLeurPlace();
    void GardeLesColonnesInconnues();
    void CompleteEnUneFois();
    void NeCompletePasCeQuiEstAbime();
};

void TestDisposition::OuvreTelleSansRienEcrire()
{
    BaseDeTest base;
    RendAncienne(base, AncienOrdoEnr() << QStringLiteral("drop table Patients"));
    const QString chemin = base.Chemin(QStringLiteral("Medoc.mdb"));
    const QByteArray avant = Octets(chemin);
    {
        storage::Base telle(chemin, GenreBase::Medoc, Disposition::Telle);
        QCOMPARE(telle.ChercheTable(kPatients), nullptr);
        QCOMPARE(telle.ChercheTable(kOrdoEnr)->Colonnes.size(), 7);
        QCOMPARE(Lignes(telle, kOrdoEnr), (QStringList{QStringLiteral("Angine|A||<null>|*|0|3400999123457"),
                                                       QStringLiteral("Angine|B|<null>|2|*|0|sans code")}));
        QVERIFY(!PhraseDEchec([&] { telle.Table(kPatients); }).isEmpty());
    }
    QCOMPARE(Octets(chemin), avant);
}

void TestDisposition::CompleteTablesEtColonnes()
{
    BaseDeTest base;
    RendAncienne(base, AncienOrdoEnr() << QStringLiteral("drop table Patients"));
    QCOMPARE(Lignes(base.Medoc(), kPatients), QStringList());
    QCOMPARE(Lignes(base.Medoc(), kOrdoEnr),
             (QStringList{QStringLiteral("Angine|A||<null>|*|0|3400999123457|<null>"),
                          QStringLiteral("Angine|B|<null>|2|*|0|sans code|<null>")}));
    support::AjouteLigne(base.Medoc(), kPatients, {QVariant(), QStringLiteral("Monsieur")});
    base.Bases().FermeMedoc();
    QCOMPARE(Lignes(base.Medoc(), kPatients).size(), 1);
    QCOMPARE(Lignes(base.Medoc(), kOrdoEnr).size(), 2);
}

void TestDisposition::GardeLeCompteur()
{
    BaseDeTest base;
    RendAncienne(base,
                 {QStringLiteral("insert into Patients (\"Index\", NomPatient) values (3, 'A'), (9, 'B')"),
                  QStringLiteral("delete from Patients where \"Index\" = 9"),
                  QStringLiteral("alter table Patients drop column Telephone2")});
    support::AjouteLigne(base.Medoc(), kPatients, {QVariant(), QStringLiteral("Monsieur")});
    const QStringList lignes = Lignes(base.Medoc(), kPatients);
    QCOMPARE(lignes.size(), 2);
    QVERIFY(lignes[0].startsWith(QStringLiteral("3|<null>|A|")));
    QVERIFY(lignes[1].startsWith(QStringLiteral("10|Monsieur|")));
}

void TestDisposition::InsereUneColonneASaPlace()
{
    BaseDeTest base;
    RendAncienne(base,
                 {QStringLiteral("insert into Patients values (1, 'M', 'N', 'D', 'P', 'Pr', 'No', 'An', "
                                 "'Ad', 'T1', 'T2')"),
                  QStringLiteral("alter table Patients drop column Antecedents")});
    QCOMPARE(Lignes(base.Medoc(), kPatients), QStringList{QStringLiteral("1|M|N|D|P|Pr|No|<null>|Ad|T1|T2")});
}

void TestDisposition::ReconnaitLesColonnesParLeurPlace()
{
    BaseDeTest base;
    RendAncienne(base, {QStringLiteral("insert into BddMed values (7, 'un', 'deux', 'n', 'p', 'NOM')"),
                        QStringLiteral("alter table BddMed rename column Champ1 to c1"),
                        QStringLiteral("alter table BddMed rename column Nom to Medicament")});
    QCOMPARE(Lignes(base.Medoc(), QStringLiteral("BddMed")),
             QStringList{QStringLiteral("7|un|deux|n|p|NOM")});
}

void TestDisposition::GardeLesColonnesInconnues()
{
    BaseDeTest base;
    RendAncienne(base, {QStringLiteral("insert into Vidal values ('3400', 'p')"),
                        QStringLiteral("alter table Vidal add column Prix INTEGER"),
                        QStringLiteral("update Vidal set Prix = 12")});
    QCOMPARE(Lignes(base.Medoc(), QStringLiteral("Vidal")), QStringList{QStringLiteral("3400|p")});
    QString gardee;
    base.Medoc().Parcourt(QStringLiteral("select CIP, Prix from \"Vidal (ancien)\""), {},
                          [&](const storage::Rangee& rangee) { gardee = rangee.Texte(0) + rangee.Texte(1); });
    QCOMPARE(gardee, QStringLiteral("340012"));
}

/// A value that the current layout has no place for gives the whole completion up.
void TestDisposition::CompleteEnUneFois()
{
    BaseDeTest base;
    RendAncienne(base, {QStringLiteral("drop table MedUtile"), QStringLiteral("drop table Patients"),
                        QStringLiteral("create table Patients (\"Index\" TEXT, Titre TEXT)"),
                        QStringLiteral("insert into Patients values ('douze', 'Monsieur')")});
    const QString chemin = base.Chemin(QStringLiteral("Medoc.mdb"));
    QVERIFY(!PhraseDEchec([&] { base.Medoc(); }).isEmpty());
    storage::Base telle(chemin, GenreBase::Medoc, Disposition::Telle);
    QCOMPARE(telle.ChercheTable(QStringLiteral("MedUtile")), nullptr);
    QCOMPARE(Lignes(telle, kPatients), QStringList{QStringLiteral("douze|Monsieur")});
}

void TestDisposition::NeCompletePasCeQuiEstAbime()
{
    BaseDeTest base;
    base.Medoc().Execute(QStringLiteral("drop table MedUtile"));
    base.Bases().FermeMedoc();
    QVERIFY(PhraseDEchec([&] { base.Medoc(); }).contains(QStringLiteral("est endommagée")));
}

QTEST_GUILESS_MAIN(TestDisposition)
#include "test_disposition.moc"
