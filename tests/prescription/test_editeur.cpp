#include "prescription/Editeur.h"
#include "prescription/messages.h"
#include "settings/FichiersReglages.h"
#include "settings/messages.h"
#include "startup/GestionMedecins.h"
#include "storage/Jeu.h"
#include "support/Cabinet.h"
#include "support/PageDeTest.h"

#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace prescription;
using application::Signaux;

namespace {

QString InviteHauteur()
{
    return u"Pour personnaliser la hauteur du saut de ligne, déterminez sa\nHauteur en mm : "_s;
}

QString Enregistre(const Cabinet& cabinet, const QString& nom)
{
    return QString::fromLatin1(
        common::LitFichier(common::Joint(cabinet.Etat.Chemins.CheminMedecin, nom)).trimmed());
}

QString Champ(const Cabinet& cabinet, const QString& nom, int rang)
{
    return Enregistre(cabinet, nom).split(u',').value(rang - 1);
}

QString EcritImage(const Cabinet& cabinet, const QSize& taille)
{
    const QString chemin = cabinet.Chemin(u"logo.png"_s);
    QImage image(taille, QImage::Format_RGB32);
    image.fill(Qt::blue);
    return image.save(chemin) ? chemin : QString();
}

/// A letterhead row of the doctor's database.
void PoseRang(Cabinet& cabinet, int numero, int colonne, const QVariant& valeur)
{
    storage::Base& ordo = cabinet.Etat.Bases.Ordo(cabinet.Etat.Chemins.CheminMedecin);
    for (storage::Jeu jeu = ordo.Table(u"Entete"_s); !jeu.Fin(); jeu.MoveNext()) {
        if (jeu.Champ(0).toInt() == numero) {
            jeu.Edit();
            jeu.Ecris(colonne, valeur);
            jeu.Update();
        }
    }
}

} // namespace

class TestEditeur : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void leModelePorteLEntete();
    void unEnteteIllisibleNArretePasLaPeinture();
    void unChampNulSeVoit();
    void repeintMontrePatientEtOrdonnance();
    void repeintPatientNeMontreQueLui();
    void effaceApercuLeDit();
    void videDocument();
    void videDocumentSupprimeLeCertificatEnMain();
    void laHauteurPersonnelle_data();
    void laHauteurPersonnelle();
    void uneHauteurRefusee_data();
    void uneHauteurRefusee();
    void sansReponseRienNeChange();
    void laHauteurEnVigueurEstProposee();
    void laHauteurNormale();
    void sansMedecinRienNeChange();
    void uneHauteurQuiNeSEcritPasEstDite();
    void leLogo();
    void unLogoImmenseEstReduit();
    void unLogoQuiNEstPasUneImage_data();
    void unLogoQuiNEstPasUneImage();
    void unLogoInactifNeSeSignalePas();
    void leMedecinApprendQueSonLogoNeSeLitPas();
};

void TestEditeur::leModelePorteLEntete()
{
    Cabinet cabinet;
    PoseRang(cabinet, 3, 1, u"12 rue des Lilas"_s);
    QList<page::LigneEntete> entete;
    const page::Modele modele = ModelePage(cabinet.Contexte, entete);
    QCOMPARE(entete.size(), 24);
    QCOMPARE(entete[3].Texte, u"12 rue des Lilas"_s);
    QCOMPARE(modele.Entete.size(), 24);
    QCOMPARE(modele.Aujourdhui, QDate(2026, 11, 20));
    QVERIFY(modele.AvecMedecin && modele.AvecTravail);
}

void TestEditeur::unEnteteIllisibleNArretePasLaPeinture()
{
    Cabinet cabinet;
    cabinet.Prescrit(u"DOLIPRANE"_s);
    common::EcritFichier(common::Joint(cabinet.Etat.Chemins.CheminMedecin, u"Ordo.mdb"_s), "pas une base");
    Repeint(cabinet.Contexte);
    QVERIFY(support::Mots(cabinet.Etat.Apercu.PctOrdo).contains(u"DOLIPRANE"_s));
}

void TestEditeur::unChampNulSeVoit()
{
    Cabinet cabinet;
    PoseRang(cabinet, 1, 1, QVariant());
    PoseRang(cabinet, 2, 3, QVariant());
    PoseRang(cabinet, 3, 7, QVariant());
    QList<page::LigneEntete> entete;
    ModelePage(cabinet.Contexte, entete);
    QVERIFY(entete[0].Nulles.none());
    QVERIFY(entete[1].Nulles.test(page::kTexte) && entete[1].Nulles.count() == 1);
    QVERIFY(entete[2].Nulles.test(page::kTaille) && entete[2].Nulles.count() == 1);
    QVERIFY(entete[3].Nulles.test(page::kEspaces) && entete[3].Nulles.count() == 1);
}

