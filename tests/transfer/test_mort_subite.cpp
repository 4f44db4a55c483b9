#include "backup/Restauration.h"
#include "common/Erreur.h"
#include "common/Fichiers.h"
#include "storage/Base.h"
#include "storage/Schema.h"
#include "transfer/CopieArbre.h"

#include <QDir>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;
using common::Joint;

namespace {

const QDate kJour(2026, 11, 20);
const QStringList kPieces = {u"DR D'ÉTÉ/Options.cfg"_s, u"Medecin.ini"_s, u"Medoc.mdb"_s};

backup::Lieu LieuDe(const QString& arbre)
{
    return {arbre, Joint(arbre, u"Sauvegardes"_s), {}};
}

/// The work of the program that is cut: its arguments say which one.
void Travaille(const QStringList& arguments)
{
    const QString& travail = arguments[2];
    const QString& arbre = arguments[3];
    if (travail == u"transfert"_s) {
        transfer::CopieArbre(arguments[4], arbre);
    } else if (travail == u"restauration"_s) {
        const backup::Lieu lieu = LieuDe(arbre);
        backup::Restaure(lieu, backup::ListeSauvegardes(lieu).first(), kJour.startOfDay());
    } else {
        transfer::FinitTransfert(arbre);
        backup::FinitRestauration(arbre);
    }
}

/// True when the program came to its end before that change to the disk.
bool Coupe(int changement, const QStringList& arguments)
{
    QProcess processus;
    QProcessEnvironment environnement = QProcessEnvironment::systemEnvironment();
    environnement.insert(u"LD_PRELOAD"_s, QStringLiteral(COUPURE));
    environnement.insert(u"COUPURE"_s, QString::number(changement));
    environnement.insert(u"ASAN_OPTIONS"_s, u"verify_asan_link_order=0:detect_leaks=0"_s);
    processus.setProcessEnvironment(environnement);
    processus.setProcessChannelMode(QProcess::ForwardedChannels);
    processus.start(QCoreApplication::applicationFilePath(), QStringList{u"--travail"_s} + arguments);
    processus.waitForFinished();
    return processus.exitStatus() == QProcess::NormalExit && processus.exitCode() == 0;
}

/// A tree whose files all say the same word.
void Plante(const QString& arbre, const QString& mot, const QString& modele)
{
    common::CreeDossier(arbre + u"/DR D'ÉTÉ"_s);
    for (const QString& nom : kPieces) {
        const QString chemin = arbre + u'/' + nom;
        if (nom.endsWith(u".mdb"_s)) {
            common::CopieFichier(modele, chemin);
            storage::Base base(chemin, storage::GenreBase::Medoc);
            base.Execute(u"create table Mot(Mot text)"_s);
            base.Execute(u"insert into Mot(Mot) values(?)"_s, {mot});
        } else {
            common::EcritFichier(chemin, mot.toUtf8());
        }
    }
}

QString MotDe(const QString& arbre, const QString& nom)
{
    const QString chemin = arbre + u'/' + nom;
    if (!nom.endsWith(u".mdb"_s)) {
        return QString::fromUtf8(common::LitFichier(chemin));
    }
    storage::Base base(chemin, storage::GenreBase::Medoc);
    QString mot;
    base.Parcourt(u"select Mot from Mot"_s, {},
                  [&](const storage::Rangee& rangee) { mot = rangee.Texte(0); });
    return mot;
}

/// What all its files say; a list of them when they are of two trees.
QString MotDeLArbre(const QString& arbre)
{
    QStringList mots;
    for (const QString& nom : kPieces) {
        mots.append(MotDe(arbre, nom));
    }
    mots.removeDuplicates();
    return mots.join(u'+');
}

} // namespace

/// Whatever the moment of a power cut, a start finds the former tree or the new one, and nothing besides.
class TestMortSubite : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void Transfert();
    void Restauration();

private:
    /// A start after the cut, which is cut itself once.
    static void Redemarre(const QString& arbre, int changement);
    QString Modele() const { return modele_.filePath(u"Medoc.mdb"_s); }
    QTemporaryDir modele_;
};

void TestMortSubite::initTestCase()
{
#ifndef Q_OS_LINUX
    QSKIP("cuts are made on Linux");
#endif
    storage::CreeBase(Modele(), storage::GenreBase::Medoc);
}

void TestMortSubite::Redemarre(const QString& arbre, int changement)
{
    Coupe(changement % 17 + 1, {u"fin"_s, arbre});
    transfer::FinitTransfert(arbre);
    backup::FinitRestauration(arbre);
    const QStringList restes = QDir(arbre).entryList({u"Transfert*"_s, u"Restauration*"_s});
    QVERIFY2(restes.isEmpty(), qPrintable(restes.join(u' ')));
}

void TestMortSubite::Transfert()
{
    bool fini = false;
    QSet<QString> vus;
    int changement = 0;
    while (!fini) {
        const QTemporaryDir dossier;
        const QString source = dossier.filePath(u"a/DataScriptelle"_s);
        const QString cible = dossier.filePath(u"b/DataScriptelle"_s);
        Plante(source, u"nouveau"_s, Modele());
        Plante(cible, u"ancien"_s, Modele());
        common::EcritFichier(cible + u"/notes.txt"_s, "gardées");
        fini = Coupe(++changement, {u"transfert"_s, cible, source});
        Redemarre(cible, changement);
        const QString mot = MotDeLArbre(cible);
        QVERIFY2(mot == u"ancien"_s || mot == u"nouveau"_s, qPrintable(u"%1: %2"_s.arg(changement).arg(mot)));
        QCOMPARE(common::LitFichier(cible + u"/notes.txt"_s), "gardées");
        vus.insert(mot);
        QVERIFY(changement < 1000);
    }
    QCOMPARE(vus.size(), 2);
    QVERIFY(changement > 20);
}

void TestMortSubite::Restauration()
{
    bool fini = false;
    QSet<QString> vus;
    int changement = 0;
    while (!fini) {
        const QTemporaryDir dossier;
        const QString arbre = dossier.filePath(u"DataScriptelle"_s);
        Plante(arbre, u"nouveau"_s, Modele());
        backup::SauveDuJour(LieuDe(arbre), kJour);
        for (const QString& nom : kPieces) {
            common::SupprimeFichier(arbre + u'/' + nom);
        }
        Plante(arbre, u"ancien"_s, Modele());
        fini = Coupe(++changement, {u"restauration"_s, arbre});
        Redemarre(arbre, changement);
        const QString mot = MotDeLArbre(arbre);
        QVERIFY2(mot == u"ancien"_s || mot == u"nouveau"_s, qPrintable(u"%1: %2"_s.arg(changement).arg(mot)));
        vus.insert(mot);
        QVERIFY(backup::SauveDuJour(LieuDe(arbre), kJour.addDays(1)));
        const QStringList restes = QDir(LieuDe(arbre).Dossier).entryList({u"*.tmp"_s});
        QVERIFY2(restes.isEmpty(), qPrintable(restes.join(u' ')));
        QVERIFY(changement < 1000);
    }
    QCOMPARE(vus.size(), 2);
    QVERIFY(changement > 20);
}

int main(int nombre, char** arguments)
{
    const QCoreApplication application(nombre, arguments);
    if (application.arguments().value(1) == u"--travail"_s) {
        Travaille(application.arguments());
        return 0;
    }
    TestMortSubite test;
    return QTest::qExec(&test, nombre, arguments);
}

#include "test_mort_subite.moc"
