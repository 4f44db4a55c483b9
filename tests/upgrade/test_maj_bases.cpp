#include "MondeMaj.h"
#include "support/SansPrivilege.h"

#include <QTest>
#ifdef Q_OS_UNIX
#include <csignal>
#include <sys/resource.h>
#endif

using common::FichierExiste;
using common::Joint;
using support::PhraseDEchec;

class TestMajBases : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { TravailleEnMemoire(); }
    void arbreEntier();
    void datesRepareees();
    void sansDatesSansReparation();
    void generiqueSansDate();
    void enteteDe24();
    void enteteDUneAutreTaille();
    void supportExterne();
    void cheminSansDataVelmont();
    void logoDansLeNom();
    void dossiersSansBase();
    void secondeMaj();
    void sansMedoc();
    void baseAbimee();
    void baseUtilisee();
    void lectureSeule();
    void disquePlein();
    void changeePendant();
    void modeleAbsent();
    void unAutrePoste();
    void avancement();
};

void TestMajBases::arbreEntier()
{
    MondeMaj monde;
    monde.PoseAncien();
    const QByteArray ancien = common::LitFichier(monde.Donnee("Medoc.mdb"));
    monde.AttendMaj(2);
    monde.Maj();
    QCOMPARE(monde.Evenements, QStringList{U("Redémarrer")});
    QCOMPARE(monde.LignesDe("Medoc.mdb", "BddMed"), QStringList{U("1|<null>|<null>|n|1 comprimé|DOLIPRANE")});
    QCOMPARE(monde.LignesDe("Medoc.mdb", "ListeOrdos"),
             (QStringList{U("Toux|Monsieur  MARTIN  Paul|0|20/03/1953"), U("Modèle|*|1|0")}));
    QCOMPARE(monde.LignesDe("Medoc.mdb", "OrdoEnr"),
             (QStringList{U("Toux|SIROP|1 le soir|1|Monsieur  MARTIN  Paul|20/03/1953|<null>|1"),
                          U("Modèle|##|<null>|2|*|0|0|<null>")}));
    QCOMPARE(monde.LignesDe("Medoc.mdb", "Vidal"), QStringList{U("123|")});
    QCOMPARE(monde.LignesDe("Medoc.mdb", "MedUtile"), QStringList{U("")});
    QCOMPARE(
        monde.LignesDe("Medoc.mdb", "Patients"),
        (QStringList{U("7|Monsieur|MARTIN  Paul|20/03/1953|70|<null>|note|<null>|1, rue Haute|<null>|<null>"),
                     U("9|Madame|DURAND  Anne|01/02/1960|0|<null>|<null>|<null>|<null>|<null>|<null>")}));
    QCOMPARE(monde.LignesDe("DR NEIBRE/Ordo.mdb", "Entete").size(), 24);
    QCOMPARE(monde.LignesDe("DR NEIBRE/Ordo.mdb", "Entete").last(),
             U("23|Nom à afficher pour la signature électronique|Verdana|8|0|0|0|<null>"));
    QCOMPARE(monde.LignesDe("DR NEIBRE/Ordo.mdb", "CouleurPET"), QStringList{U("0")});
    QCOMPARE(monde.LignesDe("DR NEIBRE/Ordo.mdb", "Certificat"), QStringList());
    QCOMPARE(QDir(monde.Arbre).entryList(QDir::Files), (QStringList{U("Ancien_Medoc.mdb"), U("Medoc.mdb")}));
    QCOMPARE(QDir(monde.Donnee("DR NEIBRE")).entryList(QDir::Files),
             (QStringList{U("Ancien_Ordo.mdb"), U("Ordo.mdb")}));
    QCOMPARE(common::LitFichier(monde.Donnee("Ancien_Medoc.mdb")), ancien);
}

void TestMajBases::datesRepareees()
{
    MondeMaj monde;
    monde.PoseAncien(true);
    monde.AttendMaj(2, true);
    monde.Maj();
    QCOMPARE(monde.LignesDe("Medoc.mdb", "ListeOrdos"),
             (QStringList{U("Toux|Monsieur  MARTIN  Paul|0|20/03/1953"), U("Modèle|*|1|0")}));
    QCOMPARE(monde.LignesDe("Medoc.mdb", "OrdoEnr")[0],
             U("Toux|SIROP|1 le soir|1|Monsieur  MARTIN  Paul|20/03/1953|<null>|1"));
}

/// The check is made on the prescriptions alone: lines without a date do not start the repair.
void TestMajBases::sansDatesSansReparation()
{
    MondeMaj monde;
    monde.PoseAncien();
    {
        AncienneBase medoc(monde.Donnee("Medoc.mdb"), storage::GenreBase::Medoc);
        medoc.Execute(U("update OrdoEnr set Datenais = '0'"));
    }
    monde.AttendMaj(2);
    monde.Maj();
    QVERIFY(monde.LignesDe("Medoc.mdb", "OrdoEnr")[0].contains(U("|0|<null>|1")));
}

