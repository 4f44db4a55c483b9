#include "backup/Restauration.h"
#include "backup/Sauvegarde.h"
#include "backup/VerrouArbre.h"
#include "common/Erreur.h"
#include "common/Fichiers.h"
#include "storage/Archive.h"
#include "storage/Base.h"
#include "storage/EnteteJet.h"
#include "storage/Jeu.h"
#include "storage/Schema.h"
#include "storage/Verification.h"
#include "support/BaseDeTest.h"
#include "support/EstVerrouillee.h"

#include <QDir>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;
using backup::Lieu;
using common::Joint;

namespace {

const QDate kJour(2026, 11, 20);

/// A practice of one doctor.
struct Cabinet
{
    Cabinet()
    {
        common::CreeDossier(Chemin(u"DR NEIBRE"_s));
        common::CreeDossier(Chemin(u"Certificats"_s));
        storage::CreeBase(Chemin(u"Medoc.mdb"_s), storage::GenreBase::Medoc);
        storage::CreeBase(Chemin(u"DR NEIBRE/Ordo.mdb"_s), storage::GenreBase::Ordo);
        common::EcritFichier(Chemin(u"Medecin.ini"_s), "1\r\nDR NEIBRE,1\r\n");
        common::EcritFichier(Chemin(u"DR NEIBRE/Options.cfg"_s), QByteArray(400, '1'));
        common::EcritFichier(Chemin(u"Certificats/Sport.txt"_s), "apte");
        common::EcritFichier(Chemin(u"DR NEIBRE/Journal_Docteur NEIBRE.log"_s), "20/11/2026*A*1*B\r\n");
        AjouteMedicament(u"DOLIPRANE"_s);
    }

    QString Chemin(const QString& nom) const { return Arbre() + u'/' + nom; }
    QString Arbre() const { return dossier_.path() + u"/DataScriptelle"_s; }
    Lieu LieuDesCopies() const { return {Arbre(), Chemin(u"Sauvegardes"_s), {}}; }
    QString CopieDuJour() const { return Chemin(u"Sauvegardes/Sauvegarde 2026-11-20.sqlar"_s); }

    void AjouteMedicament(const QString& nom) const
    {
        storage::Base base(Chemin(u"Medoc.mdb"_s), storage::GenreBase::Medoc);
        AjouteDans(base, nom);
    }
    static void AjouteDans(storage::Base& base, const QString& nom)
    {
        storage::Jeu jeu = base.Table(u"BddMed"_s);
        jeu.AddNew();
        jeu.Ecris(5, nom);
        jeu.Update();
    }
    QStringList Medicaments() const
    {
        QStringList noms;
        storage::Base base(Chemin(u"Medoc.mdb"_s), storage::GenreBase::Medoc);
        base.Parcourt(u"select Nom from BddMed order by rowid"_s, {},
                      [&](const storage::Rangee& rangee) { noms.append(rangee.Texte(0)); });
        return noms;
    }

private:
    QTemporaryDir dossier_;
};

const QDateTime kMoment(kJour, QTime(14, 5, 9));

} // namespace

class TestSauvegarde : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void CopieToutLArbre();
    void SOuvreParLeShellDuMoteur();
    void CopieUneBaseOuverte();
    void NeCopieQuUneFoisParJour();
    void RetireLesAnciennes();
    void UneBaseAbimeeNeLaisseRien();
    void Restaure();
    void RestaureEtRevient();
    void GardeCeQueLaCopieIgnore();
    void ReprendUneRestauration();
    void RefuseUneCopieAbimee();
    void RefuseUneCopieEtrangere();
    void SepareLesArbres();
    void RestaureUneBaseJet();
    void GardeLesVerrousDuProgramme();
    void UneBaseAuTravailEmpecheLaRestauration();
    void NeSauvePasDeuxFoisALaFois();
    void RetireUneEbauche();
};

