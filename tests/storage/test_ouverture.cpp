#include "storage/Schema.h"
#include "support/BaseDeTest.h"
#include "support/SansPrivilege.h"

#include <QDir>
#include <QFile>
#include <QTest>

using storage::GenreBase;
using support::AjouteLigne;
using support::BaseDeTest;
using support::Lignes;
using support::OuvreATous;
using support::PhraseDEchec;
using support::SansPrivilege;

namespace {

const QString kVidal = QStringLiteral("Vidal");

QByteArray Octets(const QString& chemin)
{
    QFile fichier(chemin);
    return fichier.open(QIODevice::ReadOnly) ? fichier.readAll() : QByteArray();
}

void Ecris(const QString& chemin, const QByteArray& octets)
{
    QFile fichier(chemin);
    QVERIFY(fichier.open(QIODevice::WriteOnly | QIODevice::Truncate));
    QCOMPARE(fichier.write(octets), octets.size());
}

/// The sentence that opening "Medoc.mdb" of that directory fails with.
QString PhraseDOuverture(const QString& chemin)
{
    return PhraseDEchec([&] { storage::Base base(chemin, GenreBase::Medoc); });
}

} // namespace

class TestOuverture : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void RefuseUnFichierAbsent();
    void RefuseUnDossier();
    void RefuseCeQuiNEstPasUneBase_data();
    void RefuseCeQuiNEstPasUneBase();
    void RefuseUneBaseTronquee_data();
    void RefuseUneBaseTronquee();
    void RefuseUnePageAbimee();
    void RefuseUneBaseEtrangere();
    void RefuseLAutreGenre();
    void RefuseUneVersionPlusRecente();
    void RefuseUneColonneDeplacee_data();
    void RefuseUneColonneDeplacee();
    void AccepteUneTableDePlus();
    void DitQuUnAutrePosteLaTient();
    void DitQuUnAutrePosteEcrit();
    void LitUnFichierEnLectureSeule();
    void DitQueLeDossierEstEnLectureSeule();
    void DitQueLeFichierEstIllisible();
    void DitQueLeDisqueEstPlein();
    void TrouveLesDegatsPlusTard();
    void RouvreAuChangementDeChemin();
    void RouvreApresUnEchec();
    void GardeUnSeulFichier();
    void OuvreUnCheminDifficile();
};

void TestOuverture::RefuseUnFichierAbsent()
{
    BaseDeTest base;
    QCOMPARE(PhraseDOuverture(base.Chemin(QStringLiteral("Absente.mdb"))),
             QStringLiteral("La base de données « Absente.mdb » n'existe pas."));
    QVERIFY(!QFile::exists(base.Chemin(QStringLiteral("Absente.mdb"))));
}

void TestOuverture::RefuseUnDossier()
{
    BaseDeTest base;
    QDir(base.Dossier()).mkdir(QStringLiteral("Dossier.mdb"));
    QVERIFY(
        PhraseDOuverture(base.Chemin(QStringLiteral("Dossier.mdb"))).contains(QStringLiteral("n'est pas")));
}

void TestOuverture::RefuseCeQuiNEstPasUneBase_data()
{
    QTest::addColumn<QByteArray>("octets");
    QTest::newRow("vide") << QByteArray();
    QTest::newRow("texte") << QByteArray("bonjour");
    QTest::newRow("zéros") << QByteArray(20000, '\0');
    QTest::newRow("début d'en-tête") << QByteArray("SQLite form");
}

void TestOuverture::RefuseCeQuiNEstPasUneBase()
{
    QFETCH(QByteArray, octets);
    BaseDeTest base;
    const QString chemin = base.Chemin(QStringLiteral("Medoc.mdb"));
    Ecris(chemin, octets);
    QCOMPARE(PhraseDOuverture(chemin),
             QStringLiteral("Le fichier « Medoc.mdb » n'est pas une base de données de Scriptelle."));
    QCOMPARE(Octets(chemin), octets);
}