void TestMajBases::generiqueSansDate()
{
    MondeMaj monde;
    monde.PoseAncien();
    {
        AncienneBase medoc(monde.Donnee("Medoc.mdb"), storage::GenreBase::Medoc);
        medoc.Execute(U("update ListeOrdos set NomPatient = '*', Datenais = '0'"));
    }
    monde.AttendMaj(2);
    monde.Maj();
}

void TestMajBases::enteteDe24()
{
    MondeMaj monde;
    monde.PoseAncienMedoc(false);
    monde.PoseMedecinAncien("DR DURAND", 24);
    monde.AttendMaj();
    monde.Maj();
    QCOMPARE(monde.LignesDe("DR DURAND/Ordo.mdb", "Entete").size(), 24);
    QCOMPARE(monde.LignesDe("DR DURAND/Ordo.mdb", "Entete").last(), U("23|ligne 23|Arial|12.5|1|0|0|23"));
}

void TestMajBases::enteteDUneAutreTaille()
{
    MondeMaj monde;
    monde.PoseAncienMedoc(false);
    monde.PoseMedecinAncien("DR DURAND", 22);
    monde.PoseMedecinAncien("DR VIDE", 0);
    monde.AttendMaj();
    monde.Maj();
    QCOMPARE(monde.LignesDe("DR DURAND/Ordo.mdb", "Entete").size(), 22);
    QCOMPARE(monde.LignesDe("DR VIDE/Ordo.mdb", "Entete").size(), 0);
}

/// A tree on a support: its root's letterhead is nobody's, and the own disk's upgrade is not due any more.
void TestMajBases::supportExterne()
{
    MondeMaj monde;
    monde.PoseAncien();
    common::CopieDossier(monde.Arbre, monde.Chemin(U("clef/DataScriptelle")));
    monde.Arbre = monde.Chemin(U("clef/DataScriptelle"));
    common::SupprimeFichier(monde.Donnee("Copie de Medoc.mdb"));
    monde.Boites.AttendInformation(upgrade::messages::PatientezSupport());
    monde.AttendFin(1, false);
    monde.Maj();
    QCOMPARE(monde.LignesDe("Medoc.mdb", "Patients").size(), 2);
    QCOMPARE(QDir(monde.Arbre).entryList(QDir::Files), (QStringList{U("Ancien_Medoc.mdb"), U("Medoc.mdb")}));
    const QString disque = monde.Etat.Chemins.CheminData;
    QVERIFY(!FichierExiste(Joint(disque, U("Copie de Medoc.mdb"))));
    QVERIFY(!FichierExiste(Joint(disque, U("Ancien_Medoc.mdb"))));
}

/// "DataVelmont" alone decides on the words; a tree of that name elsewhere is laid out all the same.
void TestMajBases::cheminSansDataVelmont()
{
    MondeMaj monde;
    monde.PoseAncien();
    common::CopieDossier(monde.Arbre, monde.Chemin(U("serveur/DataVelmont/DataScriptelle")));
    monde.Arbre = monde.Chemin(U("serveur/DataVelmont/DataScriptelle"));
    common::SupprimeFichier(monde.Donnee("Copie de Medoc.mdb"));
    monde.AttendMaj(2);
    monde.Maj();
    QCOMPARE(monde.LignesDe("Medoc.mdb", "Patients").size(), 2);
}

void TestMajBases::logoDansLeNom()
{
    MondeMaj monde;
    monde.PoseAncienMedoc(false);
    monde.PoseMedecinAncien("DR Logo", 23);
    monde.PoseMedecinAncien("DR NEIBRE", 24);
    common::CreeDossier(monde.Donnee("DR NEIBRE/Logo"));
    common::CreeDossier(monde.Donnee("DR NEIBRE/Certificats"));
    common::CopieFichier(monde.Donnee("DR NEIBRE/Ordo.mdb"), monde.Donnee("DR NEIBRE/Certificats/Ordo.mdb"));
    monde.AttendMaj();
    monde.Maj();
    for (const char* dossier : {"DR Logo", "DR NEIBRE/Certificats"}) {
        QCOMPARE(QDir(monde.Donnee(dossier)).entryList(QDir::Files), QStringList{U("Ordo.mdb")});
    }
    QVERIFY(FichierExiste(monde.Donnee("DR NEIBRE/Ancien_Ordo.mdb")));
    QVERIFY(QDir(monde.Donnee("DR NEIBRE/Logo")).isEmpty());
}