void TestSauvegarde::CopieToutLArbre()
{
    const Cabinet cabinet;
    common::EcritFichier(cabinet.Chemin(u"Ancien_Medoc.mdb"_s), "vieux");
    common::EcritFichier(cabinet.Chemin(u"Medoc (Jet).mdb"_s), "vieux");
    QVERIFY(backup::SauveDuJour(cabinet.LieuDesCopies(), kJour));
    const storage::Archive archive(cabinet.CopieDuJour(), storage::Archive::Mode::Lecture);
    QCOMPARE(
        archive.Noms(),
        (QStringList{u"Certificats/Sport.txt"_s, u"DR NEIBRE/Journal_Docteur NEIBRE.log"_s,
                     u"DR NEIBRE/Options.cfg"_s, u"DR NEIBRE/Ordo.mdb"_s, u"Medecin.ini"_s, u"Medoc.mdb"_s}));
    QCOMPARE(archive.Lit(u"DR NEIBRE/Options.cfg"_s), QByteArray(400, '1'));
    QCOMPARE(archive.Lit(u"Certificats/Sport.txt"_s), "apte");
    QCOMPARE(QDir(cabinet.Chemin(u"Sauvegardes"_s)).entryList(QDir::AllEntries | QDir::NoDotAndDotDot).size(),
             1);
}

void TestSauvegarde::SOuvreParLeShellDuMoteur()
{
    const Cabinet cabinet;
    backup::SauveDuJour(cabinet.LieuDesCopies(), kJour);
    QProcess shell;
    shell.start(u"sqlite3"_s,
                {cabinet.CopieDuJour(), u"-A"_s, u"-x"_s, u"-C"_s, cabinet.Chemin(u"Certificats"_s)});
    if (!shell.waitForStarted()) {
        QSKIP("the engine's shell is not installed");
    }
    shell.waitForFinished();
    QCOMPARE(common::LitFichier(cabinet.Chemin(u"Certificats/DR NEIBRE/Options.cfg"_s)),
             QByteArray(400, '1'));
    const storage::Base base(cabinet.Chemin(u"Certificats/Medoc.mdb"_s), storage::GenreBase::Medoc);
}

void TestSauvegarde::CopieUneBaseOuverte()
{
    const Cabinet cabinet;
    storage::Base ouverte(cabinet.Chemin(u"Medoc.mdb"_s), storage::GenreBase::Medoc);
    {
        storage::Transaction transaction(ouverte);
        Cabinet::AjouteDans(ouverte, u"PAS ENCORE"_s);
        QVERIFY(backup::SauveDuJour(cabinet.LieuDesCopies(), kJour));
        transaction.Valide();
    }
    backup::Restaure(cabinet.LieuDesCopies(), backup::ListeSauvegardes(cabinet.LieuDesCopies()).first(),
                     kMoment);
    QCOMPARE(cabinet.Medicaments(), QStringList{u"DOLIPRANE"_s});
}

void TestSauvegarde::NeCopieQuUneFoisParJour()
{
    const Cabinet cabinet;
    QVERIFY(backup::SauveDuJour(cabinet.LieuDesCopies(), kJour));
    cabinet.AjouteMedicament(u"AMLOR"_s);
    QVERIFY(!backup::SauveDuJour(cabinet.LieuDesCopies(), kJour));
    QVERIFY(backup::SauveDuJour(cabinet.LieuDesCopies(), kJour.addDays(1)));
    QCOMPARE(backup::ListeSauvegardes(cabinet.LieuDesCopies()).size(), 2);
}

void TestSauvegarde::RetireLesAnciennes()
{
    const Cabinet cabinet;
    const QString etranger = cabinet.Chemin(u"Sauvegardes/mes notes.sqlar"_s);
    common::CreeDossier(cabinet.Chemin(u"Sauvegardes"_s));
    common::EcritFichier(etranger, "x");
    for (int i = 40; i >= 1; --i) {
        const QString nom =
            u"Sauvegardes/Sauvegarde %1.sqlar"_s.arg(kJour.addDays(-i).toString(u"yyyy-MM-dd"_s));
        common::EcritFichier(cabinet.Chemin(nom), "x");
    }
    QVERIFY(backup::SauveDuJour(cabinet.LieuDesCopies(), kJour));
    QStringList jours;
    for (const backup::Sauvegarde& sauvegarde : backup::ListeSauvegardes(cabinet.LieuDesCopies())) {
        jours.append(sauvegarde.Moment.toString(u"dd/MM"_s));
    }
    QCOMPARE(jours.join(u' '), u"20/11 19/11 18/11 17/11 16/11 15/11 14/11 08/11 01/11 31/10"_s);
    QVERIFY(common::FichierExiste(etranger));
}

