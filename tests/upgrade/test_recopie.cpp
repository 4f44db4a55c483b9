#include "AtelierRecopie.h"
#include "upgrade/RecopieOrdo.h"

#include <QTest>

using storage::GenreBase;

namespace {

const QVariant kNul;

} // namespace

class TestRecopie : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { TravailleEnMemoire(); }
    void ligneDeListe_data();
    void ligneDeListe();
    void ligneMemorisee_data();
    void ligneMemorisee();
    void colonnesManquantes();
    void tablesManquantes();
    void premierBloc_data();
    void premierBloc();
    void blocAvecTropPeuDeColonnes();
    void patientsDesDeuxFichiers();
    void patientsDeMemeNumero();
    void grandeTable();
    void ordreDesLignes();
    void certificat();
    void indexRefaits();
};

void TestRecopie::ligneDeListe_data()
{
    QTest::addColumn<QVariantList>("avant");
    QTest::addColumn<QString>("apres");
    QTest::newRow("telle") << QVariantList{U("t"), U("A  B"), 1, U("1/1/1950")} << U("t|A  B|1|1/1/1950");
    QTest::newRow("nuls") << QVariantList{kNul, kNul, kNul, kNul} << U("<null>|*|0|0");
    QTest::newRow("vides") << QVariantList{U(""), U(""), 0, U("")} << U("|*|0|");
    QTest::newRow("un blanc") << QVariantList{U("t"), U("A B C"), 0, U("0")} << U("t|A  B  C|0|0");
    QTest::newRow("trois blancs") << QVariantList{U("t"), U("A   B"), 0, U("0")} << U("t|A    B|0|0");
    QTest::newRow("quatre blancs") << QVariantList{U("t"), U("A    B"), 0, U("0")} << U("t|A    B|0|0");
    QTest::newRow("blancs du titre") << QVariantList{U("a b"), U("*"), 0, U("0")} << U("a b|*|0|0");
}

void TestRecopie::ligneDeListe()
{
    QFETCH(const QVariantList, avant);
    QFETCH(const QString, apres);
    Atelier atelier;
    {
        AncienneBase medoc(atelier.Ancien, GenreBase::Medoc);
        medoc.Table(U("ListeOrdos"), 4);
        medoc.Ajoute(U("ListeOrdos"), avant);
    }
    atelier.Recopie();
    QCOMPARE(atelier.Lignes("ListeOrdos"), QStringList{apres});
}

void TestRecopie::ligneMemorisee_data()
{
    QTest::addColumn<QVariant>("id");
    QTest::addColumn<QVariant>("converti");
    QTest::addColumn<QString>("apres");
    QTest::newRow("entier") << QVariant(12) << QVariant(1) << U("12|1");
    QTest::newRow("texte numérique") << QVariant(U("3948730")) << QVariant(1) << U("3948730|1");
    QTest::newRow("avec blancs") << QVariant(U(" 12 ")) << QVariant(0) << U("12|0");
    QTest::newRow("signe") << QVariant(U("-12")) << QVariant(1) << U("-12|1");
    QTest::newRow("virgule") << QVariant(U("12,5")) << QVariant(1) << U("12|1");
    QTest::newRow("demi impair") << QVariant(U("13,5")) << QVariant(1) << U("14|1");
    QTest::newRow("réel") << QVariant(2.5) << QVariant(1) << U("2|1");
    QTest::newRow("treize chiffres") << QVariant(U("3400930000011")) << QVariant(1) << U("<null>|1");
    QTest::newRow("entier trop long") << QVariant(3400930000011LL) << QVariant(1) << U("<null>|1");
    QTest::newRow("le plus grand") << QVariant(U("2147483647")) << QVariant(1) << U("2147483647|1");
    QTest::newRow("un de plus") << QVariant(U("2147483648")) << QVariant(1) << U("<null>|1");
    QTest::newRow("début numérique") << QVariant(U("12 cp")) << QVariant(1) << U("0|1");
    QTest::newRow("texte") << QVariant(U("abc")) << QVariant(1) << U("0|1");
    QTest::newRow("vide") << QVariant(U("")) << QVariant(1) << U("0|1");
    QTest::newRow("point") << QVariant(U("12.5")) << QVariant(1) << U("0|1");
    QTest::newRow("deux virgules") << QVariant(U("1,2,3")) << QVariant(1) << U("0|1");
    QTest::newRow("signe au milieu") << QVariant(U("1-2")) << QVariant(1) << U("0|1");
    QTest::newRow("nul") << kNul << QVariant(1) << U("0|1");
    QTest::newRow("non converti") << QVariant(12) << kNul << U("0|<null>");
    QTest::newRow("treize chiffres non converti") << QVariant(U("3400930000011")) << kNul << U("0|<null>");
    QTest::newRow("converti illisible") << QVariant(12) << QVariant(U("x")) << U("0|<null>");
}