void TestOuverture::RefuseUneBaseTronquee_data()
{
    QTest::addColumn<int>("taille");
    QTest::newRow("en-tête seul") << 16;
    QTest::newRow("en-tête coupé") << 60;
    QTest::newRow("dans la première page") << 2000;
    QTest::newRow("une page") << 4096;
    QTest::newRow("dernière page perdue") << -4096;
    QTest::newRow("dernier octet perdu") << -1;
}

void TestOuverture::RefuseUneBaseTronquee()
{
    QFETCH(int, taille);
    BaseDeTest base;
    const QString chemin = base.Chemin(QStringLiteral("Medoc.mdb"));
    const QByteArray entier = Octets(chemin);
    const QByteArray coupe = taille < 0 ? entier.chopped(-taille) : entier.first(taille);
    Ecris(chemin, coupe);
    QCOMPARE(PhraseDOuverture(chemin),
             QStringLiteral("La base de données « Medoc.mdb » est endommagée. Elle n'a pas été modifiée."));
    QCOMPARE(Octets(chemin), coupe);
}

void TestOuverture::RefuseUnePageAbimee()
{
    BaseDeTest base;
    const QString chemin = base.Chemin(QStringLiteral("Medoc.mdb"));
    QByteArray octets = Octets(chemin);
    octets.replace(octets.size() - 4096, 4096, QByteArray(4096, 'x'));
    Ecris(chemin, octets);
    QVERIFY(PhraseDOuverture(chemin).contains(QStringLiteral("est endommagée")));
    QCOMPARE(Octets(chemin), octets);
}

void TestOuverture::RefuseUneBaseEtrangere()
{
    BaseDeTest base;
    base.Medoc().Execute(QStringLiteral("pragma application_id = 7"));
    base.Bases().FermeMedoc();
    QVERIFY(PhraseDEchec([&] { base.Medoc(); }).contains(QStringLiteral("n'est pas une base")));
}

void TestOuverture::RefuseLAutreGenre()
{
    BaseDeTest base;
    QCOMPARE(PhraseDOuverture(base.Chemin(QStringLiteral("Ordo.mdb"))),
             QStringLiteral("Le fichier « Ordo.mdb » contient une autre base de Scriptelle : celle de "
                            "« Medoc.mdb » est attendue."));
}

void TestOuverture::RefuseUneVersionPlusRecente()
{
    BaseDeTest base;
    base.Medoc().Execute(QStringLiteral("pragma user_version = 2"));
    base.Bases().FermeMedoc();
    const QByteArray avant = Octets(base.Chemin(QStringLiteral("Medoc.mdb")));
    QCOMPARE(PhraseDEchec([&] { base.Medoc(); }),
             QStringLiteral("La base de données « Medoc.mdb » a été créée par une version plus récente de "
                            "Scriptelle."));
    QCOMPARE(Octets(base.Chemin(QStringLiteral("Medoc.mdb"))), avant);
}

void TestOuverture::RefuseUneColonneDeplacee_data()
{
    QTest::addColumn<QString>("instruction");
    QTest::newRow("absente") << QStringLiteral("drop table MedUtile");
    QTest::newRow("renommée") << QStringLiteral("alter table Vidal rename column CIP to Code");
    QTest::newRow("en moins") << QStringLiteral("alter table Vidal drop column Posologie");
    QTest::newRow("en plus") << QStringLiteral("alter table Vidal add column Prix");
}

void TestOuverture::RefuseUneColonneDeplacee()
{
    QFETCH(QString, instruction);
    BaseDeTest base;
    base.Medoc().Execute(instruction);
    base.Bases().FermeMedoc();
    QVERIFY(PhraseDEchec([&] { base.Medoc(); }).contains(QStringLiteral("est endommagée")));
}

void TestOuverture::AccepteUneTableDePlus()
{
    BaseDeTest base;
    base.Medoc().Execute(QStringLiteral("create table Autre (x)"));
    base.Bases().FermeMedoc();
    QCOMPARE(PhraseDEchec([&] { base.Medoc(); }), QString());
}

void TestOuverture::DitQuUnAutrePosteLaTient()
{
    BaseDeTest base;
    const QString chemin = base.Chemin(QStringLiteral("Medoc.mdb"));
    base.Medoc().Execute(QStringLiteral("begin exclusive"));
    QCOMPARE(PhraseDOuverture(chemin),
             QStringLiteral("La base de données « Medoc.mdb » est utilisée par un autre poste ou un autre "
                            "programme. Réessayez dans un instant."));
    base.Medoc().Execute(QStringLiteral("commit"));
    QCOMPARE(PhraseDOuverture(chemin), QString());
}

