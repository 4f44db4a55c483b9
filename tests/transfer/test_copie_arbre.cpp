#include "backup/Restauration.h"
#include "backup/Sauvegarde.h"
#include "common/Erreur.h"
#include "common/Fichiers.h"
#include "storage/Archive.h"
#include "storage/Base.h"
#include "storage/Schema.h"
#include "support/BaseDeTest.h"
#include "support/SansPrivilege.h"
#include "transfer/CopieArbre.h"

#include <QDir>
#include <QDirIterator>
#include <QMap>
#include <QProcess>
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
    void JoueLeJournalDUneCoupure();
    void UnDossierIllisibleEstDit();
    void SuitUnLienDeLArbre();
    void UneSourceVideEstDite();
    void UneSourceInacheveeEstRefusee();
    void UneBaseAuTravailEstRefusee();
    void UnAutrePosteAttend();
    void FinitAussiDansUnDossierDeLArbre();
    void UneRestaurationCoupeeNEcrasePasLaCopie();
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

/// A program that was cut while it wrote leaves a journal: its half transaction is none of the copy.
void TestCopieArbre::JoueLeJournalDUneCoupure()
{
    const DeuxArbres arbres;
    const QString base = arbres.Source(u"Medoc.mdb"_s);
    {
        storage::Base ouverte(base, storage::GenreBase::Medoc);
        storage::Transaction transaction(ouverte);
        ouverte.Execute(u"pragma cache_size=1"_s);
        for (int i = 0; i < 3000; ++i) {
            ouverte.Execute(u"insert into MedUtile(CIP) values(?)"_s, {QString::number(i)});
        }
        QProcess::execute(u"cp"_s, {base, arbres.Racine() + u"/coupee"_s});
        QProcess::execute(u"cp"_s, {base + u"-journal"_s, arbres.Racine() + u"/journal"_s});
    }
    common::CopieFichier(arbres.Racine() + u"/coupee"_s, base);
    common::CopieFichier(arbres.Racine() + u"/journal"_s, base + u"-journal"_s);
    transfer::CopieArbre(arbres.Source(), arbres.Cible());
    storage::Base copie(arbres.Cible(u"Medoc.mdb"_s), storage::GenreBase::Medoc);
    int lignes = 0;
    copie.Parcourt(u"select CIP from MedUtile"_s, {}, [&](const storage::Rangee&) { ++lignes; });
    QCOMPARE(lignes, 0);
}

