#include "common/Nombres.h"
#include "jet/CopieJet.h"
#include "support/SansPrivilege.h"
#include "support/SuiviDeTest.h"

#include <QTest>

using storage::Disposition;
using support::CopieJet;
using support::DonneesJet;

namespace {

/// A value as the expected readings write it.
QByteArray Ecrite(const QVariant& valeur)
{
    if (!valeur.isValid()) {
        return "\\N";
    }
    if (valeur.typeId() == QMetaType::Double) {
        return common::TexteNombre(valeur.toDouble()).toUtf8();
    }
    return valeur.toString()
        .replace(u'\\', QLatin1String("\\\\"))
        .replace(u'\t', QLatin1String("\\t"))
        .replace(u'\r', QLatin1String("\\r"))
        .replace(u'\n', QLatin1String("\\n"))
        .toUtf8();
}

QByteArrayList Lues(storage::Base& base, const storage::Table& table)
{
    QByteArrayList lignes;
    for (storage::Jeu jeu = base.Table(table.Nom); !jeu.Fin(); jeu.MoveNext()) {
        QByteArrayList champs;
        for (int i = 0; i < table.Colonnes.size(); ++i) {
            champs.append(Ecrite(jeu.Champ(i)));
        }
        lignes.append(champs.join('\t'));
    }
    return lignes;
}

/// Table, then its columns, in the order of the file, of "petit/Medoc.schema.tsv".
QMap<QString, QStringList> SchemaAttendu(const QString& base)
{
    QMap<QString, QStringList> schema;
    for (const QByteArray& ligne : DonneesJet::Lignes(base + QStringLiteral(".schema.tsv")).sliced(1)) {
        const QByteArrayList champs = ligne.split('\t');
        schema[QString::fromUtf8(champs[0])].append(QString::fromUtf8(champs[2]));
    }
    return schema;
}

qint64 Pragma(storage::Base& base, const QString& nom)
{
    qint64 valeur = -1;
    base.Parcourt(QStringLiteral("pragma ") + nom, {},
                  [&](const storage::Rangee& rangee) { valeur = rangee.Entier(0); });
    return valeur;
}

} // namespace

/// Needs the Jet files beside the project.
class TestConversionJet : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void CopieTout_data();
    void CopieTout();
    void MarqueLAncienneDisposition();
    void CompleteALOuverture();
    void DonneLesNumerosALaSuite();
    void GardeChaqueOriginal();
    void OteUnJournalEtranger();
    void VaDansUnDossierDifficile();
    void NeTouchePasCeQuiEstEnLectureSeule();
    void RendLeFichierInscriptible();
    void DitOuElleEnEst();
    void SAbandonne();
    void NeSOuvrePasDeuxFois();
    void SeSouvientDUnRefus();
};

void TestConversionJet::initTestCase()
{
    if (!DonneesJet::Presentes()) {
        QSKIP("the Jet files are not here");
    }
}

void TestConversionJet::CopieTout_data()
{
    QTest::addColumn<QString>("base");
    for (const char* jeu : {"petit", "ancien", "ancien_jet3", "gros"}) {
        for (const char* nom : {"Medoc", "Ordo"}) {
            QTest::addRow("%s/%s", jeu, nom)
                << QStringLiteral("%1/%2").arg(QLatin1String(jeu), QLatin1String(nom));
        }
    }
}

void TestConversionJet::CopieTout()
{
    QFETCH(QString, base);
    const CopieJet copie(base + QStringLiteral(".mdb"));
    QCOMPARE(copie.Convertit(), QString());
    QCOMPARE(common::LitFichier(copie.Garde()), copie.Contenu());
    QCOMPARE(copie.Fichiers().size(), 2);

    storage::Base convertie(copie.Chemin(), copie.Genre(), Disposition::Telle);
    const QMap<QString, QStringList> schema = SchemaAttendu(base);
    QStringList tables;
    for (const storage::Table& table : convertie.Tables()) {
        tables.append(table.Nom);
        QCOMPARE(table.Colonnes.size(), schema.value(table.Nom).size());
        const QByteArrayList attendues = DonneesJet::Lignes(base + u'.' + table.Nom + QStringLiteral(".tsv"));
        const QByteArrayList lues = Lues(convertie, table);
        QCOMPARE(lues.size(), attendues.size() - 1);
        for (qsizetype i = 0; i < lues.size(); ++i) {
            QCOMPARE(lues[i], attendues[i + 1]);
        }
    }
    tables.sort();
    QCOMPARE(tables, QStringList(schema.keys()));
}