void TestSauvegarde::UneBaseAbimeeNeLaisseRien()
{
    const Cabinet cabinet;
    QByteArray octets = common::LitFichier(cabinet.Chemin(u"Medoc.mdb"_s));
    octets.replace(100, octets.size() - 100, QByteArray(octets.size() - 100, '\xFF'));
    common::EcritFichier(cabinet.Chemin(u"Medoc.mdb"_s), octets);
    QVERIFY_THROWS_EXCEPTION(common::Erreur, backup::SauveDuJour(cabinet.LieuDesCopies(), kJour));
    QVERIFY(QDir(cabinet.Chemin(u"Sauvegardes"_s)).isEmpty());
}

void TestSauvegarde::Restaure()
{
    const Cabinet cabinet;
    backup::SauveDuJour(cabinet.LieuDesCopies(), kJour);
    cabinet.AjouteMedicament(u"AMLOR"_s);
    common::EcritFichier(cabinet.Chemin(u"DR NEIBRE/Options.cfg"_s), "2");
    common::SupprimeFichier(cabinet.Chemin(u"Certificats/Sport.txt"_s));
    const auto sauvegardes = backup::ListeSauvegardes(cabinet.LieuDesCopies());
    QCOMPARE(sauvegardes.size(), 1);
    backup::Restaure(cabinet.LieuDesCopies(), sauvegardes.first(), kMoment);
    QCOMPARE(cabinet.Medicaments(), QStringList{u"DOLIPRANE"_s});
    QCOMPARE(common::LitFichier(cabinet.Chemin(u"DR NEIBRE/Options.cfg"_s)), QByteArray(400, '1'));
    QCOMPARE(common::LitFichier(cabinet.Chemin(u"Certificats/Sport.txt"_s)), "apte");
    QVERIFY(!backup::RestaurationEnCours(cabinet.Arbre()));
}

void TestSauvegarde::RestaureEtRevient()
{
    const Cabinet cabinet;
    backup::SauveDuJour(cabinet.LieuDesCopies(), kJour);
    cabinet.AjouteMedicament(u"AMLOR"_s);
    backup::Restaure(cabinet.LieuDesCopies(), backup::ListeSauvegardes(cabinet.LieuDesCopies()).first(),
                     kMoment);
    const backup::Sauvegarde avant = backup::ListeSauvegardes(cabinet.LieuDesCopies()).first();
    QVERIFY(avant.AvantRestauration);
    QCOMPARE(avant.Moment, kMoment);
    // At the same second: none takes another's name. The third and last one that is kept was the first.
    for (const int nombre : {3, 4, 4}) {
        backup::Restaure(cabinet.LieuDesCopies(), avant, kMoment);
        QCOMPARE(cabinet.Medicaments(), (QStringList{u"DOLIPRANE"_s, u"AMLOR"_s}));
        QCOMPARE(backup::ListeSauvegardes(cabinet.LieuDesCopies()).size(), nombre);
    }
}

void TestSauvegarde::GardeCeQueLaCopieIgnore()
{
    const Cabinet cabinet;
    backup::SauveDuJour(cabinet.LieuDesCopies(), kJour);
    common::EcritFichier(cabinet.Chemin(u"DR NEIBRE/Logo.png"_s), "image");
    const QString journal = cabinet.Chemin(u"DR NEIBRE/Journal_Docteur NEIBRE.log"_s);
    common::AjouteAuFichier(journal, "20/11/2026*C*2*D\r\n");
    const QByteArray lignes = common::LitFichier(journal);
    backup::Restaure(cabinet.LieuDesCopies(), backup::ListeSauvegardes(cabinet.LieuDesCopies()).first(),
                     kMoment);
    QCOMPARE(common::LitFichier(cabinet.Chemin(u"DR NEIBRE/Logo.png"_s)), "image");
    QCOMPARE(common::LitFichier(journal), lignes);
}