void TestMajBases::dossiersSansBase()
{
    MondeMaj monde;
    monde.PoseAncienMedoc(false);
    common::CreeDossier(monde.Donnee("DR NEUF"));
    monde.AttendMaj();
    monde.Maj();
    QVERIFY(QDir(monde.Donnee("DR NEUF")).isEmpty());
    QVERIFY(FichierExiste(monde.Donnee("Ancien_Medoc.mdb")));
}

/// The backup of the upgrade before is replaced, and nothing of the first one is lost.
void TestMajBases::secondeMaj()
{
    MondeMaj monde;
    monde.PoseAncien();
    monde.AttendMaj(2);
    monde.Maj();
    const auto avant = monde.LignesDe("Medoc.mdb", "ListeOrdos");
    const QByteArray premier = common::LitFichier(monde.Donnee("Medoc.mdb"));
    monde.AttendMaj();
    monde.Maj();
    QCOMPARE(monde.LignesDe("Medoc.mdb", "ListeOrdos"), avant);
    QCOMPARE(monde.LignesDe("Medoc.mdb", "OrdoEnr").size(), 2);
    QCOMPARE(monde.LignesDe("Medoc.mdb", "Patients").size(), 2);
    QCOMPARE(common::LitFichier(monde.Donnee("Ancien_Medoc.mdb")), premier);
    QCOMPARE(QDir(monde.Arbre).entryList(QDir::Files), (QStringList{U("Ancien_Medoc.mdb"), U("Medoc.mdb")}));
}

namespace {

/// The upgrade fails with that piece of a sentence, and the tree stands as it was.
void VerifieEchec(MondeMaj& monde, const QString& morceau, const std::function<void()>& maj = {})
{
    const auto avant = MondeMaj::Contenu(monde.Arbre);
    monde.Boites.AttendInformation(upgrade::messages::PatientezDisque());
    const QString phrase = PhraseDEchec([&] { maj ? maj() : monde.Maj(); });
    QVERIFY2(phrase.contains(morceau), qPrintable(phrase));
    QVERIFY2(phrase.contains(U("vos bases de données sont telles qu'elles étaient")), qPrintable(phrase));
    auto apres = MondeMaj::Contenu(monde.Arbre);
    // The template of the root is what makes the upgrade due; its content is laid out anew.
    QVERIFY(apres.contains(U("Copie de Medoc.mdb")));
    apres[U("Copie de Medoc.mdb")] = avant[U("Copie de Medoc.mdb")];
    QCOMPARE(apres.keys(), avant.keys());
    QVERIFY(apres == avant);
    QVERIFY(monde.Evenements.isEmpty());
}

} // namespace

void TestMajBases::sansMedoc()
{
    MondeMaj monde;
    monde.PoseMedecinAncien("DR NEIBRE", 24);
    VerifieEchec(monde, U("« Medoc.mdb » n'existe pas"));
}

void TestMajBases::baseAbimee()
{
    MondeMaj monde;
    monde.PoseAncien();
    common::EcritFichier(monde.Donnee("DR NEIBRE/Ordo.mdb"), "ceci n'est pas une base");
    VerifieEchec(monde, U("« Ordo.mdb » n'est pas une base"));
}

void TestMajBases::baseUtilisee()
{
    MondeMaj monde;
    monde.PoseAncien();
    storage::Base poste(monde.Donnee("DR DURAND/Ordo.mdb"), storage::GenreBase::Ordo,
                        storage::Disposition::Telle);
    const storage::Transaction ecriture(poste);
    monde.Boites.AttendInformation(upgrade::messages::PatientezDisque());
    const QString phrase = PhraseDEchec([&] { monde.Maj(); });
    QVERIFY2(phrase.contains(U("« Ordo.mdb » est utilisée par un autre poste")), qPrintable(phrase));
    QVERIFY(!FichierExiste(monde.Donnee("Ancien_Medoc.mdb")));
    QVERIFY(!FichierExiste(monde.Donnee("MiseAJour.cfg")));
}

void TestMajBases::lectureSeule()
{
    MondeMaj monde;
    monde.PoseAncien();
    QDirIterator tout(monde.Dossier.path(), QDir::AllEntries | QDir::NoDotAndDotDot,
                      QDirIterator::Subdirectories);
    QFile::setPermissions(monde.Dossier.path(), QFileDevice::Permissions(0x7777));
    while (tout.hasNext()) {
        QFile::setPermissions(tout.next(), QFileDevice::Permissions(0x7777));
    }
    QFile::setPermissions(monde.Donnee("DR NEIBRE/Ordo.mdb"), QFileDevice::Permissions(0x4444));
    const support::SansPrivilege sansPrivilege;
    VerifieEchec(monde, U("« Ordo.mdb » est en lecture seule"));
}