void TestEditeur::repeintMontrePatientEtOrdonnance()
{
    Cabinet cabinet;
    cabinet.Prescrit(u"DOLIPRANE"_s);
    QSignalSpy change(&cabinet.Etat.Signaux, &Signaux::ApercuChange);
    Repeint(cabinet.Contexte);
    Repeint(cabinet.Contexte);
    const QStringList mots = support::Mots(cabinet.Etat.Apercu.PctOrdo);
    QCOMPARE(mots.count(u"Monsieur  MARTIN  Paul"_s), 1);
    QCOMPARE(mots.count(u"DOLIPRANE"_s), 1);
    QVERIFY(!change.isEmpty());
    QCOMPARE(cabinet.Etat.Ordonnance.LigneJournal, u"20/11/2026*MARTIN  Paul*20/03/1953*DOLIPRANE"_s);
}

void TestEditeur::repeintPatientNeMontreQueLui()
{
    Cabinet cabinet;
    cabinet.Prescrit(u"DOLIPRANE"_s);
    RepeintPatient(cabinet.Contexte);
    QCOMPARE(support::Mots(cabinet.Etat.Apercu.PctOrdo).size(), 3);
    QCOMPARE(support::Mots(cabinet.Etat.Apercu.PctOrdo)[0], u"Monsieur  MARTIN  Paul"_s);
}

void TestEditeur::effaceApercuLeDit()
{
    Cabinet cabinet;
    Repeint(cabinet.Contexte);
    QSignalSpy change(&cabinet.Etat.Signaux, &Signaux::ApercuChange);
    EffaceApercu(cabinet.Contexte);
    QVERIFY(cabinet.Etat.Apercu.PctOrdo.Items.isEmpty());
    QCOMPARE(change.size(), 1);
}

void TestEditeur::videDocument()
{
    Cabinet cabinet;
    application::Etat& etat = cabinet.Etat;
    cabinet.Prescrit(u"DOLIPRANE"_s);
    etat.Ordonnance.OrdoZone2.append({u"B"_s, {}});
    etat.Ordonnance.LstChoix2.Ajoute({u"  B"_s, 0});
    etat.Ordonnance.NbMedZone1 = etat.Ordonnance.NbMedZone2 = etat.Ordonnance.ChkALD = 1;
    etat.Ordonnance.OrdoMemorisee = 1;
    etat.Apercu.ModeApercu = 1;
    etat.Patient.PoidsPatient = u"72"_s;
    etat.Patient.AgePatient = u"73"_s;
    etat.Patient.AgeSaisi = u"45 ans"_s;
    etat.Patient.DateOrdo = u"01/01/2020"_s;
    QSignalSpy change(&etat.Signaux, &Signaux::OrdonnanceChange);
    VideDocument(cabinet.Contexte);
    QCOMPARE(etat.Patient.PatientCourant + etat.Patient.NomSeul + etat.Patient.DateNaissance +
                 etat.Patient.AgePatient + etat.Patient.PoidsPatient + etat.Patient.AgeSaisi,
             QString());
    QCOMPARE(etat.Patient.DateOrdo, u"20/11/2026"_s);
    QVERIFY(etat.Ordonnance.OrdoZone1.isEmpty() && etat.Ordonnance.OrdoZone2.isEmpty());
    QVERIFY(etat.Ordonnance.LstChoix1.Vide() && etat.Ordonnance.LstChoix2.Vide());
    QCOMPARE(etat.Ordonnance.NbMedZone1 + etat.Ordonnance.NbMedZone2 + etat.Ordonnance.ChkALD +
                 etat.Ordonnance.OrdoMemorisee + etat.Apercu.ModeApercu,
             0);
    QVERIFY(etat.Apercu.PctOrdo.Items.isEmpty());
    QCOMPARE(change.size(), 1);
}

void TestEditeur::videDocumentSupprimeLeCertificatEnMain()
{
    Cabinet cabinet;
    const QString dossier = common::Joint(cabinet.Etat.Chemins.CheminMedecin, u"Certificats"_s);
    common::CreeDossier(dossier);
    common::EcritFichier(common::Joint(dossier, u"Tmp.txt"_s), "brouillon");
    common::EcritFichier(common::Joint(dossier, u"Sport.txt"_s), "modèle");
    VideDocument(cabinet.Contexte);
    QVERIFY(!common::FichierExiste(common::Joint(dossier, u"Tmp.txt"_s)));
    QVERIFY(common::FichierExiste(common::Joint(dossier, u"Sport.txt"_s)));
}

