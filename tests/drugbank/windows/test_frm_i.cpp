#include "drugbank/windows/FrmI.h"

#include "application/Signaux.h"
#include "application/windows/Style.h"
#include "drugbank/PosteBanque.h"
#include "drugbank/windows/FrmCopyright.h"

#include <QLabel>
#include <QProgressBar>
#include <QSignalSpy>
#include <QTest>

using namespace drugbank;

namespace {

/// A start under way, and the windows that show it.
struct Poste : support::PosteBanque
{
    explicit Poste(const char* json) : PosteBanque(json)
    {
        QObject::connect(&Etat.Signaux, &application::Signaux::StatutBanqueChange, &Etat.Signaux, [this] {
            if (Banque.Statut.Visible) {
                Fenetres.Donne<FrmI>().Montre();
            }
        });
    }

    template <typename Controle> Controle& Un(const char* nom)
    {
        return *Fenetres.Presente<FrmI>()->findChild<Controle*>(QLatin1String(nom));
    }

    application::Fenetres Fenetres{Contexte};
};

QString Texte(const QWidget& fenetre, const char* nom)
{
    const auto* label = fenetre.findChild<QLabel*>(QLatin1String(nom));
    return label ? label->text() : QString();
}

} // namespace

class TestFrmI : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { application::style::Installe(*qApp); }
    void TheStartIsShown();
    void ItTakesNoFocusAndStays();
    void TheDoctorMayGiveUp();
    void AFailureHasNoBar();
    void TheCopyrightOfTheBank();
    void TheCopyrightOfTheOpenBank();
};

void TestFrmI::TheStartIsShown()
{
    Poste poste(R"({"attentes": 2})");
    poste.ChargeEtDemarre(3000);
    QVERIFY(poste.Fenetres.Presente<FrmI>()->isVisible());
    QVERIFY(!poste.Fenetres.Presente<FrmI>()->isModal());
    QCOMPARE(poste.Un<QLabel>("Out").text(), support::kEnCours);
    QCOMPARE(poste.Un<QProgressBar>("PG").value(), 3);
    QCOMPARE(poste.Un<QProgressBar>("PG").maximum(), 8);
    QVERIFY(!poste.Un<QLabel>("Image").pixmap().isNull());
    QVERIFY(!poste.Un<QPushButton>("CmdAnnuler").isVisible());
    poste.Horloge.Passe(5000);
    QCOMPARE(poste.Un<QLabel>("Out").text(),
             QStringLiteral("Pharmacie initialisée\nDate d'expiration = 31/03/2027"));
}

void TestFrmI::ItTakesNoFocusAndStays()
{
    Poste poste(R"({"attentes": 1000000})");
    poste.ChargeEtDemarre(1000);
    auto& fenetre = *poste.Fenetres.Presente<FrmI>();
    QVERIFY(fenetre.testAttribute(Qt::WA_ShowWithoutActivating));
    QTest::keyClick(&fenetre, Qt::Key_Escape);
    QVERIFY(fenetre.isVisible());
    QVERIFY(!fenetre.close());
    QVERIFY(fenetre.isVisible());
}

void TestFrmI::TheDoctorMayGiveUp()
{
    Poste poste(R"({"attentes": 1000000})");
    poste.ChargeEtDemarre(30'000);
    QVERIFY(poste.Un<QPushButton>("CmdAnnuler").isVisible());
    QTest::keyClick(poste.Fenetres.Presente<FrmI>(), Qt::Key_Return);
    QCOMPARE(poste.Banque.BanqueInitialisee, quint8(0)); // Enter never gives up
    QTest::mouseClick(&poste.Un<QPushButton>("CmdAnnuler"), Qt::LeftButton);
    QCOMPARE(poste.Banque.BanqueInitialisee, quint8(1));
    QVERIFY(!poste.Banque.Acces);
}

void TestFrmI::AFailureHasNoBar()
{
    Poste poste(R"({"produits": {"1": true}})");
    poste.ChargeEtDemarre(2000);
    QVERIFY(!poste.Un<QProgressBar>("PG").isVisible());
    QVERIFY(poste.Un<QLabel>("Out").text().contains(
        QStringLiteral("Retour init = 21   =>  Echec initialisation")));
}

void TestFrmI::TheCopyrightOfTheBank()
{
    Poste poste(R"({"version": "3.2"})");
    poste.ChargeEtDemarre(1000);
    const auto& fenetre = poste.Fenetres.Donne<FrmCopyright>();
    QCOMPARE(Texte(fenetre, "Label1"), QStringLiteral("Dictionnaire VIDAL EXPERT"));
    QCOMPARE(Texte(fenetre, "LblVersion"), QStringLiteral("vidalapi.dll   version 3.2"));
    QVERIFY(!fenetre.findChild<QLabel*>(QStringLiteral("LblSource")));
}

void TestFrmI::TheCopyrightOfTheOpenBank()
{
    Poste poste(R"({"version": "3.2"})");
    poste.PosePublique();
    poste.ChargeEtDemarre(1000);
    auto& fenetre = poste.Fenetres.Donne<FrmCopyright>();
    for (const auto* label : fenetre.findChildren<QLabel*>()) {
        QVERIFY(!label->text().contains(QStringLiteral("vidal"), Qt::CaseInsensitive));
    }
    QVERIFY(Texte(fenetre, "LblSource").contains(QStringLiteral("ANSM")));
    QVERIFY(Texte(fenetre, "LblVersion").contains(QStringLiteral("3.2")));
    QSignalSpy ferme(&fenetre, &QDialog::accepted);
    QTest::mouseClick(fenetre.findChild<QPushButton*>(QStringLiteral("CmdQuitter")), Qt::LeftButton);
    QCOMPARE(ferme.size(), 1);
}

QTEST_MAIN(TestFrmI)
#include "test_frm_i.moc"
