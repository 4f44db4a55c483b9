// The power cut: the program is killed at each point of an upgrade, and started again.
#include "MondeMaj.h"

#include <QTest>

#ifdef Q_OS_UNIX
#include <csignal>
#include <sys/wait.h>
#include <unistd.h>
#endif

using common::FichierExiste;
using common::Joint;

namespace {

/// What a doctor would find of a tree: the rows of its databases, those of a doctor behind his name.
QMap<QString, QStringList> Lu(const QString& arbre)
{
    QMap<QString, QStringList> lu;
    for (const QString& base : upgrade::BasesAMettreAJour(arbre)) {
        const auto genre = base == U("Medoc.mdb") ? storage::GenreBase::Medoc : storage::GenreBase::Ordo;
        storage::Base ouverte(Joint(arbre, base), genre, storage::Disposition::Telle);
        for (const storage::Table& table : ouverte.Tables()) {
            for (storage::Jeu jeu = ouverte.Table(table.Nom); !jeu.Fin(); jeu.MoveNext()) {
                QStringList champs;
                for (int i = 0; i < table.Colonnes.size(); ++i) {
                    champs.append(jeu.EstNull(i) ? U("<null>") : jeu.Texte(i));
                }
                lu[base].append(table.Nom + U(": ") + champs.join(u'|'));
            }
        }
    }
    return lu;
}

/// Lays a tree out anew. Nothing is flushed to the disk: this is done hundreds of times.
void Remet(const QString& depart, const QString& arbre)
{
    QDir(arbre).removeRecursively();
    for (const QString& dossier : common::ListeDirectories(depart)) {
        const QString vers = arbre + dossier.mid(depart.size());
        QDir().mkpath(vers);
        for (const QString& nom : QDir(dossier).entryList(QDir::Files)) {
            QFile::copy(Joint(dossier, nom), Joint(vers, nom));
        }
    }
}

/// The files of a tree, without the template that makes the upgrade due.
QStringList Noms(const QString& arbre)
{
    QStringList noms = MondeMaj::Contenu(arbre).keys();
    noms.removeAll(U("Copie de Medoc.mdb"));
    return noms;
}

} // namespace

class TestCoupures : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { TravailleEnMemoire(); }
    void aChaquePas_data();
    void aChaquePas();
    void pendantLaReprise();
    void renommageRefuse();
    void journalAbime();
    void arbreSansJournal();

private:
    static bool CoupeAu(MondeMaj& monde, int pas, const std::function<void(upgrade::Suivi&)>& travail);
};

/// Runs the work in a process of its own that is killed before its step of that number. False when it came to
/// its end.
bool TestCoupures::CoupeAu(MondeMaj& monde, int pas, const std::function<void(upgrade::Suivi&)>& travail)
{
#ifdef Q_OS_UNIX
    const pid_t enfant = ::fork();
    if (enfant == 0) {
        upgrade::Suivi suivi;
        suivi.Pas = [&] {
            if (pas-- == 0) {
                ::kill(::getpid(), SIGKILL);
            }
        };
        try {
            travail(suivi);
            ::_exit(0);
        } catch (...) {
            ::_exit(1);
        }
    }
    Q_UNUSED(monde)
    int etat = 0;
    ::waitpid(enfant, &etat, 0);
    if (WIFEXITED(etat) && WEXITSTATUS(etat) != 0) {
        QTest::qFail("the upgrade failed by itself", __FILE__, __LINE__);
    }
    return WIFSIGNALED(etat);
#else
    Q_UNUSED(monde)
    Q_UNUSED(pas)
    Q_UNUSED(travail)
    return false;
#endif
}

namespace {

/// Boxes that are all answered at once.
struct BoitesMuettes : outside::Boites
{
    outside::Bouton Montre(const outside::Message& message) override { return message.Defaut; }
    std::optional<QString> Demande(const outside::Saisie&) override { return {}; }
    std::optional<QString> Dossier(const QString&) override { return {}; }
    std::optional<QString> Ouvre(const outside::ChoixFichier&) override { return {}; }
    std::optional<QString> Enregistre(const outside::ChoixFichier&) override { return {}; }
    std::optional<page::Police> ChoisitPolice(const page::Police&) override { return {}; }
    std::optional<page::Couleur> ChoisitCouleur(page::Couleur) override { return {}; }
};

struct MondeCoupe : MondeMaj
{
    BoitesMuettes Muettes;
    application::Contexte Sourd{
        Etat.Contexte({Muettes, Imprimantes, Horloge, Plateau, DemarrageSysteme, Lanceur})};