void TestRecopie::ligneMemorisee()
{
    QFETCH(const QVariant, id);
    QFETCH(const QVariant, converti);
    QFETCH(const QString, apres);
    for (const QStringList& enTexte : {QStringList(), QStringList{U("IdProduit")}}) {
        Atelier atelier;
        {
            AncienneBase medoc(atelier.Ancien, GenreBase::Medoc);
            medoc.Table(U("OrdoEnr"), 8, enTexte);
            medoc.Ajoute(U("OrdoEnr"), {U("t"), U("l"), U("p"), 2, U("A B"), U("d"), id, converti});
        }
        // A column takes for a number, or for a text, what reads as one.
        const bool change = enTexte.isEmpty() ? id == U("12.5") : id.typeId() == QMetaType::Double;
        if (change) {
            continue;
        }
        atelier.Recopie();
        QCOMPARE(atelier.Lignes("OrdoEnr"), QStringList{U("t|l|p|2|A  B|d|") + apres});
    }
}

void TestRecopie::colonnesManquantes()
{
    Atelier atelier;
    {
        AncienneBase medoc(atelier.Ancien, GenreBase::Medoc);
        medoc.Table(U("ListeOrdos"), 2);
        medoc.Table(U("OrdoEnr"), 7, {U("IdProduit")});
        medoc.Table(U("Patients"), 6);
        medoc.Ajoute(U("ListeOrdos"), {U("t"), U("A")});
        medoc.Ajoute(U("OrdoEnr"), {U("t"), U("l"), U("p"), 1, U("A"), U("d"), U("3948730")});
        medoc.Ajoute(U("Patients"), {3, U("Madame"), U("B"), U("d"), U("0"), kNul});
    }
    atelier.Recopie();
    QVERIFY(atelier.Repare); // the prescription of A has no date
    QCOMPARE(atelier.Lignes("ListeOrdos"), QStringList{U("t|A|0|0")});
    QCOMPARE(atelier.Lignes("OrdoEnr"), QStringList{U("t|l|p|1|A|d|0|<null>")});
    QCOMPARE(atelier.Lignes("Patients"),
             QStringList{U("3|Madame|B|d|0|<null>|<null>|<null>|<null>|<null>|<null>")});
}

void TestRecopie::tablesManquantes()
{
    Atelier atelier;
    {
        AncienneBase medoc(atelier.Ancien, GenreBase::Medoc);
        medoc.Table(U("BddMed"), 5);
        medoc.Ajoute(U("BddMed"), {4, kNul, kNul, kNul, U("p")});
    }
    atelier.Recopie();
    QCOMPARE(atelier.Lignes("BddMed"), QStringList{U("4|<null>|<null>|<null>|p|<null>")});
    for (const char* table : {"ListeOrdos", "OrdoEnr", "Vidal", "Biblio", "MedUtile", "Patients"}) {
        QCOMPARE(atelier.Lignes(table), QStringList());
    }
}

void TestRecopie::premierBloc_data()
{
    QTest::addColumn<QString>("manquante");
    QTest::newRow("aucune") << QString();
    for (const char* table : {"Vidal", "Biblio", "MedUtile"}) {
        QTest::newRow(table) << U(table);
    }
}

