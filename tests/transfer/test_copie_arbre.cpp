#include "common/Erreur.h"
#include "common/Fichiers.h"
#include "storage/Base.h"
#include "storage/Schema.h"
#include "transfer/CopieArbre.h"

#include <QDir>
#include <QDirIterator>
#include <QMap>
#include <QTemporaryDir>
#include <QTest>

#ifdef Q_OS_LINUX
#include <sys/mount.h>
#include <unistd.h>
#endif

using namespace Qt::StringLiterals;
using transfer::Voisinage;

namespace {

/// Two trees beside each other.
struct DeuxArbres
{
    DeuxArbres()
    {
        common::CreeDossier(Source(u"DR NEIBRE/Logo"_s));
        common::CreeDossier(Cible(u"DR AUTRE"_s));
        storage::CreeBase(Source(u"Medoc.mdb"_s), storage::GenreBase::Medoc);
        common::EcritFichier(Source(u"Medecin.ini"_s), "nouveau");
        common::EcritFichier(Source(u"DR NEIBRE/Options.cfg"_s), QByteArray(3'000'000, 'x'));
        common::EcritFichier(Source(u"Ancien_Medoc.mdb"_s), "vieux");
        common::CreeDossier(Source(u"Sauvegardes"_s));
        common::EcritFichier(Source(u"Sauvegardes/a.sqlar"_s), "copie");
        common::EcritFichier(Cible(u"Medecin.ini"_s), "ancien");
        common::EcritFichier(Cible(u"Medoc.mdb"_s), "ancienne base");
        common::EcritFichier(Cible(u"DR AUTRE/Options.cfg"_s), "garde");
    }
    QString Source(const QString& nom = {}) const { return Chemin(u"a/DataScriptelle"_s, nom); }
    QString Cible(const QString& nom = {}) const { return Chemin(u"b/DataScriptelle"_s, nom); }

    QString Racine() const { return dossier_.path(); }

private:
    QString Chemin(const QString& arbre, const QString& nom) const
    {
        return dossier_.path() + u'/' + arbre + (nom.isEmpty() ? nom : u'/' + nom);
    }

    QTemporaryDir dossier_;
};

/// Every file with its bytes.
QMap<QString, QByteArray> Contenu(const QString& arbre)
{
    QMap<QString, QByteArray> contenu;
    QDirIterator parcours(arbre, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (parcours.hasNext()) {
        const QString chemin = parcours.next();
        contenu.insert(QDir(arbre).relativeFilePath(chemin), common::LitFichier(chemin));
    }
    return contenu;
}

} // namespace

class TestCopieArbre : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void Compare_data();
    void Compare();
    void SuitLesLiens();
    void Copie();
    void UnFichierQuiNePrendPasSaPlaceLaisseTout();
    void UneSourceIllisibleLaisseTout();
    void UnSupportPleinLaisseTout();
    void FinitUneCopieEntiere();
    void JetteUneEbauche();
    void CopieUneBaseOuverte();
};

void TestCopieArbre::Compare_data()
{
    QTest::addColumn<QString>("a");
    QTest::addColumn<QString>("b");
    QTest::addColumn<Voisinage>("attendu");
    QTest::newRow("same") << u"/x/y"_s << u"/x/y"_s << Voisinage::Memes;
    QTest::newRow("separator") << u"/x/y/"_s << u"/x/y"_s << Voisinage::Memes;
    QTest::newRow("points") << u"/x/z/../y"_s << u"/x/y"_s << Voisinage::Memes;
    QTest::newRow("inside") << u"/x"_s << u"/x/y"_s << Voisinage::Imbriques;
    QTest::newRow("around") << u"/x/y/z"_s << u"/x/y"_s << Voisinage::Imbriques;
    QTest::newRow("same beginning") << u"/x/y"_s << u"/x/yz"_s << Voisinage::Separes;
}

void TestCopieArbre::Compare()
{
    QFETCH(const QString, a);
    QFETCH(const QString, b);
    QTEST(transfer::Compare(a, b), "attendu");
}

void TestCopieArbre::SuitLesLiens()
{
    const DeuxArbres arbres;
    const QString lien = arbres.Racine() + u"/lien"_s;
    if (!QFile::link(arbres.Source(), lien)) {
        QSKIP("no links here");
    }
    QCOMPARE(transfer::Compare(arbres.Source(), lien), Voisinage::Memes);
    QCOMPARE(transfer::Compare(arbres.Source(u"DR NEIBRE"_s), lien), Voisinage::Imbriques);
}

void TestCopieArbre::Copie()
{
    const DeuxArbres arbres;
    // It says that the former program has the database open: the copy's is not.
    common::EcritFichier(arbres.Source(u"Medoc.ldb"_s), "poste");
    int dernier = -1;
    transfer::CopieArbre(arbres.Source(), arbres.Cible(), [&](int fichier, int nombre) {
        QCOMPARE(nombre, 4);
        QCOMPARE(fichier, ++dernier);
    });
    QCOMPARE(dernier, 3);
    auto contenu = Contenu(arbres.Cible());
    QCOMPARE(contenu.keys(), (QStringList{u"Ancien_Medoc.mdb"_s, u"DR AUTRE/Options.cfg"_s,
                                          u"DR NEIBRE/Options.cfg"_s, u"Medecin.ini"_s, u"Medoc.mdb"_s}));
    QCOMPARE(contenu.value(u"Medecin.ini"_s), "nouveau");
    QCOMPARE(contenu.value(u"DR AUTRE/Options.cfg"_s), "garde");
    QCOMPARE(contenu.value(u"DR NEIBRE/Options.cfg"_s), QByteArray(3'000'000, 'x'));
    QVERIFY(common::DossierExiste(arbres.Cible(u"DR NEIBRE/Logo"_s)));
    QVERIFY(!common::DossierExiste(arbres.Cible(u"Sauvegardes"_s)));
    const storage::Base base(arbres.Cible(u"Medoc.mdb"_s), storage::GenreBase::Medoc);
}

