#include "storage/Schema.h"
#include "support/BaseDeTest.h"

#include <QDir>
#include <QFile>
#include <QTest>

using storage::GenreBase;
using support::BaseDeTest;
using support::Lignes;

namespace {

/// Tables and columns as the file itself tells them, apart from the schema's own words.
QStringList TablesDuFichier(storage::Base& base)
{
    QMap<QString, QStringList> colonnes;
    base.Parcourt(
        QStringLiteral("select t.name, c.name from sqlite_master t join pragma_table_info(t.name) c "
                       "where t.type='table' and t.name not like 'sqlite%' order by t.name, c.cid"),
        {}, [&](const storage::Rangee& rangee) { colonnes[rangee.Texte(0)].append(rangee.Texte(1)); });
    QStringList tables;
    for (auto [table, noms] : colonnes.asKeyValueRange()) {
        tables.append(table + QStringLiteral(": ") + noms.join(u' '));
    }
    return tables;
}

QStringList Textes(std::initializer_list<const char16_t*> textes)
{
    QStringList liste;
    for (const char16_t* texte : textes) {
        liste.append(QString::fromUtf16(texte));
    }
    return liste;
}

} // namespace

class TestSchema : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void ALesTablesDeMedoc();
    void ALesTablesDOrdo();
    void ALesIndex();
    void CommenceParUnMedocVide();
    void CommenceParLEnteteVierge();
    void CommenceParLesPolices();
    void CreeDesModelesSansLignes();
    void RemplaceCeQuiEstLa();
    void NeGardePasUnAncienJournal();
    void NeLaisseRienQuandLaCreationEchoue();
    void LivreLesMedicaments();
    void LivreDesModelesVides();
};

void TestSchema::ALesTablesDeMedoc()
{
    BaseDeTest base;
    QCOMPARE(TablesDuFichier(base.Medoc()),
             Textes({u"BddMed: num Champ1 Champ2 Notes Posologie Nom", u"Biblio: Titre Posologie",
                     u"ListeOrdos: Titre NomPatient ALD Datenais", u"MedUtile: CIP",
                     u"OrdoEnr: Titre TitreLigne Posologie Zone Patient Datenais IdProduit Converti",
                     u"Patients: Index Titre NomPatient Datenais Poids Precautions Notes Antecedents Adresse "
                     u"Telephone1 Telephone2",
                     u"Vidal: CIP Posologie"}));
}

void TestSchema::ALesTablesDOrdo()
{
    BaseDeTest base;
    QCOMPARE(TablesDuFichier(base.Ordo()),
             Textes({u"Certificat: Police Taille Gras Italique Souligne", u"CouleurPET: Couleur",
                     u"Entete: NumLigne Texte Police Taille Gras Italique Souligne Espaces",
                     u"Misenpage: NumLigne Police Taille Gras Italique Souligne"}));
}

void TestSchema::ALesIndex()
{
    BaseDeTest base;
    QStringList index;
    base.Medoc().Parcourt(
        QStringLiteral("select name, tbl_name from sqlite_master where type = 'index' order by name"), {},
        [&](const storage::Rangee& rangee) { index.append(rangee.Texte(0) + u' ' + rangee.Texte(1)); });
    QCOMPARE(index, Textes({u"BddMedNom BddMed", u"BiblioTitre Biblio", u"ListeOrdosPatient ListeOrdos",
                            u"OrdoEnrTitre OrdoEnr", u"OrdoEnrTitreLigne OrdoEnr", u"VidalCIP Vidal"}));
}

void TestSchema::CommenceParUnMedocVide()
{
    BaseDeTest base;
    for (const storage::Table& table : storage::Tables(GenreBase::Medoc)) {
        QCOMPARE(Lignes(base.Medoc(), table.Nom), QStringList());
    }
}

void TestSchema::CommenceParLEnteteVierge()
{
    BaseDeTest base;
    const QStringList lignes = Lignes(base.Ordo(), QStringLiteral("Entete"));
    QCOMPARE(lignes.size(), 24);
    const QHash<int, QString> textes{
        {5, QStringLiteral("Tel")},
        {7, QStringLiteral("Fax")},
        {22,
         QStringLiteral("Membre d'une association agréée. Règlement des honoraires par chèque accepté.\r\n")},
        {23, QStringLiteral("Nom à afficher pour la signature électronique")}};
    for (int i = 0; i < lignes.size(); ++i) {
        const QString texte = textes.value(i, QStringLiteral("*"));
        QCOMPARE(lignes[i], QStringLiteral("%1|%2|Arial|10|0|0|0|0").arg(i).arg(texte));
    }
}

