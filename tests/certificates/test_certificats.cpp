#include "certificates/Bandeaux.h"
#include "certificates/Commandes.h"
#include "certificates/Modeles.h"
#include "certificates/Texte.h"
#include "certificates/messages.h"
#include "prescription/Apercu.h"
#include "storage/Jeu.h"
#include "support/BaseDeTest.h"
#include "support/Cabinet.h"

#include <QTest>

using namespace certificates;
using outside::Bouton;

namespace {

struct Editeur : Cabinet
{
    QString Travail() const { return Etat.Chemins.CheminTravail; }
    QString Dossier() const { return CheminCertificats(Travail()); }
    QByteArray Octets(const QString& nom) const { return common::LitFichier(common::Joint(Dossier(), nom)); }
    void AttendNom(const QString& reponse)
    {
        Boites.AttendEnregistre(messages::TitreEnregistrement(), reponse);
    }
};

} // namespace

class TestCertificats : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void TheAldSheet();
    void ShiftRight();
    void ShiftLeft();
    void ShiftLeftRefused();
    void WritesToThePage();
    void ATextThatComesBackIsTheSameAgain();
    void AnAldSheetHasNoShift();
    void WithoutADoctorNothingReachesThePage();
    void SavesUnderANewName();
    void ReplacesTheNameThatWasChosen();
    void RefusesNames();
    void Deletes();
    void TheFontIsTheOneRowOfItsTable();
    void TheFontWithoutADoctor();
    void AFontThatCannotBeStored();
    void FontLabel_data();
    void FontLabel();
    void TheIndexFollowsItsTemplate();
};

void TestCertificats::TheAldSheet()
{
    Certificat certificat;
    certificat.DecalageCertif = 4;
    const QString texte = CocheALD(certificat, true);
    QCOMPARE(texte,
             BandeauALD1() + QStringLiteral("\r\n\r\n\r\n\r\n\r\n") + BandeauALD2() + QStringLiteral("\r\n"));
    QCOMPARE(certificat.CertifALD, 1);
    QCOMPARE(certificat.DecalageCertif, 0.0);
    certificat.DecalageCertif = 4;
    QCOMPARE(CocheALD(certificat, false), QString());
    QCOMPARE(certificat.CertifALD, 0);
    QCOMPARE(certificat.DecalageCertif, 0.0);
}

void TestCertificats::ShiftRight()
{
    Editeur editeur;
    QCOMPARE(DecaleTexteADroite(editeur.Contexte, QStringLiteral("a\r\nb")),
             QStringLiteral("  a\r\n  b\r\n"));
    QCOMPARE(editeur.Etat.Certificat.DecalageCertif, 2.0);
    QCOMPARE(editeur.Octets(QStringLiteral("Tmp.txt")), QByteArray("a\r\nb"));
}

void TestCertificats::ShiftLeft()
{
    Editeur editeur;
    editeur.Etat.Certificat.DecalageCertif = 2;
    QCOMPARE(*DecaleTexteAGauche(editeur.Contexte, QStringLiteral("  a\r\n\r\n  b\r\n")),
             QStringLiteral("a\r\n\r\nb\r\n"));
    QCOMPARE(editeur.Etat.Certificat.DecalageCertif, 0.0);
}

void TestCertificats::ShiftLeftRefused()
{
    Editeur editeur;
    QVERIFY(!DecaleTexteAGauche(editeur.Contexte, QStringLiteral("  a\r\n b")));
    QCOMPARE(editeur.Etat.Certificat.DecalageCertif, 0.0);
}

void TestCertificats::WritesToThePage()
{
    Editeur editeur;
    editeur.Etat.Certificat.DecalageCertif = 4;
    QVERIFY(EcritSurLaPage(editeur.Contexte, QStringLiteral("Certificat\r\n  "), 3));
    QCOMPARE(editeur.Octets(QStringLiteral("Tmp.txt")), QByteArray("Certificat\r\n"));
    QCOMPARE(editeur.Etat.Apercu.ModeApercu, 1);
    QCOMPARE(editeur.Etat.Certificat.IndexCertif, 3);
    QCOMPARE(editeur.Etat.Certificat.ChargeCertif, 1);
    QCOMPARE(editeur.Etat.Certificat.DecalageCertif, 4.0);
    QCOMPARE(*TexteDeLaPage(editeur.Contexte), QStringLiteral("Certificat\r\n"));
    QuitteCertificats(editeur.Contexte);
    QCOMPARE(editeur.Etat.Apercu.ModeApercu, 2);
    QVERIFY(editeur.Etat.Apercu.PctOrdo.Items.isEmpty());
}