void TestCopieArbre::UnFichierQuiNePrendPasSaPlaceLaisseTout()
{
    const DeuxArbres arbres;
    common::CreeDossier(arbres.Cible(u"Medoc.mdb.autre"_s));
    common::SupprimeFichier(arbres.Cible(u"Medoc.mdb"_s));
    common::CreeDossier(arbres.Cible(u"Medoc.mdb"_s)); // where the last file is to go
    const auto avant = Contenu(arbres.Cible());
    QVERIFY_THROWS_EXCEPTION(common::Erreur, transfer::CopieArbre(arbres.Source(), arbres.Cible()));
    QCOMPARE(Contenu(arbres.Cible()), avant);
    QVERIFY(!transfer::FinitTransfert(arbres.Cible()));
}

void TestCopieArbre::UneSourceIllisibleLaisseTout()
{
    const DeuxArbres arbres;
    QByteArray abimee = common::LitFichier(arbres.Source(u"Medoc.mdb"_s));
    abimee.replace(100, abimee.size() - 100, QByteArray(abimee.size() - 100, '\xFF'));
    common::EcritFichier(arbres.Source(u"Medoc.mdb"_s), abimee);
    const auto avant = Contenu(arbres.Cible());
    QVERIFY_THROWS_EXCEPTION(common::Erreur, transfer::CopieArbre(arbres.Source(), arbres.Cible()));
    QCOMPARE(Contenu(arbres.Cible()), avant);
}

void TestCopieArbre::UnSupportPleinLaisseTout()
{
#ifdef Q_OS_LINUX
    const DeuxArbres arbres;
    const QString clef = arbres.Racine() + u"/clef"_s;
    common::CreeDossier(clef);
    if (::geteuid() != 0 || ::mount("tmpfs", clef.toLocal8Bit().constData(), "tmpfs", 0, "size=1m") != 0) {
        QSKIP("only root can make a small disk");
    }
    const QString arbre = clef + u"/DataScriptelle"_s;
    common::CreeDossier(arbre);
    common::EcritFichier(arbre + u"/Medecin.ini"_s, "ancien");
    const auto avant = Contenu(arbre);
    bool refuse = false;
    try {
        transfer::CopieArbre(arbres.Source(), arbre);
    } catch (const common::Erreur&) {
        refuse = true;
    }
    const auto apres = Contenu(arbre);
    ::umount(clef.toLocal8Bit().constData());
    QVERIFY(refuse);
    QCOMPARE(apres, avant);
#endif
}

/// Cut at any file between the first and the last that takes its place.
void TestCopieArbre::FinitUneCopieEntiere()
{
    for (int faits = 0; faits <= 2; ++faits) {
        const DeuxArbres arbres;
        const QString pret = arbres.Cible(u"Transfert.pret"_s);
        const QStringList noms = {u"Medecin.ini"_s, u"DR NEIBRE/Options.cfg"_s};
        for (int i = 0; i < noms.size(); ++i) {
            const QString chemin = (i < faits ? arbres.Cible() : pret) + u'/' + noms[i];
            common::CreeDossier(QFileInfo(chemin).path());
            common::EcritFichier(chemin, "nouveau");
        }
        common::CreeDossier(pret);
        QVERIFY(transfer::FinitTransfert(arbres.Cible()));
        const auto contenu = Contenu(arbres.Cible());
        QCOMPARE(contenu.value(noms[0]), "nouveau");
        QCOMPARE(contenu.value(noms[1]), "nouveau");
        QCOMPARE(contenu.value(u"Medoc.mdb"_s), "ancienne base");
        QCOMPARE(contenu.size(), 4);
        QVERIFY(!transfer::FinitTransfert(arbres.Cible()));
    }
}

void TestCopieArbre::JetteUneEbauche()
{
    const DeuxArbres arbres;
    const auto avant = Contenu(arbres.Cible());
    common::CreeDossier(arbres.Cible(u"Transfert.tmp"_s));
    common::EcritFichier(arbres.Cible(u"Transfert.tmp/Medecin.ini"_s), "à moitié");
    QVERIFY(!transfer::FinitTransfert(arbres.Cible()));
    QCOMPARE(Contenu(arbres.Cible()), avant);
    QVERIFY(!common::DossierExiste(arbres.Cible(u"Transfert.tmp"_s)));
}

void TestCopieArbre::CopieUneBaseOuverte()
{
    const DeuxArbres arbres;
    storage::Base ouverte(arbres.Source(u"Medoc.mdb"_s), storage::GenreBase::Medoc);
    storage::Transaction transaction(ouverte);
    ouverte.Execute(u"insert into MedUtile(CIP) values(?)"_s, {u"1"_s});
    transfer::CopieArbre(arbres.Source(), arbres.Cible());
    storage::Base copie(arbres.Cible(u"Medoc.mdb"_s), storage::GenreBase::Medoc);
    int lignes = 0;
    copie.Parcourt(u"select CIP from MedUtile"_s, {}, [&](const storage::Rangee&) { ++lignes; });
    QCOMPARE(lignes, 0);
    transaction.Valide();
}

QTEST_GUILESS_MAIN(TestCopieArbre)
#include "test_copie_arbre.moc"