void TestEditeur::laHauteurPersonnelle_data()
{
    QTest::addColumn<QString>("reponse");
    QTest::addColumn<float>("hauteur");
    QTest::addColumn<QString>("ecrite");
    QTest::newRow("point") << u"4.5"_s << 4.5F << u"4.5"_s;
    QTest::newRow("virgule") << u"4,5"_s << 4.5F << u"4.5"_s;
    QTest::newRow("entier") << u"7"_s << 7.0F << u"7"_s;
    QTest::newRow("zéro") << u"0"_s << 0.0F << u"0"_s;
}

void TestEditeur::laHauteurPersonnelle()
{
    QFETCH(QString, reponse);
    QFETCH(float, hauteur);
    Cabinet cabinet;
    cabinet.Prescrit(u"DOLIPRANE"_s);
    QSignalSpy reglages(&cabinet.Etat.Signaux, &Signaux::ReglagesChanges);
    cabinet.Boites.AttendSaisie(InviteHauteur(), reponse, u"0"_s);
    FixeHauteurPersonnelle(cabinet.Contexte);
    QCOMPARE(cabinet.Etat.Reglages.Marges.HauteurSaut, hauteur);
    QCOMPARE(cabinet.Etat.Reglages.Options.SautPersonnalise, 1);
    QTEST(Champ(cabinet, u"Marges.cfg"_s, 9), "ecrite");
    QCOMPARE(Champ(cabinet, u"Options.cfg"_s, 23), u"1"_s);
    QCOMPARE(reglages.size(), 1);
    QVERIFY(support::Mots(cabinet.Etat.Apercu.PctOrdo).contains(u"DOLIPRANE"_s));
}

void TestEditeur::uneHauteurRefusee_data()
{
    QTest::addColumn<QString>("reponse");
    QTest::newRow("texte") << u"grand"_s;
    QTest::newRow("unité") << u"4 mm"_s;
    QTest::newRow("négative") << u"-3"_s;
    QTest::newRow("plus haute que la feuille") << u"298"_s;
    QTest::newRow("deux virgules") << u"4.5,1"_s;
}

void TestEditeur::uneHauteurRefusee()
{
    QFETCH(QString, reponse);
    Cabinet cabinet;
    cabinet.Boites.AttendSaisie(InviteHauteur(), reponse, u"0"_s)
        .AttendInformation(settings::messages::HauteurRefusee(reponse));
    FixeHauteurPersonnelle(cabinet.Contexte);
    QCOMPARE(cabinet.Etat.Reglages.Marges.HauteurSaut, 0.0F);
    QCOMPARE(cabinet.Etat.Reglages.Options.SautPersonnalise, 0);
    QVERIFY(!common::FichierExiste(common::Joint(cabinet.Etat.Chemins.CheminMedecin, u"Marges.cfg"_s)));
}

void TestEditeur::sansReponseRienNeChange()
{
    Cabinet cabinet;
    cabinet.Boites.AttendSaisie(InviteHauteur(), QString(), u"0"_s)
        .AttendSaisie(InviteHauteur(), std::nullopt, u"0"_s);
    FixeHauteurPersonnelle(cabinet.Contexte);
    FixeHauteurPersonnelle(cabinet.Contexte);
    QCOMPARE(cabinet.Etat.Reglages.Options.SautPersonnalise, 0);
    QVERIFY(!common::FichierExiste(common::Joint(cabinet.Etat.Chemins.CheminMedecin, u"Options.cfg"_s)));
}

void TestEditeur::laHauteurEnVigueurEstProposee()
{
    Cabinet cabinet;
    cabinet.Etat.Reglages.Marges.HauteurSaut = 3.5F;
    cabinet.Boites.AttendSaisie(InviteHauteur(), std::nullopt, u"3,5"_s);
    FixeHauteurPersonnelle(cabinet.Contexte);
    QCOMPARE(cabinet.Etat.Reglages.Marges.HauteurSaut, 3.5F);
}

void TestEditeur::laHauteurNormale()
{
    Cabinet cabinet;
    cabinet.Etat.Reglages.Options.SautPersonnalise = 1;
    cabinet.Etat.Reglages.Marges.HauteurSaut = 3.5F;
    QSignalSpy reglages(&cabinet.Etat.Signaux, &Signaux::ReglagesChanges);
    RetablitHauteurNormale(cabinet.Contexte);
    QCOMPARE(cabinet.Etat.Reglages.Options.SautPersonnalise, 0);
    QCOMPARE(Champ(cabinet, u"Options.cfg"_s, 23), u"0"_s);
    QCOMPARE(Champ(cabinet, u"Marges.cfg"_s, 9), u"3.5"_s);
    QCOMPARE(reglages.size(), 1);
}