void TestSauvegarde::ReprendUneRestauration()
{
    const Cabinet cabinet;
    backup::SauveDuJour(cabinet.LieuDesCopies(), kJour);
    QVERIFY(!backup::FinitRestauration(cabinet.Arbre()));
    cabinet.AjouteMedicament(u"AMLOR"_s);
    common::CopieFichier(cabinet.CopieDuJour(), cabinet.Chemin(u"Restauration.sqlar"_s)); // where it was cut
    QVERIFY(backup::FinitRestauration(cabinet.Arbre()));
    QCOMPARE(cabinet.Medicaments(), QStringList{u"DOLIPRANE"_s});
    QVERIFY(!common::FichierExiste(cabinet.Chemin(u"Restauration.sqlar"_s)));
}

void TestSauvegarde::RefuseUneCopieAbimee()
{
    const Cabinet cabinet;
    backup::SauveDuJour(cabinet.LieuDesCopies(), kJour);
    cabinet.AjouteMedicament(u"AMLOR"_s);
    QByteArray octets = common::LitFichier(cabinet.CopieDuJour());
    octets.replace(octets.size() / 2, 2000, QByteArray(2000, '\x5A'));
    common::EcritFichier(cabinet.CopieDuJour(), octets);
    QVERIFY_THROWS_EXCEPTION(
        common::Erreur, backup::Restaure(cabinet.LieuDesCopies(),
                                         backup::ListeSauvegardes(cabinet.LieuDesCopies()).first(), kMoment));
    QCOMPARE(cabinet.Medicaments(), (QStringList{u"DOLIPRANE"_s, u"AMLOR"_s}));
    QVERIFY(!backup::RestaurationEnCours(cabinet.Arbre()));
}

void TestSauvegarde::RefuseUneCopieEtrangere()
{
    const Cabinet cabinet;
    backup::SauveDuJour(cabinet.LieuDesCopies(), kJour);
    common::SupprimeFichier(cabinet.CopieDuJour());
    {
        storage::Archive archive(cabinet.CopieDuJour(), storage::Archive::Mode::Creation);
        archive.Ajoute(u"Medoc.mdb"_s, common::LitFichier(cabinet.Chemin(u"Medoc.mdb"_s)), kMoment);
        archive.Ajoute(u"../evade.txt"_s, "x", kMoment);
        archive.Valide();
    }
    QVERIFY_THROWS_EXCEPTION(
        common::Erreur, backup::Restaure(cabinet.LieuDesCopies(),
                                         backup::ListeSauvegardes(cabinet.LieuDesCopies()).first(), kMoment));
    common::CopieFichier(cabinet.CopieDuJour(), cabinet.Chemin(u"Restauration.sqlar"_s));
    backup::FinitRestauration(cabinet.Arbre());
    QVERIFY(!common::FichierExiste(cabinet.Arbre() + u"/../evade.txt"_s));
}

void TestSauvegarde::SepareLesArbres()
{
    const Cabinet cabinet;
    Lieu serveur = cabinet.LieuDesCopies();
    serveur.Complement = u" serveur"_s;
    backup::SauveDuJour(cabinet.LieuDesCopies(), kJour);
    QVERIFY(backup::ListeSauvegardes(serveur).isEmpty());
    QVERIFY(backup::SauveDuJour(serveur, kJour));
    QCOMPARE(backup::ListeSauvegardes(serveur).size(), 1);
    QCOMPARE(backup::ListeSauvegardes(cabinet.LieuDesCopies()).size(), 1);
    backup::Restaure(serveur, backup::ListeSauvegardes(serveur).first(), kMoment);
    QCOMPARE(backup::ListeSauvegardes(serveur).size(), 2);
    QCOMPARE(backup::ListeSauvegardes(cabinet.LieuDesCopies()).size(), 1);
}