    explicit MondeCoupe(bool ailleurs)
    {
        PoseAncien(true);
        common::EcritFichier(Donnee("Ancien_Medoc.mdb"), "la sauvegarde d'avant");
        if (ailleurs) {
            common::CopieDossier(Arbre, Chemin(U("serveur/DataScriptelle")));
            Arbre = Chemin(U("serveur/DataScriptelle"));
            common::SupprimeFichier(Donnee("Copie de Medoc.mdb"));
        }
    }
};

} // namespace

void TestCoupures::aChaquePas_data()
{
    QTest::addColumn<bool>("ailleurs");
    QTest::newRow("sur le disque") << false;
    QTest::newRow("sur le serveur") << true;
}

void TestCoupures::aChaquePas()
{
#ifndef Q_OS_UNIX
    QSKIP("this system has no kill");
#endif
    QFETCH(const bool, ailleurs);
    MondeCoupe modele(ailleurs);
    const QString depart = modele.Chemin(U("depart"));
    common::CopieDossier(modele.Arbre, depart);
    const auto ancien = Lu(depart);
    const QStringList anciensNoms = Noms(depart);
    upgrade::MajBases(modele.Sourd, {}, modele.Arbre);
    const auto nouveau = Lu(modele.Arbre);
    const QStringList nouveauxNoms = Noms(modele.Arbre);
    QVERIFY(nouveau != ancien);
    const QString disque = modele.Etat.Chemins.CheminData;
    int anciens = 0;
    int nouveaux = 0;
    for (int pas = 0;; ++pas) {
        Remet(depart, modele.Arbre);
        const QString declencheur = Joint(disque, U("Copie de Medoc.mdb"));
        common::CopieFichier(Joint(modele.Etat.Chemins.CheminProgramme, U("BasesInstal/Copie de Medoc.mdb")),
                             declencheur);
        const bool coupe = CoupeAu(modele, pas, [&](upgrade::Suivi& suivi) {
            upgrade::MajBases(modele.Sourd, {}, modele.Arbre, suivi);
        });
        // The next start, which works on this tree.
        upgrade::ReprendMaj(modele.Contexte, modele.Arbre);
        const auto lu = Lu(modele.Arbre);
        const bool estNouveau = lu == nouveau;
        QVERIFY2(estNouveau || lu == ancien, qPrintable(U("pas %1").arg(pas)));
        QCOMPARE(Noms(modele.Arbre), estNouveau ? nouveauxNoms : anciensNoms);
        // The old tree is still to be upgraded; the new one of the own disk is not.
        QVERIFY(estNouveau || FichierExiste(declencheur));
        QVERIFY(!estNouveau || !FichierExiste(declencheur));
        if (!estNouveau) {
            QCOMPARE(common::LitFichier(Joint(modele.Arbre, U("Ancien_Medoc.mdb"))),
                     QByteArray("la sauvegarde d'avant"));
        }
        ++(estNouveau ? nouveaux : anciens);
        if (!coupe) {
            break;
        }
    }
    QVERIFY2(anciens > 40, qPrintable(QString::number(anciens)));
    QVERIFY2(nouveaux > 10, qPrintable(QString::number(nouveaux)));
}

