#include "application/Signaux.h"
#include "medication/Choix.h"
#include "settings/ChoixPharmacie.h"
#include "settings/FichiersReglages.h"
#include "settings/LogoOptions.h"
#include "settings/SaisieOptions.h"
#include "settings/messages.h"
#include "startup/GestionMedecins.h"
#include "support/Cabinet.h"

#include <QTest>

using namespace settings;

namespace {

SaisieOptions Acceptable()
{
    SaisieOptions saisie;
    saisie.Imprimante = QStringLiteral("Bureau");
    saisie.BaseChoisie = true;
    return saisie;
}

QString Refus(const SaisieOptions& saisie)
{
    const auto refus = RefusDeLaSaisie(saisie);
    return refus ? refus->Texte : QString();
}

} // namespace

class TestSaisieOptions : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void TheTestsStandInTheirOrder();
    void AnotherBaseFillsTheTreeAgain();
    void TheHelperLibraryDecides();
    void TheProportionRunsInWholeMillimetres();
    void CancelGoesBackToTheDoctorOfTheOpening();
    void AFormerPictureThatIsGoneIsToldOf();
};

void TestSaisieOptions::TheTestsStandInTheirOrder()
{
    SaisieOptions saisie;
    saisie.ChkLog = true;
    saisie.TxtH = QStringLiteral("0");
    saisie.TxtL = saisie.TxtX = QStringLiteral("40000");
    QCOMPARE(Refus(saisie), messages::PasDeBase());
    saisie.BaseChoisie = true;
    QCOMPARE(Refus(saisie), messages::PasDImprimante());
    saisie.Imprimante = QStringLiteral("Bureau");
    QCOMPARE(Refus(saisie), messages::PasDeFichierLogo());
    saisie.AvecImage = true;
    QCOMPARE(Refus(saisie), messages::PasDeTailleLogo());
    saisie.TxtH = QStringLiteral("20");
    QCOMPARE(Refus(saisie), messages::MesureRefusee(QStringLiteral("40000")));
    saisie.TxtL = saisie.TxtX = QStringLiteral("-32768");
    QCOMPARE(Refus(saisie), messages::PasDeTailleLogo());
    saisie.TxtL = QStringLiteral("32767");
    QCOMPARE(Refus(saisie), QString());
}

void TestSaisieOptions::AnotherBaseFillsTheTreeAgain()
{
    Cabinet cabinet;
    cabinet.Etat.Choix.BaseChangee = 2;
    PrendInstantane(cabinet.Contexte);
    EnregistreOptions(cabinet.Contexte, Acceptable());
    QCOMPARE(int(cabinet.Etat.Choix.BaseChangee), 2);
    cabinet.Etat.Banque.TypeBase = QStringLiteral("VDE");
    EnregistreOptions(cabinet.Contexte, Acceptable());
    QCOMPARE(int(cabinet.Etat.Choix.BaseChangee), 1);
}

void TestSaisieOptions::TheHelperLibraryDecides()
{
    Cabinet cabinet;
    drugbank::Banque& banque = cabinet.Etat.Banque;
    QCOMPARE(ChoisitPharmacie(cabinet.Contexte, 2).LblBase, messages::SansModuleAide());
    QCOMPARE(banque.ProduitBanque, -1);
    banque.ModuleAide = true;
    banque.VidalHelper_getVidalAPIPath = [](qint32 produit) { return produit == 1 ? 0 : 21; };
    QCOMPARE(ChoisitPharmacie(cabinet.Contexte, 2).LblBase,
             QStringLiteral("La base VIDAL Dentaire est correctement installée !"));
    QCOMPARE(banque.TypeBase, QStringLiteral("VDE"));
    QCOMPARE(ChoisitPharmacie(cabinet.Contexte, 1).LblBase,
             QStringLiteral("La base VIDAL Expert n'est pas correctement installée !"));
    QCOMPARE(banque.ProduitBanque, 2);
}

void TestSaisieOptions::TheProportionRunsInWholeMillimetres()
{
    const QString autre = QStringLiteral("1");
    QCOMPARE(LargeurPour(QStringLiteral("20"), 2, autre), QStringLiteral("40"));
    QCOMPARE(HauteurPour(QStringLiteral("20"), 3, autre), QStringLiteral("7"));
    QCOMPARE(LargeurPour(QString(), 2, autre), QString());
    QCOMPARE(LargeurPour(QStringLiteral("20"), 0, autre), autre);
    QCOMPARE(HauteurPour(QStringLiteral("20"), 0, autre), autre);
}

void TestSaisieOptions::CancelGoesBackToTheDoctorOfTheOpening()
{
    Cabinet cabinet;
    application::Etat& etat = cabinet.Etat;
    const QString chemin = etat.Chemins.CheminMedecin;
    etat.Medecins.Liste.append({.Nom = QStringLiteral("DR DURAND"), .Numero = 2});
    common::CreeDossier(common::Joint(etat.Chemins.CheminTravail, QStringLiteral("DR DURAND")));
    Options siennes = etat.Reglages.Options;
    siennes.SautsPrescription = 4;
    EcritOptions(siennes, chemin);
    const Instantane instantane = PrendInstantane(cabinet.Contexte);
    startup::ChangeMedecin(cabinet.Contexte, static_cast<int>(etat.Medecins.Liste.size()) - 1);
    QVERIFY(etat.Chemins.CheminMedecin.endsWith(QStringLiteral("DURAND")));
    bool face = false;
    QObject::connect(&etat.Signaux, &application::Signaux::FaceChange, [&face] { face = true; });
    RestaureInstantane(cabinet.Contexte, instantane);
    QCOMPARE(etat.Chemins.CheminMedecin, chemin);
    QCOMPARE(int(etat.Medecins.NumMedecin), 1);
    QCOMPARE(int(etat.Reglages.Options.SautsPrescription), 4);
    QVERIFY(face);
}

void TestSaisieOptions::AFormerPictureThatIsGoneIsToldOf()
{
    Cabinet cabinet;
    const Instantane instantane = PrendInstantane(cabinet.Contexte);
    cabinet.Etat.Reglages.Options.LogoHauteur = 12;
    const QString logo = common::Joint(cabinet.Etat.Chemins.CheminMedecin, QStringLiteral("logo.bmp"));
    common::EcritFichier(logo, "nouveau");
    cabinet.Etat.Reglages.EnCours.LogosEcartes = {logo};
    cabinet.Boites.AttendContenant(outside::Genre::Stop, QStringLiteral("logo.bmp"));
    RestaureInstantane(cabinet.Contexte, instantane);
    QCOMPARE(common::LitFichier(logo), QByteArray("nouveau"));
    QCOMPARE(int(cabinet.Etat.Reglages.Options.LogoHauteur), 0);
}

QTEST_MAIN(TestSaisieOptions)

#include "test_saisie_options.moc"