/// A table that is missing keeps none of the others back.
void TestRecopie::premierBloc()
{
    QFETCH(const QString, manquante);
    Atelier atelier;
    {
        AncienneBase medoc(atelier.Ancien, GenreBase::Medoc);
        for (const QString& table : {U("Vidal"), U("Biblio"), U("MedUtile"), U("Patients")}) {
            const int colonnes = table == U("MedUtile") ? 1 : 2;
            if (table != manquante) {
                medoc.Table(table, table == U("Patients") ? 11 : colonnes);
            }
        }
        for (const QString& table : {U("Vidal"), U("Biblio"), U("MedUtile")}) {
            if (table != manquante) {
                medoc.Ajoute(table, table == U("MedUtile") ? QVariantList{kNul} : QVariantList{U("a"), kNul});
            }
        }
        medoc.Execute(U("insert into Patients (NomPatient) values ('X')"));
    }
    atelier.Recopie();
    for (const QString& table : {U("Vidal"), U("Biblio"), U("MedUtile")}) {
        const QStringList copie = atelier.Lignes(qPrintable(table));
        QCOMPARE(copie,
                 table != manquante ? QStringList{table == U("MedUtile") ? U("") : U("a|")} : QStringList());
    }
    QCOMPARE(atelier.Lignes("Patients").size(), 1);
}

void TestRecopie::blocAvecTropPeuDeColonnes()
{
    Atelier atelier;
    {
        AncienneBase medoc(atelier.Ancien, GenreBase::Medoc);
        medoc.Table(U("Vidal"), 1);
        medoc.Table(U("Biblio"), 1);
        medoc.Table(U("MedUtile"), 1);
        medoc.Ajoute(U("Biblio"), {U("a")});
        medoc.Ajoute(U("MedUtile"), {U("b")});
    }
    atelier.Recopie();
    QCOMPARE(atelier.Lignes("Biblio"), QStringList{U("a|")});
    QCOMPARE(atelier.Lignes("MedUtile"), QStringList{U("b")});
}

void TestRecopie::patientsDesDeuxFichiers()
{
    Atelier atelier;
    {
        AncienneBase medoc(atelier.Ancien, GenreBase::Medoc);
        medoc.Table(U("Patients"), 11);
        medoc.Ajoute(U("Patients"), {5, U("Madame"), U("A  B"), U("d"), U("0"), kNul, U("n"), U("a"), U("r"),
                                     U("01"), U("02")});
    }
    {
        AncienneBase racine(atelier.Racine, GenreBase::Ordo);
        racine.Table(U("Patients"), 9);
        racine.Ajoute(U("Patients"), {8, U("Monsieur"), U("C  D"), U("d"), U("70"), kNul, kNul, kNul, kNul});
    }
    atelier.Recopie(true);
    QCOMPARE(atelier.Lignes("Patients"),
             (QStringList{U("5|Madame|A  B|d|0|<null>|n|a|r|01|02"),
                          U("8|Monsieur|C  D|d|70|<null>|<null>|<null>|<null>|<null>|<null>")}));
}

/// Nobody is lost where two rows bear one number or none, and nobody is copied twice.
void TestRecopie::patientsDeMemeNumero()
{
    Atelier atelier;
    {
        AncienneBase medoc(atelier.Ancien, GenreBase::Medoc);
        medoc.Table(U("Patients"), 11, {U("Index")});
        for (const auto& [numero, nom] :
             {std::pair{QVariant(2), U("A")}, {QVariant(2), U("B")}, {kNul, U("C")}, {QVariant(3), U("D")}}) {
            medoc.Ajoute(U("Patients"), QVariantList{numero, kNul, nom} + QVariantList(8));
        }
    }
    {
        AncienneBase racine(atelier.Racine, GenreBase::Ordo);
        racine.Table(U("Patients"), 9);
        racine.Ajoute(U("Patients"), QVariantList{2, kNul, U("A")} + QVariantList(6));
        racine.Ajoute(U("Patients"), QVariantList{3, kNul, U("E")} + QVariantList(6));
        racine.Ajoute(U("Patients"), QVariantList{9, kNul, U("F")} + QVariantList(6));
    }
    atelier.Recopie(true);
    QStringList patients;
    for (const QVariantList& patient : atelier.Valeurs("Patients", 3)) {
        patients.append(patient[0].toString() + patient[2].toString());
    }
    QCOMPARE(patients, (QStringList{U("2A"), U("3D"), U("4B"), U("5C"), U("9F"), U("10E")}));
}