void TestMajBases::disquePlein()
{
#ifdef Q_OS_UNIX
    MondeMaj monde;
    monde.PoseAncien();
    {
        AncienneBase medoc(monde.Donnee("Medoc.mdb"), storage::GenreBase::Medoc);
        medoc.Debute();
        for (int i = 0; i < 3000; ++i) {
            medoc.Ajoute(U("Biblio"), {U("titre %1").arg(i), QString(200, u'p')});
        }
        medoc.Valide();
    }
    const auto signalAvant = ::signal(SIGXFSZ, SIG_IGN);
    rlimit avant{};
    QCOMPARE(::getrlimit(RLIMIT_FSIZE, &avant), 0);
    VerifieEchec(monde, U("Medoc.mdb"), [&] {
        const rlimit court{300000, avant.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &court);
        try {
            monde.Maj();
        } catch (...) {
            ::setrlimit(RLIMIT_FSIZE, &avant);
            throw;
        }
    });
    ::setrlimit(RLIMIT_FSIZE, &avant);
    ::signal(SIGXFSZ, signalAvant);
#else
    QSKIP("this system has no limit on the size of a file");
#endif
}

/// Another station writes the old file while its copy is made.
void TestMajBases::changeePendant()
{
    MondeMaj monde;
    monde.PoseAncien();
    bool ecrit = false;
    monde.Boites.AttendInformation(upgrade::messages::PatientezDisque());
    upgrade::EcransMaj ecrans = monde.Ecrans();
    ecrans.Travaille = [&](upgrade::Suivi& suivi, const std::function<void()>& travail) {
        suivi.Montre = [&](int, const QString& mot) {
            if (!ecrit && mot.contains(U("DR DURAND"))) {
                ecrit = true;
                AncienneBase medoc(monde.Donnee("Medoc.mdb"), storage::GenreBase::Medoc);
                medoc.Ajoute(U("Biblio"), {U("ajout"), U("d'un autre poste")});
            }
        };
        travail();
    };
    const QString phrase = PhraseDEchec([&] { upgrade::MajBases(monde.Contexte, ecrans, monde.Arbre); });
    QVERIFY(ecrit);
    QVERIFY2(phrase.contains(U("« Medoc.mdb » a été modifiée par un autre poste")), qPrintable(phrase));
    QVERIFY(!FichierExiste(monde.Donnee("Ancien_Medoc.mdb")));
    QCOMPARE(monde.LignesDe("Medoc.mdb", "Biblio").size(), 2);
}

void TestMajBases::modeleAbsent()
{
    MondeMaj monde;
    monde.PoseAncien();
    common::SupprimeFichier(Joint(monde.Etat.Chemins.CheminProgramme, U("BasesInstal/Copie de Ordo.mdb")));
    VerifieEchec(monde, U("« Copie de Ordo.mdb »"));
}

void TestMajBases::unAutrePoste()
{
    MondeMaj monde;
    monde.PoseAncien();
    QLockFile verrou(monde.Donnee("MiseAJour.verrou"));
    QVERIFY(verrou.lock());
    common::EcritFichier(monde.Donnee("MiseAJour.cfg"), "Echange\nMedoc.mdb\n");
    monde.Boites.AttendInformation(upgrade::messages::PatientezDisque());
    QCOMPARE(PhraseDEchec([&] { monde.Maj(); }), upgrade::messages::EnCoursAilleurs());
    QCOMPARE(common::LitFichier(monde.Donnee("MiseAJour.cfg")), QByteArray("Echange\nMedoc.mdb\n"));
    QVERIFY(!FichierExiste(monde.Donnee("Ancien_Medoc.mdb")));
}

void TestMajBases::avancement()
{
    MondeMaj monde;
    monde.PoseAncien();
    monde.AttendMaj(2);
    QList<int> milliemes;
    QStringList mots;
    upgrade::EcransMaj ecrans;
    ecrans.Travaille = [&](upgrade::Suivi& suivi, const std::function<void()>& travail) {
        suivi.Montre = [&](int fait, const QString& mot) {
            milliemes.append(fait);
            mots.append(mot);
        };
        travail();
    };
    upgrade::MajBases(monde.Contexte, ecrans, monde.Arbre);
    QVERIFY(std::ranges::is_sorted(milliemes));
    QCOMPARE(milliemes.last(), 1000);
    mots.removeDuplicates();
    QCOMPARE(mots.first(), U("Mise à jour de « Medoc.mdb »..."));
    QVERIFY(mots.contains(U("Mise à jour de « DR NEIBRE/Ordo.mdb »...")));
}

QTEST_GUILESS_MAIN(TestMajBases)
#include "test_maj_bases.moc"