void TestCopieArbre::UnDossierIllisibleEstDit()
{
#ifdef Q_OS_UNIX
    const DeuxArbres arbres;
    QFile::setPermissions(arbres.Source(u"DR NEIBRE"_s), {});
    for (const QString& dossier : {arbres.Racine(), arbres.Racine() + u"/a"_s, arbres.Source()}) {
        support::OuvreATous(dossier);
    }
    QString phrase;
    {
        const support::SansPrivilege prive;
        phrase = support::PhraseDEchec(
            [&] { backup::FichiersDeLArbre(arbres.Source(), backup::Etendue::Transfert); });
    }
    QFile::setPermissions(arbres.Source(u"DR NEIBRE"_s),
                          QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    QVERIFY2(phrase.contains(u"DR NEIBRE"_s), qPrintable(phrase));
#endif
}

void TestCopieArbre::SuitUnLienDeLArbre()
{
    const DeuxArbres arbres;
    common::CreeDossier(arbres.Racine() + u"/ailleurs"_s);
    common::EcritFichier(arbres.Racine() + u"/ailleurs/logo.png"_s, "image");
    if (!QFile::link(arbres.Racine() + u"/ailleurs"_s, arbres.Source(u"DR NEIBRE/Images"_s)) ||
        !QFile::link(arbres.Source(), arbres.Source(u"DR NEIBRE/boucle"_s))) {
        QSKIP("no links here");
    }
    transfer::CopieArbre(arbres.Source(), arbres.Cible());
    QCOMPARE(common::LitFichier(arbres.Cible(u"DR NEIBRE/Images/logo.png"_s)), "image");
    QVERIFY(!QFileInfo::exists(arbres.Cible(u"DR NEIBRE/boucle"_s)));
}

void TestCopieArbre::UneSourceVideEstDite()
{
    const DeuxArbres arbres;
    const auto avant = Contenu(arbres.Cible());
    const QString vide = arbres.Racine() + u"/vide/DataScriptelle"_s;
    const QString phrase = support::PhraseDEchec([&] { transfer::CopieArbre(vide, arbres.Cible()); });
    QVERIFY2(phrase.contains(u"aucun fichier"_s), qPrintable(phrase));
    QCOMPARE(Contenu(arbres.Cible()), avant);
}

void TestCopieArbre::UneSourceInacheveeEstRefusee()
{
    const DeuxArbres arbres;
    const auto avant = Contenu(arbres.Cible());
    common::CreeDossier(arbres.Source(u"Transfert.pret"_s));
    const QString phrase =
        support::PhraseDEchec([&] { transfer::CopieArbre(arbres.Source(), arbres.Cible()); });
    QVERIFY2(phrase.contains(u"attend la fin"_s), qPrintable(phrase));
    QCOMPARE(Contenu(arbres.Cible()), avant);
}

void TestCopieArbre::UneBaseAuTravailEstRefusee()
{
    const DeuxArbres arbres;
    common::SupprimeFichier(arbres.Cible(u"Medoc.mdb"_s));
    storage::CreeBase(arbres.Cible(u"Medoc.mdb"_s), storage::GenreBase::Medoc);
    const auto avant = Contenu(arbres.Cible());
    QString phrase;
    {
        storage::Base ouverte(arbres.Cible(u"Medoc.mdb"_s), storage::GenreBase::Medoc);
        storage::Transaction transaction(ouverte);
        ouverte.Execute(u"insert into MedUtile(CIP) values(?)"_s, {u"1"_s});
        phrase = support::PhraseDEchec([&] { transfer::CopieArbre(arbres.Source(), arbres.Cible()); });
    }
    QVERIFY2(phrase.contains(u"Medoc.mdb"_s), qPrintable(phrase));
    QCOMPARE(Contenu(arbres.Cible()), avant);
}

/// A start on the tree that another station is filling neither removes its draft nor finishes it.
void TestCopieArbre::UnAutrePosteAttend()
{
    const DeuxArbres arbres;
    QString phrase;
    transfer::CopieArbre(arbres.Source(), arbres.Cible(), [&](int fichier, int) {
        if (fichier == 2) {
            phrase = support::PhraseDEchec([&] { transfer::FinitTransfert(arbres.Cible()); });
        }
    });
    QVERIFY2(phrase.contains(u"Attendez"_s), qPrintable(phrase));
    QCOMPARE(Contenu(arbres.Cible()).value(u"Medecin.ini"_s), "nouveau");
}

void TestCopieArbre::FinitAussiDansUnDossierDeLArbre()
{
    const DeuxArbres arbres;
    const QString pret = arbres.Cible(u"DR AUTRE/Transfert.pret"_s);
    common::CreeDossier(pret);
    common::EcritFichier(pret + u"/Options.cfg"_s, "nouveau");
    QVERIFY(transfer::FinitTransfert(arbres.Cible()));
    QCOMPARE(common::LitFichier(arbres.Cible(u"DR AUTRE/Options.cfg"_s)), "nouveau");
    QVERIFY(!common::DossierExiste(pret));
}

void TestCopieArbre::UneRestaurationCoupeeNEcrasePasLaCopie()
{
    const DeuxArbres arbres;
    {
        storage::Archive archive(arbres.Cible(u"Restauration.sqlar"_s), storage::Archive::Mode::Creation);
        archive.Ajoute(u"Medecin.ini"_s, "d'autrefois", QDateTime::currentDateTime());
        archive.Valide();
    }
    transfer::CopieArbre(arbres.Source(), arbres.Cible());
    QVERIFY(!backup::FinitRestauration(arbres.Cible()));
    QCOMPARE(common::LitFichier(arbres.Cible(u"Medecin.ini"_s)), "nouveau");
}

QTEST_GUILESS_MAIN(TestCopieArbre)
#include "test_copie_arbre.moc"