void TestConversionJet::MarqueLAncienneDisposition()
{
    const CopieJet actuelle(QStringLiteral("petit/Medoc.mdb"));
    const CopieJet ancienne(QStringLiteral("ancien/Medoc.mdb"));
    QCOMPARE(actuelle.Convertit(), QString());
    QCOMPARE(ancienne.Convertit(), QString());
    storage::Base une(actuelle.Chemin(), actuelle.Genre(), Disposition::Telle);
    storage::Base autre(ancienne.Chemin(), ancienne.Genre(), Disposition::Telle);
    QCOMPARE(Pragma(une, QStringLiteral("user_version")), storage::kVersionSchema);
    QCOMPARE(Pragma(autre, QStringLiteral("user_version")), 0);
    QCOMPARE(autre.ChercheTable(QStringLiteral("OrdoEnr"))->Colonnes.last().Type,
             storage::TypeColonne::Texte);
}

void TestConversionJet::CompleteALOuverture()
{
    const CopieJet medoc(QStringLiteral("ancien_jet3/Medoc.mdb"));
    const CopieJet ordo(QStringLiteral("ancien_jet3/Ordo.mdb"));
    storage::Bases bases;
    QCOMPARE(bases.Medoc(medoc.Dossier()).Table(QStringLiteral("Patients")).RecordCount(), 0);
    storage::Jeu lignes = bases.Medoc(medoc.Dossier()).Table(QStringLiteral("OrdoEnr"));
    QCOMPARE(lignes.RecordCount(), 96);
    QCOMPARE(lignes.Texte(6), QStringLiteral("3948730"));
    QVERIFY(lignes.EstNull(7));
    QCOMPARE(bases.Ordo(ordo.Dossier()).Table(QStringLiteral("Entete")).RecordCount(), 23);
    QCOMPARE(bases.Ordo(ordo.Dossier()).Table(QStringLiteral("Certificat")).RecordCount(), 0);
    qint64 patients = 0;
    bases.Ordo(ordo.Dossier())
        .Parcourt(QStringLiteral("select count(*) from Patients"), {},
                  [&](const storage::Rangee& rangee) { patients = rangee.Entier(0); });
    QCOMPARE(patients, 43);
}

void TestConversionJet::DonneLesNumerosALaSuite()
{
    const CopieJet copie(QStringLiteral("petit/Medoc.mdb"));
    storage::Bases bases;
    storage::Jeu patients = bases.Medoc(copie.Dossier()).Table(QStringLiteral("Patients"));
    patients.AddNew();
    QCOMPARE(patients.Champ(0).toInt(), 34);
}

void TestConversionJet::GardeChaqueOriginal()
{
    CopieJet copie(QStringLiteral("petit/Ordo.mdb"));
    QCOMPARE(copie.Convertit(), QString());
    const QByteArray premier = copie.Contenu();
    copie.Ecris(common::LitFichier(DonneesJet::Chemin(QStringLiteral("ancien/Ordo.mdb"))));
    QCOMPARE(copie.Convertit(), QString());
    QCOMPARE(common::LitFichier(copie.Garde()), premier);
    QCOMPARE(common::LitFichier(common::Joint(copie.Dossier(), QStringLiteral("Ordo 2 (Jet).mdb"))),
             copie.Contenu());
}

void TestConversionJet::OteUnJournalEtranger()
{
    const CopieJet copie(QStringLiteral("petit/Ordo.mdb"));
    common::EcritFichier(copie.Chemin() + QStringLiteral("-journal"), "autre chose");
    QCOMPARE(copie.Convertit(), QString());
    QCOMPARE(copie.Fichiers(), (QStringList{QStringLiteral("Ordo (Jet).mdb"), QStringLiteral("Ordo.mdb")}));
}

void TestConversionJet::VaDansUnDossierDifficile()
{
    const CopieJet copie(QStringLiteral("petit/Ordo.mdb"),
                         QStringLiteral("DR D'HÉRÉ Noël ; % # ?mode=memory"));
    storage::Bases bases;
    QCOMPARE(bases.Ordo(copie.Dossier()).Table(QStringLiteral("Entete")).RecordCount(), 24);
    QCOMPARE(common::LitFichier(copie.Garde()), copie.Contenu());
}