/// A tree that has not been opened since an import: its databases wait for their conversion.
void TestSauvegarde::RestaureUneBaseJet()
{
    const Cabinet cabinet;
    QByteArray jet(4096, '\0');
    jet.replace(4, 15, "Standard Jet DB");
    jet[0x14] = 1;
    common::EcritFichier(cabinet.Chemin(u"Medoc.mdb"_s), jet);
    common::SupprimeFichier(cabinet.Chemin(u"DR NEIBRE/Ordo.mdb"_s));
    QVERIFY(backup::SauveDuJour(cabinet.LieuDesCopies(), kJour));
    common::EcritFichier(cabinet.Chemin(u"Medoc.mdb"_s), "perdu");
    backup::Restaure(cabinet.LieuDesCopies(), backup::ListeSauvegardes(cabinet.LieuDesCopies()).first(),
                     kMoment);
    QCOMPARE(common::LitFichier(cabinet.Chemin(u"Medoc.mdb"_s)), jet);
}

/// The main program writes while its other thread copies: its locks hold against the other programs.
void TestSauvegarde::GardeLesVerrousDuProgramme()
{
#ifdef Q_OS_UNIX
    const Cabinet cabinet;
    storage::Base ouverte(cabinet.Chemin(u"Medoc.mdb"_s), storage::GenreBase::Medoc);
    storage::Transaction transaction(ouverte);
    Cabinet::AjouteDans(ouverte, u"AMLOR"_s);
    QVERIFY(support::EstVerrouillee(cabinet.Chemin(u"Medoc.mdb"_s)));
    backup::SauveDuJour(cabinet.LieuDesCopies(), kJour);
    QVERIFY(support::EstVerrouillee(cabinet.Chemin(u"Medoc.mdb"_s)));
    QCOMPARE(storage::LitFormatJet(cabinet.Chemin(u"Medoc.mdb"_s)), storage::FormatJet::Aucun);
    storage::VerifieFichier(cabinet.Chemin(u"Medoc.mdb"_s));
    QVERIFY(support::EstVerrouillee(cabinet.Chemin(u"Medoc.mdb"_s)));
#endif
}

void TestSauvegarde::UneBaseAuTravailEmpecheLaRestauration()
{
    const Cabinet cabinet;
    backup::SauveDuJour(cabinet.LieuDesCopies(), kJour);
    cabinet.AjouteMedicament(u"AMLOR"_s);
    QString phrase;
    {
        storage::Base ouverte(cabinet.Chemin(u"Medoc.mdb"_s), storage::GenreBase::Medoc);
        storage::Transaction transaction(ouverte);
        Cabinet::AjouteDans(ouverte, u"PAS ENCORE"_s);
        phrase = support::PhraseDEchec([&] {
            backup::Restaure(cabinet.LieuDesCopies(),
                             backup::ListeSauvegardes(cabinet.LieuDesCopies()).first(), kMoment);
        });
    }
    QVERIFY2(phrase.contains(u"Medoc.mdb"_s), qPrintable(phrase));
    QCOMPARE(cabinet.Medicaments(), (QStringList{u"DOLIPRANE"_s, u"AMLOR"_s}));
    QVERIFY(!backup::RestaurationEnCours(cabinet.Arbre()));
    QVERIFY(!common::FichierExiste(cabinet.Chemin(u"Restauration.tmp"_s)));
}

void TestSauvegarde::NeSauvePasDeuxFoisALaFois()
{
    const Cabinet cabinet;
    const Lieu lieu = cabinet.LieuDesCopies();
    common::CreeDossier(lieu.Dossier + u"/abcdef.tmp"_s); // of the other one
    {
        const backup::VerrouArbre autre(lieu.Dossier);
        QVERIFY(!backup::SauveDuJour(lieu, kJour));
        QVERIFY(common::DossierExiste(lieu.Dossier + u"/abcdef.tmp"_s));
    }
    QVERIFY(backup::SauveDuJour(lieu, kJour));
    QVERIFY(!common::DossierExiste(lieu.Dossier + u"/abcdef.tmp"_s));
}

void TestSauvegarde::RetireUneEbauche()
{
    const Cabinet cabinet;
    common::EcritFichier(cabinet.Chemin(u"Restauration.tmp"_s), "à moitié");
    QVERIFY(!backup::FinitRestauration(cabinet.Arbre()));
    QVERIFY(!common::FichierExiste(cabinet.Chemin(u"Restauration.tmp"_s)));
}

QTEST_GUILESS_MAIN(TestSauvegarde)
#include "test_sauvegarde.moc"