void TestCertificats::ATextThatComesBackIsTheSameAgain()
{
    Editeur editeur;
    QVERIFY(EcritSurLaPage(editeur.Contexte, QStringLiteral("a\r\n\r\nb  "), -1));
    const QString revenu = *TexteDeLaPage(editeur.Contexte);
    QCOMPARE(revenu, QStringLiteral("a\r\n\r\nb\r\n"));
    QVERIFY(EcritSurLaPage(editeur.Contexte, revenu, -1));
    QCOMPARE(*TexteDeLaPage(editeur.Contexte), revenu);
}

void TestCertificats::AnAldSheetHasNoShift()
{
    Editeur editeur;
    editeur.Etat.Certificat.DecalageCertif = 4;
    editeur.Etat.Certificat.CertifALD = 1;
    QVERIFY(EcritSurLaPage(editeur.Contexte, QStringLiteral("a"), -1));
    QCOMPARE(editeur.Etat.Certificat.DecalageCertif, 0.0);
}

void TestCertificats::WithoutADoctorNothingReachesThePage()
{
    Editeur editeur;
    editeur.Etat.Chemins.CheminMedecin.clear();
    editeur.Boites.AttendInformation(messages::SansMedecin());
    QVERIFY(!EcritSurLaPage(editeur.Contexte, QStringLiteral("a"), 0));
    QVERIFY(!TexteDeLaPage(editeur.Contexte));
    QCOMPARE(editeur.Etat.Apercu.ModeApercu, 0);
    editeur.AttendNom(QStringLiteral("Sport"));
    QVERIFY(EnregistreSous(editeur.Contexte, QStringLiteral("a")));
    QCOMPARE(ListeModeles(editeur.Travail()), QStringList{QStringLiteral("Sport")});
}

void TestCertificats::SavesUnderANewName()
{
    Editeur editeur;
    editeur.Etat.Certificat.DecalageCertif = 4;
    editeur.AttendNom(common::Joint(editeur.Dossier(), QStringLiteral("Sport.txt")));
    QVERIFY(EnregistreSous(editeur.Contexte, QStringLiteral("    a")));
    QCOMPARE(editeur.Octets(QStringLiteral("Sport.txt")), QByteArray("    a"));
    QCOMPARE(editeur.Octets(QStringLiteral("Sport.cfg")), QByteArray("4,0\r\n"));
    editeur.Boites.AttendEnregistre(messages::TitreEnregistrement(), std::nullopt);
    QVERIFY(!EnregistreSous(editeur.Contexte, QStringLiteral("b")));
    QCOMPARE(ListeModeles(editeur.Travail()), QStringList{QStringLiteral("Sport")});
}

void TestCertificats::ReplacesTheNameThatWasChosen()
{
    Editeur editeur;
    EcritModele(editeur.Travail(), QStringLiteral("Sport"), QStringLiteral("ancien"), {});
    editeur.AttendNom(QStringLiteral("Sport"));
    QVERIFY(EnregistreSous(editeur.Contexte, QStringLiteral("nouveau")));
    QCOMPARE(editeur.Octets(QStringLiteral("Sport.txt")), QByteArray("nouveau"));
}

void TestCertificats::RefusesNames()
{
    Editeur editeur;
    editeur.AttendNom(QStringLiteral("tmp"));
    editeur.Boites.Attend(outside::Genre::Exclamation, messages::NomReserve(QStringLiteral("tmp")),
                          Bouton::OK);
    QVERIFY(!EnregistreSous(editeur.Contexte, QStringLiteral("a")));
    editeur.AttendNom(editeur.Chemin(QStringLiteral("Sport")));
    editeur.Boites.Attend(outside::Genre::Exclamation,
                          messages::HorsDuDossier(common::CheminAffiche(editeur.Dossier())), Bouton::OK);
    QVERIFY(!EnregistreSous(editeur.Contexte, QStringLiteral("a")));
    QVERIFY(!common::DossierContientFichier(editeur.Dossier()));
    QVERIFY(!common::FichierExiste(editeur.Chemin(QStringLiteral("Sport.txt"))));
}

void TestCertificats::Deletes()
{
    Editeur editeur;
    EcritModele(editeur.Travail(), QStringLiteral("Sport"), QStringLiteral("a"), {});
    editeur.Boites.AttendInformation(messages::SelectionnezLeModele());
    QVERIFY(!SupprimeModele(editeur.Contexte, {}));
    editeur.Boites.AttendQuestion(QStringLiteral("Supprimer Sport.txt ?"), Bouton::Non, Bouton::Non);
    QVERIFY(!SupprimeModele(editeur.Contexte, QStringLiteral("Sport")));
    QVERIFY(ModeleExiste(editeur.Travail(), QStringLiteral("Sport")));
    editeur.Boites.AttendQuestion(QStringLiteral("Supprimer Sport.txt ?"), Bouton::Oui, Bouton::Non);
    QVERIFY(SupprimeModele(editeur.Contexte, QStringLiteral("Sport")));
    QVERIFY(!common::DossierContientFichier(editeur.Dossier()));
}