void TestOuverture::DitQuUnAutrePosteEcrit()
{
    BaseDeTest base;
    storage::Base autre(base.Chemin(QStringLiteral("Medoc.mdb")), GenreBase::Medoc);
    storage::Transaction transaction(autre);
    base.Medoc().Execute(QStringLiteral("pragma busy_timeout = 20"));
    const auto ajoute = [&] { AjouteLigne(base.Medoc(), kVidal, {QStringLiteral("1")}); };
    QVERIFY(PhraseDEchec(ajoute).contains(QStringLiteral("autre poste")));
    QVERIFY(PhraseDEchec([&] {
                storage::Transaction seconde(base.Medoc());
            }).contains(QStringLiteral("autre poste")));
    transaction.Valide();
    QCOMPARE(PhraseDEchec(ajoute), QString());
    QCOMPARE(Lignes(autre, kVidal).size(), 1);
}

void TestOuverture::LitUnFichierEnLectureSeule()
{
    BaseDeTest base;
    const QString chemin = base.Chemin(QStringLiteral("Medoc.mdb"));
    AjouteLigne(base.Medoc(), kVidal, {QStringLiteral("1"), QStringLiteral("p")});
    base.Bases().FermeMedoc();
    OuvreATous(base.Dossier());
    QFile::setPermissions(chemin, QFile::ReadOwner | QFile::ReadGroup | QFile::ReadOther);
    const QByteArray avant = Octets(chemin);
    {
        const SansPrivilege personne;
        storage::Base lue(chemin, GenreBase::Medoc);
        QCOMPARE(Lignes(lue, kVidal), QStringList{QStringLiteral("1|p")});
        QCOMPARE(PhraseDEchec([&] { AjouteLigne(lue, kVidal, {QStringLiteral("2")}); }),
                 QStringLiteral(
                     "La base de données « Medoc.mdb » est en lecture seule : rien n'a été enregistré."));
    }
    QCOMPARE(Octets(chemin), avant);
}

void TestOuverture::DitQueLeDossierEstEnLectureSeule()
{
    BaseDeTest base;
    const QString chemin = base.Chemin(QStringLiteral("Medoc.mdb"));
    const auto tous = QFile::ReadOwner | QFile::ReadUser | QFile::ReadGroup | QFile::ReadOther;
    QFile::setPermissions(chemin, tous | QFile::WriteOwner | QFile::WriteGroup | QFile::WriteOther);
    QFile::setPermissions(base.Dossier(),
                          tous | QFile::ExeOwner | QFile::ExeUser | QFile::ExeGroup | QFile::ExeOther);
    const QByteArray avant = Octets(chemin);
    {
        const SansPrivilege personne;
        storage::Base lue(chemin, GenreBase::Medoc);
        QVERIFY(PhraseDEchec([&] {
                    AjouteLigne(lue, kVidal, {QStringLiteral("2")});
                }).contains(QStringLiteral("« Medoc.mdb » est en lecture seule")));
    }
    QFile::setPermissions(base.Dossier(), QFile::permissions(base.Dossier()) | QFile::WriteOwner);
    QCOMPARE(Octets(chemin), avant);
}

void TestOuverture::DitQueLeFichierEstIllisible()
{
    BaseDeTest base;
    const QString chemin = base.Chemin(QStringLiteral("Medoc.mdb"));
    OuvreATous(base.Dossier());
    QFile::setPermissions(chemin, {});
    {
        const SansPrivilege personne;
        QCOMPARE(PhraseDOuverture(chemin),
                 QStringLiteral(
                     "La base de données « Medoc.mdb » ne peut pas être ouverte : l'accès est refusé."));
    }
    QFile::setPermissions(chemin, QFile::ReadOwner | QFile::WriteOwner);
    QCOMPARE(PhraseDOuverture(chemin), QString());
}