/// A second cut while the first one is mended.
void TestCoupures::pendantLaReprise()
{
#ifndef Q_OS_UNIX
    QSKIP("this system has no kill");
#endif
    MondeCoupe modele(false);
    const QString depart = modele.Chemin(U("depart"));
    common::CopieDossier(modele.Arbre, depart);
    const auto ancien = Lu(depart);
    upgrade::MajBases(modele.Sourd, {}, modele.Arbre);
    const auto nouveau = Lu(modele.Arbre);
    // Cut in the middle of the exchange, with one database gone over.
    Remet(depart, modele.Arbre);
    for (int pas = 0; !FichierExiste(modele.Donnee("Ancien_Medoc.mdb.avant")); ++pas) {
        Remet(depart, modele.Arbre);
        QVERIFY(CoupeAu(modele, pas, [&](upgrade::Suivi& suivi) {
            upgrade::MajBases(modele.Sourd, {}, modele.Arbre, suivi);
        }));
    }
    const QString milieu = modele.Chemin(U("milieu"));
    common::CopieDossier(modele.Arbre, milieu);
    for (const char* etape : {"Echange", "Retour"}) {
        for (int pas = 0;; ++pas) {
            Remet(milieu, modele.Arbre);
            QByteArray journal = common::LitFichier(modele.Donnee("MiseAJour.cfg"));
            common::EcritFichier(modele.Donnee("MiseAJour.cfg"), journal.replace("Echange", etape));
            const bool coupe = CoupeAu(modele, pas, [&](upgrade::Suivi& suivi) {
                upgrade::ReprendMaj(modele.Sourd, modele.Arbre, suivi);
            });
            upgrade::ReprendMaj(modele.Contexte, modele.Arbre);
            const auto lu = Lu(modele.Arbre);
            QVERIFY(lu == (QByteArray(etape) == "Echange" ? nouveau : ancien));
            QVERIFY(!FichierExiste(modele.Donnee("MiseAJour.cfg")));
            QVERIFY(!FichierExiste(modele.Donnee("MiseAJour.verrou")));
            if (!coupe) {
                break;
            }
        }
    }
}

/// A doctor's directory in which nothing can be renamed: what has changed places comes back.
void TestCoupures::renommageRefuse()
{
    MondeMaj monde;
    monde.PoseAncien();
    // Behind "DR DURAND", whose database has changed places by then.
    common::CreeDossier(monde.Donnee("DR NEIBRE/Ancien_Ordo.mdb/plein"));
    const auto avant = Lu(monde.Arbre);
    monde.Boites.AttendInformation(upgrade::messages::PatientezDisque());
    const QString phrase = support::PhraseDEchec([&] { monde.Maj(); });
    QVERIFY2(phrase.contains(U("telles qu'elles étaient")), qPrintable(phrase));
    QVERIFY(Lu(monde.Arbre) == avant);
    QVERIFY(!FichierExiste(monde.Donnee("MiseAJour.cfg")));
    QVERIFY(FichierExiste(monde.Donnee("Copie de Medoc.mdb")));
    QVERIFY(!FichierExiste(monde.Donnee("DR DURAND/Copie de Ordo.mdb")));
    QVERIFY(!FichierExiste(monde.Donnee("DR DURAND/Ancien_Ordo.mdb")));
}

/// Not ours, or leading out of the tree: it is put aside and nothing is renamed.
void TestCoupures::journalAbime()
{
    for (const char* contenu : {"n'importe quoi", "Echange\n../Medoc.mdb\n", "Echange\nautre.txt\n", ""}) {
        MondeMaj monde;
        monde.PoseAncien();
        const auto avant = Lu(monde.Arbre);
        common::EcritFichier(monde.Donnee("MiseAJour.cfg"), contenu);
        upgrade::ReprendMaj(monde.Contexte, monde.Arbre);
        QVERIFY(Lu(monde.Arbre) == avant);
        QCOMPARE(common::LitFichier(monde.Donnee("MiseAJour.cfg.abime")), QByteArray(contenu));
        QVERIFY(FichierExiste(monde.Donnee("Copie de Medoc.mdb")));
    }
}

void TestCoupures::arbreSansJournal()
{
    MondeMaj monde;
    monde.PoseAncien();
    const auto avant = MondeMaj::Contenu(monde.Arbre);
    upgrade::ReprendMaj(monde.Contexte, monde.Arbre);
    QVERIFY(MondeMaj::Contenu(monde.Arbre) == avant);
}

QTEST_GUILESS_MAIN(TestCoupures)
#include "test_coupures.moc"