void TestConversionJet::NeTouchePasCeQuiEstEnLectureSeule()
{
    const CopieJet copie(QStringLiteral("petit/Medoc.mdb"));
    support::OuvreATous(QFileInfo(copie.Dossier()).path());
    support::OuvreATous(copie.Dossier());
    QFile::setPermissions(copie.Chemin(), QFile::ReadOwner | QFile::ReadGroup | QFile::ReadOther);
    const auto avant = QFile::permissions(copie.Dossier());
    QFile::setPermissions(copie.Dossier(), avant & ~(QFile::WriteOwner | QFile::WriteUser));
    QString phrase;
    {
        const support::SansPrivilege personne;
        phrase = copie.Convertit();
    }
    QFile::setPermissions(copie.Dossier(), avant);
    QVERIFY2(phrase.contains(QStringLiteral("son dossier est en lecture seule")), qPrintable(phrase));
    QVERIFY(copie.Intacte());
}

/// A file copied from a CD is read-only; the practice's data are not.
void TestConversionJet::RendLeFichierInscriptible()
{
    const CopieJet copie(QStringLiteral("petit/Medoc.mdb"));
    QFile::setPermissions(copie.Chemin(), QFile::ReadOwner | QFile::ReadGroup | QFile::ReadOther);
    QCOMPARE(copie.Convertit(), QString());
    QVERIFY(QFile::permissions(copie.Chemin()).testFlag(QFile::WriteOwner));
    QVERIFY(QFile::permissions(copie.Chemin()).testFlag(QFile::ReadGroup));
    QVERIFY(!QFile::permissions(copie.Garde()).testFlag(QFile::WriteOwner));
}

void TestConversionJet::DitOuElleEnEst()
{
    const CopieJet copie(QStringLiteral("petit/Medoc.mdb"));
    support::SuiviDeTest suivi;
    QCOMPARE(copie.Convertit({.Suivi = &suivi}), QString());
    QCOMPARE(suivi.Commences, QStringList{copie.Chemin()});
    QCOMPARE(suivi.Termines, 1);
    QCOMPARE(suivi.Lues.value(QStringLiteral("MedUtile")), 16);
    QCOMPARE(copie.Convertit({.Suivi = &suivi}), QString());
    QCOMPARE(suivi.Commences.size(), 1);
}

void TestConversionJet::SAbandonne()
{
    const CopieJet copie(QStringLiteral("gros/Medoc.mdb"));
    support::SuiviDeTest suivi;
    suivi.Abandon = true;
    const QString phrase = copie.Convertit({.Suivi = &suivi});
    QVERIFY2(phrase.contains(QStringLiteral("« Medoc.mdb » a été abandonnée")), qPrintable(phrase));
    QCOMPARE(suivi.Termines, 1);
    QVERIFY(copie.Intacte());
}

/// The window of a conversion lets events through: a timer may ask for the database meanwhile.
void TestConversionJet::NeSOuvrePasDeuxFois()
{
    const CopieJet copie(QStringLiteral("petit/Medoc.mdb"));
    storage::Bases bases;
    support::SuiviDeTest suivi;
    QString pendant;
    suivi.SurAvance = [&] { pendant = support::PhraseDEchec([&] { bases.Medoc(copie.Dossier()); }); };
    bases.Suit(&suivi);
    QCOMPARE(bases.Medoc(copie.Dossier()).Table(QStringLiteral("Patients")).RecordCount(), 30);
    QVERIFY2(pendant.contains(QStringLiteral("pendant une conversion")), qPrintable(pendant));
}

void TestConversionJet::SeSouvientDUnRefus()
{
    CopieJet copie(QStringLiteral("petit/Medoc.mdb"));
    const QByteArray entier = copie.Contenu();
    copie.Ecris(entier.first(entier.size() / 2 / 4096 * 4096));
    storage::Bases bases;
    support::SuiviDeTest suivi;
    bases.Suit(&suivi);
    for (int i = 0; i < 2; ++i) {
        const QString phrase = support::PhraseDEchec([&] { bases.Medoc(copie.Dossier()); });
        QVERIFY2(phrase.contains(QStringLiteral("est endommagée")), qPrintable(phrase));
        QVERIFY(copie.Intacte());
    }
    QCOMPARE(suivi.Commences.size(), 1);
    copie.Ecris(entier);
    QCOMPARE(bases.Medoc(copie.Dossier()).Table(QStringLiteral("Patients")).RecordCount(), 30);
}

QTEST_GUILESS_MAIN(TestConversionJet)
#include "test_conversion_jet.moc"