void TestOuverture::DitQueLeDisqueEstPlein()
{
    BaseDeTest base;
    base.Medoc().Execute(QStringLiteral("pragma max_page_count = 1"));
    const QString long_(100000, u'x');
    QCOMPARE(
        PhraseDEchec([&] {
            AjouteLigne(base.Medoc(), kVidal, {QStringLiteral("1"), long_});
        }),
        QStringLiteral("Le disque de la base de données « Medoc.mdb » est plein : rien n'a été enregistré."));
    QCOMPARE(Lignes(base.Medoc(), kVidal), QStringList());
    base.Medoc().Execute(QStringLiteral("pragma max_page_count = 100000"));
    AjouteLigne(base.Medoc(), kVidal, {QStringLiteral("1"), long_});
    QCOMPARE(Lignes(base.Medoc(), kVidal).size(), 1);
}

void TestOuverture::TrouveLesDegatsPlusTard()
{
    BaseDeTest base;
    const QString chemin = base.Chemin(QStringLiteral("Medoc.mdb"));
    {
        storage::Transaction transaction(base.Medoc());
        for (int i = 0; i < 100; ++i) {
            AjouteLigne(base.Medoc(), kVidal, {QString::number(i), QString(100000, u'x')});
        }
        transaction.Valide();
    }
    base.Bases().FermeMedoc();
    QByteArray octets = Octets(chemin);
    QVERIFY(octets.size() > 8 * 1024 * 1024);
    octets.replace(octets.size() / 2, 1024 * 1024, QByteArray(1024 * 1024, '\xFF'));
    Ecris(chemin, octets);
    QCOMPARE(PhraseDEchec([&] { base.Medoc(); }), QString());
    QVERIFY(PhraseDEchec([&] { Lignes(base.Medoc(), kVidal); }).contains(QStringLiteral("est endommagée")));
    base.Bases().FermeMedoc();
    QCOMPARE(Octets(chemin), octets);
    Ecris(chemin, octets.chopped(4096));
    QVERIFY(PhraseDEchec([&] { base.Medoc(); }).contains(QStringLiteral("est endommagée")));
}

void TestOuverture::RouvreAuChangementDeChemin()
{
    BaseDeTest un;
    BaseDeTest deux;
    storage::Bases bases;
    AjouteLigne(bases.Medoc(un.Dossier()), kVidal, {QStringLiteral("un")});
    QCOMPARE(Lignes(bases.Medoc(deux.Dossier()), kVidal), QStringList());
    QCOMPARE(&bases.Medoc(deux.Dossier()), &bases.Medoc(deux.Dossier()));
    QCOMPARE(Lignes(bases.Medoc(un.Dossier()), kVidal).size(), 1);
    QCOMPARE(Lignes(bases.Ordo(un.Dossier()), QStringLiteral("Entete")).size(), 24);
}

void TestOuverture::RouvreApresUnEchec()
{
    BaseDeTest base;
    storage::Bases bases;
    QVERIFY(!PhraseDEchec([&] { bases.Medoc(base.Chemin(QStringLiteral("absent"))); }).isEmpty());
    QCOMPARE(PhraseDEchec([&] { bases.Medoc(base.Dossier()); }), QString());
}

void TestOuverture::GardeUnSeulFichier()
{
    BaseDeTest base;
    AjouteLigne(base.Medoc(), kVidal, {QStringLiteral("1")});
    QCOMPARE(QDir(base.Dossier()).entryList(QDir::Files).size(), 2);
}

void TestOuverture::OuvreUnCheminDifficile()
{
    BaseDeTest base;
    const QString dossier = base.Chemin(QStringLiteral("DR D'HÉRÉ ; % # ?mode=memory"));
    QVERIFY(QDir().mkpath(dossier));
    storage::CreeBase(dossier + QStringLiteral("/Ordo.mdb"), GenreBase::Ordo);
    storage::Bases bases;
    QCOMPARE(Lignes(bases.Ordo(dossier), QStringLiteral("Entete")).size(), 24);
    QCOMPARE(QDir(dossier).entryList(QDir::Files), QStringList{QStringLiteral("Ordo.mdb")});
}

QTEST_GUILESS_MAIN(TestOuverture)
#include "test_ouverture.moc"