void TestEditeur::sansMedecinRienNeChange()
{
    Cabinet cabinet;
    cabinet.Etat.Chemins.CheminMedecin.clear();
    cabinet.Etat.Reglages.Options.SautPersonnalise = 1;
    const QString message = u"Choisissez d'abord un médecin utilisateur."_s;
    cabinet.Boites.AttendInformation(message).AttendInformation(message);
    FixeHauteurPersonnelle(cabinet.Contexte);
    RetablitHauteurNormale(cabinet.Contexte);
    QCOMPARE(cabinet.Etat.Reglages.Options.SautPersonnalise, 1);
}

void TestEditeur::uneHauteurQuiNeSEcritPasEstDite()
{
    Cabinet cabinet;
    cabinet.Etat.Chemins.CheminMedecin = cabinet.Chemin(u"disparu/DR NEIBRE"_s);
    cabinet.Boites.AttendSaisie(InviteHauteur(), u"4"_s, u"0"_s)
        .AttendContenant(outside::Genre::Stop, u"vaut jusqu'à la fermeture du programme"_s);
    FixeHauteurPersonnelle(cabinet.Contexte);
    QCOMPARE(cabinet.Etat.Reglages.Marges.HauteurSaut, 4.0F);
}

void TestEditeur::leLogo()
{
    Cabinet cabinet;
    settings::Options& options = cabinet.Etat.Reglages.Options;
    QVERIFY(ChargeLogo(options).isNull());
    options.FichierLogo = EcritImage(cabinet, {40, 20});
    options.LogoActif = 1;
    QCOMPARE(ChargeLogo(options).size(), QSize(40, 20));
    QCOMPARE(DefautDuLogo(options), QString());
}

void TestEditeur::unLogoImmenseEstReduit()
{
    Cabinet cabinet;
    settings::Options& options = cabinet.Etat.Reglages.Options;
    options.FichierLogo = EcritImage(cabinet, {6000, 60});
    QCOMPARE(ChargeLogo(options).size(), QSize(3000, 30));
}

void TestEditeur::unLogoQuiNEstPasUneImage_data()
{
    QTest::addColumn<QByteArray>("contenu");
    QTest::newRow("texte") << QByteArray("ceci n'est pas une image");
    QTest::newRow("vide") << QByteArray();
    QTest::newRow("tronqué") << QByteArray::fromHex("89504e470d0a1a0a0000000d49484452000000");
    // A header of 60000 by 60000 points and nothing behind it.
    QTest::newRow("démesuré") << QByteArray::fromHex(
        "89504e470d0a1a0a0000000d494844520000ea600000ea6008020000000fb0e2150000000b49444154789c6360800100000a"
        "00017f80745e");
}

void TestEditeur::unLogoQuiNEstPasUneImage()
{
    QFETCH(QByteArray, contenu);
    Cabinet cabinet;
    settings::Options& options = cabinet.Etat.Reglages.Options;
    options.FichierLogo = cabinet.Chemin(u"logo.png"_s);
    options.LogoActif = 1;
    QVERIFY(ChargeLogo(options).isNull()); // missing
    common::EcritFichier(options.FichierLogo, contenu);
    QVERIFY(ChargeLogo(options).isNull());
    QVERIFY(DefautDuLogo(options).contains(u"logo.png"_s));
}

void TestEditeur::unLogoInactifNeSeSignalePas()
{
    Cabinet cabinet;
    cabinet.Etat.Reglages.Options.FichierLogo = cabinet.Chemin(u"absent.png"_s);
    QCOMPARE(DefautDuLogo(cabinet.Etat.Reglages.Options), QString());
}

void TestEditeur::leMedecinApprendQueSonLogoNeSeLitPas()
{
    Cabinet cabinet;
    settings::Options options;
    options.LogoActif = 1;
    options.FichierLogo = cabinet.Chemin(u"absent.png"_s);
    settings::EcritOptions(options, cabinet.Etat.Chemins.CheminMedecin);
    cabinet.Boites.AttendInformation(messages::LogoIllisible(common::CheminAffiche(options.FichierLogo)));
    startup::ChangeMedecin(cabinet.Contexte, 0);
    QVERIFY(cabinet.Boites.Epuise());
}

QTEST_MAIN(TestEditeur)
#include "test_editeur.moc"