void TestCertificats::TheFontIsTheOneRowOfItsTable()
{
    Editeur editeur;
    const page::Police police{QStringLiteral("Times New Roman"), 12.5F, true, false, true};
    storage::Base& ordo = editeur.Etat.Bases.Ordo(editeur.Etat.Chemins.CheminMedecin);
    support::AjouteLigne(ordo, QStringLiteral("Certificat"), {QStringLiteral("Arial"), 8, 0, 0, 0});
    editeur.Boites.AttendPolice(police);
    QVERIFY(ChoisitPolice(editeur.Contexte));
    QCOMPARE(support::Lignes(ordo, QStringLiteral("Certificat")),
             QStringList{QStringLiteral("Times New Roman|12.5|1|0|1")});
    QCOMPARE(editeur.Etat.Reglages.Look.Certif, police);
    QCOMPARE(editeur.Etat.Certificat.TxtCert, police);
    editeur.Boites.AttendPolice(std::nullopt);
    QVERIFY(!ChoisitPolice(editeur.Contexte));
    QCOMPARE(editeur.Etat.Reglages.Look.Certif, police);
}

void TestCertificats::TheFontWithoutADoctor()
{
    Editeur editeur;
    editeur.Etat.Chemins.CheminMedecin.clear();
    const page::Police police{QStringLiteral("Arial"), 14, false, true, false};
    editeur.Boites.AttendPolice(police);
    editeur.Boites.AttendInformation(messages::PoliceSansMedecin());
    QVERIFY(ChoisitPolice(editeur.Contexte));
    QCOMPARE(editeur.Etat.Certificat.TxtCert, police);
}

void TestCertificats::AFontThatCannotBeStored()
{
    Editeur editeur;
    const page::Police avant = editeur.Etat.Reglages.Look.Certif;
    storage::Base& ordo = editeur.Etat.Bases.Ordo(editeur.Etat.Chemins.CheminMedecin);
    const QStringList lignes = support::Lignes(ordo, QStringLiteral("Certificat"));
    storage::Base::Crochet echoue = [](const QString& instruction) {
        return instruction.startsWith(QLatin1String("INSERT"), Qt::CaseInsensitive);
    };
    ordo.PoseCrochet(echoue);
    editeur.Boites.AttendPolice(page::Police{QStringLiteral("Courier New"), 9});
    QVERIFY(!support::PhraseDEchec([&] { ChoisitPolice(editeur.Contexte); }).isEmpty());
    ordo.PoseCrochet({});
    QCOMPARE(support::Lignes(ordo, QStringLiteral("Certificat")), lignes);
    QCOMPARE(editeur.Etat.Reglages.Look.Certif, avant);
}

void TestCertificats::FontLabel_data()
{
    QTest::addColumn<page::Police>("police");
    QTest::addColumn<QString>("libelle");
    QTest::newRow("plain") << page::Police{} << "Arial  (10      )";
    QTest::newRow("all") << page::Police{QStringLiteral("Times"), 9.5F, true, true, true}
                         << "Times  (9,5  G  I  U)";
    QTest::newRow("italic") << page::Police{QStringLiteral("Times"), 9, false, true, false}
                            << "Times  (9    I  )";
}

void TestCertificats::FontLabel()
{
    QFETCH(page::Police, police);
    QTEST(LibellePolice(police), "libelle");
}

void TestCertificats::TheIndexFollowsItsTemplate()
{
    const QStringList avant{QStringLiteral("A"), QStringLiteral("C")};
    Certificat certificat;
    certificat.IndexCertif = 1;
    SuitLaListe(certificat, avant, {QStringLiteral("A"), QStringLiteral("B"), QStringLiteral("C")});
    QCOMPARE(certificat.IndexCertif, 2);
    SuitLaListe(certificat, {QStringLiteral("A"), QStringLiteral("B"), QStringLiteral("C")},
                {QStringLiteral("A"), QStringLiteral("B")});
    QCOMPARE(certificat.IndexCertif, -1);
    SuitLaListe(certificat, avant, avant);
    QCOMPARE(certificat.IndexCertif, -1);
}

QTEST_MAIN(TestCertificats)
#include "test_certificats.moc"