/// A table goes over in stretches: each row once, in its order.
void TestRecopie::grandeTable()
{
    constexpr int kLignes = 250001;
    Atelier atelier;
    {
        AncienneBase medoc(atelier.Ancien, GenreBase::Medoc);
        medoc.Table(U("MedUtile"), 1);
        medoc.Table(U("Vidal"), 2);
        medoc.Table(U("Biblio"), 2);
        medoc.Execute(
            U("insert into MedUtile (rowid, CIP) with recursive n(i) as (select 1 union all select i + 1 "
              "from n where i < %1) select i * 7 - 40, i from n")
                .arg(kLignes));
    }
    atelier.Recopie();
    storage::Base base(atelier.Copie, GenreBase::Medoc);
    QStringList bornes;
    base.Parcourt(U("select count(*), min(rowid = cast(CIP as integer)) from MedUtile"), {},
                  [&](const storage::Rangee& rangee) {
                      bornes = {rangee.Texte(0), rangee.Texte(1)};
                  });
    QCOMPARE(bornes, (QStringList{QString::number(kLignes), U("1")}));
}

void TestRecopie::ordreDesLignes()
{
    Atelier atelier;
    {
        AncienneBase medoc(atelier.Ancien, GenreBase::Medoc);
        medoc.Table(U("OrdoEnr"), 8);
        for (const char* titre : {"z", "a", "m", "a", "b"}) {
            medoc.Ajoute(U("OrdoEnr"), QVariantList{U(titre)} + QVariantList(7));
        }
    }
    atelier.Recopie();
    QString titres;
    for (const QVariantList& ligne : atelier.Valeurs("OrdoEnr", 1)) {
        titres += ligne[0].toString();
    }
    QCOMPARE(titres, U("zamab"));
}

void TestRecopie::certificat()
{
    const QTemporaryDir dossier;
    const QString ancien = dossier.filePath(U("Ordo.mdb"));
    const QString copie = dossier.filePath(U("Copie.mdb"));
    {
        AncienneBase ordo(ancien, GenreBase::Ordo);
        ordo.Table(U("Certificat"), 5);
        ordo.Ajoute(U("Certificat"), QVariantList(5));
        ordo.Ajoute(U("Certificat"), {U("Arial"), 11, 1, -1, 0});
        ordo.Table(U("Misenpage"), 6);
        ordo.Ajoute(U("Misenpage"), {1, U("Arial"), 10.5, 1, kNul, 0});
    }
    storage::CreeBase(copie, GenreBase::Ordo, storage::ContenuInitial::Aucun);
    upgrade::Suivi suivi;
    QVERIFY(!upgrade::RecopieOrdo(copie, upgrade::Source(ancien, GenreBase::Ordo), suivi));
    storage::Base base(copie, GenreBase::Ordo);
    QCOMPARE(support::Lignes(base, U("Certificat")), (QStringList{U("|10|0|0|0"), U("Arial|11|1|1|0")}));
    QCOMPARE(support::Lignes(base, U("Misenpage")), QStringList{U("1|Arial|10.5|1|0|0")});
    QCOMPARE(support::Lignes(base, U("Entete")), QStringList());
    QCOMPARE(support::Lignes(base, U("CouleurPET")), QStringList());
}

void TestRecopie::indexRefaits()
{
    Atelier atelier;
    {
        AncienneBase medoc(atelier.Ancien, GenreBase::Medoc);
        medoc.Table(U("OrdoEnr"), 8);
    }
    atelier.Recopie();
    storage::Base base(atelier.Copie, GenreBase::Medoc, storage::Disposition::Telle);
    qint64 index = 0;
    base.Parcourt(U("select count(*) from sqlite_master where type = 'index'"), {},
                  [&](const storage::Rangee& rangee) { index = rangee.Entier(0); });
    QCOMPARE(index, storage::Indexes(GenreBase::Medoc).size());
}

QTEST_GUILESS_MAIN(TestRecopie)
#include "test_recopie.moc"