void TestSchema::CommenceParLesPolices()
{
    BaseDeTest base;
    QCOMPARE(Lignes(base.Ordo(), QStringLiteral("Misenpage")),
             Textes({u"0|Arial|11|1|0|0", u"1|Arial|10|0|0|0"}));
    QCOMPARE(Lignes(base.Ordo(), QStringLiteral("CouleurPET")), Textes({u"0"}));
    QCOMPARE(Lignes(base.Ordo(), QStringLiteral("Certificat")), Textes({u"Arial|11|0|0|0"}));
}

void TestSchema::CreeDesModelesSansLignes()
{
    BaseDeTest base;
    const QString chemin = base.Chemin(QStringLiteral("Copie de Ordo.mdb"));
    storage::CreeBase(chemin, GenreBase::Ordo, storage::ContenuInitial::Aucun);
    storage::Base copie(chemin, GenreBase::Ordo);
    for (const storage::Table& table : storage::Tables(GenreBase::Ordo)) {
        QCOMPARE(Lignes(copie, table.Nom), QStringList());
    }
}

void TestSchema::RemplaceCeQuiEstLa()
{
    BaseDeTest base;
    support::AjouteLigne(base.Medoc(), QStringLiteral("MedUtile"), {QStringLiteral("1")});
    base.Bases().FermeMedoc();
    storage::CreeBase(base.Chemin(QStringLiteral("Medoc.mdb")), GenreBase::Medoc);
    QCOMPARE(Lignes(base.Medoc(), QStringLiteral("MedUtile")), QStringList());
    QCOMPARE(QDir(base.Dossier()).entryList(QDir::Files), Textes({u"Medoc.mdb", u"Ordo.mdb"}));
}

void TestSchema::NeGardePasUnAncienJournal()
{
    BaseDeTest base;
    const QString chemin = base.Chemin(QStringLiteral("Medoc.mdb"));
    QFile journal(chemin + QStringLiteral("-journal"));
    QVERIFY(journal.open(QIODevice::WriteOnly));
    journal.write("un reste");
    journal.close();
    storage::CreeBase(chemin, GenreBase::Medoc);
    QVERIFY(!journal.exists());
}

void TestSchema::NeLaisseRienQuandLaCreationEchoue()
{
    BaseDeTest base;
    const QString phrase = support::PhraseDEchec(
        [&] { storage::CreeBase(base.Chemin(QStringLiteral("absent/Ordo.mdb")), GenreBase::Ordo); });
    QVERIFY2(phrase.contains(QStringLiteral("« Ordo.mdb »")), qPrintable(phrase));
    QDir(base.Dossier()).mkpath(QStringLiteral("occupe/x"));
    const QString occupe = base.Chemin(QStringLiteral("occupe"));
    QVERIFY(!support::PhraseDEchec([&] { storage::CreeBase(occupe, GenreBase::Ordo); }).isEmpty());
    QCOMPARE(QDir(base.Dossier()).entryList(QDir::Files), Textes({u"Medoc.mdb", u"Ordo.mdb"}));
}

void TestSchema::LivreLesMedicaments()
{
    storage::Base base(QStringLiteral(RACINE_CONSTRUCTION "/installation/Medoc.mdb"), GenreBase::Medoc);
    int rang = 0;
    QSet<QString> noms;
    base.Parcourt(QStringLiteral("select num, Nom, Notes, Posologie from BddMed order by rowid"), {},
                  [&](const storage::Rangee& rangee) {
                      QCOMPARE(rangee.Entier(0), 1000 + ++rang);
                      QCOMPARE(rangee.Texte(1), rangee.Texte(1).toUpper().simplified());
                      QVERIFY(rangee.EstNull(2) && rangee.EstNull(3));
                      noms.insert(rangee.Texte(1));
                  });
    QCOMPARE(noms.size(), rang);
    QVERIFY(rang >= 140 && rang <= 160);
    QVERIFY(noms.contains(QStringLiteral("DOLIPRANE 1000 MG CPR")));
}

void TestSchema::LivreDesModelesVides()
{
    const QString modeles = QStringLiteral(RACINE_CONSTRUCTION "/installation/BasesInstal/");
    storage::Base medoc(modeles + QStringLiteral("Copie de Medoc.mdb"), GenreBase::Medoc);
    QCOMPARE(Lignes(medoc, QStringLiteral("BddMed")), QStringList());
    storage::Base copie(modeles + QStringLiteral("Copie de Ordo.mdb"), GenreBase::Ordo);
    QCOMPARE(Lignes(copie, QStringLiteral("Entete")), QStringList());
    storage::Base ordo(modeles + QStringLiteral("Ordo.mdb"), GenreBase::Ordo);
    QCOMPARE(Lignes(ordo, QStringLiteral("Entete")).size(), 24);
}

QTEST_GUILESS_MAIN(TestSchema)
#include "test_schema.moc"
